// Each pair of kinds has its function of the library; what the library leaves to its host is
// added: shapes on one line or one circle, and ends that lie together.

#include "pairs.h"

#include <algorithm>
#include <cmath>

#include "conics.h"

namespace draft {

namespace {

DTPOINT centerOf(const DTARC &arc) { return {arc.cx, arc.cy}; }
DTPOINT centerOf(const DTELLIPSE &e) { return {e.cx, e.cy}; }

/// A point found already counts once.
void addOnce(Meeting &meeting, DTPOINT p) {
    for (std::size_t i = 0; i < meeting.count; ++i)
        if (isTogether(meeting.points[i], p)) return;
    if (meeting.count < Meeting::kMost) meeting.add(p);
}

bool isOn(const DTLINE &line, DTPOINT p) {
    const Ends ends = endsOf(line);
    return a2d_onlin(&ends.points[0], &ends.points[1], &p) == 0;
}

/// Of a point on the arc's circle.
bool isOn(const DTARC &arc, DTPOINT p) {
    return a2d_ChkDegr(arc.start, arc.end, atan2d(p.y - arc.cy, p.x - arc.cx)) == 0;
}

/// Of a point on the arc's ellipse.
bool isOn(const DTELLIPSE &arc, DTPOINT p) { return CheckEllipseArcAngle(&arc, &p) == 0; }

/// Two stretches of one line, circle or ellipse meet where an end of one lies on the other, and
/// overlap when such an end lies within the other or when the stretches are the same.
template <typename Curve>
Meeting meetingOnOneCurve(const Curve &a, const Curve &b, DTPOINT middleOfA) {
    Meeting meeting;
    const Ends endsOfA = endsOf(a);
    const Ends endsOfB = endsOf(b);
    const auto addEnds = [&](const Ends &ends, const Curve &other, const Ends &otherEnds) {
        for (std::size_t i = 0; i < ends.count; ++i) {
            const DTPOINT p = ends.points[i];
            if (!isOn(other, p)) continue;
            addOnce(meeting, p);
            bool isShared = false;
            for (std::size_t j = 0; j < otherEnds.count; ++j)
                isShared = isShared || isTogether(p, otherEnds.points[j]);
            meeting.overlaps = meeting.overlaps || !isShared;
        }
    };
    addEnds(endsOfA, b, endsOfB);
    addEnds(endsOfB, a, endsOfA);
    const bool isSame = isOn(b, middleOfA) && (meeting.count > 0 || endsOfA.count == 0);
    if (isSame && meeting.count == 0) meeting.add(middleOfA);
    meeting.overlaps = meeting.overlaps || isSame;
    return meeting;
}

DTPOINT middleOf(const DTLINE &line) {
    return {(line.x1 + line.x2) / 2.0, (line.y1 + line.y2) / 2.0};
}
DTPOINT middleOf(const DTARC &arc) { return pointAt(arc, (arc.start + arc.end) / 2.0); }

DTPOINT middleOf(const DTELLIPSE &arc) { return pointAt(arc, (arc.start + arc.end) / 2.0); }

bool areOnOneCircle(const DTARC &a, const DTARC &b) {
    return isTogether(centerOf(a), centerOf(b)) && std::fabs(a.r - b.r) < ca_geterrdist();
}

struct MeetingOf {
    Meeting operator()(const DTLINE &a, const DTLINE &b) const {
        constexpr int kOnBoth = 0;
        constexpr int kParallel = 2;
        const Ends first = endsOf(a);
        const Ends second = endsOf(b);
        DTPOINT point;
        const int outcome = a2d_ins2l(&first.points[0], &first.points[1], &second.points[0],
                                      &second.points[1], &point);
        if (outcome == kParallel) return meetingOnOneCurve(a, b, middleOf(a));
        Meeting meeting;
        if (outcome == kOnBoth) meeting.add(point);
        return meeting;
    }

    Meeting operator()(const DTLINE &line, const DTARC &arc) const {
        constexpr std::uint32_t kSegmentAndArc = 3;
        const Ends ends = endsOf(line);
        const DTPOINT center = centerOf(arc);
        const std::array<double, 2> angles = {arc.start, arc.end};
        Meeting meeting;
        std::uint16_t count = 0;
        a2d_lin_arc(kSegmentAndArc, &ends.points[0], &ends.points[1], &center, arc.r, angles.data(),
                    &meeting.points[0], &meeting.points[1], &count);
        meeting.count = count;
        return meeting;
    }

    Meeting operator()(const DTARC &a, const DTARC &b) const {
        if (areOnOneCircle(a, b)) return meetingOnOneCurve(a, b, middleOf(a));
        const DTPOINT centerA = centerOf(a);
        const DTPOINT centerB = centerOf(b);
        const std::array<double, 2> anglesA = {a.start, a.end};
        const std::array<double, 2> anglesB = {b.start, b.end};
        Meeting meeting;
        std::uint16_t count = 0;
        a2d_ins2c(&centerA, &centerB, a.r, b.r, anglesA.data(), anglesB.data(), &meeting.points[0],
                  &meeting.points[1], &count);
        meeting.count = count;
        return meeting;
    }

    /// The library intersects the infinite line; what lies beyond its ends is dropped here.
    Meeting operator()(const DTLINE &line, const DTELLIPSE &e) const {
        const Ends ends = endsOf(line);
        const DTPOINT center = centerOf(e);
        const std::array<double, 2> angles = {e.start, e.end};
        std::array<DTPOINT, 2> found{};
        std::uint16_t count = 0;
        a2d_insl1(&ends.points[0], &ends.points[1], &center, e.a, e.b, e.rot, angles.data(),
                  &found[0], &found[1], &count);
        Meeting meeting;
        for (std::size_t i = 0; i < count; ++i)
            if (isOn(line, found[i])) meeting.add(found[i]);
        return meeting;
    }

    Meeting operator()(const DTARC &arc, const DTELLIPSE &given) const {
        if (const auto round = asArc(given)) return (*this)(arc, *round);
        const DTELLIPSE ellipse = canonical(given);
        const PairFrame frame(centerOf(arc), std::min(2.0 * arc.r, ellipse.b));
        const DTARC a = frame.in(arc);
        const DTELLIPSE e = frame.in(ellipse);
        const std::array<double, 2> angles = {a.start, a.end};
        const std::array<double, 2> range = {e.start, e.end};
        std::array<DTPOINT, 4> p{};
        std::int16_t count = 0;
        if (ca_insce(&a.cx, a.r, angles.data(), &e.cx, e.a, e.b, e.rot, range.data(), &p[0], &p[1],
                     &p[2], &p[3], &count) != 0)
            return unknown();
        return trusted(p, count, a, e, frame);
    }

    Meeting operator()(const DTELLIPSE &first, const DTELLIPSE &second) const {
        if (const auto round = asArc(first)) return (*this)(*round, second);
        if (const auto round = asArc(second)) return (*this)(*round, first);
        const DTELLIPSE a = canonical(first);
        const DTELLIPSE b = canonical(second);
        if (areOnOneEllipse(a, b)) return meetingOnOneCurve(a, b, middleOf(a));
        const PairFrame frame(centerOf(a), std::min(a.b, b.b));
        return meetingOfEllipses(frame.in(a), frame.in(b), frame);
    }

    Meeting operator()(const DTARC &arc, const DTLINE &line) const { return (*this)(line, arc); }
    Meeting operator()(const DTELLIPSE &e, const DTLINE &line) const { return (*this)(line, e); }
    Meeting operator()(const DTELLIPSE &e, const DTARC &arc) const { return (*this)(arc, e); }

    static Meeting meetingOfEllipses(const DTELLIPSE &a, const DTELLIPSE &b,
                                     const PairFrame &frame) {
        const std::array<double, 2> rangeA = {a.start, a.end};
        const std::array<double, 2> rangeB = {b.start, b.end};
        std::array<DTPOINT, 4> p{};
        std::int16_t count = 0;
        if (ca_ins2e(&a.cx, &b.cx, a.a, b.a, a.b, b.b, a.rot, b.rot, rangeA.data(), rangeB.data(),
                     &p[0], &p[1], &p[2], &p[3], &count) < 0)
            return unknown();
        return trusted(p, count, a, b, frame);
    }

    /// In the limit of a touch the library may give points that lie on one curve only.
    template <typename First, typename Second>
    static Meeting trusted(const std::array<DTPOINT, 4> &points, int count, const First &first,
                           const Second &second, const PairFrame &frame) {
        Meeting meeting;
        for (int i = 0; i < count; ++i) {
            const DTPOINT p = points[static_cast<std::size_t>(i)];
            if (isNear(first, p) && isNear(second, p)) addOnce(meeting, frame.out(p));
        }
        return meeting;
    }

    static Meeting unknown() {
        Meeting meeting;
        meeting.known = false;
        return meeting;
    }
};

/// Where shapes touch in a corner or run into each other, rounding may leave the point just
/// beyond an end; ends that lie together are a meeting in any case.
void addSharedEnds(Meeting &meeting, const Shape &first, const Shape &second) {
    const Ends a = endsOf(first);
    const Ends b = endsOf(second);
    for (std::size_t i = 0; i < a.count; ++i) {
        for (std::size_t j = 0; j < b.count; ++j)
            if (isTogether(a.points[i], b.points[j])) addOnce(meeting, a.points[i]);
    }
}

} // namespace

Meeting meetingOf(const Shape &first, const Shape &second) {
    Meeting meeting = std::visit(MeetingOf{}, first, second);
    addSharedEnds(meeting, first, second);
    return meeting;
}

std::string pairName(const Shape &first, const Shape &second) {
    const auto [low, high] = std::minmax({kindOf(first), kindOf(second)});
    return std::string(nameOf(low)) + " with " + nameOf(high);
}

} // namespace draft
