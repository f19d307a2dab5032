// Pictures: chains of circular arcs that stand in for an ellipse.
#include <array>

#include "album.h"

namespace pictures {

namespace {

constexpr std::size_t kRoom = 64;
constexpr double kDegrees = 180.0 / 3.14159265358979323846;

struct Chain {
    std::array<DTPOINT, kRoom> centers{};
    std::array<double, kRoom> radii{};
    std::array<double, 2 * kRoom> angles{};
};

/// The arcs, with their joints, their centres and the radii to the joints.
void drawChain(Picture &picture, const Ellipse &e, const Chain &chain, std::size_t count,
               double toDegrees) {
    for (std::size_t i = 0; i < count; ++i) {
        const DTPOINT center = chain.centers[i];
        const double start = chain.angles[2 * i] * toDegrees;
        const double end = chain.angles[2 * i + 1] * toDegrees, r = chain.radii[i];
        picture.aid().segment(center + polar(r, start), center);
        picture.segment(center, center + polar(r, end));
        picture.found().arc(center, r, start, end);
        picture.point(center + polar(r, start)).point(center + polar(r, end));
        picture.point(center, "", Shape::cross);
    }
    picture.given().ellipse(e);
    picture.found()
        .key(Shape::dot, "joint")
        .key(Shape::cross, "centre")
        .figure("count", static_cast<double>(count));
}

} // namespace

void drawChains(Album &album) {
    const Ellipse e{{50, 30}, 90, 52, 15, {0, 360}};

    album.add(PICTURES_NAMED(ca_elips), [=](Picture &picture, auto &call) {
        Chain chain;
        uint32_t count = 0;
        const double angles[2] = {0, 360 / kDegrees};
        call(&e.center, e.a / 2, e.b / 2, angles, e.rot / kDegrees, chain.centers.data(),
             chain.radii.data(), chain.angles.data(), &count);
        drawChain(picture, e, chain, count, kDegrees);
    });

    album.add(PICTURES_NAMED(ca_elip1), [=](Picture &picture, auto &call) {
        Chain chain;
        uint16_t count = 0;
        const double angles[2] = {-20, 200};
        const int32_t result = call(&e.center, e.a, e.b, e.rot, angles, chain.centers.data(),
                                    chain.radii.data(), chain.angles.data(), &count);
        drawChain(picture, e, chain, count, 1);
        picture.given().text(e.at(-20), "start").text(e.at(200), "end").returns(result);
    });

    album.add(PICTURES_NAMED(ca_elip2), [=](Picture &picture, auto &call) {
        Chain chain;
        uint16_t count = kRoom;
        const double angles[2] = {-20, 200}, tol = 0.1;
        const int32_t result = call(&e.center, e.a, e.b, e.rot, angles, tol, chain.centers.data(),
                                    chain.radii.data(), chain.angles.data(), &count);
        drawChain(picture, e, chain, count, 1);
        picture.given().text(e.at(-20), "start").text(e.at(200), "end").figure("tol", tol);
        picture.returns(result);
    });
}

} // namespace pictures
