// Trims a segment at its crossings: the piece that was picked goes, the others stay.
//
//     c++ trim.cpp $(pkg-config --cflags --libs planegeo) && ./a.out

#include <planegeo.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

struct Segment {
    DTPOINT from, to;
};

// Where along the segment a point of its line lies, in drawing units from its start.
double along(const Segment &s, const DTPOINT &p) {
    const double length = ca_dstpt(&s.from, &s.to);
    return ((p.x - s.from.x) * (s.to.x - s.from.x) + (p.y - s.from.y) * (s.to.y - s.from.y)) /
           length;
}

class Cuts {
  public:
    explicit Cuts(const Segment &segment) : segment_(segment) {}

    void by(const Segment &other) {
        DTPOINT p;
        if (a2d_ins2l(&segment_.from, &segment_.to, &other.from, &other.to, &p) == 0) add(p);
    }

    void by(const DTARC &arc) {
        const DTPOINT center{arc.cx, arc.cy};
        const double angles[2] = {arc.start, arc.end};
        DTPOINT p[2];
        uint16_t count = 0;
        ca_inslc(&segment_.from, &segment_.to, &center, arc.r, angles, &p[0], &p[1], &count);
        for (int i = 0; i < count; ++i)
            add(p[i]);
    }

    void by(const DTELLIPSE &e) {
        const DTPOINT center{e.cx, e.cy};
        const double angles[2] = {e.start, e.end};
        DTPOINT p[2];
        uint16_t count = 0;
        // This one takes the infinite line: keep what lies on the segment.
        a2d_insl1(&segment_.from, &segment_.to, &center, e.a, e.b, e.rot, angles, &p[0], &p[1],
                  &count);
        for (int i = 0; i < count; ++i) {
            if (a2d_onlin(&segment_.from, &segment_.to, &p[i]) == 0) add(p[i]);
        }
    }

    // What stays when the piece around the picked point goes.
    std::vector<Segment> without(const DTPOINT &picked) {
        std::sort(points_.begin(), points_.end(), [this](const DTPOINT &p, const DTPOINT &q) {
            return along(segment_, p) < along(segment_, q);
        });
        const auto next = std::find_if(points_.begin(), points_.end(), [&](const DTPOINT &p) {
            return along(segment_, p) > along(segment_, picked);
        });
        std::vector<Segment> kept;
        if (next != points_.begin()) kept.push_back({segment_.from, *(next - 1)});
        if (next != points_.end()) kept.push_back({*next, segment_.to});
        return kept;
    }

  private:
    void add(const DTPOINT &p) { points_.push_back(p); }

    Segment segment_;
    std::vector<DTPOINT> points_;
};

} // namespace

int main() {
    const Segment beam{{0.0, 30.0}, {200.0, 30.0}};
    Cuts cuts(beam);
    cuts.by(Segment{{20.0, 0.0}, {20.0, 60.0}});
    cuts.by(DTARC{0, 50.0, 10.0, 25.0, 45.0, 180.0});               // at x = 35 and 65
    cuts.by(DTELLIPSE{0, 150.0, 30.0, 60.0, 40.0, 0.0, 90.0, 0.0}); // a quarter, at x = 180

    for (const DTPOINT picked : {DTPOINT{10.0, 30.0}, DTPOINT{50.0, 30.0}, DTPOINT{190.0, 30.0}}) {
        std::printf("picked at %g:", picked.x);
        for (const Segment &s : cuts.without(picked)) {
            std::printf(" (%g, %g)-(%g, %g)", s.from.x, s.from.y, s.to.x, s.to.y);
        }
        std::printf("\n");
    }
}
