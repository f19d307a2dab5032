// Two-dimensional geometry for CAD hosts: the functions of the planegeo library, for
// Free Pascal and Delphi.
//
// Generated from include/planegeo.h by bindings/generate.py. Do not edit.
//
// What is read only, and every array, is passed by its address; a single output is a var
// parameter. Outputs that a function leaves untouched keep their value.

unit planegeo;

{$ifdef FPC}{$mode objfpc}{$endif}
{$A8}

interface

const
  // Bit of an attribute word: the element is reversed, its start and end swap roles.
  PLANEGEO_ATTR_REVERSED = Cardinal($20000000);
  // Bit of an attribute word: when exactly one of this and PLANEGEO_ATTR_REVERSED is set, an arc's
  // range is taken from its end to its start.
  PLANEGEO_ATTR_CLOCKWISE = Cardinal($10000000);

type
  // A point or vector.
  DTPOINT = record
    x: Double; // drawing units
    y: Double; // drawing units
  end;
  PDTPOINT = ^DTPOINT;

  // A complex number.
  DTCOMPLEX = record
    re: Double; // real part
    im: Double; // imaginary part
  end;
  PDTCOMPLEX = ^DTCOMPLEX;

  // A line segment.
  DTLINE = packed record
    attr: Cardinal; // the host's attribute word
    gap4: array[0..3] of Byte;
    x1: Double; // first point
    y1: Double; // first point
    x2: Double; // second point
    y2: Double; // second point
  end;
  PDTLINE = ^DTLINE;

  // A circle or circular arc; an end 360 above the start is a full circle.
  DTARC = packed record
    attr: Cardinal; // the host's attribute word
    gap4: array[0..3] of Byte;
    cx: Double; // centre
    cy: Double; // centre
    r: Double; // radius
    start: Double; // degrees
    end_: Double; // degrees
  end;
  PDTARC = ^DTARC;

  // An ellipse or elliptic arc. The point at the parametric angle t is the centre plus (a/2 cos t,
  // b/2 sin t) turned by rot. The first axis need not be the longer one, except where a function
  // asks for it.
  DTELLIPSE = packed record
    attr: Cardinal; // the host's attribute word
    gap4: array[0..3] of Byte;
    cx: Double; // centre
    cy: Double; // centre
    a: Double; // full length of the first axis
    b: Double; // full length of the second axis
    start: Double; // parametric angle, degrees
    end_: Double; // parametric angle, degrees
    rot: Double; // rotation of the first axis, degrees anticlockwise from x
  end;
  PDTELLIPSE = ^DTELLIPSE;

  // An integrand: writes its value at an angle in degrees and returns 0; any other code ends the
  // integration, which returns it.
  //   deg (in): the angle
  //   value (out): the value
  PLANEGEO_INTEGRAND = function(deg: Double; var value: Double): Integer; cdecl;

const
{$ifdef MSWINDOWS}
  library_name = 'planegeo.dll';
{$else}
  library_name = {$ifdef FPC}'planegeo'{$else}'libplanegeo.so.1'{$endif};
{$endif}

// ---- Settings

// Returns the distance tolerance errdist.
//   Result: drawing units; 1e-6 at load
function ca_geterrdist: Double; cdecl; external library_name name 'ca_geterrdist';

// Sets the distance tolerance errdist.
//
// The value is stored as it is: with zero or a negative value no distance counts as small any
// more, so that no point lies on a line, no two lines are parallel, and the guards against zero
// lengths are off (non-finite outputs follow).
//   tolerance (in): drawing units
procedure ca_seterrdist(tolerance: Double); cdecl; external library_name name 'ca_seterrdist';

// Returns the flag of ca_SetStartendFlg().
//   Result: the flag as it was set; 0 at load
function ca_GetStartendFlg: Integer; cdecl; external library_name name 'ca_GetStartendFlg';

// Chooses which end of an element a2d_InsDl(), a2d_InsDc() and a2d_InsDe() keep.
//   flag (in): 1 the start; every other value the end
procedure ca_SetStartendFlg(flag: Integer); cdecl; external library_name name
  'ca_SetStartendFlg';

// Returns the parameter table of the Simpson integrands: ten doubles, zero at load. The library
// reads it and never writes it.
//
// The host stores half the first axis in slot 0 and half the second in slot 1 before it measures
// an ellipse; slots 2 to 9 are free for integrands of its own. The table is shared by all threads:
// do not measure two ellipses at once.
//   Result: the address of the table, the same at every call
function ca_Simpson_getParmtbl: PDouble; cdecl; external library_name name
  'ca_Simpson_getParmtbl';

// ---- Degree trigonometry and angle ranges

// Returns the sine of an angle.
//   deg (in): degrees
//   Result: [-1, 1]
function sind(deg: Double): Double; cdecl; external library_name name 'sind';

// Returns the cosine of an angle.
//   deg (in): degrees
//   Result: [-1, 1]
function cosd(deg: Double): Double; cdecl; external library_name name 'cosd';

// Returns the tangent of an angle.
//   deg (in): degrees
//   Result: the tangent; near 90 and 270 a huge value, not an infinity
function tand(deg: Double): Double; cdecl; external library_name name 'tand';

// Returns the arc sine.
//   v (in): first clamped to [-1, 1]
//   Result: degrees, [-90, 90]
function asind(v: Double): Double; cdecl; external library_name name 'asind';

// Returns the arc cosine.
//   v (in): first clamped to [-1, 1]
//   Result: degrees, [0, 180]
function acosd(v: Double): Double; cdecl; external library_name name 'acosd';

// Returns the arc tangent.
//   v (in): any number
//   Result: degrees, [-90, 90]
function atand(v: Double): Double; cdecl; external library_name name 'atand';

// Returns the direction of the vector (x, y).
//
// A direction so little below the x axis that it rounds up gives exactly 360; a negative zero
// passes through.
//   y, x (in): components of the vector, y first
//   Result: degrees, [0, 360]; 0 when both are zero
function atan2d(y: Double; x: Double): Double; cdecl; external library_name name 'atan2d';

// Normalises the range of an arc in place.
//
// Both angles are reduced by whole turns; an end that is not above its start is then raised by a
// turn; a range that ends above 360 is lowered by a turn. Afterwards the end lies in (0, 360], the
// start in (-360, 360), the span in (0, 360]. A negative start marks an arc that crosses 0: (350,
// 10) becomes (-10, 10), and (10, 10) becomes (-350, 10).
//   start, end_ (in,out): degrees; both are written always
//   Result: 1 when the reduced angles were equal within 1e-8 (a full circle), else 0
//   See also: a2d_ChkDegr
function a2d_StdSedeg(var start: Double; var end_: Double): Integer; cdecl; external
  library_name name 'a2d_StdSedeg';

// Tells whether an angle lies on the arc that runs anticlockwise from start to end.
//
// Both ends belong to the arc, with 1e-8 degrees of slack; equal ends (within 1e-8, after
// reduction) mean the full circle. An arc that starts within 1e-8 below 360 and ends at 0 accepts
// every angle.
//   start, end_, angle (in): degrees, any finite value
//   Result: 0 on the arc, 1 off it; 0 for an angle that is NaN
function a2d_ChkDegr(start: Double; end_: Double; angle: Double): Integer; cdecl; external
  library_name name 'a2d_ChkDegr';

// Orders the two ends of an arc by two direction values.
//   dir1, dir2 (in): any integers; only their equality counts
//   a, b (in): the ends in the order of travel
//   out_start, out_end (out): a and b when dir1 equals dir2, else b and a
procedure a2d_GetBedeg(dir1: Integer; dir2: Integer; a: Double; b: Double; var out_start:
  Double; var out_end: Double); cdecl; external library_name name 'a2d_GetBedeg';

// ---- Points and vectors

// Turns a point about a centre.
//   center, point (in): the pivot and the point
//   out_ (out): separate storage from point: its x is stored before its y is computed from the
//     point, so a call in place gives a wrong y
//   angle (in): degrees, anticlockwise
//   Result: always 0
function c_pnt(center: PDTPOINT; point: PDTPOINT; var out_: DTPOINT; angle: Double): Integer;
  cdecl; external library_name name 'c_pnt';

// The same function as c_pnt().
function ca_rvpnt(center: PDTPOINT; point: PDTPOINT; var out_: DTPOINT; angle: Double): Integer;
  cdecl; external library_name name 'ca_rvpnt';

// Carries a point into a local frame: subtracts the origin, then turns by +angle.
//   point, origin (in): drawing units
//   angle (in): degrees; pass the negative rotation of the frame
//   out_ (out): R(angle) (point - origin)
//   Result: always 0
//   See also: pnt_formd, its inverse when given the opposite angle
function pnt_std(point: PDTPOINT; origin: PDTPOINT; angle: Double; var out_: DTPOINT): Integer;
  cdecl; external library_name name 'pnt_std';

// Carries a point out of a local frame: turns by +angle, then adds the origin.
//   point, origin (in): drawing units
//   angle (in): degrees, the rotation of the frame
//   out_ (out): R(angle) point + origin
//   Result: always 0
//   See also: pnt_std, its inverse when given the opposite angle
function pnt_formd(point: PDTPOINT; origin: PDTPOINT; angle: Double; var out_: DTPOINT):
  Integer; cdecl; external library_name name 'pnt_formd';

// Mirrors a point in the line through two points.
//   point (in): the point
//   line_p1, line_p2 (in): two points of the line; equal points are not checked for and give
//     non-finite outputs
//   out_ (out): the mirror image
//   Result: always 0
function pnt_mer(point: PDTPOINT; line_p1: PDTPOINT; line_p2: PDTPOINT; var out_: DTPOINT):
  Integer; cdecl; external library_name name 'pnt_mer';

// As pnt_mer(), with the line before the point.
function ca_vmpnt(line_p1: PDTPOINT; line_p2: PDTPOINT; point: PDTPOINT; var out_: DTPOINT):
  Integer; cdecl; external library_name name 'ca_vmpnt';

// Returns the direction from one point to another in radians.
//
// A component shorter than 1e-7 counts as zero: directions so close to an axis snap onto 0, pi/2,
// pi or 3 pi/2, and points so close to each other give 0.
//   from, to_ (in): the points
//   Result: radians, [0, 2 pi]
function ca_vcrad(from: PDTPOINT; to_: PDTPOINT): Double; cdecl; external library_name name
  'ca_vcrad';

// Returns the distance of two points, the plain root of the sum of squares.
//   p, q (in): the points
//   Result: drawing units
function ca_dstpt(p: PDTPOINT; q: PDTPOINT): Double; cdecl; external library_name name
  'ca_dstpt';

// ---- Lines

// Intersects two infinite lines.
//
// The lines are parallel when the cross product of their directions, as given and not scaled by
// their lengths, is below 1e-6: short segments count as parallel sooner than long ones.
//   a1, a2, b1, b2 (in): two points of each line
//   out_ (out): the intersection; untouched when parallel
//   Result: 1 found, 0 parallel
//   See also: a2d_ins2l for segments and errdist
function a2dCrs2L(a1: PDTPOINT; a2: PDTPOINT; b1: PDTPOINT; b2: PDTPOINT; var out_: DTPOINT):
  Integer; cdecl; external library_name name 'a2dCrs2L';

// Intersects two lines and tells whether the point lies on both segments.
//
// With d the cross product of the directions, the lines are parallel when d divided by the length
// of the first and d divided by the length of the second are both below errdist. A segment of
// length zero is not parallel to anything and gives non-finite outputs. Ends belong to the
// segments within errdist.
//   a1, a2, b1, b2 (in): the ends of each segment
//   out_ (out): the intersection of the infinite lines; (0, 0) when parallel
//   Result: 0 the point lies on both segments, 1 outside at least one, 2 parallel
//   See also: a2d_onlin for the test on each segment
function a2d_ins2l(a1: PDTPOINT; a2: PDTPOINT; b1: PDTPOINT; b2: PDTPOINT; var out_: DTPOINT):
  Integer; cdecl; external library_name name 'a2d_ins2l';

// The same function as a2d_ins2l().
function ca_ins2l(a1: PDTPOINT; a2: PDTPOINT; b1: PDTPOINT; b2: PDTPOINT; var out_: DTPOINT):
  Integer; cdecl; external library_name name 'ca_ins2l';

// Intersects two lines given by a point and a direction angle each.
//
// Only equal directions (within 1e-8) are told apart; opposite ones, or 0 against 360, have equal
// tangents and give non-finite or huge values. A direction within 1e-8 of 90 or 270 counts as
// vertical.
//   rec (in,out): six doubles: x1, y1, x2, y2, then the result x, y; the result is untouched
//     unless found
//   angles (in,out): two doubles, degrees; each is brought into [0, 360] in place, found or not
//     (360 stays 360; beyond 2^56 degrees by the exact remainder; an infinity becomes NaN)
//   Result: 0 found, 2070 the same direction
function aatCalCrs2l(rec: PDouble; angles: PDouble): Integer; cdecl; external library_name name
  'aatCalCrs2l';

// Drops the perpendicular from a point onto a line.
//
// The foot counts as outside the segment when the product of its vectors to the two ends exceeds
// 1e-6, a product of distances and not errdist.
//   a1, a2 (in): the segment
//   p (in): the point
//   foot (out): foot of the perpendicular on the infinite line; untouched when the result is -1
//   dist (out): distance of p from the line; 0 when the result is -1
//   Result: 0 the foot lies on the segment, 1 outside it, -1 the segment is shorter than errdist
function ca_perln(a1: PDTPOINT; a2: PDTPOINT; p: PDTPOINT; var foot: DTPOINT; var dist: Double):
  Integer; cdecl; external library_name name 'ca_perln';

// Moves a segment to its parallel at a distance.
//   a1, a2 (in): the segment
//   d (in): distance, drawing units
//   side (in): 1 to the right of the direction from a1 to a2, -1 to the left; another value scales
//     the distance
//   out1, out2 (out): a1 and a2 moved
//   Result: 0 done; 1 when the ends coincide within errdist in x and in y, the outputs are then
//     untouched
function ca_palds(a1: PDTPOINT; a2: PDTPOINT; d: Double; side: SmallInt; var out1: DTPOINT; var
  out2: DTPOINT): Integer; cdecl; external library_name name 'ca_palds';

// Tells on which side of a line a point lies.
//
// The point counts as on the line when the cross product of the direction and its vector from a1,
// not divided by the length, is below errdist.
//   a1, a2 (in): the line
//   p (in): the point
//   side (out): 0 on the line, 1 right of the direction from a1 to a2, 65535 left of it
//   Result: 0 done; 1 when a1 and a2 coincide within errdist in x and in y, side is then untouched
function ca_posln(a1: PDTPOINT; a2: PDTPOINT; p: PDTPOINT; var side: Word): Integer; cdecl;
  external library_name name 'ca_posln';

// Tells whether a point lies on a segment, within errdist.
//
// The ends are asked first, so a point at the end of a segment of length zero is on it.
//   p1, p2 (in): the segment
//   q (in): the point
//   Result: 0 on the segment, ends included; 1 off it; -1 the segment is shorter than errdist
function a2d_onlin(p1: PDTPOINT; p2: PDTPOINT; q: PDTPOINT): Integer; cdecl; external
  library_name name 'a2d_onlin';

// The same function as a2d_onlin().
function ca_onlin(p1: PDTPOINT; p2: PDTPOINT; q: PDTPOINT): Integer; cdecl; external
  library_name name 'ca_onlin';

// Finds the point at a distance along a segment.
//   start, end_ (in): the segment
//   dist (in): distance from start; at or beyond the length it gives end
//   out_ (out): the point; untouched when the result is 0
//   Result: 1 done; 0 when start or end is null, or dist is negative
function ca_DistAlongbyLineFromSpnt(start: PDTPOINT; end_: PDTPOINT; dist: Double; var out_:
  DTPOINT): Integer; cdecl; external library_name name 'ca_DistAlongbyLineFromSpnt';

// Selects the end of a line to keep where it is cut by a collinear line.
//
// The end is the first point of elem when the flag of ca_SetStartendFlg() is 1, else its second
// point. The attribute words are not read.
//   elem (in): the line whose end is wanted
//   cut (in): the cutting line; of length zero it counts as not collinear
//   out_ (out): the end; untouched unless the result is 1
//   Result: 1 chosen; 0 that end is not on cut (see a2d_onlin()); -1 an end of elem is not nearer
//     than errdist to the infinite line of cut
function a2d_InsDl(elem: PDTLINE; cut: PDTLINE; var out_: DTPOINT): Integer; cdecl; external
  library_name name 'a2d_InsDl';

// Tells where the projection of a point onto a line falls against a segment.
//
// The tolerance at the ends is errdist, or half the distance of p3 from p1 where that is below
// errdist.
//   p1, p2 (in): the segment; equal points give 3
//   p3 (in): the point
//   Result: 3 on the segment or within the tolerance of an end; 1 beyond p2; 2 before p1; 0 only
//     for non-finite input
function a2d_Chk3pnt(p1: PDTPOINT; p2: PDTPOINT; p3: PDTPOINT): Integer; cdecl; external
  library_name name 'a2d_Chk3pnt';

// ---- Lines with circles and arcs

// Intersects the infinite line through a1 and a2 with a full circle.
//
//       out2        out1
// a1 ----o-----------o----> a2
//
// The line is tangent when its distance from the centre differs from r by less than errdist, to
// either side; the one point is then the foot of the perpendicular from the centre.
//   a1, a2 (in): two points of the line; equal points are not checked for and give two non-finite
//     outputs
//   center, r (in): the circle; a radius that is not positive has at most the tangent point
//   out1 (out): the point further along the direction from a1 to a2
//   out2 (out): the other point; the same point when tangent
//   count (out): 2; 1 when tangent; 0 when the line misses the circle, and out1 and out2 are then
//     untouched
//   Result: always 0; the outcome is count
//   See also: a2d_lin_arc for the checked form that keeps an arc or a segment
function cross_lin_cir(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; var out1:
  DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name
  'cross_lin_cir';

// Intersects a line or segment with a circle or arc.
//   mode (in): 0 line and circle, 1 line and arc, 2 segment and circle, 3 segment and arc; every
//     other value as 0
//   a1, a2 (in): the line
//   center, r (in): the circle
//   angles (in): start and end of the arc, degrees; read in modes 1 and 3 only, may be null
//     otherwise
//   out1, out2 (out): the points kept, the one further along the direction from a1 to a2 first; a
//     single point in both; (0, 0) in both when none is kept, also after invalid input
//   count (out): number of points kept
//   Result: 0 done, with or without points; 1 invalid input: r is not positive, or a1 and a2
//     coincide within errdist in x and in y
function a2d_lin_arc(mode: Cardinal; a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double;
  angles: PDouble; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl;
  external library_name name 'a2d_lin_arc';

// Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.
//   a1, a2, center, r (in): the line and the circle
//   out_ (out): two points, filled as out1 and out2 there: both always
//   Result: the number of points, 0 to 2; 0 after invalid input
function a2dCrsLC(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; out_: PDTPOINT):
  Integer; cdecl; external library_name name 'a2dCrsLC';

// Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.
//   a1, a2, center, r (in): the line and the circle
//   out1, out2, count (out): as there
//   Result: 0 at least one point; 2071 none, for whatever reason
function ca_crslc(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; var out1: DTPOINT;
  var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name 'ca_crslc';

// Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.
//   a1, a2, center, r, angles (in): the line and the arc
//   out1, out2, count (out): as there
//   Result: 0 at least one point; 2071 none, for whatever reason
//   See also: sb_inslc, the same with the result of a2d_lin_arc()
function ca_crslc2(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; angles: PDouble; var
  out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name
  'ca_crslc2';

// Intersects a segment with an arc, as a2d_lin_arc() in mode 3.
//   a1, a2, center, r, angles (in): the segment and the arc
//   out1, out2, count (out): as there
//   Result: as there: 0 done, with or without points; 1 invalid input
function ca_inslc(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; angles: PDouble; var
  out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name
  'ca_inslc';

// The same function as ca_inslc().
function a2d_inslc(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; angles: PDouble; var
  out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name
  'a2d_inslc';

// Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.
//   a1, a2, center, r, angles (in): the line and the arc
//   out1, out2, count (out): as there
//   Result: as there: 0 done, with or without points; 1 invalid input
//   See also: ca_crslc2, the same with another result
function sb_inslc(a1: PDTPOINT; a2: PDTPOINT; center: PDTPOINT; r: Double; angles: PDouble; var
  out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name
  'sb_inslc';

// ---- Circles with circles

// Intersects two full circles, with tolerances of its own.
//
// Circles touch when the distance of the centres differs from the sum or from the difference of
// the radii by at most 1e-6; the one point lies on the line of the centres, between equal radii
// (within 1e-12) midway. Centres nearer than 1e-6 count as concentric, without points even when
// the circles are equal.
//   c1, r1, c2, r2 (in): centre and radius of each circle; radii are not checked
//   out_ (out): four doubles x, y, x, y. Of two points the first lies right of the direction from
//     c1 to c2; the last two doubles are untouched with one point, all four with none
//   Result: the number of points, 0 to 2
//   See also: a2d_ins2c for arcs and errdist; mind the other order of arguments
function a2dCrs2C(c1: PDTPOINT; r1: Double; c2: PDTPOINT; r2: Double; out_: PDouble): Integer;
  cdecl; external library_name name 'a2dCrs2C';

// Intersects two arcs, with errdist.
//
// Equal angles, or angles 360 apart (within 1e-8), mean the full circle. Arcs of one circle
// (centres and radii equal within errdist) meet only where one ends and the other begins: first
// the start of arc 1, then its end. An overlap has no point.
//   c1, c2, r1, r2 (in): centres, then radii
//   angles1, angles2 (in): start and end of each arc, degrees
//   out1, out2 (out): the points, the one right of the direction from c1 to c2 first; a single
//     point in both. (0, 0) in both when the ranges keep none; untouched when the circles do not
//     meet, when arcs of one circle share no end, and when the result is 1
//   count (out): number of points, always written
//   Result: 0 done, with or without points; 1 when the arcs are identical (radii, centres and
//     angles within errdist) or a radius is not positive
function a2d_ins2c(c1: PDTPOINT; c2: PDTPOINT; r1: Double; r2: Double; angles1: PDouble;
  angles2: PDouble; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl;
  external library_name name 'a2d_ins2c';

// As a2d_ins2c(), but a range is a full circle only when its ends are exactly equal or exactly 360
// apart.
function ca_ins2c(c1: PDTPOINT; c2: PDTPOINT; r1: Double; r2: Double; angles1: PDouble; angles2:
  PDouble; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external
  library_name name 'ca_ins2c';

// ---- Arcs: construction and queries

// Finds the arc that runs from p1 by p2 to p3.
//
// The angles always run anticlockwise: points that turn clockwise give the arc from p3 to p1. The
// points make no arc when two are nearer than errdist, or when the sines of all three angles
// between their sides are below 0.0001.
//   p1, p2, p3 (in): start, a point on the arc, end
//   center, r (out): the circle; untouched when the result is 1
//   angles (out): start and end, degrees, each in [0, 360], the start above the end where the arc
//     crosses 0; (0, 0) when the result is 1
//   Result: 0 done; 1 no arc
//   See also: ca_arcan to normalise the angles
function ca_arc3p(p1: PDTPOINT; p2: PDTPOINT; p3: PDTPOINT; var center: DTPOINT; var r: Double;
  angles: PDouble): Integer; cdecl; external library_name name 'ca_arc3p';

// Finds the arc over a chord whose height is a multiple of the chord's length.
//   dir (in): 0 the arc lies left of the direction from the first to the second point; every other
//     value right of it
//   ratio (in): height over chord; 0.5 is a half circle, a negative value changes the side; below
//     1e-6 in magnitude there is no arc
//   x1, y1, x2, y2 (in): first and second end of the chord, 0.003 units or longer; nor may the
//     middle of the arc be nearer than 0.0015 to an end
//   center, r (out): the circle; untouched when the result is 1
//   angles (out): start and end, degrees, as ca_arcan() leaves them. When the result is 1:
//     untouched if a limit above is the reason, (0, 0) if ca_arc3p() finds no arc
//   Result: 0 done; 1 no arc
function ca_arc2pratio(dir: Integer; ratio: Double; x1: Double; y1: Double; x2: Double; y2:
  Double; var center: DTPOINT; var r: Double; angles: PDouble): Integer; cdecl; external
  library_name name 'ca_arc2pratio';

// Normalises the angles of an arc in place, keeping 360.
//
// Ends more than 359.999999 apart, as given or afterwards, become (0, 360): so does (700, 10).
// Otherwise each is brought into [0, 360], an end below its start is raised by a turn, and a range
// that ends above 360 is lowered by one: (270, 90) becomes (-90, 90). Equal angles stay an arc
// without extent.
//   start, end_ (in,out): degrees; beyond 2^56 by the exact remainder, and two infinities of one
//     sign become NaN
//   Result: always 0
//   See also: a2d_StdSedeg, for which equal angles are the full circle
function ca_arcan(var start: Double; var end_: Double): Integer; cdecl; external library_name
  name 'ca_arcan';

// Finds the ends of an arc whose angles are radians.
//   center, r (in): the circle
//   angles (in): start and end in radians
//   pstart, pend (out): the ends
//   Result: always 0
function ca_arccd(center: PDTPOINT; r: Double; angles: PDouble; var pstart: DTPOINT; var pend:
  DTPOINT): Integer; cdecl; external library_name name 'ca_arccd';

// Finds the box around an arc.
//
// Besides the ends, the axis directions at -360, -270, ... 360 count that lie between them as
// given, without slack: normalise with a2d_StdSedeg() first. Of a range with start above end, or
// of equal ends, only the ends count.
//   center, r (in): the circle
//   start, end_ (in): degrees, within [-360, 360], start below end
//   pmax, pmin (out): upper right and lower left corner; a coordinate outside +-1e20 or NaN does
//     not widen the box, which starts as (-1e20, -1e20) and (1e20, 1e20)
//   Result: always 0
function ca_arcXY(center: PDTPOINT; r: Double; start: Double; end_: Double; var pmax: DTPOINT;
  var pmin: DTPOINT): Integer; cdecl; external library_name name 'ca_arcXY';

// Tells whether a point, seen from the centre, lies in the direction of an arc.
//
// The direction, or it less or more 360, must lie between start and end with 1e-6 degrees of
// slack. Equal angles are not the full circle. The distance is not asked: see ca_posar().
//   center (in): the centre
//   r (in): not read
//   start, end_ (in): degrees, start not above end
//   point (in): the point; at the centre its direction is 0
//   ang (out): the direction, degrees, (-180, 180]; always written
//   Result: 0 on the arc's range, 1 off it
function ca_onarc(center: PDTPOINT; r: Double; start: Double; end_: Double; point: PDTPOINT; var
  ang: Double): Integer; cdecl; external library_name name 'ca_onarc';

// Tells on which side of a circle a point lies, within errdist.
//   center, r (in): the circle
//   point (in): the point
//   side (out): 0 on the circle, 65535 inside, 1 outside; untouched when the result is 1
//   Result: 0 done; 1 when r is not positive
function ca_posar(center: PDTPOINT; r: Double; point: PDTPOINT; var side: Word): Integer; cdecl;
  external library_name name 'ca_posar';

// Turns an arc whose angles are radians about a point.
//
// A turn of at most 1e-7 copies the arc. Otherwise a span of 0 or 2 pi, within 1e-7, becomes (0, 2
// pi); the angles of others grow by rot, both are lowered by 2 pi once if one then exceeds 2 pi,
// and both raised once if one lies below -2 pi.
//   center, r (in): the circle
//   angles (in): start and end in radians
//   pivot (in): the point about which the arc turns
//   rot (in): radians, anticlockwise
//   out_center, out_r, out_angles (out): the turned arc
//   Result: always 0
function ca_rvarc(center: PDTPOINT; r: Double; angles: PDouble; pivot: PDTPOINT; rot: Double;
  var out_center: DTPOINT; var out_r: Double; out_angles: PDouble): Integer; cdecl; external
  library_name name 'ca_rvarc';

// Finds the angle reached after a distance along an arc. The result is an angle, not a point.
//   center (in): only tested for null
//   r (in): radius
//   start, end_ (in): degrees, start not above end and at most 360 below it
//   dist (in): distance from start; at or beyond the arc's length it gives end
//   ang (out): degrees; untouched when the result is 0
//   Result: 1 done; 0 when center or ang is null, dist is negative, r is not positive, or the
//     angles are not as above
function ca_DistAlongbyArcFromSpnt(center: PDTPOINT; r: Double; start: Double; end_: Double;
  dist: Double; var ang: Double): Integer; cdecl; external library_name name
  'ca_DistAlongbyArcFromSpnt';

// Selects the end of an arc to keep where it is cut by an arc of the same circle.
//
// The end is the start of elem when the flag of ca_SetStartendFlg() is 1, else its end; the other
// one when its word has PLANEGEO_ATTR_REVERSED. A cutting arc whose angles are 360 apart (within
// 1e-8) does not ask the flag: it counts as 0. Equal angles of cut are the full circle as for
// a2d_ChkDegr(), and ask it.
//   elem (in): the arc whose end is wanted
//   cut (in): the cutting arc; when its word has exactly one of PLANEGEO_ATTR_REVERSED and
//     PLANEGEO_ATTR_CLOCKWISE, its range runs from its end to its start
//   out_ (out): the end; untouched unless the result is 1
//   Result: 1 chosen; 0 that end is not on cut (see a2d_ChkDegr()); -1 the centres (in x or y) or
//     the radii differ by errdist or more
function a2d_InsDc(elem: PDTARC; cut: PDTARC; var out_: DTPOINT): Integer; cdecl; external
  library_name name 'a2d_InsDc';

// Merges runs of points whose segments keep nearly the same direction.
//
// A run takes in the segments whose direction differs from that of its first one by at most tol
// (plus errdist, taken as degrees); the points between its ends are removed. Directions in (-180,
// 180] are subtracted as they are: 179 and -179 do not merge.
//
// Cost: one pass over the points.
//   n (in): number of points in the array, which is not checked; below 3, also negative, it is
//     returned as it is
//   list (in,out): address of the address of n points; those kept move to the front in their
//     order, what follows them is undefined
//   tol (in): degrees, [0.1, 5.0]; a NaN merges nothing
//   Result: the new number of points; -1 when the array is null or tol out of range
function ca_AutoUnionNrb(n: Integer; var list: PDTPOINT; tol: Double): Integer; cdecl; external
  library_name name 'ca_AutoUnionNrb';

// ---- Circle tangents

// Finds where the tangents from a point touch a circle.
//   center, r (in): the circle
//   point (in): the point; on or inside the circle, exactly and without a tolerance, it has no
//     tangents
//   out1 (out): the contact right of the direction from the centre to the point; (0, 0) without
//     tangents
//   out2 (out): the contact left of it; (0, 0) without tangents
//   count (out): 0 or 2
//   Result: always 0; the outcome is count
function ca_pctan(center: PDTPOINT; r: Double; point: PDTPOINT; var out1: DTPOINT; var out2:
  DTPOINT; var count: Word): Integer; cdecl; external library_name name 'ca_pctan';

// Finds the common tangents of two circles.
//
// There are none when a radius is not positive, the centres coincide within errdist in x and in y,
// one circle lies inside the other, or they touch from inside: the squared distance of the centres
// and the squared difference of the radii then differ by less than errdist, as squares. Circles
// that overlap or touch from outside have the outer pair only.
//   c1, r1, c2, r2 (in): the circles
//   t1, t2, t3, t4 (out): the outer tangents t1-t2 and t3-t4: the first with both circles on its
//     left, seen from c1 to c2, the second with both on its right
//   t5, t6, t7, t8 (out): the inner tangents: t5-t6 touches circle 1 right of the direction from
//     c1 to c2 and circle 2 left of it, t7-t8 the reverse. Odd ones are on circle 1, even ones on
//     circle 2; only the points of the lines counted are written
//   count (out): number of lines: 0, 2 or 4
//   Result: 0 done; 1 no tangents
function ca_cctan(c1: PDTPOINT; r1: Double; c2: PDTPOINT; r2: Double; var t1: DTPOINT; var t2:
  DTPOINT; var t3: DTPOINT; var t4: DTPOINT; var t5: DTPOINT; var t6: DTPOINT; var t7: DTPOINT;
  var t8: DTPOINT; var count: Word): Integer; cdecl; external library_name name 'ca_cctan';

// ---- Polynomial solvers

// Solves c[0] x + c[1] = 0.
//   c (in): two coefficients
//   x (out): the root, one double without an imaginary part; untouched unless the result is 1
//   Result: 1 one root; 0 both coefficients are zero, every x is a solution; -1 only c[0] is zero,
//     there is no solution
function amaSolveLinerEquation(c: PDouble; var x: Double): Integer; cdecl; external library_name
  name 'amaSolveLinerEquation';

// Solves a quadratic equation.
//   c (in): three coefficients
//   out_ (out): two pairs: real roots greater first, else the conjugate with the positive
//     imaginary part first; untouched when the result is -1
//   Result: 2 real roots (a double root counts as two), 0 a conjugate pair, -1
function amaSolveEquationOf2ndD(c: PDouble; out_: PDouble): Integer; cdecl; external
  library_name name 'amaSolveEquationOf2ndD';

// Solves a cubic equation.
//
// Three real roots come in the order of the cosines of a third of an angle, the greatest first.
// Where the discriminant is exactly zero, the simple root is written twice and then the double
// root once: 1, 1, -2 are reported as -2, -2, 1. Close to such a case rounding can take the
// argument of the arc cosine beyond 1; the roots are then NaN.
//   c (in): four coefficients
//   out_ (out): three pairs: with one real root that one first, then the conjugate with the
//     imaginary part of positive sign in Cardano's formula; untouched when the result is -1
//   Result: 3 real roots, 1 real root and a conjugate pair, -1
function amaSolveEquationOf3rdD(c: PDouble; out_: PDouble): Integer; cdecl; external
  library_name name 'amaSolveEquationOf3rdD';

// Solves a quartic equation.
//
// The roots are those of two quadratic factors, each in the order of amaSolveEquationOf2ndD().
// Without a linear term in the shifted quartic (exactly zero, or below 1e-5 and 1e-12 of the
// quadratic term) it is solved as biquadratic, and also where the resolvent cubic gives no
// factors. A linear term just above those bounds is lost to rounding: roots and their count can
// then be wrong, and where the resolvent's roots are NaN so are all four (docs/behaviours.md).
//   c (in): five coefficients
//   out_ (out): four pairs; a factor with real roots before one without; untouched when the result
//     is -1
//   Result: 4, 2 or 0, the roots reported as real; -1. Real roots computed through complex
//     arithmetic keep a small imaginary part and are not counted
function amaSolveEquationOf4thD(c: PDouble; out_: PDouble): Integer; cdecl; external
  library_name name 'amaSolveEquationOf4thD';

// Returns the principal square root of a complex number.
//   z (in): any number
//   Result: the root: its real part is not negative, its imaginary part has the sign of that of z.
//     A negative real number gives a positive imaginary root
function ama_c_sqrt(z: DTCOMPLEX): DTCOMPLEX; cdecl; external library_name name 'ama_c_sqrt';

// Searches one real root by Newton's method, from minus the sum of the coefficients over n + 1.
//
// The search ends with the first of 200 steps that is at most 1e-16 of the largest coefficient, or
// if there is none with the first that is at most 1e-6 of it: not of the root, so that polynomials
// with large coefficients are left early. Where the slope is exactly zero a step of second order
// is made; where that has no real value the step is zero, and the stationary point counts as the
// root.
//
// Cost: at most 200 steps, each in proportion to n.
//   c (in): n + 1 coefficients
//   n (in): degree, 2 to 200
//   x (out): the root, the last iterate when the result is -2; untouched when -1
//   Result: 0 found; -1 also for a degree out of range; -2 no step was small enough
function amaNewtonRaphson(c: PDouble; n: Integer; var x: Double): Integer; cdecl; external
  library_name name 'amaNewtonRaphson';

// Finds all roots by quadratic factors (Bairstow), up to degree four in closed form.
//
// Not reliable above: the best residual is never reset, and a factor may be found twice. All roots
// were right, mirrored ones aside, for 97 % of polynomials with random coefficients of degree 5,
// 63 % of degree 6, 7 % of degree 10, none of degree 19. Take amaDKA() there.
//
// Cost: at most 100 steps for each factor, each in proportion to the degree left.
//   c (in): n + 1 coefficients
//   n (in): degree, 1 to 200
//   out_ (out): n pairs; degree 1: one double. Above degree 4 the last factor comes first, the
//     Newton root of an odd degree last; a discriminant down to -0.0001 counts as real; the second
//     root of a complex pair is (-re, im), not the conjugate
//   Result: 0 done; -1 also for a degree out of range; -2 a factor was not found, which x^2 + x +
//     1 as the first one never is; -3 the Newton root was not found. After -2 and -3 out is
//     untouched but for the last pair of an odd degree: the Newton root, or after -3 its last
//     iterate without an imaginary part
function amaBairstaw(c: PDouble; n: Integer; out_: PDouble): Integer; cdecl; external
  library_name name 'amaBairstaw';

// Finds all roots at once (Durand-Kerner, from Aberth's circle about the origin).
//
// Sweeps end when all values met in one are below eps, or with the budget. Roots that repeat
// themselves bit by bit are carried to its end at once; without that, 10^7 / (n (n + 16)) sweeps,
// but at least 1000, above degree 126 at least 1.8 10^7 / (n (n + 16)), are as a budget used up. A
// NaN does not count as a large value: where all are NaN, as with c[2] to c[n] all zero, so are
// the roots, and the result is 0.
//
// Cost: some n (n + 16) complex products a sweep.
//   c (in,out): n + 1 coefficients; c[1] to c[n] are divided by c[0]
//   n (in): degree, up to 200; below 1 nothing is written, and the result is 0 if eps > 0 and
//     maxiter >= 0, else -1
//   eps (in): bound of |value| after that division
//   maxiter (in): budget of floor(maxiter) + 1 sweeps; none if negative or NaN
//   out_ (out): n pairs; imaginary parts below the root of eps become 0
//   Result: 0 converged, or else at least one imaginary part became 0; -1 neither, or a degree
//     above 200 (c and out are untouched then)
function amaDKA(c: PDouble; n: Integer; eps: Double; maxiter: Double; out_: PDouble): Integer;
  cdecl; external library_name name 'amaDKA';

// ---- Ellipses: record and parameter conversion

// Finds the end points of an elliptic arc.
//   center, a, b, rot (in): the ellipse
//   angles (in): two doubles, the parametric angles of start and end
//   points (out): four doubles: start x, start y, end x, end y
//   Result: always 0
//   See also: a2d_elpdeg for the way back
function ca_elpcd(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; points:
  PDouble): Integer; cdecl; external library_name name 'ca_elpcd';

// Finds the parametric angle of a point: of the place where the ray from the centre meets the
// ellipse once both are stretched so that the ellipse is a circle.
//
// The point need not lie on the ellipse. With a negative axis the angle is that of the stretched
// point itself.
//   point (in): the point; the centre gives -rot
//   center, a, b, rot (in): the ellipse
//   angle (out): degrees, a direction in [0, 360] less rot and not reduced: 350 on an ellipse
//     turned by 30 comes out as -10
//   Result: 0 done; -1 when an axis is shorter than errdist, angle is then untouched
//   See also: a2d_StdSedeg, a2d_ChkDegr, which reduce it
function a2d_elpdeg(point: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot: Double; var
  angle: Double): Integer; cdecl; external library_name name 'a2d_elpdeg';

// Finds axes and rotation of the ellipse through the ends of two conjugate semi-diameters
// (parameters 90 degrees apart).
//
// Semi-diameters whose dot product is below 1e-6 count as perpendicular and are the semi-axes;
// they are exchanged, and 90 is added to the rotation, when the second is the longer.
//   p, q (in): ends of the two semi-diameters
//   center (in): centre of the ellipse
//   a, b (out): full axis lengths, a never below b
//   rot (out): degrees, [0, 360) in general, up to 450 for the perpendicular case
//   Result: 0 done; -1 when the cross product of the semi-diameters is below 1e-6 (they lie on one
//     line), the three outputs are then 0
function a2dGetEllipsDt(p: PDTPOINT; q: PDTPOINT; center: PDTPOINT; var a: Double; var b:
  Double; var rot: Double): Integer; cdecl; external library_name name 'a2dGetEllipsDt';

// Converts between parametric and polar angle.
//   mode (in): 0 parametric to polar, 1 polar to parametric
//   ellipse (in): only the axes are read
//   parametric (in,out): degrees; read in mode 0, written in mode 1, in [0, 360]
//   polar (in,out): degrees; written in mode 0, in [0, 360], read in mode 1
//   Result: 0 done; -1 for another mode, nothing is then written
function ca_ElpAngle(mode: SmallInt; ellipse: PDTELLIPSE; var parametric: Double; var polar:
  Double): Integer; cdecl; external library_name name 'ca_ElpAngle';

// Finds the place of an angle on an ellipse as an offset from the centre.
//   mode (in): 0 the angle is parametric, 1 it is polar
//   ellipse (in): axes and rotation are read; a rotation of up to 1e-6 to either side of 0 is not
//     applied
//   angle (in): degrees
//   offset (out): the point less the centre, which callers add themselves
//   Result: 0 done; -1 for another mode, offset is then untouched
//   See also: ca_elpcd, which adds the centre
function ca_ElpCordXY(mode: SmallInt; ellipse: PDTELLIPSE; angle: Double; var offset: DTPOINT):
  Integer; cdecl; external library_name name 'ca_ElpCordXY';

// ---- Ellipses: queries and transforms

// Finds the foci of an ellipse from its semi-axes.
//
// The lengths are taken as they are: unlike elsewhere, pass half the axes to get the foci. A
// circle has both in the centre.
//   center (in): centre of the ellipse
//   a, b (in): semi-axes; with b longer than a the foci are NaN, and 0 is returned
//   rot (in): degrees
//   focus1 (out): centre - c (cos rot, sin rot), with c^2 = a^2 - b^2
//   focus2 (out): centre + c (cos rot, sin rot)
//   Result: 0 done; -1 when c - a exceeds 1e-6, as with a negative a, the outputs are then
//     untouched
function GetElpFocusPnt(center: PDTPOINT; a: Double; b: Double; rot: Double; var focus1:
  DTPOINT; var focus2: DTPOINT): Integer; cdecl; external library_name name 'GetElpFocusPnt';

// Finds the tangent at a point of an ellipse about the origin whose first axis lies along x.
//   ratio (in): second semi-axis over first; 0 is not checked for and divides by zero
//   point (in): the point
//   tangent (out): anticlockwise, not of unit length: (-y / ratio, x ratio); untouched when the
//     result is 1
//   Result: 0 done; 1 for a null pointer or a ratio above 1
//   See also: a2d_GetTangentVectorOnDTELLIPSE for an ellipse anywhere
function a2d_GetTangentVectorOnElp(ratio: Double; point: PDTPOINT; var tangent: DTPOINT):
  Integer; cdecl; external library_name name 'a2d_GetTangentVectorOnElp';

// Finds the tangent at a point of an ellipse.
//
// The first axis is to be the longer one: with a longer second axis the vector is that of the
// ellipse with its axes exchanged.
//   ellipse (in): start and end are not read
//   point (in): the point, in the plane
//   tangent (out): anticlockwise, not of unit length; untouched when the result is 1
//   Result: 0 done; 1 for a null pointer or an axis of zero or below
function a2d_GetTangentVectorOnDTELLIPSE(ellipse: PDTELLIPSE; point: PDTPOINT; var tangent:
  DTPOINT): Integer; cdecl; external library_name name 'a2d_GetTangentVectorOnDTELLIPSE';

// Tells whether the parametric angle of a point lies on an elliptic arc; the point need not lie on
// the curve.
//
// The arc runs anticlockwise from start to end, both with 1e-8 degrees of slack; ends that are
// equal after reduction are the whole turn.
//   ellipse (in): the arc
//   point (in): the point
//   Result: 0 on the arc; 1 off it, or when an axis is shorter than errdist
//   See also: ca_onelp, which asks for the curve as well
function CheckEllipseArcAngle(ellipse: PDTELLIPSE; point: PDTPOINT): Integer; cdecl; external
  library_name name 'CheckEllipseArcAngle';

// Tells whether an infinite line cuts, touches or misses a whole ellipse.
//
// A line whose two points differ by at most 1e-6 across an axis runs along that axis and touches
// within 0.0001 units; any other touches where the discriminant of y = m x + c against the
// ellipse, a squared length, is within 0.0001 of zero.
//   line (in): two points of the line
//   ellipse (in): start and end are not read
//   Result: 0 misses, 1 touches, 2 cuts
function a2d_hanel(line: PDTLINE; ellipse: PDTELLIPSE): Integer; cdecl; external library_name
  name 'a2d_hanel';

// Tells whether a point lies on an elliptic arc.
//
// It lies on the curve when its distances from the foci add up to the longer axis within 1e-6, and
// on the arc when pin_chk() finds its direction between those of the arc's ends, where local
// components below 1e-7 count as zero. Start and end both 0 (or 0 and 360) are the whole turn;
// other equal angles are that one direction.
//   center, a, b, rot, angles (in): the arc
//   point (in): the point; one with a NaN counts as on the arc
//   Result: 0 on the arc; 1 off the curve or outside the arc; -1 an axis is 1e-8 or shorter
function ca_onelp(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; point:
  PDTPOINT): Integer; cdecl; external library_name name 'ca_onelp';

// Tells whether the direction of a point lies in a polar range, with 1e-8 degrees of slack.
//
// The direction is that of ca_vcrad() less rot, raised by a turn where it is negative. A start
// above the end crosses 0. Ends both within 1e-6 of 0 are the whole turn. A negative start is
// raised by a turn, and a negative end with it; a start that stays negative, or an end below 0 on
// its own, holds nothing.
//   center (in): centre of the ellipse
//   rot (in): rotation of its first axis, degrees
//   range (in): two doubles, start and end, polar, measured from the first axis
//   point (in): the point
//   Result: 0 in the range, 1 outside; 0 for a direction that is NaN
function pin_chk(center: PDTPOINT; rot: Double; range: PDouble; point: PDTPOINT): Integer;
  cdecl; external library_name name 'pin_chk';

// Tells whether a point lies inside, on or outside an ellipse, by the sum of its distances from
// the foci, within 1e-6.
//   center, a, b, rot (in): the ellipse
//   point (in): the point
//   position (out): 0 on the ellipse, 1 outside, 65535 inside; 0 when the result is -1
//   Result: 0 done; -1 an axis is 1e-8 or shorter
function ca_posel(center: PDTPOINT; a: Double; b: Double; rot: Double; point: PDTPOINT; var
  position: Word): Integer; cdecl; external library_name name 'ca_posel';

// Scales an ellipse along y: its image under (x, y) -> (x, k y).
//
// The result's first axis is never the shorter one; its rotation lies in [0, 450], its arc angles
// are those of a2d_elpdeg() for the images of the ends, not reduced. A negative k mirrors, and the
// arc then runs from its end to its start.
//   ellipse (in): the ellipse
//   k (in): the factor
//   result_ (out): may be ellipse; its attribute word is not written
//   Result: 0 done; -1 when an axis of ellipse is not longer than errdist (nothing is written) or
//     one of the image is shorter than errdist (centre, axes and rotation are written, start and
//     end untouched)
function a2d_elp_trans(ellipse: PDTELLIPSE; k: Double; var result_: DTELLIPSE): Integer; cdecl;
  external library_name name 'a2d_elp_trans';

// Turns an ellipse about a point.
//   center, a, b, rot, angles (in): the ellipse
//   pivot (in): the point
//   angle (in): degrees, anticlockwise
//   out_center, out_a, out_b, out_rot, out_angles (out): the turned ellipse; axes and angles are
//     unchanged, and the rotation is moved by one turn at most towards [0, 360]
//   Result: always 0
function ca_rvelp(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; pivot:
  PDTPOINT; angle: Double; var out_center: DTPOINT; var out_a: Double; var out_b: Double; var
  out_rot: Double; out_angles: PDouble): Integer; cdecl; external library_name name 'ca_rvelp';

// Mirrors an ellipse in a line.
//   center, a, b, rot, angles (in): the ellipse
//   line_p1, line_p2 (in): two points of the line; equal points are not checked for and give a
//     centre and rotation that are not finite
//   out_center, out_a, out_b (out): the mirrored centre and the same axes
//   out_rot (out): direction of the mirrored first axis by the rule of ca_vcrad(), [0, 360]
//   out_angles (out): 360 less the old end, 360 less the old start; both lowered by 360 where one
//     exceeds 360.00000001
//   Result: always 0
function ca_vmelp(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; line_p1:
  PDTPOINT; line_p2: PDTPOINT; var out_center: DTPOINT; var out_a: Double; var out_b: Double;
  var out_rot: Double; out_angles: PDouble): Integer; cdecl; external library_name name
  'ca_vmelp';

// Scales an ellipse about its centre until it meets a point.
//
// The ellipse is measured along the direction to the point mirrored in its first axis (along the
// horizontal where the point's x is within 1e-8 of the centre's): it meets the point when it is a
// circle, the point lies level with the centre, or the rotation is a multiple of 90 and the point
// not straight above or below the centre.
//   center, a, b, rot, angles (in): the ellipse
//   point (in): the point; at the centre it gives zero axes
//   out_a, out_b (out): the scaled axes; not finite when an axis is zero
//   out_center, out_rot, out_angles (out): as given
//   Result: always 0
function ca_samel(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; point:
  PDTPOINT; var out_center: DTPOINT; var out_a: Double; var out_b: Double; var out_rot: Double;
  out_angles: PDouble): Integer; cdecl; external library_name name 'ca_samel';

// ---- Ellipses: length and area

// The integrand of arc length: with A and B the half axes of the parameter table, sqrt(B^2 cos^2 t
// + A^2 sin^2 t), the length per radian of the parameter.
//   deg (in): parametric angle t
//   value (out): drawing units
//   Result: always 0
function ca_lengelp(deg: Double; var value: Double): Integer; cdecl; external library_name name
  'ca_lengelp';

// The integrand of sector area: with A and B the half axes of the parameter table, A^2 B^2 / (2
// (B^2 cos^2 t + A^2 sin^2 t)), the area per radian of the polar angle.
//   deg (in): polar angle t
//   value (out): drawing units squared; NaN when an axis is zero and the angle lies along the
//     other, or both are zero
//   Result: always 0
function ca_AreaElp(deg: Double; var value: Double): Integer; cdecl; external library_name name
  'ca_AreaElp';

// Integrates over a range of degrees, with respect to the angle in radians.
//
// The Simpson rule starts with an interval per degree (at least 4, an even count) and halves them
// until two sums differ by at most 1e-6, absolutely, or the interval falls below 0.001 degrees. A
// range below 0.004 degrees gives 0.
//
// Cost: a call of the integrand per degree at first, and as many again as there were with each
// halving. The library's own integrands are summed in closed form as a rule, in constant time.
//   integrand (in): called at the lower limit, at the upper limit, then at all interior points of
//     each pass in rising order, up to 2000 times per degree of the range; the library may
//     evaluate its own integrands by other means
//   lower, upper (in): degrees
//   result_ (out): the integral; 0 unless the return value is 0
//   Result: 0 done; -1 lower exceeds upper (nothing is called); -2 not settled when the interval
//     count would pass 2^31 - 1: a range above 2^30 degrees, an infinite or a NaN limit get there
//     at once, and with the library's own integrands a range above 36000 degrees, or above 1440
//     where one half axis exceeds four times the other; else the integrand's code
//   See also: ca_Simpson2 for the inverse, ca_ElpLen for an elliptic arc
function ca_Simpson(integrand: PLANEGEO_INTEGRAND; lower: Double; upper: Double; var result_:
  Double): Integer; cdecl; external library_name name 'ca_Simpson';

// Moves one limit of a range until the integral over it is within 1e-6 of a value.
//
// The limit moves by 10 degrees at first (by 5 if the range is too short) and by half as much
// after each change of direction. Each range is integrated as by ca_Simpson(); one whose lower
// limit has passed the upper counts as 0, so does one that did not settle.
//
// Cost: that of ca_Simpson() for each range on the way.
//   integrand (in): see ca_Simpson()
//   lower, upper (in,out): degrees; only the moved one is written, and only when the value was
//     found
//   wanted (in): the integral to reach
//   which (in): 0 moves the lower limit, any other value the upper
//   Result: 0 found; -2 found, but a range on the way did not settle; -1 given up: ten ranges in a
//     row gave nothing or no change above 1e-6, the integral is not finite and the limit no longer
//     changes, wanted is infinite, or 2^28 samples are spent (the range has then grown by at most
//     80 turns), or with the library's own integrands 2^24 in 192 ranges that only samples decide;
//     else the integrand's code
function ca_Simpson2(integrand: PLANEGEO_INTEGRAND; var lower: Double; var upper: Double;
  wanted: Double; which: Integer): Integer; cdecl; external library_name name 'ca_Simpson2';

// Measures an elliptic arc.
//
// The arc's angles are taken as the directions of its ends (see ca_ElpAngle()), and the speed is
// integrated between these numbers as if they were parameters: exact for whole, half and quarter
// turns and for circles. A span above 359.999999 degrees is the whole turn, equal ends are an
// empty arc. The directions lie in [0, 360], so a whole turn is safe as (0, 360) only; see
// docs/behaviours.md.
//
// Cost: that of ca_Simpson() with the library's own integrand.
//   ellipse (in): start, end and the ratio of the axes are read; the size comes from the parameter
//     table
//   length (out): within about 1e-6; 0 for an arc below 0.004 degrees
//   Result: always 0
function ca_ElpLen(ellipse: PDTELLIPSE; var length: Double): Integer; cdecl; external
  library_name name 'ca_ElpLen';

// Trims or extends an elliptic arc to a length, by moving one end.
//
// Unlike ca_ElpLen() this integrates between the parametric angles. The search is that of
// ca_Simpson2(); the range found is then brought to an end of at most 360, one above 359.999999
// degrees to (0, 360), and of it the moved angle is stored.
//
// Cost: that of ca_Simpson2() with the library's own integrand.
//   ellipse (in,out): start and end are read, the moved one is written; the half axes come from
//     the parameter table
//   wanted (in): length, drawing units, reached within 1e-6
//   which (in): 0 moves the start, any other value the end
//   Result: 0 done; -1 the search gave up, the record is untouched
function ca_ElpLen2(var ellipse: DTELLIPSE; wanted: Double; which: Integer): Integer; cdecl;
  external library_name name 'ca_ElpLen2';

// ---- Ellipses: chains of circular arcs

// Replaces an elliptic arc by at most five arcs of the four-centre oval. Unlike other functions it
// takes half axes and radians.
//
// Half axes that differ by at most 1e-7 give one arc of radius a with the angles as passed, the
// rotation not applied. A span within 0.001 of 2 pi is the whole turn: four arcs, the first at the
// end of the longer axis. Else the ends are cut by the directions from their arcs' centres to
// points of the circle about the longer axis, not of the ellipse, and arcs of at most 1e-7 go.
//
// Half axes of zero or below, numbers that are not finite, and angles beyond 1e15, which cannot be
// reduced to a turn, give arcs without meaning or none.
//   center (in): centre of the ellipse
//   a, b (in): half axes; the longer one comes to lie along the rotation
//   angles (in): two doubles, start and end, parametric from the first axis, radians
//   rot (in): radians
//   out_centers, out_radii, out_angles (out): room for five arcs each; angles in radians
//   count (out): 0 to 5 arcs; with 0 nothing else is written
//   Result: always 0
//   See also: ca_elip1, which works in degrees, ca_elip2
function ca_elips(center: PDTPOINT; a: Double; b: Double; angles: PDouble; rot: Double;
  out_centers: PDTPOINT; out_radii: PDouble; out_angles: PDouble; var count: Cardinal): Integer;
  cdecl; external library_name name 'ca_elips';

// Replaces an elliptic arc by at most five arcs of the four-centre oval.
//
// The oval goes through the ends of both axes and elsewhere runs outside the ellipse, by up to 2.8
// % of the longer half axis (where the axes are as 1 to 0.22; 1.9 % at 1 to 0.5, 0.6 % at 1 to
// 0.8). Joints are tangent. The chain starts and ends at the points of the oval next to the
// ellipse's own, unlike that of ca_elips(), and lies along the ellipse whichever axis is the
// longer. Axes equal within errdist give one arc of the mean radius.
//   center, a, b, rot, angles (in): the arc; start and end equal after reduction are the whole
//     turn: four arcs, the first at the end of the longer axis
//   out_centers, out_radii, out_angles (out): room for five arcs each; degrees, each range
//     normalised as by a2d_StdSedeg()
//   count (out): 1 to 5 arcs; 0 when the result is -1
//   Result: 0 done; -1 when an axis is not above errdist or a number is not finite, the outputs
//     but count are then untouched
//   See also: ca_elip2 for a chain within a tolerance
function ca_elip1(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble;
  out_centers: PDTPOINT; out_radii: PDouble; out_angles: PDouble; var count: Word): Integer;
  cdecl; external library_name name 'ca_elip1';

// Replaces an elliptic arc by a tangent-continuous chain of circular arcs within a tolerance.
//
// No point of the chain lies further than tol from the arc, and none of the arc from the chain.
// The chain starts and ends on the arc's ends and goes through every end of an axis on the way,
// there square to the axis. Each quadrant has as few arcs as such a chain allows, and their number
// once fixed, the distance is made as small as it can be. Axes that differ by at most 2 tol give a
// whole ellipse as one circle.
//
// Cost: in proportion to the number of arcs, some tenfold for a tolerance a thousand times finer.
//   center, a, b, rot, angles (in): the arc; start and end equal after reduction are the whole
//     turn, which is closed and begins at the end of an axis at or before the start
//   tol (in): drawing units; more than half the shorter axis counts as that
//   out_centers, out_radii, out_angles (out): room for count arcs each; degrees, each range
//     normalised as by a2d_StdSedeg(); untouched unless the result is 0
//   count (in,out): room in arcs, 0 to ask for the number (the arrays may then be null); the
//     number of arcs, also when the result is -2; 0 for -1 and -3
//   Result: 0 done; -1 when an axis is not above errdist, tol not above 0 or a number not finite;
//     -2 when there are more arcs than room; -3 when a quadrant takes more than 512 arcs, or tol
//     or half the shorter axis is below 4e-15 of the largest radius of curvature
//   See also: ca_elip1 for a chain of five arcs at most
function ca_elip2(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; tol:
  Double; out_centers: PDTPOINT; out_radii: PDouble; out_angles: PDouble; var count: Word):
  Integer; cdecl; external library_name name 'ca_elip2';

// ---- Ellipses: division into points

// Finds a division point to 0.001 degrees, from a table kept between calls.
//
// Meant to be asked for k = 1, 2, ..., n in turn. The first call measures the arc and notes, in
// steps of 0.001 degrees, where each piece is full, to within the rounding of the sum; the calls
// that follow read it; the call with k = n releases the table, and so does one with k > n. The
// table serves arcs whose centre and axes agree within 1e-6, rotation and angles within 1e-8, and
// whose n is equal: the piece length and the angle come from it, centre, axes and rotation from
// the call. Any other arc replaces it. A table is never shared: do not divide on two threads at
// once.
//
// Cost: the first call takes memory for n doubles, and time in proportion to n or, where pieces
// are short, to the number of steps; the others are constant.
//   center, a, b, rot (in): the ellipse: full axis lengths, degrees
//   angles (in): start and end; a span below 0.004 degrees gives a length of 0 and the end as
//     every point
//   n, k (in): number of pieces and of the point, 1 <= k <= n
//   out_ (out): the point
//   len (out): length of a piece
//   Result: 0 done; 1 k exceeds n or is below 1, or no memory, or n above 2^20; -1 start exceeds
//     end (at every call); outputs are untouched in these cases. -2 from the call that measures:
//     the length does not settle, the span exceeds 36000 degrees, or it exceeds 1440 and the arc
//     is too thin (an axis below some fifth of the other) or n too large (22500, in any case
//     65536) to be divided without a walk over it; the length is 0 and every point the end
//   See also: ca_elpdn, which is coarser and keeps nothing
function a2d_elpdn(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; n:
  Integer; k: Integer; var out_: DTPOINT; var len: Double): Integer; cdecl; external
  library_name name 'a2d_elpdn';

// Finds a division point from the polyline through every whole degree of the arc.
//
// Only whole degrees from the start count: the arc beyond the last of them is left out of the
// length, and only the point k = n reaches the end. Within a degree the point is placed by a rule
// of its own, which is not the interpolation along the segment; it may be off by a degree.
//
// Cost: constant, at most 362 samples.
//   center, a, b, rot (in): the ellipse: full axis lengths, degrees
//   angles (in): start and end, no more than 361 degrees apart
//   n, k (in): number of pieces and of the point, 1 <= k <= n
//   out_ (out): the point; for k = n exactly the end of the arc; untouched when the result is 1
//   len (out): length of a piece; also written where the point lies beyond the polyline
//   Result: 0 done; 1 n or k below 1, start above end or more than 362 samples (len is then
//     untouched), or the point lies beyond the polyline: k exceeds n, an arc below a degree with k
//     < n, an ellipse of no size
//   See also: a2d_elpdn
function ca_elpdn(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; n:
  Integer; k: Integer; var out_: DTPOINT; var len: Double): Integer; cdecl; external
  library_name name 'ca_elpdn';

// ---- Ellipses: extents and points of given tangent

// Finds the two points of a whole ellipse with a tangent of a given direction.
//   center, a, b, rot (in): the ellipse
//   direction (in): of the tangent, degrees; whole turns are taken off
//   out1 (out): the point on the side to which the second axis points, or the end of the first
//     axis when the tangent is parallel to the second within 1e-8
//   out2 (out): the point opposite
//   Result: always 1, though it never fails
//   See also: ang_pnt for an arc
function ca_elaln(center: PDTPOINT; a: Double; b: Double; rot: Double; direction: Double; var
  out1: DTPOINT; var out2: DTPOINT): Integer; cdecl; external library_name name 'ca_elaln';

// Finds the points of an elliptic arc with a tangent of a given direction; a point outside the arc
// gives way to the nearer end of the arc, to the end rather than the start where both are as near.
//
// Whether a point is outside is decided by polar directions, as in pin_chk(): 0 and 360 are the
// whole turn, while other angles 360 apart, which name one direction, may hold that direction
// alone.
//   center, a, b, rot, angles (in): the arc; rot moves one turn at most towards 0
//   direction (in): of the tangent, degrees; moves one turn at most towards [0, 360]
//   out1, out2 (out): the points, before they give way in the order of ca_elaln()
//   Result: always 0
function ang_pnt(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble;
  direction: Double; var out1: DTPOINT; var out2: DTPOINT): Integer; cdecl; external
  library_name name 'ang_pnt';

// Finds the box around an elliptic arc, parallel to the axes of the plane.
//
// It is the box of the four points that ang_pnt() finds for the directions 90 and 0. An end of the
// arc counts only where it took the place of such a point: a box may be smaller than the arc.
//   center, a, b, rot, angles (in): the arc
//   lower, upper (out): lower left and upper right corner; both (0, 0) when the result is 1
//   Result: 0 done; 1 when start and end differ by less than 1e-6 (a whole ellipse is to be given
//     as a span of 360)
function ca_elamn(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; var
  lower: DTPOINT; var upper: DTPOINT): Integer; cdecl; external library_name name 'ca_elamn';

// As ca_elamn(), with the points that make the box.
//   center, a, b, rot, angles (in): the arc
//   lower, upper (out): as in ca_elamn()
//   extremes (out): four points: the two with a tangent along y, then the two with one along x;
//     untouched when the result is 1
//   Result: as ca_elamn()
function ca_elpmn(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; var
  lower: DTPOINT; var upper: DTPOINT; extremes: PDTPOINT): Integer; cdecl; external library_name
  name 'ca_elpmn';

// ---- Lines with ellipses

// Intersects a line with an ellipse, with a tolerance of the call.
//
// The plane is stretched across the first axis by a/b, so that the ellipse becomes a circle of
// radius a/2. There the line is tangent when its distance from the centre differs from the radius
// by less than tol, to either side: on an ellipse with a short second axis that is a much smaller
// distance in the plane.
//   p1, p2 (in): two points of the line
//   center, a, b, rot (in): the ellipse: full axes, rotation in degrees
//   out1 (out): the point further along the direction from p2 to p1; the touching point when
//     tangent; (0, 0) when there is none
//   out2 (out): the other point, or (0, 0)
//   count (out): 32 bits: 0, 1 or 2 points; 0 when degenerate
//   tol (in): drawing units
//   Result: 0 solved; 1 degenerate, out1 and out2 are then untouched: an axis is zero, or the line
//     or its stretched unit direction is shorter than tol
//   See also: a2d_insle with errdist and a 16-bit count
function a2d_CrsLE(p1: PDTPOINT; p2: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot:
  Double; var out1: DTPOINT; var out2: DTPOINT; var count: Cardinal; tol: Double): Integer;
  cdecl; external library_name name 'a2d_CrsLE';

// Intersects a line with an ellipse as a2d_CrsLE() does, with errdist for tolerance.
//   p1, p2 (in): two points of the line
//   center, a, b, rot (in): the ellipse: full axes, rotation in degrees
//   out1, out2 (out): the points, the one on p1's side first; (0, 0) where there is none;
//     untouched when degenerate
//   count (out): 0, 1 or 2 points; 0 when degenerate
//   Result: 0 solved, -1 degenerate
//   See also: a2d_insl1 for an elliptic arc
function a2d_insle(p1: PDTPOINT; p2: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot:
  Double; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external
  library_name name 'a2d_insle';

// The same function as a2d_insle().
function ca_insle(p1: PDTPOINT; p2: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot:
  Double; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external
  library_name name 'ca_insle';

// The same function as a2d_insle().
function a2d_insle2(p1: PDTPOINT; p2: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot:
  Double; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer; cdecl; external
  library_name name 'a2d_insle2';

// Intersects a line with an elliptic arc.
//
// The points are those of a2d_insle(); kept are those whose direction from the centre lies between
// the directions of the arc's ends, with 1e-8 degrees of slack. Directions within 1e-7 units of an
// axis snap onto it, those of the ends in the ellipse's frame, those of the points in the plane.
//   p1, p2 (in): two points of the line
//   center, a, b, rot (in): the ellipse: full axes, rotation in degrees
//   angles (in): start and end of the arc, parametric degrees; equal ends mean the full ellipse
//   out1 (out): the first point kept, or (0, 0)
//   out2 (out): the second point kept, or (0, 0); both are untouched when degenerate
//   count (out): 0, 1 or 2 points kept; 0 when degenerate
//   Result: 0 solved, -1 degenerate
function a2d_insl1(p1: PDTPOINT; p2: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot:
  Double; angles: PDouble; var out1: DTPOINT; var out2: DTPOINT; var count: Word): Integer;
  cdecl; external library_name name 'a2d_insl1';

// Intersects a line with the ellipse centred at the origin with its first axis along x.
//
// A line that a2d_IsElpTangentLine() accepts gives its touching point. Points no further apart
// than errdist count as one.
//   p1, p2 (in): two points of the line; vertical when their x differ by less than 1e-8
//   a, b (in): full axes; a zero axis has no points, unless the line touches its end or is
//     vertical
//   out1 (out): the point with the greater x, of a vertical line with the greater y; (0, 0) when
//     there is none
//   out2 (out): the other point, or (0, 0)
//   count (out): 0, 1 or 2 points
//   Result: 0 solved; -1 axes too long for their squares left no quadratic, both outputs are then
//     (0, 0)
function a2d_insLStandardE(p1: PDTPOINT; p2: PDTPOINT; a: Double; b: Double; var out1: DTPOINT;
  var out2: DTPOINT; var count: Word): Integer; cdecl; external library_name name
  'a2d_insLStandardE';

// Tells whether a line touches the ellipse centred at the origin with its first axis along x.
//
// A line parallel to an axis (within 1e-8) touches when its distance from the centre is half the
// other axis within 1e-6. Any other line touches when the products of the focal tangent property
// differ by no more than 1e-6, a squared length, and its touching point lies within 1e-6 of it.
// Where the second axis is the longer the foci decide nothing and the touching point alone does.
// Nothing here follows errdist; only a line shorter than it counts as 0 away from all.
//   p1, p2 (in): two points of the line
//   a, b (in): full axes
//   out_ (out): the touching point; untouched when the result is -1
//   Result: 0 tangent; -1 not, or a line that crosses the first axis within the ellipse
function a2d_IsElpTangentLine(p1: PDTPOINT; p2: PDTPOINT; a: Double; b: Double; var out_:
  DTPOINT): Integer; cdecl; external library_name name 'a2d_IsElpTangentLine';

// Selects the end of an elliptic arc to keep where it is cut by the same ellipse.
//
// With the flag of ca_SetStartendFlg() at 1 that is the start of e1, else its end;
// PLANEGEO_ATTR_REVERSED in its attribute word exchanges the two. A full ellipse e2 does not ask
// the flag: it gives the start when the bit is set, else the end.
//   e1 (in): the arc whose end is wanted
//   e2 (in): the cutting arc; its range runs from its end to its start when exactly one of
//     PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE is set
//   out_ (out): the end; untouched unless the result is 1
//   Result: 1 chosen; 0 the end is not on e2 (1e-8 degrees of slack); -1 not the same ellipse:
//     centres and axes must agree within errdist, rotations within 1e-8 degrees or differ by 180,
//     even those of a circle
function a2d_InsDe(e1: PDTELLIPSE; e2: PDTELLIPSE; var out_: DTPOINT): Integer; cdecl; external
  library_name name 'a2d_InsDe';

// ---- Ellipses with circles and ellipses

// Intersects a circle about the origin with an ellipse whose axes lie along x and y.
//
// Points lie on both curves; of a touch within the tolerances one or both points are given. Fixed
// tolerances decide: an ellipse with b below 1e-6 is a segment, one whose half axes differ by less
// than errdist a circle (see a2dCrs2C()), and one whose centre lies within 1e-6 of the y axis is
// taken as lying on it. Where nothing is found, two points that need not lie on the ellipse are
// given if the discriminant, a length to the sixth, is below 1e-6: always so in drawings of some
// hundredths of a unit.
//   ex, ey (in): centre of the ellipse, seen from that of the circle
//   a, b (in): half axes, a along x and not the shorter
//   r (in): radius
//   out_ (out): four points: those found, in the order in which the quartic of their ordinates is
//     solved by radicals; beyond the count (0, 0) or what was tried and dropped; untouched when
//     refused
//   Result: the number of points, 0 to 4; -1001 when b exceeds a, or when a or r is below 1e-6
//   See also: a2d_insce for arcs in any position
function a2dIntersectionEC(ex: Double; ey: Double; a: Double; b: Double; r: Double; out_:
  PDTPOINT): Integer; cdecl; external library_name name 'a2dIntersectionEC';

// Intersects a circular with an elliptic arc.
//
// The points are those of a2dIntersectionEC(); kept are those on both arcs, with 1e-8 degrees of
// slack. An ellipse with half a second axis below 1e-6 is a segment, of which no part is left out.
//   center (in): centre of the circle, x and y
//   r (in): radius
//   angles (in): start and end of its arc, degrees
//   ecenter (in): centre of the ellipse, x and y
//   a, b (in): full axes; a must not be the shorter
//   rot (in): rotation of the first axis, degrees
//   eangles (in): start and end of the elliptic arc, parametric degrees; equal ends mean the full
//     ellipse
//   p1, p2, p3, p4 (out): the points kept; those beyond the count are untouched
//   count (out): 0 to 4, lowered by as many points as a2d_chk_distdeg() drops while the points
//     stay in their places; untouched when refused
//   Result: 0 done; -1 refused: a shape that a2dIntersectionEC() refuses, or an axis below errdist
//     where a point on the circle's arc was found
function a2d_insce(center: PDouble; r: Double; angles: PDouble; ecenter: PDouble; a: Double; b:
  Double; rot: Double; eangles: PDouble; var p1: DTPOINT; var p2: DTPOINT; var p3: DTPOINT; var
  p4: DTPOINT; var count: SmallInt): Integer; cdecl; external library_name name 'a2d_insce';

// The same function as a2d_insce().
function ca_insce(center: PDouble; r: Double; angles: PDouble; ecenter: PDouble; a: Double; b:
  Double; rot: Double; eangles: PDouble; var p1: DTPOINT; var p2: DTPOINT; var p3: DTPOINT; var
  p4: DTPOINT; var count: SmallInt): Integer; cdecl; external library_name name 'ca_insce';

// Intersects two elliptic arcs.
//
// The plane is stretched so that the first ellipse becomes a circle, and a2d_insce() answers. Any
// axis may be the longer one.
//   center1, center2 (in): the centres, x and y each
//   a1, a2 (in): full first axes
//   b1, b2 (in): full second axes; with b1 zero the answer is no points, and y coordinates of the
//     outputs that are not finite or lost
//   rot1, rot2 (in): rotations, degrees
//   angles1, angles2 (in): start and end of each arc, parametric degrees
//   p1, p2, p3, p4 (in,out): the points found. Those beyond the count are carried out of the
//     stretched frame too, from whatever they held
//   count (out): 0 to 4
//   Result: 0 done; 1 the ellipses coincide within errdist (axes, rotations and squared distance
//     of the centres), count is 0; -1 refused: an axis of the second ellipse is not longer than
//     errdist, or a2d_insce() refused; in these two cases the points are untouched and count is 0
function a2d_ins2e(center1: PDouble; center2: PDouble; a1: Double; a2: Double; b1: Double; b2:
  Double; rot1: Double; rot2: Double; angles1: PDouble; angles2: PDouble; var p1: DTPOINT; var
  p2: DTPOINT; var p3: DTPOINT; var p4: DTPOINT; var count: SmallInt): Integer; cdecl; external
  library_name name 'a2d_ins2e';

// The same function as a2d_ins2e().
function ca_ins2e(center1: PDouble; center2: PDouble; a1: Double; a2: Double; b1: Double; b2:
  Double; rot1: Double; rot2: Double; angles1: PDouble; angles2: PDouble; var p1: DTPOINT; var
  p2: DTPOINT; var p3: DTPOINT; var p4: DTPOINT; var count: SmallInt): Integer; cdecl; external
  library_name name 'ca_ins2e';

// Drops the points of a list that repeat an earlier one.
//
// Two points are one when their squared distance is below errdist (one thousandth of a unit apart
// by default) and their parameters on the ellipse differ by less than 1e-8 degrees.
//   points (in): n points
//   n (in): their number, 2 to 4
//   center (in): centre of the ellipse, x and y
//   rot (in): rotation of the first axis, degrees
//   a, b (in): full axes
//   out_ (out): n points: the distinct ones in their order, what follows them is untouched; may be
//     points itself
//   Result: the number of distinct points; -1 when n is not 2 to 4, or an axis is shorter than
//     errdist, out is then untouched
function a2d_chk_distdeg(points: PDTPOINT; n: Integer; center: PDouble; rot: Double; a: Double;
  b: Double; out_: PDTPOINT): Integer; cdecl; external library_name name 'a2d_chk_distdeg';

// ---- Ellipses: perpendiculars

// Finds the nearest foot of a perpendicular, the one in the point's own quadrant.
//
// From the centre and from the first axis inside the evolute two feet are as near.
//   p (in): the point
//   e (in): the ellipse; start and end are not read
//   out_ (out): array of 2, cleared first: the foot; (0, B) and (0, -B) in the ellipse's frame
//     from the centre; both feet from the first axis, the one to the left of the axis first
//   dist (out): its distance from p; untouched without a foot
//   Result: 1 or 2 feet; 0 for a NaN or an infinity; -1 an axis is not above errdist; -2 the first
//     axis does not exceed the second by more than errdist
//   See also: a2dEllpsPerPnts for all feet, a2d_dstpp for any axes
function a2dEllpsPer(p: PDTPOINT; e: PDTELLIPSE; out_: PDTPOINT; var dist: Double): Integer;
  cdecl; external library_name name 'a2dEllpsPer';

// Finds all feet of perpendiculars from a point to a full ellipse.
//
// The order, in the ellipse's frame: from the centre (A, 0), (0, B), (-A, 0), (0, -B); from the
// second axis (0, B), (0, -B), then the two beside it, the one with x > 0 first; from the first
// axis (A, 0), (-A, 0), then the two beside it, y > 0 first; from any other point the nearest
// foot, the farthest, then the two across the first axis, the one nearer to its end first.
//   p (in): the point
//   e (in): the ellipse; start and end are not read
//   out_ (out): array of 4, cleared first
//   Result: number of feet, 2 or 4, or 0 for a NaN or an infinity; -1 an axis is not above
//     errdist; -2 the first axis does not exceed the second by more than errdist (a circle, or the
//     second axis the longer)
//   See also: a2d_PerEP for circles
function a2dEllpsPerPnts(p: PDTPOINT; e: PDTELLIPSE; out_: PDTPOINT): Integer; cdecl; external
  library_name name 'a2dEllpsPerPnts';

// As a2dEllpsPerPnts(), with only the feet that lie on the arc by ca_onelp().
//   p, e (in): the point and the arc
//   out_ (out): array of 4; untouched beyond the result
//   Result: number of feet on the arc, 0 to 4; -1 and -2 as there
function a2dEllpsArcPerPnts(p: PDTPOINT; e: PDTELLIPSE; out_: PDTPOINT): Integer; cdecl;
  external library_name name 'a2dEllpsArcPerPnts';

// Finds the feet of perpendiculars to an ellipse, or what stands in for them.
//
// Where a2dEllpsPerPnts() has no foot it is the nearest sample of the arc by ca_dstpp(), p itself
// if that is nearer than errdist. Where it answers -2 the ellipse counts as the circle over its
// first axis, and the answer is that of cross_lin_cir() for the line from p to the centre: the far
// point first.
//   p (in): the point
//   e (in): the ellipse; its arc counts for the nearest sample alone
//   out_ (out): array of 4, cleared first; a single point of the circle twice
//   count (out): number of points; untouched when the result is -1
//   Result: 0 done; -1 an axis is not above errdist, or p is the centre of a circle (within
//     errdist in x and in y)
//   See also: a2d_PerEP2 for arcs
function a2d_PerEP(p: PDTPOINT; e: PDTELLIPSE; out_: PDTPOINT; var count: Cardinal): Integer;
  cdecl; external library_name name 'a2d_PerEP';

// As a2d_PerEP(), for an arc: by a2dEllpsArcPerPnts(), unless start and end are 0 and 360 within
// errdist. A circle's points are kept by a2d_lin_arc() in mode 1, with start and end raised by the
// rotation.
//   p, e (in): the point and the arc
//   out_ (out): array of 4; cleared first for 0 and 360 only; both of the first two are written
//     for a circle, as a2d_lin_arc() does
//   count (out): number of points, 0 where a circle's arc holds none; untouched when the result is
//     -1
//   Result: 0 done; -1 as there
function a2d_PerEP2(p: PDTPOINT; e: PDTELLIPSE; out_: PDTPOINT; var count: Cardinal): Integer;
  cdecl; external library_name name 'a2d_PerEP2';

// Projects a point onto an ellipse by its polar angle, taken for a parameter.
//
// The result is the point (A cos t, B sin t) for the direction t of p from the centre: no foot of
// a perpendicular, and on the ray to p on the axes alone. Whether it lies on the arc is asked of
// its own direction with 1e-8 degrees of slack, between start and end taken as polar angles.
//   p (in): the point
//   e (in): the ellipse; where exactly one of PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE
//     is set the arc runs from end to start; an end of the arc within 1e-6 of 0 counts as 360, and
//     a negative start is raised by a turn, the end with it if negative
//   out_ (out): the point; untouched when the result is -1
//   Result: 0 on the arc; 1 off it; -1 an axis is at most 1e-6, or p lies within 1e-6 of the
//     centre in x and in y
function a2d_perle(p: PDTPOINT; e: PDTELLIPSE; var out_: DTPOINT): Integer; cdecl; external
  library_name name 'a2d_perle';

// ---- Ellipses: tangents

// There are none where the discriminant of the polar line y = m x + q against the ellipse, a
// length to the sixth, is at most 1e-8; for a point within 1e-8 of the first axis, where the
// squared ordinate of the contacts is. Small ellipses have none for that reason.
//   p (in): the point
//   center, a, b, rot (in): the ellipse; either axis may be the longer; one of zero gives the ends
//     of the segment, non-finite outputs, or 1
//   out1, out2 (out): cleared first; the contact with the greater x in the ellipse's frame is
//     out1; for a point on the first axis the one with the greater y
//   Result: 0 done; 1 the point lies inside or on the ellipse
//   See also: a2d_tchpe
function ca_inspe(p: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot: Double; var out1:
  DTPOINT; var out2: DTPOINT): Integer; cdecl; external library_name name 'ca_inspe';

// Finds the points of contact of the tangents from a point to an ellipse, by the feet of the foci:
// where a perpendicular from a focus meets a tangent, on the circle over the first axis.
//
// The point must be outside: half the sum of its focal distances must exceed half the first axis
// by more than 1e-6. A tangent that runs along one axis (to 1e-8 between point and foot) touches
// at the end of the other.
//   p (in): the point
//   center, a, b, rot (in): the ellipse; the first axis must not be the shorter
//   out1, out2 (out): the contacts; that of the nearer focus's foot to the right of the direction
//     from the centre to the middle between focus and point is out1. Unless the result is 2,
//     untouched or points in the ellipse's frame that tell nothing
//   Result: 2 both found; 0 the point lies inside or on the ellipse, or the second axis is zero or
//     the longer; -1 the first axis is not positive
//   See also: ca_inspe
function a2d_tchpe(p: PDTPOINT; center: PDTPOINT; a: Double; b: Double; rot: Double; var out1:
  DTPOINT; var out2: DTPOINT): Integer; cdecl; external library_name name 'a2d_tchpe';

// Finds the common tangents of two ellipses, each by its point of contact on ellipse 1 and on
// ellipse 2: (t1, t2), (t3, t4), (t5, t6), (t7, t8).
//
// Ellipses apart have two outer tangents and two inner ones, which cross between them; ellipses
// that cross have two outer ones, or four where they cross four times; one inside the other has
// none. Outer tangents come first. Each kind is ordered by the direction from ellipse 1 square to
// the line, measured from the direction of centre 2 in (-180, 180] (from the first axis of ellipse
// 1 where the centres coincide within errdist): for two circles the tangent to the right of the
// direction from centre 1 to centre 2 is before that to its left.
//
// Where the ellipses touch within errdist two tangents merge into the one at that point, where
// both points of contact would coincide: it is not given.
//   center1, center2, a1, a2, b1, b2, rot1, rot2 (in): the full ellipses; either axis may be the
//     longer
//   t1, t2, t3, t4, t5, t6, t7, t8 (out): the points of contact; untouched beyond the count
//   count (out): number of tangents: 0, 2 or 4
//   Result: 0 done; 1 the ellipses coincide within errdist; 2 one lies inside the other, touching
//     or not; -1 an axis is not longer than errdist, or an argument is not finite
//   See also: ca_cctan for circles
function a2d_tch2e(center1: PDTPOINT; center2: PDTPOINT; a1: Double; a2: Double; b1: Double; b2:
  Double; rot1: Double; rot2: Double; var t1: DTPOINT; var t2: DTPOINT; var t3: DTPOINT; var t4:
  DTPOINT; var t5: DTPOINT; var t6: DTPOINT; var t7: DTPOINT; var t8: DTPOINT; var count: Word):
  Integer; cdecl; external library_name name 'a2d_tch2e';

// ---- Ellipses: distance

// Tells whether a point lies on, outside or inside a full ellipse.
//
// The point counts as on the ellipse when A^2 y^2 + B^2 x^2 - A^2 B^2, with half axes A and B and
// the point in the frame of the ellipse, is at most 0.0001. That is a length to the fourth: a band
// wide for small ellipses, narrow for large ones. A difference so small is formed with twice the
// digits of a double.
//   p (in): the point
//   e (in): the ellipse; start and end are not read, either axis may be the longer
//   Result: 0 on, 1 outside, 2 inside; 2 for a NaN
//   See also: ca_posel for a tolerance that is a length
function a2d_distpe(p: PDTPOINT; e: PDTELLIPSE): Integer; cdecl; external library_name name
  'a2d_distpe';

// Finds the nearest sample of an elliptic arc: at whole degrees of the parameter from the start
// on, then at tenths of a degree within a degree of the best.
//
// The answer is exact to 0.1 degrees of the parameter, not to rounding; of equal distances the
// earlier sample counts. The end itself is a sample only where whole degrees, or then tenths, lead
// to it. Equal start and end are that one point, except for a point on the whole ellipse with both
// 0 (see ca_onelp()).
//
// Cost: constant, at most 364 samples and then 21, of which most are ruled out unseen.
//   center, a, b, rot (in): the ellipse
//   angles (in): start and end, degrees; a start above the end means an arc through 0; of a span
//     beyond a turn the first 363 degrees are sampled; the step ends where it no longer changes
//     the angle
//   p (in): the point
//   out_ (out): the nearest sample, coordinates below 1e-6 as 0; p itself where it lies on the arc
//     by ca_onelp(); (0, 0) for an angle that is NaN
//   Result: the distance of that sample; 0 on the arc; NaN for an angle that is NaN
//   See also: a2d_dstpp for the true nearest point
function ca_dstpp(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; p:
  PDTPOINT; var out_: DTPOINT): Double; cdecl; external library_name name 'ca_dstpp';

// Returns the distance of ca_dstpp() alone.
//   center, a, b, rot, angles, p (in): the arc and the point
//   Result: as there
function ca_dstpe(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; p:
  PDTPOINT): Double; cdecl; external library_name name 'ca_dstpe';

// Finds the nearest point of an elliptic arc, to rounding.
//
// The point is the foot of a normal or an end of the arc; the distance is right to 1e-15 of itself
// or of the longer axis, whichever is larger. Circles, flat ellipses down to segments, and points
// on the axes and the evolute need no care. Of two nearest points either may be given.
//   center, a, b, rot (in): the ellipse; either axis may be the longer, or zero
//   angles (in): start and end, degrees, any that a2d_StdSedeg() takes; equal ends mean the whole
//     ellipse
//   p (in): the point
//   out_ (out): the nearest point; p itself where it is nearer than errdist
//   Result: the distance; 0 where it is below errdist
//   See also: ca_dstpp for the sampled distance of older hosts
function a2d_dstpp(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; p:
  PDTPOINT; var out_: DTPOINT): Double; cdecl; external library_name name 'a2d_dstpp';

// Returns the distance of a2d_dstpp() alone.
//   center, a, b, rot, angles, p (in): the arc and the point
//   Result: as there
function a2d_dstpe(center: PDTPOINT; a: Double; b: Double; rot: Double; angles: PDouble; p:
  PDTPOINT): Double; cdecl; external library_name name 'a2d_dstpe';

implementation

end.
