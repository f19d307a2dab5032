#include "pairs.h"

namespace draft {

namespace {

DTPOINT startOf(const DTLINE &line) { return {line.x1, line.y1}; }
DTPOINT endOf(const DTLINE &line) { return {line.x2, line.y2}; }

bool isOn(const DTLINE &line, DTPOINT p) {
    const DTPOINT start = startOf(line);
    const DTPOINT end = endOf(line);
    return a2d_onlin(&start, &end, &p) == 0;
}

/// An end that was found already, on the other line, counts once.
void addEnd(Meeting &meeting, DTPOINT p) {
    for (std::size_t i = 0; i < meeting.count; ++i)
        if (ca_dstpt(&meeting.points[i], &p) < ca_geterrdist()) return;
    meeting.add(p);
}

/// Parallel lines meet where an end of one lies on the other: at most at two points, which
/// bound a common stretch.
Meeting meetingOfParallels(const DTLINE &a, const DTLINE &b) {
    Meeting meeting;
    for (const DTPOINT end : {startOf(a), endOf(a)})
        if (isOn(b, end)) addEnd(meeting, end);
    for (const DTPOINT end : {startOf(b), endOf(b)})
        if (meeting.count < 2 && isOn(a, end)) addEnd(meeting, end);
    meeting.overlaps = meeting.count == 2;
    return meeting;
}

struct MeetingOf {
    Meeting operator()(const DTLINE &a, const DTLINE &b) const {
        constexpr int kOnBoth = 0;
        constexpr int kParallel = 2;
        const DTPOINT a1 = startOf(a);
        const DTPOINT a2 = endOf(a);
        const DTPOINT b1 = startOf(b);
        const DTPOINT b2 = endOf(b);
        DTPOINT point;
        const int outcome = a2d_ins2l(&a1, &a2, &b1, &b2, &point);
        if (outcome == kParallel) return meetingOfParallels(a, b);
        Meeting meeting;
        if (outcome == kOnBoth) meeting.add(point);
        return meeting;
    }
    template <typename First, typename Second>
    Meeting operator()(const First & /*first*/, const Second & /*second*/) const {
        Meeting meeting;
        meeting.known = false;
        return meeting;
    }
};

} // namespace

Meeting meetingOf(const Shape &first, const Shape &second) {
    return std::visit(MeetingOf{}, first, second);
}

} // namespace draft
