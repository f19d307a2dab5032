/**
 * @file planegeo.h
 * Two-dimensional geometry for CAD hosts: plain C functions over doubles and
 * small records.
 *
 * What holds everywhere, unless a function says otherwise:
 *
 *  - A point argument is a pointer to two consecutive doubles, x then y
 *    (DTPOINT). Lengths are in the host's drawing units.
 *  - Angles are degrees, anticlockwise from the positive x axis; an arc runs
 *    anticlockwise from its start to its end. Start and end of an elliptic arc
 *    are parametric angles, measured from the ellipse's first axis.
 *  - Axis lengths of ellipses are full lengths (diameters).
 *  - A line given by two points is infinite; a segment is the stretch between
 *    them.
 *  - "errdist" is the process-wide distance tolerance of ca_geterrdist().
 *    Tolerances given as numbers do not follow it.
 *  - Pointers are not checked for null and numbers not for NaN or infinity; no
 *    number makes a call crash, hang or write beyond its outputs.
 *  - An output that is not produced keeps the caller's value ("untouched").
 *  - Outputs may share storage with inputs.
 *  - Results are of several kinds, told per function: always 0; found (1) or
 *    not (0); done (0) or degenerate (1); a small code; -1 with all bits set.
 *    Counts of points are 16-bit unsigned, a side is 65535 where others say -1.
 *  - All functions may be called from many threads at once, except:
 *    ca_seterrdist() and ca_SetStartendFlg() while any other call runs, since the
 *    settings are plain variables; writing to the table of ca_Simpson_getParmtbl()
 *    while ca_lengelp(), ca_AreaElp(), ca_Simpson(), ca_Simpson2(), ca_ElpLen() or
 *    ca_ElpLen2() runs, so that two ellipses are not measured at once; and
 *    a2d_elpdn() beside itself, which keeps a table between calls.
 *  - A call takes constant time and no memory, unless its cost is told.
 */
#ifndef PLANEGEO_H
#define PLANEGEO_H

#include <stdint.h>

/** Rises when a host has to change. */
#define PLANEGEO_VERSION_MAJOR 1
/** Rises with what is added. */
#define PLANEGEO_VERSION_MINOR 0
/** Rises with what is mended. */
#define PLANEGEO_VERSION_PATCH 0
/** The version as one number, 10000 * major + 100 * minor + patch. */
#define PLANEGEO_VERSION                                                                           \
    (10000 * PLANEGEO_VERSION_MAJOR + 100 * PLANEGEO_VERSION_MINOR + PLANEGEO_VERSION_PATCH)

/* Define PLANEGEO_STATIC in a host that links the static library. */
#if defined(_WIN32)
#if defined(PLANEGEO_STATIC)
#define PLANEGEO_API
#elif defined(PLANEGEO_BUILD)
#define PLANEGEO_API __declspec(dllexport)
#else
#define PLANEGEO_API __declspec(dllimport)
#endif
#define PLANEGEO_CALL __cdecl
#else
#define PLANEGEO_API __attribute__((visibility("default")))
#define PLANEGEO_CALL
#endif

/* Some 32-bit platforms align doubles to four bytes; the records do not. */
#if defined(_MSC_VER)
#define PLANEGEO_ALIGN8 __declspec(align(8))
#else
#define PLANEGEO_ALIGN8 __attribute__((aligned(8)))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup records Records
 *  The layout is the same on every platform.
 *  @{ */

/** A point or vector. */
typedef struct DTPOINT {
    double x; /**< drawing units */
    double y; /**< drawing units */
} DTPOINT;

/** A complex number. */
typedef struct DTCOMPLEX {
    double re; /**< real part */
    double im; /**< imaginary part */
} DTCOMPLEX;

/** Bit of an attribute word: the element is reversed, its start and end swap roles. */
#define PLANEGEO_ATTR_REVERSED UINT32_C(0x20000000)
/** Bit of an attribute word: when exactly one of this and PLANEGEO_ATTR_REVERSED
 *  is set, an arc's range is taken from its end to its start. */
#define PLANEGEO_ATTR_CLOCKWISE UINT32_C(0x10000000)

/** A line segment. */
typedef struct DTLINE {
    uint32_t attr;             /**< the host's attribute word */
    PLANEGEO_ALIGN8 double x1; /**< first point */
    double y1;                 /**< first point */
    double x2;                 /**< second point */
    double y2;                 /**< second point */
} DTLINE;

/** A circle or circular arc; an end 360 above the start is a full circle. */
typedef struct DTARC {
    uint32_t attr;             /**< the host's attribute word */
    PLANEGEO_ALIGN8 double cx; /**< centre */
    double cy;                 /**< centre */
    double r;                  /**< radius */
    double start;              /**< degrees */
    double end;                /**< degrees */
} DTARC;

/**
 * An ellipse or elliptic arc. The point at the parametric angle t is the centre
 * plus (a/2 cos t, b/2 sin t) turned by rot. The first axis need not be the
 * longer one, except where a function asks for it.
 */
typedef struct DTELLIPSE {
    uint32_t attr;             /**< the host's attribute word */
    PLANEGEO_ALIGN8 double cx; /**< centre */
    double cy;                 /**< centre */
    double a;                  /**< full length of the first axis */
    double b;                  /**< full length of the second axis */
    double start;              /**< parametric angle, degrees */
    double end;                /**< parametric angle, degrees */
    double rot;                /**< rotation of the first axis, degrees anticlockwise from x */
} DTELLIPSE;

/** @} */

/** @defgroup settings Settings
 *  Process-wide variables without locks: a change made by one thread is seen by
 *  the calls of all.
 *  @{ */

/**
 * Returns the distance tolerance errdist.
 * @return drawing units; 1e-6 at load
 */
PLANEGEO_API double PLANEGEO_CALL ca_geterrdist(void);

/**
 * Sets the distance tolerance errdist.
 *
 * The value is stored as it is: with zero or a negative value no distance counts
 * as small any more, so that no point lies on a line, no two lines are parallel,
 * and the guards against zero lengths are off (non-finite outputs follow).
 *
 * @param[in] tolerance drawing units
 */
PLANEGEO_API void PLANEGEO_CALL ca_seterrdist(double tolerance);

/**
 * Returns the flag of ca_SetStartendFlg().
 * @return the flag as it was set; 0 at load
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_GetStartendFlg(void);

/**
 * Chooses which end of an element a2d_InsDl(), a2d_InsDc() and a2d_InsDe() keep.
 *
 * @param[in] flag 1 the start; every other value the end
 */
PLANEGEO_API void PLANEGEO_CALL ca_SetStartendFlg(int32_t flag);

/**
 * Returns the parameter table of the Simpson integrands: ten doubles, zero at load. The
 * library reads it and never writes it.
 *
 * The host stores half the first axis in slot 0 and half the second in slot 1
 * before it measures an ellipse; slots 2 to 9 are free for integrands of its own.
 * The table is shared by all threads: do not measure two ellipses at once.
 *
 * @return the address of the table, the same at every call
 */
PLANEGEO_API double *PLANEGEO_CALL ca_Simpson_getParmtbl(void);

/** @} */

/** @defgroup angles Degree trigonometry and angle ranges
 *  Degrees become radians by 0.017453292519943295, radians degrees by
 *  57.29577951308232.
 *
 *  An angle is reduced by whole turns as if 360 were subtracted (added) while it
 *  exceeds 359.99999999 (lies below -359.99999999), and one turn added if it is
 *  then negative. Up to 2^56 degrees every such subtraction is exact, so that the
 *  result is the double which they would reach, without the time; above, it is
 *  the exact remainder, where single subtractions would round. An infinite angle
 *  becomes NaN; NaN stays.
 *  @{ */

/**
 * Returns the sine of an angle.
 * @param[in] deg degrees
 * @return [-1, 1]
 */
PLANEGEO_API double PLANEGEO_CALL sind(double deg);
/**
 * Returns the cosine of an angle.
 * @param[in] deg degrees
 * @return [-1, 1]
 */
PLANEGEO_API double PLANEGEO_CALL cosd(double deg);
/**
 * Returns the tangent of an angle.
 * @param[in] deg degrees
 * @return the tangent; near 90 and 270 a huge value, not an infinity
 */
PLANEGEO_API double PLANEGEO_CALL tand(double deg);
/**
 * Returns the arc sine.
 * @param[in] v first clamped to [-1, 1]
 * @return degrees, [-90, 90]
 */
PLANEGEO_API double PLANEGEO_CALL asind(double v);
/**
 * Returns the arc cosine.
 * @param[in] v first clamped to [-1, 1]
 * @return degrees, [0, 180]
 */
PLANEGEO_API double PLANEGEO_CALL acosd(double v);
/**
 * Returns the arc tangent.
 * @param[in] v any number
 * @return degrees, [-90, 90]
 */
PLANEGEO_API double PLANEGEO_CALL atand(double v);

/**
 * Returns the direction of the vector (x, y).
 *
 * A direction so little below the x axis that it rounds up gives exactly 360; a
 * negative zero passes through.
 *
 * @param[in] y,x components of the vector, y first
 * @return degrees, [0, 360]; 0 when both are zero
 */
PLANEGEO_API double PLANEGEO_CALL atan2d(double y, double x);

/**
 * Normalises the range of an arc in place.
 *
 * Both angles are reduced by whole turns; an end that is not above its start is
 * then raised by a turn; a range that ends above 360 is lowered by a turn.
 * Afterwards the end lies in (0, 360], the start in (-360, 360), the span in
 * (0, 360]. A negative start marks an arc that crosses 0: (350, 10) becomes
 * (-10, 10), and (10, 10) becomes (-350, 10).
 *
 * @param[in,out] start,end degrees; both are written always
 * @return 1 when the reduced angles were equal within 1e-8 (a full circle), else 0
 * @see a2d_ChkDegr
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_StdSedeg(double *start, double *end);

/**
 * Tells whether an angle lies on the arc that runs anticlockwise from start to end.
 *
 * Both ends belong to the arc, with 1e-8 degrees of slack; equal ends (within
 * 1e-8, after reduction) mean the full circle. An arc that starts within 1e-8
 * below 360 and ends at 0 accepts every angle.
 *
 * @param[in] start,end,angle degrees, any finite value
 * @return 0 on the arc, 1 off it; 0 for an angle that is NaN
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_ChkDegr(double start, double end, double angle);

/**
 * Orders the two ends of an arc by two direction values.
 *
 * @param[in]  dir1,dir2 any integers; only their equality counts
 * @param[in]  a,b       the ends in the order of travel
 * @param[out] out_start,out_end a and b when dir1 equals dir2, else b and a
 */
PLANEGEO_API void PLANEGEO_CALL a2d_GetBedeg(int32_t dir1, int32_t dir2, double a, double b,
                                             double *out_start, double *out_end);

/** @} */

/** @defgroup points Points and vectors
 *  None of these reads errdist.
 *  @{ */

/**
 * Turns a point about a centre.
 *
 * @param[in]  center,point the pivot and the point
 * @param[out] out   separate storage from @p point: its x is stored before its y
 *                   is computed from the point, so a call in place gives a wrong y
 * @param[in]  angle degrees, anticlockwise
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL c_pnt(const DTPOINT *center, const DTPOINT *point, DTPOINT *out,
                                         double angle);
/** The same function as c_pnt(). */
PLANEGEO_API int32_t PLANEGEO_CALL ca_rvpnt(const DTPOINT *center, const DTPOINT *point,
                                            DTPOINT *out, double angle);

/**
 * Carries a point into a local frame: subtracts the origin, then turns by +angle.
 *
 * @param[in]  point,origin drawing units
 * @param[in]  angle degrees; pass the negative rotation of the frame
 * @param[out] out   R(angle) (point - origin)
 * @return always 0
 * @see pnt_formd, its inverse when given the opposite angle
 */
PLANEGEO_API int32_t PLANEGEO_CALL pnt_std(const DTPOINT *point, const DTPOINT *origin,
                                           double angle, DTPOINT *out);

/**
 * Carries a point out of a local frame: turns by +angle, then adds the origin.
 *
 * @param[in]  point,origin drawing units
 * @param[in]  angle degrees, the rotation of the frame
 * @param[out] out   R(angle) point + origin
 * @return always 0
 * @see pnt_std, its inverse when given the opposite angle
 */
PLANEGEO_API int32_t PLANEGEO_CALL pnt_formd(const DTPOINT *point, const DTPOINT *origin,
                                             double angle, DTPOINT *out);

/**
 * Mirrors a point in the line through two points.
 *
 * @param[in]  point            the point
 * @param[in]  line_p1,line_p2  two points of the line; equal points are not
 *                              checked for and give non-finite outputs
 * @param[out] out              the mirror image
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL pnt_mer(const DTPOINT *point, const DTPOINT *line_p1,
                                           const DTPOINT *line_p2, DTPOINT *out);
/** As pnt_mer(), with the line before the point. */
PLANEGEO_API int32_t PLANEGEO_CALL ca_vmpnt(const DTPOINT *line_p1, const DTPOINT *line_p2,
                                            const DTPOINT *point, DTPOINT *out);

/**
 * Returns the direction from one point to another in radians.
 *
 * A component shorter than 1e-7 counts as zero: directions so close to an axis
 * snap onto 0, pi/2, pi or 3 pi/2, and points so close to each other give 0.
 *
 * @param[in] from,to the points
 * @return radians, [0, 2 pi]
 */
PLANEGEO_API double PLANEGEO_CALL ca_vcrad(const DTPOINT *from, const DTPOINT *to);

/**
 * Returns the distance of two points, the plain root of the sum of squares.
 * @param[in] p,q the points
 * @return drawing units
 */
PLANEGEO_API double PLANEGEO_CALL ca_dstpt(const DTPOINT *p, const DTPOINT *q);

/** @} */

/** @defgroup lines Lines
 *  Where lines meet, where points lie against them, and their parallels.
 *  @{ */

/**
 * Intersects two infinite lines.
 *
 * The lines are parallel when the cross product of their directions, as given and
 * not scaled by their lengths, is below 1e-6: short segments count as parallel
 * sooner than long ones.
 *
 * @param[in]  a1,a2,b1,b2 two points of each line
 * @param[out] out         the intersection; untouched when parallel
 * @return 1 found, 0 parallel
 * @see a2d_ins2l for segments and errdist
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dCrs2L(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *b1,
                                            const DTPOINT *b2, DTPOINT *out);

/**
 * Intersects two lines and tells whether the point lies on both segments.
 *
 * With d the cross product of the directions, the lines are parallel when d
 * divided by the length of the first and d divided by the length of the second
 * are both below errdist. A segment of length zero is not parallel to anything
 * and gives non-finite outputs. Ends belong to the segments within errdist.
 *
 * @param[in]  a1,a2,b1,b2 the ends of each segment
 * @param[out] out         the intersection of the infinite lines; (0, 0) when parallel
 * @return 0 the point lies on both segments, 1 outside at least one, 2 parallel
 * @see a2d_onlin for the test on each segment
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_ins2l(const DTPOINT *a1, const DTPOINT *a2,
                                             const DTPOINT *b1, const DTPOINT *b2, DTPOINT *out);
/** The same function as a2d_ins2l(). */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ins2l(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *b1,
                                            const DTPOINT *b2, DTPOINT *out);

/**
 * Intersects two lines given by a point and a direction angle each.
 *
 * Only equal directions (within 1e-8) are told apart; opposite ones, or 0 against
 * 360, have equal tangents and give non-finite or huge values. A direction within
 * 1e-8 of 90 or 270 counts as vertical.
 *
 * @param[in,out] rec    six doubles: x1, y1, x2, y2, then the result x, y; the
 *                       result is untouched unless found
 * @param[in,out] angles two doubles, degrees; each is brought into [0, 360] in
 *                       place, found or not (360 stays 360; beyond 2^56 degrees
 *                       by the exact remainder; an infinity becomes NaN)
 * @return 0 found, 2070 the same direction
 */
PLANEGEO_API int32_t PLANEGEO_CALL aatCalCrs2l(double *rec, double *angles);

/**
 * Drops the perpendicular from a point onto a line.
 *
 * The foot counts as outside the segment when the product of its vectors to the
 * two ends exceeds 1e-6, a product of distances and not errdist.
 *
 * @param[in]  a1,a2 the segment
 * @param[in]  p     the point
 * @param[out] foot  foot of the perpendicular on the infinite line; untouched
 *                   when the result is -1
 * @param[out] dist  distance of @p p from the line; 0 when the result is -1
 * @return 0 the foot lies on the segment, 1 outside it, -1 the segment is shorter
 *         than errdist
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_perln(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *p,
                                            DTPOINT *foot, double *dist);

/**
 * Moves a segment to its parallel at a distance.
 *
 * @param[in]  a1,a2 the segment
 * @param[in]  d     distance, drawing units
 * @param[in]  side  1 to the right of the direction from a1 to a2, -1 to the left;
 *                   another value scales the distance
 * @param[out] out1,out2 a1 and a2 moved
 * @return 0 done; 1 when the ends coincide within errdist in x and in y, the
 *         outputs are then untouched
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_palds(const DTPOINT *a1, const DTPOINT *a2, double d,
                                            int16_t side, DTPOINT *out1, DTPOINT *out2);

/**
 * Tells on which side of a line a point lies.
 *
 * The point counts as on the line when the cross product of the direction and its
 * vector from a1, not divided by the length, is below errdist.
 *
 * @param[in]  a1,a2 the line
 * @param[in]  p     the point
 * @param[out] side  0 on the line, 1 right of the direction from a1 to a2,
 *                   65535 left of it
 * @return 0 done; 1 when a1 and a2 coincide within errdist in x and in y, @p side
 *         is then untouched
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_posln(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *p,
                                            uint16_t *side);

/**
 * Tells whether a point lies on a segment, within errdist.
 *
 * The ends are asked first, so a point at the end of a segment of length zero is
 * on it.
 *
 * @param[in] p1,p2 the segment
 * @param[in] q     the point
 * @return 0 on the segment, ends included; 1 off it; -1 the segment is shorter
 *         than errdist
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_onlin(const DTPOINT *p1, const DTPOINT *p2,
                                             const DTPOINT *q);
/** The same function as a2d_onlin(). */
PLANEGEO_API int32_t PLANEGEO_CALL ca_onlin(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *q);

/**
 * Finds the point at a distance along a segment.
 *
 * @param[in]  start,end the segment
 * @param[in]  dist      distance from start; at or beyond the length it gives end
 * @param[out] out       the point; untouched when the result is 0
 * @return 1 done; 0 when start or end is null, or dist is negative
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_DistAlongbyLineFromSpnt(const DTPOINT *start,
                                                              const DTPOINT *end, double dist,
                                                              DTPOINT *out);

/**
 * Selects the end of a line to keep where it is cut by a collinear line.
 *
 * The end is the first point of @p elem when the flag of ca_SetStartendFlg() is 1,
 * else its second point. The attribute words are not read.
 *
 * @param[in]  elem the line whose end is wanted
 * @param[in]  cut  the cutting line; of length zero it counts as not collinear
 * @param[out] out  the end; untouched unless the result is 1
 * @return 1 chosen; 0 that end is not on @p cut (see a2d_onlin()); -1 an end of
 *         @p elem is not nearer than errdist to the infinite line of @p cut
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_InsDl(const DTLINE *elem, const DTLINE *cut, DTPOINT *out);

/**
 * Tells where the projection of a point onto a line falls against a segment.
 *
 * The tolerance at the ends is errdist, or half the distance of p3 from p1 where
 * that is below errdist.
 *
 * @param[in] p1,p2 the segment; equal points give 3
 * @param[in] p3    the point
 * @return 3 on the segment or within the tolerance of an end; 1 beyond p2;
 *         2 before p1; 0 only for non-finite input
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_Chk3pnt(const DTPOINT *p1, const DTPOINT *p2,
                                               const DTPOINT *p3);

/** @} */

/** @defgroup lineCircle Lines with circles and arcs
 *  All find the points of one infinite line and one full circle, in the order of
 *  cross_lin_cir(); they differ in what they check, keep and return.
 *
 *  The arc filter raises a negative angle by 360 once and reduces nothing else:
 *  pass angles in [-360, 360]. Equal ends, or ends 360 apart (within 1e-8), mean
 *  the full circle; both ends belong to the arc with 1e-8 degrees of slack. The
 *  segment filter is that of a2d_onlin().
 *  @{ */

/**
 * Intersects the infinite line through @p a1 and @p a2 with a full circle.
 *
 *            out2        out1
 *      a1 ----o-----------o----> a2
 *
 * The line is tangent when its distance from the centre differs from @p r by less
 * than errdist, to either side; the one point is then the foot of the
 * perpendicular from the centre.
 *
 * @param[in]  a1,a2  two points of the line; equal points are not checked for and
 *                    give two non-finite outputs
 * @param[in]  center,r the circle; a radius that is not positive has at most the
 *                    tangent point
 * @param[out] out1   the point further along the direction from a1 to a2
 * @param[out] out2   the other point; the same point when tangent
 * @param[out] count  2; 1 when tangent; 0 when the line misses the circle, and
 *                    out1 and out2 are then untouched
 * @return always 0; the outcome is @p count
 * @see a2d_lin_arc for the checked form that keeps an arc or a segment
 */
PLANEGEO_API int32_t PLANEGEO_CALL cross_lin_cir(const DTPOINT *a1, const DTPOINT *a2,
                                                 const DTPOINT *center, double r, DTPOINT *out1,
                                                 DTPOINT *out2, uint16_t *count);

/**
 * Intersects a line or segment with a circle or arc.
 *
 * @param[in]  mode   0 line and circle, 1 line and arc, 2 segment and circle,
 *                    3 segment and arc; every other value as 0
 * @param[in]  a1,a2  the line
 * @param[in]  center,r the circle
 * @param[in]  angles start and end of the arc, degrees; read in modes 1 and 3 only,
 *                    may be null otherwise
 * @param[out] out1,out2 the points kept, the one further along the direction from
 *                    a1 to a2 first; a single point in both; (0, 0) in both when
 *                    none is kept, also after invalid input
 * @param[out] count  number of points kept
 * @return 0 done, with or without points; 1 invalid input: r is not positive, or
 *         a1 and a2 coincide within errdist in x and in y
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_lin_arc(uint32_t mode, const DTPOINT *a1, const DTPOINT *a2,
                                               const DTPOINT *center, double r,
                                               const double *angles, DTPOINT *out1, DTPOINT *out2,
                                               uint16_t *count);

/**
 * Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.
 *
 * @param[in]  a1,a2,center,r the line and the circle
 * @param[out] out two points, filled as out1 and out2 there: both always
 * @return the number of points, 0 to 2; 0 after invalid input
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dCrsLC(const DTPOINT *a1, const DTPOINT *a2,
                                            const DTPOINT *center, double r, DTPOINT *out);

/**
 * Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.
 *
 * @param[in]  a1,a2,center,r the line and the circle
 * @param[out] out1,out2,count as there
 * @return 0 at least one point; 2071 none, for whatever reason
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_crslc(const DTPOINT *a1, const DTPOINT *a2,
                                            const DTPOINT *center, double r, DTPOINT *out1,
                                            DTPOINT *out2, uint16_t *count);

/**
 * Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.
 *
 * @param[in]  a1,a2,center,r,angles the line and the arc
 * @param[out] out1,out2,count as there
 * @return 0 at least one point; 2071 none, for whatever reason
 * @see sb_inslc, the same with the result of a2d_lin_arc()
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_crslc2(const DTPOINT *a1, const DTPOINT *a2,
                                             const DTPOINT *center, double r, const double *angles,
                                             DTPOINT *out1, DTPOINT *out2, uint16_t *count);

/**
 * Intersects a segment with an arc, as a2d_lin_arc() in mode 3.
 *
 * @param[in]  a1,a2,center,r,angles the segment and the arc
 * @param[out] out1,out2,count as there
 * @return as there: 0 done, with or without points; 1 invalid input
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_inslc(const DTPOINT *a1, const DTPOINT *a2,
                                            const DTPOINT *center, double r, const double *angles,
                                            DTPOINT *out1, DTPOINT *out2, uint16_t *count);
/** The same function as ca_inslc(). */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_inslc(const DTPOINT *a1, const DTPOINT *a2,
                                             const DTPOINT *center, double r, const double *angles,
                                             DTPOINT *out1, DTPOINT *out2, uint16_t *count);
/**
 * Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.
 *
 * @param[in]  a1,a2,center,r,angles the line and the arc
 * @param[out] out1,out2,count as there
 * @return as there: 0 done, with or without points; 1 invalid input
 * @see ca_crslc2, the same with another result
 */
PLANEGEO_API int32_t PLANEGEO_CALL sb_inslc(const DTPOINT *a1, const DTPOINT *a2,
                                            const DTPOINT *center, double r, const double *angles,
                                            DTPOINT *out1, DTPOINT *out2, uint16_t *count);

/** @} */

/** @defgroup circleCircle Circles with circles
 *  The arc functions keep the points that lie on both arcs. Ends belong to their
 *  arc with 0.0001 degrees of slack, which does not reach back across 0: on an arc
 *  that starts at 0 a point at 359.99997 is off. Of the angles only a negative one
 *  is changed: it is raised by 360, twice where it lies below -360.
 *  @{ */

/**
 * Intersects two full circles, with tolerances of its own.
 *
 * Circles touch when the distance of the centres differs from the sum or from the
 * difference of the radii by at most 1e-6; the one point lies on the line of the
 * centres, between equal radii (within 1e-12) midway. Centres nearer than 1e-6
 * count as concentric, without points even when the circles are equal.
 *
 * @param[in]  c1,r1,c2,r2 centre and radius of each circle; radii are not checked
 * @param[out] out four doubles x, y, x, y. Of two points the first lies right of
 *                 the direction from c1 to c2; the last two doubles are untouched
 *                 with one point, all four with none
 * @return the number of points, 0 to 2
 * @see a2d_ins2c for arcs and errdist; mind the other order of arguments
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dCrs2C(const DTPOINT *c1, double r1, const DTPOINT *c2,
                                            double r2, double *out);

/**
 * Intersects two arcs, with errdist.
 *
 * Equal angles, or angles 360 apart (within 1e-8), mean the full circle. Arcs of
 * one circle (centres and radii equal within errdist) meet only where one ends and
 * the other begins: first the start of arc 1, then its end. An overlap has no point.
 *
 * @param[in]  c1,c2,r1,r2 centres, then radii
 * @param[in]  angles1,angles2 start and end of each arc, degrees
 * @param[out] out1,out2 the points, the one right of the direction from c1 to c2
 *                 first; a single point in both. (0, 0) in both when the ranges keep
 *                 none; untouched when the circles do not meet, when arcs of one
 *                 circle share no end, and when the result is 1
 * @param[out] count number of points, always written
 * @return 0 done, with or without points; 1 when the arcs are identical (radii,
 *         centres and angles within errdist) or a radius is not positive
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_ins2c(const DTPOINT *c1, const DTPOINT *c2, double r1,
                                             double r2, const double *angles1,
                                             const double *angles2, DTPOINT *out1, DTPOINT *out2,
                                             uint16_t *count);
/** As a2d_ins2c(), but a range is a full circle only when its ends are exactly
 *  equal or exactly 360 apart. */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ins2c(const DTPOINT *c1, const DTPOINT *c2, double r1,
                                            double r2, const double *angles1, const double *angles2,
                                            DTPOINT *out1, DTPOINT *out2, uint16_t *count);

/** @} */

/** @defgroup arcs Arcs: construction and queries
 *  Which angles make a full circle differs: each function says it.
 *  @{ */

/**
 * Finds the arc that runs from @p p1 by @p p2 to @p p3.
 *
 * The angles always run anticlockwise: points that turn clockwise give the arc
 * from p3 to p1. The points make no arc when two are nearer than errdist, or when
 * the sines of all three angles between their sides are below 0.0001.
 *
 * @param[in]  p1,p2,p3 start, a point on the arc, end
 * @param[out] center,r the circle; untouched when the result is 1
 * @param[out] angles   start and end, degrees, each in [0, 360], the start above the
 *                      end where the arc crosses 0; (0, 0) when the result is 1
 * @return 0 done; 1 no arc
 * @see ca_arcan to normalise the angles
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_arc3p(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *p3,
                                            DTPOINT *center, double *r, double *angles);

/**
 * Finds the arc over a chord whose height is a multiple of the chord's length.
 *
 * @param[in]  dir      0 the arc lies left of the direction from the first to the
 *                      second point; every other value right of it
 * @param[in]  ratio    height over chord; 0.5 is a half circle, a negative value
 *                      changes the side; below 1e-6 in magnitude there is no arc
 * @param[in]  x1,y1,x2,y2 first and second end of the chord, 0.003 units or longer;
 *                      nor may the middle of the arc be nearer than 0.0015 to an end
 * @param[out] center,r the circle; untouched when the result is 1
 * @param[out] angles   start and end, degrees, as ca_arcan() leaves them. When the
 *                      result is 1: untouched if a limit above is the reason,
 *                      (0, 0) if ca_arc3p() finds no arc
 * @return 0 done; 1 no arc
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_arc2pratio(int32_t dir, double ratio, double x1, double y1,
                                                 double x2, double y2, DTPOINT *center, double *r,
                                                 double *angles);

/**
 * Normalises the angles of an arc in place, keeping 360.
 *
 * Ends more than 359.999999 apart, as given or afterwards, become (0, 360): so
 * does (700, 10). Otherwise each is brought into [0, 360], an end below its start
 * is raised by a turn, and a range that ends above 360 is lowered by one: (270, 90)
 * becomes (-90, 90). Equal angles stay an arc without extent.
 *
 * @param[in,out] start,end degrees; beyond 2^56 by the exact remainder, and two
 *                infinities of one sign become NaN
 * @return always 0
 * @see a2d_StdSedeg, for which equal angles are the full circle
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_arcan(double *start, double *end);

/**
 * Finds the ends of an arc whose angles are radians.
 *
 * @param[in]  center,r the circle
 * @param[in]  angles   start and end in radians
 * @param[out] pstart,pend the ends
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_arccd(const DTPOINT *center, double r, const double *angles,
                                            DTPOINT *pstart, DTPOINT *pend);

/**
 * Finds the box around an arc.
 *
 * Besides the ends, the axis directions at -360, -270, ... 360 count that lie
 * between them as given, without slack: normalise with a2d_StdSedeg() first. Of a
 * range with start above end, or of equal ends, only the ends count.
 *
 * @param[in]  center,r  the circle
 * @param[in]  start,end degrees, within [-360, 360], start below end
 * @param[out] pmax,pmin upper right and lower left corner; a coordinate outside
 *                       +-1e20 or NaN does not widen the box, which starts as
 *                       (-1e20, -1e20) and (1e20, 1e20)
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_arcXY(const DTPOINT *center, double r, double start,
                                            double end, DTPOINT *pmax, DTPOINT *pmin);

/**
 * Tells whether a point, seen from the centre, lies in the direction of an arc.
 *
 * The direction, or it less or more 360, must lie between start and end with 1e-6
 * degrees of slack. Equal angles are not the full circle. The distance is not
 * asked: see ca_posar().
 *
 * @param[in]  center    the centre
 * @param[in]  r         not read
 * @param[in]  start,end degrees, start not above end
 * @param[in]  point     the point; at the centre its direction is 0
 * @param[out] ang       the direction, degrees, (-180, 180]; always written
 * @return 0 on the arc's range, 1 off it
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_onarc(const DTPOINT *center, double r, double start,
                                            double end, const DTPOINT *point, double *ang);

/**
 * Tells on which side of a circle a point lies, within errdist.
 *
 * @param[in]  center,r the circle
 * @param[in]  point    the point
 * @param[out] side     0 on the circle, 65535 inside, 1 outside; untouched when the
 *                      result is 1
 * @return 0 done; 1 when @p r is not positive
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_posar(const DTPOINT *center, double r, const DTPOINT *point,
                                            uint16_t *side);

/**
 * Turns an arc whose angles are radians about a point.
 *
 * A turn of at most 1e-7 copies the arc. Otherwise a span of 0 or 2 pi, within 1e-7,
 * becomes (0, 2 pi); the angles of others grow by @p rot, both are lowered by 2 pi
 * once if one then exceeds 2 pi, and both raised once if one lies below -2 pi.
 *
 * @param[in]  center,r   the circle
 * @param[in]  angles     start and end in radians
 * @param[in]  pivot      the point about which the arc turns
 * @param[in]  rot        radians, anticlockwise
 * @param[out] out_center,out_r,out_angles the turned arc
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_rvarc(const DTPOINT *center, double r, const double *angles,
                                            const DTPOINT *pivot, double rot, DTPOINT *out_center,
                                            double *out_r, double *out_angles);

/**
 * Finds the angle reached after a distance along an arc. The result is an angle,
 * not a point.
 *
 * @param[in]  center    only tested for null
 * @param[in]  r         radius
 * @param[in]  start,end degrees, start not above end and at most 360 below it
 * @param[in]  dist      distance from start; at or beyond the arc's length it gives end
 * @param[out] ang       degrees; untouched when the result is 0
 * @return 1 done; 0 when center or ang is null, dist is negative, r is not
 *         positive, or the angles are not as above
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_DistAlongbyArcFromSpnt(const DTPOINT *center, double r,
                                                             double start, double end, double dist,
                                                             double *ang);

/**
 * Selects the end of an arc to keep where it is cut by an arc of the same circle.
 *
 * The end is the start of @p elem when the flag of ca_SetStartendFlg() is 1, else
 * its end; the other one when its word has PLANEGEO_ATTR_REVERSED. A cutting arc
 * whose angles are 360 apart (within 1e-8) does not ask the flag: it counts as 0.
 * Equal angles of @p cut are the full circle as for a2d_ChkDegr(), and ask it.
 *
 * @param[in]  elem the arc whose end is wanted
 * @param[in]  cut  the cutting arc; when its word has exactly one of
 *                  PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE, its range
 *                  runs from its end to its start
 * @param[out] out  the end; untouched unless the result is 1
 * @return 1 chosen; 0 that end is not on @p cut (see a2d_ChkDegr()); -1 the centres
 *         (in x or y) or the radii differ by errdist or more
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_InsDc(const DTARC *elem, const DTARC *cut, DTPOINT *out);

/**
 * Merges runs of points whose segments keep nearly the same direction.
 *
 * A run takes in the segments whose direction differs from that of its first one
 * by at most @p tol (plus errdist, taken as degrees); the points between its ends
 * are removed. Directions in (-180, 180] are subtracted as they are: 179 and -179
 * do not merge.
 *
 * Cost: one pass over the points.
 *
 * @param[in]     n    number of points in the array, which is not checked; below 3,
 *                     also negative, it is returned as it is
 * @param[in,out] list address of the address of n points; those kept move to the
 *                     front in their order, what follows them is undefined
 * @param[in]     tol  degrees, [0.1, 5.0]; a NaN merges nothing
 * @return the new number of points; -1 when the array is null or tol out of range
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_AutoUnionNrb(int32_t n, DTPOINT **list, double tol);

/** @} */

/** @defgroup circleTangents Circle tangents
 *  A tangent is given by its points of contact.
 *  @{ */

/**
 * Finds where the tangents from a point touch a circle.
 *
 * @param[in]  center,r the circle
 * @param[in]  point    the point; on or inside the circle, exactly and without a
 *                      tolerance, it has no tangents
 * @param[out] out1     the contact right of the direction from the centre to the
 *                      point; (0, 0) without tangents
 * @param[out] out2     the contact left of it; (0, 0) without tangents
 * @param[out] count    0 or 2
 * @return always 0; the outcome is @p count
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_pctan(const DTPOINT *center, double r, const DTPOINT *point,
                                            DTPOINT *out1, DTPOINT *out2, uint16_t *count);

/**
 * Finds the common tangents of two circles.
 *
 * There are none when a radius is not positive, the centres coincide within errdist
 * in x and in y, one circle lies inside the other, or they touch from inside: the
 * squared distance of the centres and the squared difference of the radii then
 * differ by less than errdist, as squares. Circles that overlap or touch from
 * outside have the outer pair only.
 *
 * @param[in]  c1,r1,c2,r2 the circles
 * @param[out] t1,t2,t3,t4 the outer tangents t1-t2 and t3-t4: the first with both
 *                         circles on its left, seen from c1 to c2, the second with
 *                         both on its right
 * @param[out] t5,t6,t7,t8 the inner tangents: t5-t6 touches circle 1 right of the
 *                         direction from c1 to c2 and circle 2 left of it, t7-t8 the
 *                         reverse. Odd ones are on circle 1, even ones on circle 2;
 *                         only the points of the lines counted are written
 * @param[out] count       number of lines: 0, 2 or 4
 * @return 0 done; 1 no tangents
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_cctan(const DTPOINT *c1, double r1, const DTPOINT *c2,
                                            double r2, DTPOINT *t1, DTPOINT *t2, DTPOINT *t3,
                                            DTPOINT *t4, DTPOINT *t5, DTPOINT *t6, DTPOINT *t7,
                                            DTPOINT *t8, uint16_t *count);

/** @} */

/** @defgroup solvers Polynomial solvers
 *  Coefficients come highest degree first, n + 1 of them for degree n. Roots are
 *  written as pairs (real part, imaginary part); a real root has the imaginary part
 *  0. The result -1 always means that the leading coefficient is exactly zero;
 *  nothing is written then. A nearly zero one is divided by as it is. None of these
 *  reads errdist.
 *  @{ */

/**
 * Solves c[0] x + c[1] = 0.
 *
 * @param[in]  c two coefficients
 * @param[out] x the root, one double without an imaginary part; untouched unless
 *               the result is 1
 * @return 1 one root; 0 both coefficients are zero, every x is a solution; -1 only
 *         c[0] is zero, there is no solution
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaSolveLinerEquation(const double *c, double *x);

/**
 * Solves a quadratic equation.
 *
 * @param[in]  c   three coefficients
 * @param[out] out two pairs: real roots greater first, else the conjugate with the
 *                 positive imaginary part first; untouched when the result is -1
 * @return 2 real roots (a double root counts as two), 0 a conjugate pair, -1
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaSolveEquationOf2ndD(const double *c, double *out);

/**
 * Solves a cubic equation.
 *
 * Three real roots come in the order of the cosines of a third of an angle, the
 * greatest first. Where the discriminant is exactly zero, the simple root is written
 * twice and then the double root once: 1, 1, -2 are reported as -2, -2, 1.
 * Close to such a case rounding can take the argument of the arc cosine beyond 1;
 * the roots are then NaN.
 *
 * @param[in]  c   four coefficients
 * @param[out] out three pairs: with one real root that one first, then the conjugate
 *                 with the imaginary part of positive sign in Cardano's formula;
 *                 untouched when the result is -1
 * @return 3 real roots, 1 real root and a conjugate pair, -1
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaSolveEquationOf3rdD(const double *c, double *out);

/**
 * Solves a quartic equation.
 *
 * The roots are those of two quadratic factors, each in the order of
 * amaSolveEquationOf2ndD(). Without a linear term in the shifted quartic (exactly
 * zero, or below 1e-5 and 1e-12 of the quadratic term) it is solved as biquadratic,
 * and also where the resolvent cubic gives no factors. A linear term just above those
 * bounds is lost to rounding: roots and their count can then be wrong, and where the
 * resolvent's roots are NaN so are all four (docs/behaviours.md).
 *
 * @param[in]  c   five coefficients
 * @param[out] out four pairs; a factor with real roots before one without;
 *                 untouched when the result is -1
 * @return 4, 2 or 0, the roots reported as real; -1. Real roots computed through
 *         complex arithmetic keep a small imaginary part and are not counted
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaSolveEquationOf4thD(const double *c, double *out);

/**
 * Returns the principal square root of a complex number.
 *
 * @param[in] z any number
 * @return the root: its real part is not negative, its imaginary part has the sign of
 *         that of @p z. A negative real number gives a positive imaginary root
 */
PLANEGEO_API DTCOMPLEX PLANEGEO_CALL ama_c_sqrt(DTCOMPLEX z);

/**
 * Searches one real root by Newton's method, from minus the sum of the coefficients
 * over n + 1.
 *
 * The search ends with the first of 200 steps that is at most 1e-16 of the largest
 * coefficient, or if there is none with the first that is at most 1e-6 of it: not of
 * the root, so that polynomials with large coefficients are left early. Where the
 * slope is exactly zero a step of second order is made; where that has no real
 * value the step is zero, and the stationary point counts as the root.
 *
 * Cost: at most 200 steps, each in proportion to n.
 *
 * @param[in]  c n + 1 coefficients
 * @param[in]  n degree, 2 to 200
 * @param[out] x the root, the last iterate when the result is -2; untouched when -1
 * @return 0 found; -1 also for a degree out of range; -2 no step was small enough
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaNewtonRaphson(const double *c, int32_t n, double *x);

/**
 * Finds all roots by quadratic factors (Bairstow), up to degree four in closed form.
 *
 * Not reliable above: the best residual is never reset, and a factor may be found
 * twice. All roots were right, mirrored ones aside, for 97 % of polynomials with
 * random coefficients of degree 5, 63 % of degree 6, 7 % of degree 10, none of
 * degree 19. Take amaDKA() there.
 *
 * Cost: at most 100 steps for each factor, each in proportion to the degree left.
 *
 * @param[in]  c   n + 1 coefficients
 * @param[in]  n   degree, 1 to 200
 * @param[out] out n pairs; degree 1: one double. Above degree 4 the last factor comes
 *                 first, the Newton root of an odd degree last; a discriminant down
 *                 to -0.0001 counts as real; the second root of a complex pair is
 *                 (-re, im), not the conjugate
 * @return 0 done; -1 also for a degree out of range; -2 a factor was not found, which
 *         x^2 + x + 1 as the first one never is; -3 the Newton root was not found.
 *         After -2 and -3 out is untouched but for the last pair of an odd degree:
 *         the Newton root, or after -3 its last iterate without an imaginary part
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaBairstaw(const double *c, int32_t n, double *out);

/**
 * Finds all roots at once (Durand-Kerner, from Aberth's circle about the origin).
 *
 * Sweeps end when all values met in one are below eps, or with the budget. Roots that
 * repeat themselves bit by bit are carried to its end at once; without that,
 * 10^7 / (n (n + 16)) sweeps, but at least 1000, above degree 126 at least
 * 1.8 10^7 / (n (n + 16)), are as a budget used up. A NaN does
 * not count as a large value: where all are NaN, as with c[2] to c[n] all zero, so
 * are the roots, and the result is 0.
 *
 * Cost: some n (n + 16) complex products a sweep.
 *
 * @param[in,out] c       n + 1 coefficients; c[1] to c[n] are divided by c[0]
 * @param[in]     n       degree, up to 200; below 1 nothing is written, and the
 *                        result is 0 if eps > 0 and maxiter >= 0, else -1
 * @param[in]     eps     bound of |value| after that division
 * @param[in]     maxiter budget of floor(maxiter) + 1 sweeps; none if negative or NaN
 * @param[out]    out     n pairs; imaginary parts below the root of eps become 0
 * @return 0 converged, or else at least one imaginary part became 0; -1 neither, or
 *         a degree above 200 (c and out are untouched then)
 */
PLANEGEO_API int32_t PLANEGEO_CALL amaDKA(double *c, int32_t n, double eps, double maxiter,
                                          double *out);

/** @} */

/** @defgroup ellipses Ellipses: record and parameter conversion
 *  A place on an ellipse has three names: its parametric angle t, its polar angle
 *  (the direction of the ray from the centre through it) and the point itself.
 *  Both angles are measured from the first axis and agree on the axes only, unless
 *  the ellipse is a circle.
 *
 *  Where an ellipse comes as separate arguments they are the centre, the full
 *  lengths @p a and @p b of the first and second axis, the rotation @p rot in
 *  degrees and, where a range is needed, two parametric angles, start and end.
 *  @{ */

/**
 * Finds the end points of an elliptic arc.
 *
 * @param[in]  center,a,b,rot the ellipse
 * @param[in]  angles two doubles, the parametric angles of start and end
 * @param[out] points four doubles: start x, start y, end x, end y
 * @return always 0
 * @see a2d_elpdeg for the way back
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elpcd(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, double *points);

/**
 * Finds the parametric angle of a point: of the place where the ray from the centre
 * meets the ellipse once both are stretched so that the ellipse is a circle.
 *
 * The point need not lie on the ellipse. With a negative axis the angle is that of
 * the stretched point itself.
 *
 * @param[in]  point  the point; the centre gives -rot
 * @param[in]  center,a,b,rot the ellipse
 * @param[out] angle  degrees, a direction in [0, 360] less @p rot and not reduced:
 *                    350 on an ellipse turned by 30 comes out as -10
 * @return 0 done; -1 when an axis is shorter than errdist, @p angle is then untouched
 * @see a2d_StdSedeg, a2d_ChkDegr, which reduce it
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_elpdeg(const DTPOINT *point, const DTPOINT *center, double a,
                                              double b, double rot, double *angle);

/**
 * Finds axes and rotation of the ellipse through the ends of two conjugate
 * semi-diameters (parameters 90 degrees apart).
 *
 * Semi-diameters whose dot product is below 1e-6 count as perpendicular and are the
 * semi-axes; they are exchanged, and 90 is added to the rotation, when the second
 * is the longer.
 *
 * @param[in]  p,q    ends of the two semi-diameters
 * @param[in]  center centre of the ellipse
 * @param[out] a,b    full axis lengths, a never below b
 * @param[out] rot    degrees, [0, 360) in general, up to 450 for the perpendicular
 *                    case
 * @return 0 done; -1 when the cross product of the semi-diameters is below 1e-6 (they
 *         lie on one line), the three outputs are then 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dGetEllipsDt(const DTPOINT *p, const DTPOINT *q,
                                                  const DTPOINT *center, double *a, double *b,
                                                  double *rot);

/**
 * Converts between parametric and polar angle.
 *
 * @param[in]     mode       0 parametric to polar, 1 polar to parametric
 * @param[in]     ellipse    only the axes are read
 * @param[in,out] parametric degrees; read in mode 0, written in mode 1, in [0, 360]
 * @param[in,out] polar      degrees; written in mode 0, in [0, 360], read in mode 1
 * @return 0 done; -1 for another mode, nothing is then written
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ElpAngle(int16_t mode, const DTELLIPSE *ellipse,
                                               double *parametric, double *polar);

/**
 * Finds the place of an angle on an ellipse as an offset from the centre.
 *
 * @param[in]  mode    0 the angle is parametric, 1 it is polar
 * @param[in]  ellipse axes and rotation are read; a rotation of up to 1e-6 to either
 *                     side of 0 is not applied
 * @param[in]  angle   degrees
 * @param[out] offset  the point less the centre, which callers add themselves
 * @return 0 done; -1 for another mode, @p offset is then untouched
 * @see ca_elpcd, which adds the centre
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ElpCordXY(int16_t mode, const DTELLIPSE *ellipse,
                                                double angle, DTPOINT *offset);

/** @} */

/** @defgroup ellipseQueries Ellipses: queries and transforms
 *  Where a point or line lies against an ellipse, and what becomes of the ellipse when
 *  it is turned, mirrored or scaled.
 *  @{ */

/**
 * Finds the foci of an ellipse from its semi-axes.
 *
 * The lengths are taken as they are: unlike elsewhere, pass half the axes to get the
 * foci. A circle has both in the centre.
 *
 * @param[in]  center centre of the ellipse
 * @param[in]  a,b    semi-axes; with b longer than a the foci are NaN, and 0 is returned
 * @param[in]  rot    degrees
 * @param[out] focus1 centre - c (cos rot, sin rot), with c^2 = a^2 - b^2
 * @param[out] focus2 centre + c (cos rot, sin rot)
 * @return 0 done; -1 when c - a exceeds 1e-6, as with a negative @p a, the outputs are
 *         then untouched
 */
PLANEGEO_API int32_t PLANEGEO_CALL GetElpFocusPnt(const DTPOINT *center, double a, double b,
                                                  double rot, DTPOINT *focus1, DTPOINT *focus2);

/**
 * Finds the tangent at a point of an ellipse about the origin whose first axis lies
 * along x.
 *
 * @param[in]  ratio   second semi-axis over first; 0 is not checked for and divides by
 *                     zero
 * @param[in]  point   the point
 * @param[out] tangent anticlockwise, not of unit length: (-y / ratio, x ratio);
 *                     untouched when the result is 1
 * @return 0 done; 1 for a null pointer or a ratio above 1
 * @see a2d_GetTangentVectorOnDTELLIPSE for an ellipse anywhere
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_GetTangentVectorOnElp(double ratio, const DTPOINT *point,
                                                             DTPOINT *tangent);

/**
 * Finds the tangent at a point of an ellipse.
 *
 * The first axis is to be the longer one: with a longer second axis the vector is
 * that of the ellipse with its axes exchanged.
 *
 * @param[in]  ellipse start and end are not read
 * @param[in]  point   the point, in the plane
 * @param[out] tangent anticlockwise, not of unit length; untouched when the result is 1
 * @return 0 done; 1 for a null pointer or an axis of zero or below
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_GetTangentVectorOnDTELLIPSE(const DTELLIPSE *ellipse,
                                                                   const DTPOINT *point,
                                                                   DTPOINT *tangent);

/**
 * Tells whether the parametric angle of a point lies on an elliptic arc; the point
 * need not lie on the curve.
 *
 * The arc runs anticlockwise from start to end, both with 1e-8 degrees of slack; ends
 * that are equal after reduction are the whole turn.
 *
 * @param[in] ellipse the arc
 * @param[in] point   the point
 * @return 0 on the arc; 1 off it, or when an axis is shorter than errdist
 * @see ca_onelp, which asks for the curve as well
 */
PLANEGEO_API int32_t PLANEGEO_CALL CheckEllipseArcAngle(const DTELLIPSE *ellipse,
                                                        const DTPOINT *point);

/**
 * Tells whether an infinite line cuts, touches or misses a whole ellipse.
 *
 * A line whose two points differ by at most 1e-6 across an axis runs along that axis
 * and touches within 0.0001 units; any other touches where the discriminant of
 * y = m x + c against the ellipse, a squared length, is within 0.0001 of zero.
 *
 * @param[in] line    two points of the line
 * @param[in] ellipse start and end are not read
 * @return 0 misses, 1 touches, 2 cuts
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_hanel(const DTLINE *line, const DTELLIPSE *ellipse);

/**
 * Tells whether a point lies on an elliptic arc.
 *
 * It lies on the curve when its distances from the foci add up to the longer axis
 * within 1e-6, and on the arc when pin_chk() finds its direction between those of the
 * arc's ends, where local components below 1e-7 count as zero. Start and end both 0
 * (or 0 and 360) are the whole turn; other equal angles are that one direction.
 *
 * @param[in] center,a,b,rot,angles the arc
 * @param[in] point the point; one with a NaN counts as on the arc
 * @return 0 on the arc; 1 off the curve or outside the arc; -1 an axis is 1e-8 or
 *         shorter
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_onelp(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, const DTPOINT *point);

/**
 * Tells whether the direction of a point lies in a polar range, with 1e-8 degrees of
 * slack.
 *
 * The direction is that of ca_vcrad() less @p rot, raised by a turn where it is
 * negative. A start above the end crosses 0. Ends both within 1e-6 of 0 are the whole
 * turn. A negative start is raised by a turn, and a negative end with it; a start that
 * stays negative, or an end below 0 on its own, holds nothing.
 *
 * @param[in] center centre of the ellipse
 * @param[in] rot    rotation of its first axis, degrees
 * @param[in] range  two doubles, start and end, polar, measured from the first axis
 * @param[in] point  the point
 * @return 0 in the range, 1 outside; 0 for a direction that is NaN
 */
PLANEGEO_API int32_t PLANEGEO_CALL pin_chk(const DTPOINT *center, double rot, const double *range,
                                           const DTPOINT *point);

/**
 * Tells whether a point lies inside, on or outside an ellipse, by the sum of its
 * distances from the foci, within 1e-6.
 *
 * @param[in]  center,a,b,rot the ellipse
 * @param[in]  point    the point
 * @param[out] position 0 on the ellipse, 1 outside, 65535 inside; 0 when the result is -1
 * @return 0 done; -1 an axis is 1e-8 or shorter
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_posel(const DTPOINT *center, double a, double b, double rot,
                                            const DTPOINT *point, uint16_t *position);

/**
 * Scales an ellipse along y: its image under (x, y) -> (x, k y).
 *
 * The result's first axis is never the shorter one; its rotation lies in [0, 450], its
 * arc angles are those of a2d_elpdeg() for the images of the ends, not reduced. A
 * negative @p k mirrors, and the arc then runs from its end to its start.
 *
 * @param[in]  ellipse the ellipse
 * @param[in]  k       the factor
 * @param[out] result  may be @p ellipse; its attribute word is not written
 * @return 0 done; -1 when an axis of @p ellipse is not longer than errdist (nothing is
 *         written) or one of the image is shorter than errdist (centre, axes and
 *         rotation are written, start and end untouched)
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_elp_trans(const DTELLIPSE *ellipse, double k,
                                                 DTELLIPSE *result);

/**
 * Turns an ellipse about a point.
 *
 * @param[in]  center,a,b,rot,angles the ellipse
 * @param[in]  pivot the point
 * @param[in]  angle degrees, anticlockwise
 * @param[out] out_center,out_a,out_b,out_rot,out_angles the turned ellipse; axes and
 *                   angles are unchanged, and the rotation is moved by one turn at most
 *                   towards [0, 360]
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_rvelp(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, const DTPOINT *pivot,
                                            double angle, DTPOINT *out_center, double *out_a,
                                            double *out_b, double *out_rot, double *out_angles);

/**
 * Mirrors an ellipse in a line.
 *
 * @param[in]  center,a,b,rot,angles the ellipse
 * @param[in]  line_p1,line_p2 two points of the line; equal points are not checked for
 *                             and give a centre and rotation that are not finite
 * @param[out] out_center,out_a,out_b the mirrored centre and the same axes
 * @param[out] out_rot    direction of the mirrored first axis by the rule of ca_vcrad(),
 *                        [0, 360]
 * @param[out] out_angles 360 less the old end, 360 less the old start; both lowered by
 *                        360 where one exceeds 360.00000001
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_vmelp(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, const DTPOINT *line_p1,
                                            const DTPOINT *line_p2, DTPOINT *out_center,
                                            double *out_a, double *out_b, double *out_rot,
                                            double *out_angles);

/**
 * Scales an ellipse about its centre until it meets a point.
 *
 * The ellipse is measured along the direction to the point mirrored in its first axis
 * (along the horizontal where the point's x is within 1e-8 of the centre's): it meets
 * the point when it is a circle, the point lies level with the centre, or the rotation is
 * a multiple of 90 and the point not straight above or below the centre.
 *
 * @param[in]  center,a,b,rot,angles the ellipse
 * @param[in]  point the point; at the centre it gives zero axes
 * @param[out] out_a,out_b the scaled axes; not finite when an axis is zero
 * @param[out] out_center,out_rot,out_angles as given
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_samel(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, const DTPOINT *point,
                                            DTPOINT *out_center, double *out_a, double *out_b,
                                            double *out_rot, double *out_angles);

/** @} */

/** @defgroup ellipseMeasure Ellipses: length and area
 *  All of these read half the first axis from slot 0 and half the second from
 *  slot 1 of ca_Simpson_getParmtbl(), never from a record: store them first.
 *  @{ */

/**
 * An integrand: writes its value at an angle in degrees and returns 0; any other
 * code ends the integration, which returns it.
 *
 * @param[in]  deg   the angle
 * @param[out] value the value
 */
typedef int32_t(PLANEGEO_CALL *PLANEGEO_INTEGRAND)(double deg, double *value);

/**
 * The integrand of arc length: with A and B the half axes of the parameter table,
 * sqrt(B^2 cos^2 t + A^2 sin^2 t), the length per radian of the parameter.
 *
 * @param[in]  deg   parametric angle t
 * @param[out] value drawing units
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_lengelp(double deg, double *value);

/**
 * The integrand of sector area: with A and B the half axes of the parameter table,
 * A^2 B^2 / (2 (B^2 cos^2 t + A^2 sin^2 t)), the area per radian of the polar angle.
 *
 * @param[in]  deg   polar angle t
 * @param[out] value drawing units squared; NaN when an axis is zero and the angle
 *                   lies along the other, or both are zero
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_AreaElp(double deg, double *value);

/**
 * Integrates over a range of degrees, with respect to the angle in radians.
 *
 * The Simpson rule starts with an interval per degree (at least 4, an even count)
 * and halves them until two sums differ by at most 1e-6, absolutely, or the
 * interval falls below 0.001 degrees. A range below 0.004 degrees gives 0.
 *
 * Cost: a call of the integrand per degree at first, and as many again as there were
 * with each halving. The library's own integrands are summed in closed form as a rule,
 * in constant time.
 *
 * @param[in]  integrand called at the lower limit, at the upper limit, then at all
 *                       interior points of each pass in rising order, up to 2000
 *                       times per degree of the range; the library may evaluate its
 *                       own integrands by other means
 * @param[in]  lower,upper degrees
 * @param[out] result    the integral; 0 unless the return value is 0
 * @return 0 done; -1 lower exceeds upper (nothing is called); -2 not settled when
 *         the interval count would pass 2^31 - 1: a range above 2^30 degrees, an
 *         infinite or a NaN limit get there at once, and with the library's own
 *         integrands a range above 36000 degrees, or above 1440 where one half axis
 *         exceeds four times the other; else the integrand's code
 * @see ca_Simpson2 for the inverse, ca_ElpLen for an elliptic arc
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_Simpson(PLANEGEO_INTEGRAND integrand, double lower,
                                              double upper, double *result);

/**
 * Moves one limit of a range until the integral over it is within 1e-6 of a value.
 *
 * The limit moves by 10 degrees at first (by 5 if the range is too short) and by
 * half as much after each change of direction. Each range is integrated as by
 * ca_Simpson(); one whose lower limit has passed the upper counts as 0, so does
 * one that did not settle.
 *
 * Cost: that of ca_Simpson() for each range on the way.
 *
 * @param[in]     integrand   see ca_Simpson()
 * @param[in,out] lower,upper degrees; only the moved one is written, and only when
 *                            the value was found
 * @param[in]     wanted      the integral to reach
 * @param[in]     which       0 moves the lower limit, any other value the upper
 * @return 0 found; -2 found, but a range on the way did not settle; -1 given up:
 *         ten ranges in a row gave nothing or no change above 1e-6, the integral is
 *         not finite and the limit no longer changes, wanted is infinite, or 2^28
 *         samples are spent (the range has then grown by at most 80 turns), or with the
 *         library's own integrands 2^24 in 192 ranges that only samples decide;
 *         else the integrand's code
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_Simpson2(PLANEGEO_INTEGRAND integrand, double *lower,
                                               double *upper, double wanted, int32_t which);

/**
 * Measures an elliptic arc.
 *
 * The arc's angles are taken as the directions of its ends (see ca_ElpAngle()), and
 * the speed is integrated between these numbers as if they were parameters: exact
 * for whole, half and quarter turns and for circles. A span above 359.999999
 * degrees is the whole turn, equal ends are an empty arc. The directions lie in
 * [0, 360], so a whole turn is safe as (0, 360) only; see docs/behaviours.md.
 *
 * Cost: that of ca_Simpson() with the library's own integrand.
 *
 * @param[in]  ellipse start, end and the ratio of the axes are read; the size comes
 *                     from the parameter table
 * @param[out] length  within about 1e-6; 0 for an arc below 0.004 degrees
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ElpLen(const DTELLIPSE *ellipse, double *length);

/**
 * Trims or extends an elliptic arc to a length, by moving one end.
 *
 * Unlike ca_ElpLen() this integrates between the parametric angles. The search is
 * that of ca_Simpson2(); the range found is then brought to an end of at most 360,
 * one above 359.999999 degrees to (0, 360), and of it the moved angle is stored.
 *
 * Cost: that of ca_Simpson2() with the library's own integrand.
 *
 * @param[in,out] ellipse start and end are read, the moved one is written; the half
 *                        axes come from the parameter table
 * @param[in]     wanted  length, drawing units, reached within 1e-6
 * @param[in]     which   0 moves the start, any other value the end
 * @return 0 done; -1 the search gave up, the record is untouched
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ElpLen2(DTELLIPSE *ellipse, double wanted, int32_t which);

/** @} */

/** @defgroup ellipseArcs Ellipses: chains of circular arcs
 *  For hosts whose targets know only lines and arcs. Arc k of a chain has element k of
 *  the three output arrays, in the sense of travel: its centre, its radius, and its start
 *  and end angle in @p out_angles [2k] and [2k + 1].
 *
 *  ca_elips() and ca_elip1() give the four-centre oval of draughtsmen; ca_elip2() keeps
 *  to a tolerance.
 *  @{ */

/**
 * Replaces an elliptic arc by at most five arcs of the four-centre oval. Unlike other
 * functions it takes half axes and radians.
 *
 * Half axes that differ by at most 1e-7 give one arc of radius @p a with the angles as
 * passed, the rotation not applied. A span within 0.001 of 2 pi is the whole turn: four
 * arcs, the first at the end of the longer axis. Else the ends are cut by the directions
 * from their arcs' centres to points of the circle about the longer axis, not of the
 * ellipse, and arcs of at most 1e-7 go.
 *
 * Half axes of zero or below, numbers that are not finite, and angles beyond 1e15, which
 * cannot be reduced to a turn, give arcs without meaning or none.
 *
 * @param[in]  center centre of the ellipse
 * @param[in]  a,b    half axes; the longer one comes to lie along the rotation
 * @param[in]  angles two doubles, start and end, parametric from the first axis, radians
 * @param[in]  rot    radians
 * @param[out] out_centers,out_radii,out_angles room for five arcs each; angles in
 *                    radians
 * @param[out] count  0 to 5 arcs; with 0 nothing else is written
 * @return always 0
 * @see ca_elip1, which works in degrees, ca_elip2
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elips(const DTPOINT *center, double a, double b,
                                            const double *angles, double rot, DTPOINT *out_centers,
                                            double *out_radii, double *out_angles, uint32_t *count);

/**
 * Replaces an elliptic arc by at most five arcs of the four-centre oval.
 *
 * The oval goes through the ends of both axes and elsewhere runs outside the ellipse, by
 * up to 2.8 % of the longer half axis (where the axes are as 1 to 0.22; 1.9 % at 1 to 0.5,
 * 0.6 % at 1 to 0.8). Joints are tangent. The chain starts and ends at the points of the
 * oval next to the ellipse's own, unlike that of ca_elips(), and lies along the ellipse
 * whichever axis is the longer. Axes equal within errdist give one arc of the mean radius.
 *
 * @param[in]  center,a,b,rot,angles the arc; start and end equal after reduction are the
 *                    whole turn: four arcs, the first at the end of the longer axis
 * @param[out] out_centers,out_radii,out_angles room for five arcs each; degrees, each
 *                    range normalised as by a2d_StdSedeg()
 * @param[out] count  1 to 5 arcs; 0 when the result is -1
 * @return 0 done; -1 when an axis is not above errdist or a number is not finite, the
 *         outputs but @p count are then untouched
 * @see ca_elip2 for a chain within a tolerance
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elip1(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, DTPOINT *out_centers,
                                            double *out_radii, double *out_angles, uint16_t *count);

/**
 * Replaces an elliptic arc by a tangent-continuous chain of circular arcs within a
 * tolerance.
 *
 * No point of the chain lies further than @p tol from the arc, and none of the arc from
 * the chain. The chain starts and ends on the arc's ends and goes through every end of an
 * axis on the way, there square to the axis. Each quadrant has as few arcs as such a chain
 * allows, and their number once fixed, the distance is made as small as it can be. Axes
 * that differ by at most 2 @p tol give a whole ellipse as one circle.
 *
 * Cost: in proportion to the number of arcs, some tenfold for a tolerance a thousand
 * times finer.
 *
 * @param[in]  center,a,b,rot,angles the arc; start and end equal after reduction are the
 *                     whole turn, which is closed and begins at the end of an axis at or
 *                     before the start
 * @param[in]  tol     drawing units; more than half the shorter axis counts as that
 * @param[out] out_centers,out_radii,out_angles room for @p count arcs each; degrees, each range
 *                     normalised as by a2d_StdSedeg(); untouched unless the result is 0
 * @param[in,out] count room in arcs, 0 to ask for the number (the arrays may then be null);
 *                     the number of arcs, also when the result is -2; 0 for -1 and -3
 * @return 0 done; -1 when an axis is not above errdist, @p tol not above 0 or a number not
 *         finite; -2 when there are more arcs than room; -3 when a quadrant takes more than
 *         512 arcs, or @p tol or half the shorter axis is below 4e-15 of the largest
 *         radius of curvature
 * @see ca_elip1 for a chain of five arcs at most
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elip2(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, double tol, DTPOINT *out_centers,
                                            double *out_radii, double *out_angles, uint16_t *count);

/** @} */

/** @defgroup ellipseDivision Ellipses: division into points
 *  An elliptic arc from start to end, parametric degrees, is divided into n pieces
 *  of equal length; division point k ends the k-th of them.
 *  @{ */

/**
 * Finds a division point to 0.001 degrees, from a table kept between calls.
 *
 * Meant to be asked for k = 1, 2, ..., n in turn. The first call measures the arc
 * and notes, in steps of 0.001 degrees, where each piece is full, to within the
 * rounding of the sum; the calls that follow read it; the call with k = n releases
 * the table, and so does one with k > n. The table serves arcs whose centre and axes agree within
 * 1e-6, rotation and angles within 1e-8, and whose n is equal: the piece length and the angle come
 * from it, centre, axes and rotation from the call. Any other arc replaces it. A table is never
 * shared: do not divide on two threads at once.
 *
 * Cost: the first call takes memory for n doubles, and time in proportion to n or, where
 * pieces are short, to the number of steps; the others are constant.
 *
 * @param[in]  center,a,b,rot the ellipse: full axis lengths, degrees
 * @param[in]  angles start and end; a span below 0.004 degrees gives a length of 0
 *                    and the end as every point
 * @param[in]  n,k    number of pieces and of the point, 1 <= k <= n
 * @param[out] out    the point
 * @param[out] len    length of a piece
 * @return 0 done; 1 k exceeds n or is below 1, or no memory, or n above 2^20; -1
 *         start exceeds end (at every call); outputs are untouched in these cases.
 *         -2 from the call that measures: the length does not settle, the span exceeds
 *         36000 degrees, or it exceeds 1440 and the arc is too thin (an axis below some
 *         fifth of the other) or n too large (22500, in any case 65536) to be divided
 *         without a walk over it; the length is 0 and every point the end
 * @see ca_elpdn, which is coarser and keeps nothing
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_elpdn(const DTPOINT *center, double a, double b, double rot,
                                             const double *angles, int32_t n, int32_t k,
                                             DTPOINT *out, double *len);

/**
 * Finds a division point from the polyline through every whole degree of the arc.
 *
 * Only whole degrees from the start count: the arc beyond the last of them is left
 * out of the length, and only the point k = n reaches the end. Within a degree the
 * point is placed by a rule of its own, which is not the interpolation along the
 * segment; it may be off by a degree.
 *
 * Cost: constant, at most 362 samples.
 *
 * @param[in]  center,a,b,rot the ellipse: full axis lengths, degrees
 * @param[in]  angles start and end, no more than 361 degrees apart
 * @param[in]  n,k    number of pieces and of the point, 1 <= k <= n
 * @param[out] out    the point; for k = n exactly the end of the arc; untouched
 *                    when the result is 1
 * @param[out] len    length of a piece; also written where the point lies beyond
 *                    the polyline
 * @return 0 done; 1 n or k below 1, start above end or more than 362 samples (len
 *         is then untouched), or the point lies beyond the polyline: k exceeds n,
 *         an arc below a degree with k < n, an ellipse of no size
 * @see a2d_elpdn
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elpdn(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, int32_t n, int32_t k,
                                            DTPOINT *out, double *len);

/** @} */

/** @defgroup ellipseExtents Ellipses: extents and points of given tangent
 *  A box is made of points whose tangents lie along x and y.
 *  @{ */

/**
 * Finds the two points of a whole ellipse with a tangent of a given direction.
 *
 * @param[in]  center,a,b,rot the ellipse
 * @param[in]  direction of the tangent, degrees; whole turns are taken off
 * @param[out] out1 the point on the side to which the second axis points, or the end of
 *                  the first axis when the tangent is parallel to the second within 1e-8
 * @param[out] out2 the point opposite
 * @return always 1, though it never fails
 * @see ang_pnt for an arc
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elaln(const DTPOINT *center, double a, double b, double rot,
                                            double direction, DTPOINT *out1, DTPOINT *out2);

/**
 * Finds the points of an elliptic arc with a tangent of a given direction; a point
 * outside the arc gives way to the nearer end of the arc, to the end rather than the
 * start where both are as near.
 *
 * Whether a point is outside is decided by polar directions, as in pin_chk(): 0 and 360
 * are the whole turn, while other angles 360 apart, which name one direction, may hold
 * that direction alone.
 *
 * @param[in]  center,a,b,rot,angles the arc; @p rot moves one turn at most towards 0
 * @param[in]  direction of the tangent, degrees; moves one turn at most towards [0, 360]
 * @param[out] out1,out2 the points, before they give way in the order of ca_elaln()
 * @return always 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL ang_pnt(const DTPOINT *center, double a, double b, double rot,
                                           const double *angles, double direction, DTPOINT *out1,
                                           DTPOINT *out2);

/**
 * Finds the box around an elliptic arc, parallel to the axes of the plane.
 *
 * It is the box of the four points that ang_pnt() finds for the directions 90 and 0.
 * An end of the arc counts only where it took the place of such a point: a box may be
 * smaller than the arc.
 *
 * @param[in]  center,a,b,rot,angles the arc
 * @param[out] lower,upper lower left and upper right corner; both (0, 0) when the
 *                         result is 1
 * @return 0 done; 1 when start and end differ by less than 1e-6 (a whole ellipse is to
 *         be given as a span of 360)
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elamn(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, DTPOINT *lower, DTPOINT *upper);

/**
 * As ca_elamn(), with the points that make the box.
 *
 * @param[in]  center,a,b,rot,angles the arc
 * @param[out] lower,upper as in ca_elamn()
 * @param[out] extremes    four points: the two with a tangent along y, then the two with
 *                         one along x; untouched when the result is 1
 * @return as ca_elamn()
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_elpmn(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, DTPOINT *lower, DTPOINT *upper,
                                            DTPOINT *extremes);

/** @} */

/** @defgroup lineEllipse Lines with ellipses
 *  Lines are infinite. An axis may be the longer one or not.
 *  @{ */

/**
 * Intersects a line with an ellipse, with a tolerance of the call.
 *
 * The plane is stretched across the first axis by a/b, so that the ellipse becomes
 * a circle of radius a/2. There the line is tangent when its distance from the
 * centre differs from the radius by less than @p tol, to either side: on an
 * ellipse with a short second axis that is a much smaller distance in the plane.
 *
 * @param[in]  p1,p2  two points of the line
 * @param[in]  center,a,b,rot the ellipse: full axes, rotation in degrees
 * @param[out] out1   the point further along the direction from p2 to p1; the
 *                    touching point when tangent; (0, 0) when there is none
 * @param[out] out2   the other point, or (0, 0)
 * @param[out] count  32 bits: 0, 1 or 2 points; 0 when degenerate
 * @param[in]  tol    drawing units
 * @return 0 solved; 1 degenerate, out1 and out2 are then untouched: an axis is
 *         zero, or the line or its stretched unit direction is shorter than tol
 * @see a2d_insle with errdist and a 16-bit count
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_CrsLE(const DTPOINT *p1, const DTPOINT *p2,
                                             const DTPOINT *center, double a, double b, double rot,
                                             DTPOINT *out1, DTPOINT *out2, uint32_t *count,
                                             double tol);

/**
 * Intersects a line with an ellipse as a2d_CrsLE() does, with errdist for tolerance.
 *
 * @param[in]  p1,p2  two points of the line
 * @param[in]  center,a,b,rot the ellipse: full axes, rotation in degrees
 * @param[out] out1,out2 the points, the one on p1's side first; (0, 0) where there
 *                    is none; untouched when degenerate
 * @param[out] count  0, 1 or 2 points; 0 when degenerate
 * @return 0 solved, -1 degenerate
 * @see a2d_insl1 for an elliptic arc
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_insle(const DTPOINT *p1, const DTPOINT *p2,
                                             const DTPOINT *center, double a, double b, double rot,
                                             DTPOINT *out1, DTPOINT *out2, uint16_t *count);
/** The same function as a2d_insle(). */
PLANEGEO_API int32_t PLANEGEO_CALL ca_insle(const DTPOINT *p1, const DTPOINT *p2,
                                            const DTPOINT *center, double a, double b, double rot,
                                            DTPOINT *out1, DTPOINT *out2, uint16_t *count);
/** The same function as a2d_insle(). */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_insle2(const DTPOINT *p1, const DTPOINT *p2,
                                              const DTPOINT *center, double a, double b, double rot,
                                              DTPOINT *out1, DTPOINT *out2, uint16_t *count);

/**
 * Intersects a line with an elliptic arc.
 *
 * The points are those of a2d_insle(); kept are those whose direction from the
 * centre lies between the directions of the arc's ends, with 1e-8 degrees of
 * slack. Directions within 1e-7 units of an axis snap onto it, those of the ends
 * in the ellipse's frame, those of the points in the plane.
 *
 * @param[in]  p1,p2  two points of the line
 * @param[in]  center,a,b,rot the ellipse: full axes, rotation in degrees
 * @param[in]  angles start and end of the arc, parametric degrees; equal ends mean
 *                    the full ellipse
 * @param[out] out1   the first point kept, or (0, 0)
 * @param[out] out2   the second point kept, or (0, 0); both are untouched when
 *                    degenerate
 * @param[out] count  0, 1 or 2 points kept; 0 when degenerate
 * @return 0 solved, -1 degenerate
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_insl1(const DTPOINT *p1, const DTPOINT *p2,
                                             const DTPOINT *center, double a, double b, double rot,
                                             const double *angles, DTPOINT *out1, DTPOINT *out2,
                                             uint16_t *count);

/**
 * Intersects a line with the ellipse centred at the origin with its first axis
 * along x.
 *
 * A line that a2d_IsElpTangentLine() accepts gives its touching point. Points no
 * further apart than errdist count as one.
 *
 * @param[in]  p1,p2 two points of the line; vertical when their x differ by less
 *                   than 1e-8
 * @param[in]  a,b   full axes; a zero axis has no points, unless the line touches
 *                   its end or is vertical
 * @param[out] out1  the point with the greater x, of a vertical line with the
 *                   greater y; (0, 0) when there is none
 * @param[out] out2  the other point, or (0, 0)
 * @param[out] count 0, 1 or 2 points
 * @return 0 solved; -1 axes too long for their squares left no quadratic, both
 *         outputs are then (0, 0)
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_insLStandardE(const DTPOINT *p1, const DTPOINT *p2, double a,
                                                     double b, DTPOINT *out1, DTPOINT *out2,
                                                     uint16_t *count);

/**
 * Tells whether a line touches the ellipse centred at the origin with its first
 * axis along x.
 *
 * A line parallel to an axis (within 1e-8) touches when its distance from the
 * centre is half the other axis within 1e-6. Any other line touches when the
 * products of the focal tangent property differ by no more than 1e-6, a squared
 * length, and its touching point lies within 1e-6 of it. Where the second axis is
 * the longer the foci decide nothing and the touching point alone does. Nothing
 * here follows errdist; only a line shorter than it counts as 0 away from all.
 *
 * @param[in]  p1,p2 two points of the line
 * @param[in]  a,b   full axes
 * @param[out] out   the touching point; untouched when the result is -1
 * @return 0 tangent; -1 not, or a line that crosses the first axis within the ellipse
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_IsElpTangentLine(const DTPOINT *p1, const DTPOINT *p2,
                                                        double a, double b, DTPOINT *out);

/**
 * Selects the end of an elliptic arc to keep where it is cut by the same ellipse.
 *
 * With the flag of ca_SetStartendFlg() at 1 that is the start of @p e1, else its
 * end; PLANEGEO_ATTR_REVERSED in its attribute word exchanges the two. A full
 * ellipse @p e2 does not ask the flag: it gives the start when the bit is set,
 * else the end.
 *
 * @param[in]  e1  the arc whose end is wanted
 * @param[in]  e2  the cutting arc; its range runs from its end to its start when
 *                 exactly one of PLANEGEO_ATTR_REVERSED and
 *                 PLANEGEO_ATTR_CLOCKWISE is set
 * @param[out] out the end; untouched unless the result is 1
 * @return 1 chosen; 0 the end is not on @p e2 (1e-8 degrees of slack); -1 not the
 *         same ellipse: centres and axes must agree within errdist, rotations
 *         within 1e-8 degrees or differ by 180, even those of a circle
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_InsDe(const DTELLIPSE *e1, const DTELLIPSE *e2,
                                             DTPOINT *out);

/** @} */

/** @defgroup conics Ellipses with circles and ellipses
 *  Up to four points. Where arcs are given, only points on both are kept.
 *  @{ */

/**
 * Intersects a circle about the origin with an ellipse whose axes lie along x and y.
 *
 * Points lie on both curves; of a touch within the tolerances one or both points
 * are given. Fixed tolerances decide: an ellipse with b below 1e-6 is a segment,
 * one whose half axes differ by less than errdist a circle (see a2dCrs2C()), and
 * one whose centre lies within 1e-6 of the y axis is taken as lying on it. Where
 * nothing is found, two points that need not lie on the ellipse are given if the
 * discriminant, a length to the sixth, is below 1e-6: always so in drawings of
 * some hundredths of a unit.
 *
 * @param[in]  ex,ey centre of the ellipse, seen from that of the circle
 * @param[in]  a,b   half axes, a along x and not the shorter
 * @param[in]  r     radius
 * @param[out] out   four points: those found, in the order in which the quartic of
 *                   their ordinates is solved by radicals; beyond the count (0, 0)
 *                   or what was tried and dropped; untouched when refused
 * @return the number of points, 0 to 4; -1001 when b exceeds a, or when a or r is
 *         below 1e-6
 * @see a2d_insce for arcs in any position
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dIntersectionEC(double ex, double ey, double a, double b,
                                                     double r, DTPOINT *out);

/**
 * Intersects a circular with an elliptic arc.
 *
 * The points are those of a2dIntersectionEC(); kept are those on both arcs, with
 * 1e-8 degrees of slack. An ellipse with half a second axis below 1e-6 is a
 * segment, of which no part is left out.
 *
 * @param[in]  center  centre of the circle, x and y
 * @param[in]  r       radius
 * @param[in]  angles  start and end of its arc, degrees
 * @param[in]  ecenter centre of the ellipse, x and y
 * @param[in]  a,b     full axes; a must not be the shorter
 * @param[in]  rot     rotation of the first axis, degrees
 * @param[in]  eangles start and end of the elliptic arc, parametric degrees; equal
 *                     ends mean the full ellipse
 * @param[out] p1,p2,p3,p4 the points kept; those beyond the count are untouched
 * @param[out] count   0 to 4, lowered by as many points as a2d_chk_distdeg() drops
 *                     while the points stay in their places; untouched when refused
 * @return 0 done; -1 refused: a shape that a2dIntersectionEC() refuses, or an axis
 *         below errdist where a point on the circle's arc was found
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_insce(const double *center, double r, const double *angles,
                                             const double *ecenter, double a, double b, double rot,
                                             const double *eangles, DTPOINT *p1, DTPOINT *p2,
                                             DTPOINT *p3, DTPOINT *p4, int16_t *count);
/** The same function as a2d_insce(). */
PLANEGEO_API int32_t PLANEGEO_CALL ca_insce(const double *center, double r, const double *angles,
                                            const double *ecenter, double a, double b, double rot,
                                            const double *eangles, DTPOINT *p1, DTPOINT *p2,
                                            DTPOINT *p3, DTPOINT *p4, int16_t *count);

/**
 * Intersects two elliptic arcs.
 *
 * The plane is stretched so that the first ellipse becomes a circle, and
 * a2d_insce() answers. Any axis may be the longer one.
 *
 * @param[in]  center1,center2 the centres, x and y each
 * @param[in]  a1,a2     full first axes
 * @param[in]  b1,b2     full second axes; with @p b1 zero the answer is no points,
 *                       and y coordinates of the outputs that are not finite or lost
 * @param[in]  rot1,rot2 rotations, degrees
 * @param[in]  angles1,angles2 start and end of each arc, parametric degrees
 * @param[in,out] p1,p2,p3,p4 the points found. Those beyond the count are carried
 *                       out of the stretched frame too, from whatever they held
 * @param[out] count     0 to 4
 * @return 0 done; 1 the ellipses coincide within errdist (axes, rotations and
 *         squared distance of the centres), count is 0; -1 refused: an axis of the
 *         second ellipse is not longer than errdist, or a2d_insce() refused; in
 *         these two cases the points are untouched and count is 0
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_ins2e(const double *center1, const double *center2,
                                             double a1, double a2, double b1, double b2,
                                             double rot1, double rot2, const double *angles1,
                                             const double *angles2, DTPOINT *p1, DTPOINT *p2,
                                             DTPOINT *p3, DTPOINT *p4, int16_t *count);
/** The same function as a2d_ins2e(). */
PLANEGEO_API int32_t PLANEGEO_CALL ca_ins2e(const double *center1, const double *center2, double a1,
                                            double a2, double b1, double b2, double rot1,
                                            double rot2, const double *angles1,
                                            const double *angles2, DTPOINT *p1, DTPOINT *p2,
                                            DTPOINT *p3, DTPOINT *p4, int16_t *count);

/**
 * Drops the points of a list that repeat an earlier one.
 *
 * Two points are one when their squared distance is below errdist (one thousandth
 * of a unit apart by default) and their parameters on the ellipse differ by less
 * than 1e-8 degrees.
 *
 * @param[in]  points n points
 * @param[in]  n      their number, 2 to 4
 * @param[in]  center centre of the ellipse, x and y
 * @param[in]  rot    rotation of the first axis, degrees
 * @param[in]  a,b    full axes
 * @param[out] out    n points: the distinct ones in their order, what follows them is
 *                    untouched; may be @p points itself
 * @return the number of distinct points; -1 when @p n is not 2 to 4, or an axis is
 *         shorter than errdist, @p out is then untouched
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_chk_distdeg(const DTPOINT *points, int32_t n,
                                                   const double *center, double rot, double a,
                                                   double b, DTPOINT *out);

/** @} */

/** @defgroup ellipseFeet Ellipses: perpendiculars
 *  Feet of the perpendiculars from a point, where the line to the point meets the
 *  ellipse at a right angle. The first axis must be the longer: codes -1 and -2
 *  are told per function. A point within errdist of an axis counts as on it, one
 *  within errdist of the centre as the centre. A general point inside the evolute
 *  (a curve around the centre, within the ellipse's width at its ends) has four
 *  feet, one outside it two.
 *  @{ */

/**
 * Finds the nearest foot of a perpendicular, the one in the point's own quadrant.
 *
 * From the centre and from the first axis inside the evolute two feet are as near.
 *
 * @param[in]  p    the point
 * @param[in]  e    the ellipse; start and end are not read
 * @param[out] out  array of 2, cleared first: the foot; (0, B) and (0, -B) in the
 *                  ellipse's frame from the centre; both feet from the first axis,
 *                  the one to the left of the axis first
 * @param[out] dist its distance from @p p; untouched without a foot
 * @return 1 or 2 feet; 0 for a NaN or an infinity; -1 an axis is not above errdist;
 *         -2 the first axis does not exceed the second by more than errdist
 * @see a2dEllpsPerPnts for all feet, a2d_dstpp for any axes
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dEllpsPer(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out,
                                               double *dist);

/**
 * Finds all feet of perpendiculars from a point to a full ellipse.
 *
 * The order, in the ellipse's frame: from the centre (A, 0), (0, B), (-A, 0),
 * (0, -B); from the second axis (0, B), (0, -B), then the two beside it, the one
 * with x > 0 first; from the first axis (A, 0), (-A, 0), then the two beside it,
 * y > 0 first; from any other point the nearest foot, the farthest, then the two
 * across the first axis, the one nearer to its end first.
 *
 * @param[in]  p   the point
 * @param[in]  e   the ellipse; start and end are not read
 * @param[out] out array of 4, cleared first
 * @return number of feet, 2 or 4, or 0 for a NaN or an infinity; -1 an axis is not
 *         above errdist; -2 the first axis does not exceed the second by more than
 *         errdist (a circle, or the second axis the longer)
 * @see a2d_PerEP for circles
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dEllpsPerPnts(const DTPOINT *p, const DTELLIPSE *e,
                                                   DTPOINT *out);

/**
 * As a2dEllpsPerPnts(), with only the feet that lie on the arc by ca_onelp().
 *
 * @param[in]  p,e the point and the arc
 * @param[out] out array of 4; untouched beyond the result
 * @return number of feet on the arc, 0 to 4; -1 and -2 as there
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2dEllpsArcPerPnts(const DTPOINT *p, const DTELLIPSE *e,
                                                      DTPOINT *out);

/**
 * Finds the feet of perpendiculars to an ellipse, or what stands in for them.
 *
 * Where a2dEllpsPerPnts() has no foot it is the nearest sample of the arc by
 * ca_dstpp(), @p p itself if that is nearer than errdist. Where it answers -2 the
 * ellipse counts as the circle over its first axis, and the answer is that of
 * cross_lin_cir() for the line from @p p to the centre: the far point first.
 *
 * @param[in]  p     the point
 * @param[in]  e     the ellipse; its arc counts for the nearest sample alone
 * @param[out] out   array of 4, cleared first; a single point of the circle twice
 * @param[out] count number of points; untouched when the result is -1
 * @return 0 done; -1 an axis is not above errdist, or @p p is the centre of a circle
 *         (within errdist in x and in y)
 * @see a2d_PerEP2 for arcs
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_PerEP(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out,
                                             uint32_t *count);

/**
 * As a2d_PerEP(), for an arc: by a2dEllpsArcPerPnts(), unless start and end are 0
 * and 360 within errdist. A circle's points are kept by a2d_lin_arc() in mode 1,
 * with start and end raised by the rotation.
 *
 * @param[in]  p,e   the point and the arc
 * @param[out] out   array of 4; cleared first for 0 and 360 only; both of the first
 *                   two are written for a circle, as a2d_lin_arc() does
 * @param[out] count number of points, 0 where a circle's arc holds none; untouched
 *                   when the result is -1
 * @return 0 done; -1 as there
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_PerEP2(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out,
                                              uint32_t *count);

/**
 * Projects a point onto an ellipse by its polar angle, taken for a parameter.
 *
 * The result is the point (A cos t, B sin t) for the direction t of @p p from the
 * centre: no foot of a perpendicular, and on the ray to @p p on the axes alone.
 * Whether it lies on the arc is asked of its own direction with 1e-8 degrees of
 * slack, between start and end taken as polar angles.
 *
 * @param[in]  p   the point
 * @param[in]  e   the ellipse; where exactly one of PLANEGEO_ATTR_REVERSED and
 *                 PLANEGEO_ATTR_CLOCKWISE is set the arc runs from end to start; an
 *                 end of the arc within 1e-6 of 0 counts as 360, and a negative
 *                 start is raised by a turn, the end with it if negative
 * @param[out] out the point; untouched when the result is -1
 * @return 0 on the arc; 1 off it; -1 an axis is at most 1e-6, or @p p lies within
 *         1e-6 of the centre in x and in y
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_perle(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out);

/** @} */

/** @defgroup ellipseTangents Ellipses: tangents
 *  A tangent is given by its points of contact.
 *  @{ */
/**
 * Finds the points of contact of the tangents from a point to an ellipse, by the
 * polar line of the point.
 *
 * There are none where the discriminant of the polar line y = m x + q against the
 * ellipse, a length to the sixth, is at most 1e-8; for a point within 1e-8 of the
 * first axis, where the squared ordinate of the contacts is. Small ellipses have
 * none for that reason.
 *
 * @param[in]  p               the point
 * @param[in]  center,a,b,rot  the ellipse; either axis may be the longer; one of
 *                             zero gives the ends of the segment, non-finite
 *                             outputs, or 1
 * @param[out] out1,out2 cleared first; the contact with the greater x in the
 *                             ellipse's frame is out1; for a point on the first
 *                             axis the one with the greater y
 * @return 0 done; 1 the point lies inside or on the ellipse
 * @see a2d_tchpe
 */
PLANEGEO_API int32_t PLANEGEO_CALL ca_inspe(const DTPOINT *p, const DTPOINT *center, double a,
                                            double b, double rot, DTPOINT *out1, DTPOINT *out2);

/**
 * Finds the points of contact of the tangents from a point to an ellipse, by the
 * feet of the foci: where a perpendicular from a focus meets a tangent, on the
 * circle over the first axis.
 *
 * The point must be outside: half the sum of its focal distances must exceed half
 * the first axis by more than 1e-6. A tangent that runs along one axis (to 1e-8
 * between point and foot) touches at the end of the other.
 *
 * @param[in]  p              the point
 * @param[in]  center,a,b,rot the ellipse; the first axis must not be the shorter
 * @param[out] out1,out2 the contacts; that of the nearer focus's foot to the right of
 *                       the direction from the centre to the middle between focus
 *                       and point is out1. Unless the result is 2, untouched or
 *                       points in the ellipse's frame that tell nothing
 * @return 2 both found; 0 the point lies inside or on the ellipse, or the second
 *         axis is zero or the longer; -1 the first axis is not positive
 * @see ca_inspe
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_tchpe(const DTPOINT *p, const DTPOINT *center, double a,
                                             double b, double rot, DTPOINT *out1, DTPOINT *out2);

/**
 * Finds the common tangents of two ellipses, each by its point of contact on
 * ellipse 1 and on ellipse 2: (t1, t2), (t3, t4), (t5, t6), (t7, t8).
 *
 * Ellipses apart have two outer tangents and two inner ones, which cross between
 * them; ellipses that cross have two outer ones, or four where they cross four
 * times; one inside the other has none. Outer tangents come first. Each kind is
 * ordered by the direction from ellipse 1 square to the line, measured from the
 * direction of centre 2 in (-180, 180] (from the first axis of ellipse 1 where the
 * centres coincide within errdist): for two circles the tangent to the right of
 * the direction from centre 1 to centre 2 is before that to its left.
 *
 * Where the ellipses touch within errdist two tangents merge into the one at that
 * point, where both points of contact would coincide: it is not given.
 *
 * @param[in]  center1,center2,a1,a2,b1,b2,rot1,rot2 the full ellipses; either axis may
 *             be the longer
 * @param[out] t1,t2,t3,t4,t5,t6,t7,t8 the points of contact; untouched beyond the count
 * @param[out] count number of tangents: 0, 2 or 4
 * @return 0 done; 1 the ellipses coincide within errdist; 2 one lies inside the
 *         other, touching or not; -1 an axis is not longer than errdist, or an
 *         argument is not finite
 * @see ca_cctan for circles
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_tch2e(const DTPOINT *center1, const DTPOINT *center2,
                                             double a1, double a2, double b1, double b2,
                                             double rot1, double rot2, DTPOINT *t1, DTPOINT *t2,
                                             DTPOINT *t3, DTPOINT *t4, DTPOINT *t5, DTPOINT *t6,
                                             DTPOINT *t7, DTPOINT *t8, uint16_t *count);

/** @} */

/** @defgroup ellipseDistance Ellipses: distance
 *  Angles of an arc are parametric.
 *  @{ */

/**
 * Tells whether a point lies on, outside or inside a full ellipse.
 *
 * The point counts as on the ellipse when A^2 y^2 + B^2 x^2 - A^2 B^2, with half
 * axes A and B and the point in the frame of the ellipse, is at most 0.0001. That
 * is a length to the fourth: a band wide for small ellipses, narrow for large
 * ones. A difference so small is formed with twice the digits of a double.
 *
 * @param[in] p the point
 * @param[in] e the ellipse; start and end are not read, either axis may be the longer
 * @return 0 on, 1 outside, 2 inside; 2 for a NaN
 * @see ca_posel for a tolerance that is a length
 */
PLANEGEO_API int32_t PLANEGEO_CALL a2d_distpe(const DTPOINT *p, const DTELLIPSE *e);

/**
 * Finds the nearest sample of an elliptic arc: at whole degrees of the parameter
 * from the start on, then at tenths of a degree within a degree of the best.
 *
 * The answer is exact to 0.1 degrees of the parameter, not to rounding; of equal
 * distances the earlier sample counts. The end itself is a sample only where whole
 * degrees, or then tenths, lead to it. Equal start and end are that one point,
 * except for a point on the whole ellipse with both 0 (see ca_onelp()).
 *
 * Cost: constant, at most 364 samples and then 21, of which most are ruled out unseen.
 *
 * @param[in]  center,a,b,rot the ellipse
 * @param[in]  angles start and end, degrees; a start above the end means an arc
 *             through 0; of a span beyond a turn the first 363 degrees are
 *             sampled; the step ends where it no longer changes the angle
 * @param[in]  p   the point
 * @param[out] out the nearest sample, coordinates below 1e-6 as 0; @p p itself where
 *             it lies on the arc by ca_onelp(); (0, 0) for an angle that is NaN
 * @return the distance of that sample; 0 on the arc; NaN for an angle that is NaN
 * @see a2d_dstpp for the true nearest point
 */
PLANEGEO_API double PLANEGEO_CALL ca_dstpp(const DTPOINT *center, double a, double b, double rot,
                                           const double *angles, const DTPOINT *p, DTPOINT *out);
/**
 * Returns the distance of ca_dstpp() alone.
 * @param[in] center,a,b,rot,angles,p the arc and the point
 * @return as there
 */
PLANEGEO_API double PLANEGEO_CALL ca_dstpe(const DTPOINT *center, double a, double b, double rot,
                                           const double *angles, const DTPOINT *p);

/**
 * Finds the nearest point of an elliptic arc, to rounding.
 *
 * The point is the foot of a normal or an end of the arc; the distance is right to
 * 1e-15 of itself or of the longer axis, whichever is larger. Circles, flat
 * ellipses down to segments, and points on the axes and the evolute need no care.
 * Of two nearest points either may be given.
 *
 * @param[in]  center,a,b,rot the ellipse; either axis may be the longer, or zero
 * @param[in]  angles start and end, degrees, any that a2d_StdSedeg() takes; equal
 *             ends mean the whole ellipse
 * @param[in]  p   the point
 * @param[out] out the nearest point; @p p itself where it is nearer than errdist
 * @return the distance; 0 where it is below errdist
 * @see ca_dstpp for the sampled distance of older hosts
 */
PLANEGEO_API double PLANEGEO_CALL a2d_dstpp(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, const DTPOINT *p, DTPOINT *out);
/**
 * Returns the distance of a2d_dstpp() alone.
 * @param[in] center,a,b,rot,angles,p the arc and the point
 * @return as there
 */
PLANEGEO_API double PLANEGEO_CALL a2d_dstpe(const DTPOINT *center, double a, double b, double rot,
                                            const double *angles, const DTPOINT *p);

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* PLANEGEO_H */
