// Pictures: lengths and areas of ellipses.
#include "album.h"

namespace pictures {

namespace {

/// An ellipse whose half axes stand in the parameter table as long as this lives.
struct Measured : Ellipse {
    explicit Measured(const Ellipse &e) : Ellipse(e) {
        ca_Simpson_getParmtbl()[0] = a / 2;
        ca_Simpson_getParmtbl()[1] = b / 2;
    }
    Measured(const Measured &) = delete;
    Measured &operator=(const Measured &) = delete;
    ~Measured() { ca_Simpson_getParmtbl()[0] = ca_Simpson_getParmtbl()[1] = 0.0; }
};

const Scale kTurn{"deg", 0, 360, 45};

double lengthPerRadian(double deg) {
    double value = 0;
    ca_lengelp(deg, &value);
    return value;
}

/// The curve of an integrand, and the area below it between two limits.
void drawIntegral(Picture &picture, double lower, double upper) {
    picture.graph(kTurn, {"ca_lengelp", 0, 60, 20});
    picture.given().curve(0, 360, lengthPerRadian);
    picture.found();
    for (double deg = lower; deg <= upper; deg += 5) {
        picture.segment({deg, 0}, {deg, lengthPerRadian(deg)});
    }
}

} // namespace

void drawMeasure(Album &album) {
    const Ellipse whole{{50, 30}, 80, 40, 0, {0, 360}};

    const auto integrand = [whole](const Scale &value) {
        return [=](Picture &picture, auto &call) {
            const Measured e(whole);
            picture.graph(kTurn, value);
            picture.found().curve(0, 360, [&](double deg) {
                double found = 0;
                call(deg, &found);
                return found;
            });
            picture.given().figure("slot 0", e.a / 2).figure("slot 1", e.b / 2);
        };
    };
    album.add(PICTURES_NAMED(ca_lengelp),
              integrand({"value, drawing units per radian", 0, 60, 20}));
    album.add(PICTURES_NAMED(ca_AreaElp),
              integrand({"value, drawing units squared per radian", 0, 1000, 250}));

    album.add(PICTURES_NAMED(ca_Simpson), [=](Picture &picture, auto &call) {
        const Measured e(whole);
        double integral = 0;
        const int32_t result = call(ca_lengelp, 45, 180, &integral);
        drawIntegral(picture, 45, 180);
        picture.given().figure("lower", 45).figure("upper", 180);
        picture.returns(result).figure("result", integral);
    });

    album.add(PICTURES_NAMED(ca_Simpson2), [=](Picture &picture, auto &call) {
        const Measured e(whole);
        double lower = 45, upper = 180;
        const double wanted = 100;
        const int32_t result = call(ca_lengelp, &lower, &upper, wanted, 1);
        drawIntegral(picture, lower, upper);
        picture.given().figure("lower", 45).figure("upper", 180).figure("wanted", wanted);
        picture.figure("which", 1).returns(result).figure("upper", upper);
    });

    album.add(PICTURES_NAMED(ca_ElpLen), [=](Picture &picture, auto &call) {
        const Measured e({whole.center, whole.a, whole.b, 0, {0, 270}});
        const DTELLIPSE record = e.record();
        double length = 0;
        const int32_t result = call(&record, &length);
        picture.aid().ellipse(e);
        picture.given().figure("slot 0", e.a / 2).figure("slot 1", e.b / 2);
        picture.found().ellipticArc(e).returns(result).figure("length", length);
        picture.given().point(e.at(0), "start 0").point(e.at(270), "end 270");
    });

    album.add(PICTURES_NAMED(ca_ElpLen2), [=](Picture &picture, auto &call) {
        const Measured e({whole.center, whole.a, whole.b, 0, {20, 120}});
        DTELLIPSE record = e.record();
        const double wanted = 100;
        const int32_t result = call(&record, wanted, 1);
        const Ellipse moved{e.center, e.a, e.b, e.rot, {record.start, record.end}};
        picture.aid().ellipse(e);
        picture.found().ellipticArc(moved, "", "end " + number(record.end));
        picture.given().ellipticArc(e, "start 20", "end 120").figure("wanted", wanted);
        picture.figure("which", 1).returns(result).figure("end", record.end);
    });
}

} // namespace pictures
