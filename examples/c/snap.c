/*
 * Snaps the cursor to the nearest point of what is drawn, if one is near enough.
 *
 *     cc snap.c $(pkg-config --cflags --libs planegeo) && ./a.out
 */
#include <planegeo.h>

#include <stdio.h>

typedef struct Snap {
    const char *on;
    DTPOINT at;
    double distance;
} Snap;

static void offer(Snap *best, const char *on, DTPOINT at, const DTPOINT *cursor) {
    const double distance = ca_dstpt(&at, cursor);
    if (distance >= best->distance) return;
    best->on = on;
    best->at = at;
    best->distance = distance;
}

static void offerSegment(Snap *best, const DTLINE *line, const DTPOINT *cursor) {
    const DTPOINT p1 = {line->x1, line->y1}, p2 = {line->x2, line->y2};
    DTPOINT foot;
    double distance;
    /* The foot of the perpendicular, where it lies on the segment; else an end is nearer. */
    if (ca_perln(&p1, &p2, cursor, &foot, &distance) == 0) offer(best, "segment", foot, cursor);
    offer(best, "segment's end", p1, cursor);
    offer(best, "segment's end", p2, cursor);
}

static void offerArc(Snap *best, const DTARC *arc, const DTPOINT *cursor) {
    const DTPOINT east = {arc->cx + arc->r, arc->cy}, center = {arc->cx, arc->cy};
    const double direction = atan2d(cursor->y - arc->cy, cursor->x - arc->cx);
    DTPOINT p;
    /* The point of the circle in the cursor's direction, where the arc has it; else an end. */
    if (a2d_ChkDegr(arc->start, arc->end, direction) == 0) {
        c_pnt(&center, &east, &p, direction);
        offer(best, "arc", p, cursor);
    }
    c_pnt(&center, &east, &p, arc->start);
    offer(best, "arc's end", p, cursor);
    c_pnt(&center, &east, &p, arc->end);
    offer(best, "arc's end", p, cursor);
}

static void offerEllipse(Snap *best, const DTELLIPSE *e, const DTPOINT *cursor) {
    const DTPOINT center = {e->cx, e->cy};
    const double angles[2] = {e->start, e->end};
    DTPOINT nearest;
    a2d_dstpp(&center, e->a, e->b, e->rot, angles, cursor, &nearest); /* ends included */
    offer(best, "ellipse", nearest, cursor);
}

int main(void) {
    const double aperture = 5.0;
    const DTLINE wall = {0, 0.0, 0.0, 100.0, 0.0};
    const DTARC corner = {0, 100.0, 20.0, 20.0, 270.0, 360.0};
    const DTELLIPSE table = {0, 50.0, 40.0, 60.0, 30.0, 0.0, 360.0, 0.0};
    const DTPOINT cursors[] = {{30.0, 2.0}, {-3.0, 1.0}, {116.0, 8.0}, {50.0, 57.0}, {50.0, 40.0}};
    unsigned i;

    for (i = 0; i < sizeof cursors / sizeof cursors[0]; ++i) {
        Snap best = {"nothing", {0.0, 0.0}, 0.0};
        best.distance = aperture;
        offerSegment(&best, &wall, &cursors[i]);
        offerArc(&best, &corner, &cursors[i]);
        offerEllipse(&best, &table, &cursors[i]);
        printf("(%g, %g): %s", cursors[i].x, cursors[i].y, best.on);
        if (best.distance < aperture) printf(" at (%.4f, %.4f)", best.at.x, best.at.y);
        printf("\n");
    }
    return 0;
}
