// Two-dimensional geometry for CAD hosts: the functions of the planegeo library.
//
// Generated from include/planegeo.h by bindings/generate.py. Do not edit.
//
// Arrays must be as long as the comments say; nothing checks them. Outputs that a function
// leaves untouched keep their value.

using System;
using System.Runtime.InteropServices;

namespace Planegeo
{
    /// <summary>A point or vector.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 16)]
    public struct DTPOINT
    {
        /// <summary>drawing units</summary>
        [FieldOffset(0)] public double x;
        /// <summary>drawing units</summary>
        [FieldOffset(8)] public double y;
    }

    /// <summary>A complex number.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 16)]
    public struct DTCOMPLEX
    {
        /// <summary>real part</summary>
        [FieldOffset(0)] public double re;
        /// <summary>imaginary part</summary>
        [FieldOffset(8)] public double im;
    }

    /// <summary>A line segment.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 40)]
    public struct DTLINE
    {
        /// <summary>the host's attribute word</summary>
        [FieldOffset(0)] public uint attr;
        /// <summary>first point</summary>
        [FieldOffset(8)] public double x1;
        /// <summary>first point</summary>
        [FieldOffset(16)] public double y1;
        /// <summary>second point</summary>
        [FieldOffset(24)] public double x2;
        /// <summary>second point</summary>
        [FieldOffset(32)] public double y2;
    }

    /// <summary>A circle or circular arc; an end 360 above the start is a full circle.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 48)]
    public struct DTARC
    {
        /// <summary>the host's attribute word</summary>
        [FieldOffset(0)] public uint attr;
        /// <summary>centre</summary>
        [FieldOffset(8)] public double cx;
        /// <summary>centre</summary>
        [FieldOffset(16)] public double cy;
        /// <summary>radius</summary>
        [FieldOffset(24)] public double r;
        /// <summary>degrees</summary>
        [FieldOffset(32)] public double start;
        /// <summary>degrees</summary>
        [FieldOffset(40)] public double end;
    }

    /// <summary>
    /// An ellipse or elliptic arc. The point at the parametric angle t is the centre plus (a/2 cos
    /// t, b/2 sin t) turned by rot. The first axis need not be the longer one, except where a
    /// function asks for it.
    /// </summary>
    [StructLayout(LayoutKind.Explicit, Size = 64)]
    public struct DTELLIPSE
    {
        /// <summary>the host's attribute word</summary>
        [FieldOffset(0)] public uint attr;
        /// <summary>centre</summary>
        [FieldOffset(8)] public double cx;
        /// <summary>centre</summary>
        [FieldOffset(16)] public double cy;
        /// <summary>full length of the first axis</summary>
        [FieldOffset(24)] public double a;
        /// <summary>full length of the second axis</summary>
        [FieldOffset(32)] public double b;
        /// <summary>parametric angle, degrees</summary>
        [FieldOffset(40)] public double start;
        /// <summary>parametric angle, degrees</summary>
        [FieldOffset(48)] public double end;
        /// <summary>rotation of the first axis, degrees anticlockwise from x</summary>
        [FieldOffset(56)] public double rot;
    }

    /// <summary>
    /// An integrand: writes its value at an angle in degrees and returns 0; any other code ends the
    /// integration, which returns it.
    /// </summary>
    /// <param name="deg">the angle</param>
    /// <param name="value">the value</param>
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int PLANEGEO_INTEGRAND(double deg, out double value);

    /// <summary>The functions of the library.</summary>
    public static class Native
    {
        private const string Library = "planegeo";

        /// <summary>
        /// Bit of an attribute word: the element is reversed, its start and end swap roles.
        /// </summary>
        public const uint PLANEGEO_ATTR_REVERSED = 0x20000000;

        /// <summary>
        /// Bit of an attribute word: when exactly one of this and PLANEGEO_ATTR_REVERSED is set, an
        /// arc's range is taken from its end to its start.
        /// </summary>
        public const uint PLANEGEO_ATTR_CLOCKWISE = 0x10000000;

        // ---- Settings

        /// <summary>Returns the distance tolerance errdist.</summary>
        /// <returns>drawing units; 1e-6 at load</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double ca_geterrdist();

        /// <summary>Sets the distance tolerance errdist.</summary>
        /// <remarks>
        /// The value is stored as it is: with zero or a negative value no distance counts as small any
        /// more, so that no point lies on a line, no two lines are parallel, and the guards against
        /// zero lengths are off (non-finite outputs follow).
        /// </remarks>
        /// <param name="tolerance">drawing units</param>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern void ca_seterrdist(double tolerance);

        /// <summary>Returns the flag of ca_SetStartendFlg().</summary>
        /// <returns>the flag as it was set; 0 at load</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_GetStartendFlg();

        /// <summary>
        /// Chooses which end of an element a2d_InsDl(), a2d_InsDc() and a2d_InsDe() keep.
        /// </summary>
        /// <param name="flag">1 the start; every other value the end</param>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern void ca_SetStartendFlg(int flag);

        /// <summary>
        /// Returns the parameter table of the Simpson integrands: ten doubles, zero at load. The
        /// library reads it and never writes it.
        /// </summary>
        /// <remarks>
        /// The host stores half the first axis in slot 0 and half the second in slot 1 before it
        /// measures an ellipse; slots 2 to 9 are free for integrands of its own. The table is shared by
        /// all threads: do not measure two ellipses at once.
        /// </remarks>
        /// <returns>the address of the table, the same at every call</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern IntPtr ca_Simpson_getParmtbl();

        // ---- Degree trigonometry and angle ranges

        /// <summary>Returns the sine of an angle.</summary>
        /// <param name="deg">degrees</param>
        /// <returns>[-1, 1]</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double sind(double deg);

        /// <summary>Returns the cosine of an angle.</summary>
        /// <param name="deg">degrees</param>
        /// <returns>[-1, 1]</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double cosd(double deg);

        /// <summary>Returns the tangent of an angle.</summary>
        /// <param name="deg">degrees</param>
        /// <returns>the tangent; near 90 and 270 a huge value, not an infinity</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double tand(double deg);

        /// <summary>Returns the arc sine.</summary>
        /// <param name="v">first clamped to [-1, 1]</param>
        /// <returns>degrees, [-90, 90]</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double asind(double v);

        /// <summary>Returns the arc cosine.</summary>
        /// <param name="v">first clamped to [-1, 1]</param>
        /// <returns>degrees, [0, 180]</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double acosd(double v);

        /// <summary>Returns the arc tangent.</summary>
        /// <param name="v">any number</param>
        /// <returns>degrees, [-90, 90]</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double atand(double v);

        /// <summary>Returns the direction of the vector (x, y).</summary>
        /// <remarks>
        /// A direction so little below the x axis that it rounds up gives exactly 360; a negative zero
        /// passes through.
        /// </remarks>
        /// <param name="y">components of the vector, y first</param>
        /// <param name="x">components of the vector, y first</param>
        /// <returns>degrees, [0, 360]; 0 when both are zero</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double atan2d(double y, double x);

        /// <summary>Normalises the range of an arc in place.</summary>
        /// <remarks>
        /// Both angles are reduced by whole turns; an end that is not above its start is then raised by
        /// a turn; a range that ends above 360 is lowered by a turn. Afterwards the end lies in (0,
        /// 360], the start in (-360, 360), the span in (0, 360]. A negative start marks an arc that
        /// crosses 0: (350, 10) becomes (-10, 10), and (10, 10) becomes (-350, 10).
        /// </remarks>
        /// <param name="start">degrees; both are written always</param>
        /// <param name="end">degrees; both are written always</param>
        /// <returns>1 when the reduced angles were equal within 1e-8 (a full circle), else 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_StdSedeg(ref double start, ref double end);

        /// <summary>
        /// Tells whether an angle lies on the arc that runs anticlockwise from start to end.
        /// </summary>
        /// <remarks>
        /// Both ends belong to the arc, with 1e-8 degrees of slack; equal ends (within 1e-8, after
        /// reduction) mean the full circle. An arc that starts within 1e-8 below 360 and ends at 0
        /// accepts every angle.
        /// </remarks>
        /// <param name="start">degrees, any finite value</param>
        /// <param name="end">degrees, any finite value</param>
        /// <param name="angle">degrees, any finite value</param>
        /// <returns>0 on the arc, 1 off it; 0 for an angle that is NaN</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_ChkDegr(double start, double end, double angle);

        /// <summary>Orders the two ends of an arc by two direction values.</summary>
        /// <param name="dir1">any integers; only their equality counts</param>
        /// <param name="dir2">any integers; only their equality counts</param>
        /// <param name="a">the ends in the order of travel</param>
        /// <param name="b">the ends in the order of travel</param>
        /// <param name="out_start">a and b when dir1 equals dir2, else b and a</param>
        /// <param name="out_end">a and b when dir1 equals dir2, else b and a</param>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern void a2d_GetBedeg(int dir1, int dir2, double a, double b, out double
            out_start, out double out_end);

        // ---- Points and vectors

        /// <summary>Turns a point about a centre.</summary>
        /// <param name="center">the pivot and the point</param>
        /// <param name="point">the pivot and the point</param>
        /// <param name="out">
        /// separate storage from point: its x is stored before its y is computed from the point, so a
        /// call in place gives a wrong y
        /// </param>
        /// <param name="angle">degrees, anticlockwise</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int c_pnt([In] ref DTPOINT center, [In] ref DTPOINT point, out DTPOINT
            @out, double angle);

        /// <summary>The same function as c_pnt().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_rvpnt([In] ref DTPOINT center, [In] ref DTPOINT point, out
            DTPOINT @out, double angle);

        /// <summary>
        /// Carries a point into a local frame: subtracts the origin, then turns by +angle.
        /// </summary>
        /// <param name="point">drawing units</param>
        /// <param name="origin">drawing units</param>
        /// <param name="angle">degrees; pass the negative rotation of the frame</param>
        /// <param name="out">R(angle) (point - origin)</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int pnt_std([In] ref DTPOINT point, [In] ref DTPOINT origin, double
            angle, out DTPOINT @out);

        /// <summary>
        /// Carries a point out of a local frame: turns by +angle, then adds the origin.
        /// </summary>
        /// <param name="point">drawing units</param>
        /// <param name="origin">drawing units</param>
        /// <param name="angle">degrees, the rotation of the frame</param>
        /// <param name="out">R(angle) point + origin</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int pnt_formd([In] ref DTPOINT point, [In] ref DTPOINT origin, double
            angle, out DTPOINT @out);

        /// <summary>Mirrors a point in the line through two points.</summary>
        /// <param name="point">the point</param>
        /// <param name="line_p1">
        /// two points of the line; equal points are not checked for and give non-finite outputs
        /// </param>
        /// <param name="line_p2">
        /// two points of the line; equal points are not checked for and give non-finite outputs
        /// </param>
        /// <param name="out">the mirror image</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int pnt_mer([In] ref DTPOINT point, [In] ref DTPOINT line_p1, [In] ref
            DTPOINT line_p2, out DTPOINT @out);

        /// <summary>As pnt_mer(), with the line before the point.</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_vmpnt([In] ref DTPOINT line_p1, [In] ref DTPOINT line_p2, [In]
            ref DTPOINT point, out DTPOINT @out);

        /// <summary>Returns the direction from one point to another in radians.</summary>
        /// <remarks>
        /// A component shorter than 1e-7 counts as zero: directions so close to an axis snap onto 0,
        /// pi/2, pi or 3 pi/2, and points so close to each other give 0.
        /// </remarks>
        /// <param name="from">the points</param>
        /// <param name="to">the points</param>
        /// <returns>radians, [0, 2 pi]</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double ca_vcrad([In] ref DTPOINT from, [In] ref DTPOINT to);

        /// <summary>
        /// Returns the distance of two points, the plain root of the sum of squares.
        /// </summary>
        /// <param name="p">the points</param>
        /// <param name="q">the points</param>
        /// <returns>drawing units</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double ca_dstpt([In] ref DTPOINT p, [In] ref DTPOINT q);

        // ---- Lines

        /// <summary>Intersects two infinite lines.</summary>
        /// <remarks>
        /// The lines are parallel when the cross product of their directions, as given and not scaled
        /// by their lengths, is below 1e-6: short segments count as parallel sooner than long ones.
        /// </remarks>
        /// <param name="a1">two points of each line</param>
        /// <param name="a2">two points of each line</param>
        /// <param name="b1">two points of each line</param>
        /// <param name="b2">two points of each line</param>
        /// <param name="out">the intersection; untouched when parallel</param>
        /// <returns>1 found, 0 parallel</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dCrs2L([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            b1, [In] ref DTPOINT b2, out DTPOINT @out);

        /// <summary>Intersects two lines and tells whether the point lies on both segments.</summary>
        /// <remarks>
        /// With d the cross product of the directions, the lines are parallel when d divided by the
        /// length of the first and d divided by the length of the second are both below errdist. A
        /// segment of length zero is not parallel to anything and gives non-finite outputs. Ends belong
        /// to the segments within errdist.
        /// </remarks>
        /// <param name="a1">the ends of each segment</param>
        /// <param name="a2">the ends of each segment</param>
        /// <param name="b1">the ends of each segment</param>
        /// <param name="b2">the ends of each segment</param>
        /// <param name="out">the intersection of the infinite lines; (0, 0) when parallel</param>
        /// <returns>0 the point lies on both segments, 1 outside at least one, 2 parallel</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_ins2l([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref
            DTPOINT b1, [In] ref DTPOINT b2, out DTPOINT @out);

        /// <summary>The same function as a2d_ins2l().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ins2l([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            b1, [In] ref DTPOINT b2, out DTPOINT @out);

        /// <summary>Intersects two lines given by a point and a direction angle each.</summary>
        /// <remarks>
        /// Only equal directions (within 1e-8) are told apart; opposite ones, or 0 against 360, have
        /// equal tangents and give non-finite or huge values. A direction within 1e-8 of 90 or 270
        /// counts as vertical.
        /// </remarks>
        /// <param name="rec">
        /// six doubles: x1, y1, x2, y2, then the result x, y; the result is untouched unless found
        /// </param>
        /// <param name="angles">
        /// two doubles, degrees; each is brought into [0, 360] in place, found or not (360 stays 360;
        /// beyond 2^56 degrees by the exact remainder; an infinity becomes NaN)
        /// </param>
        /// <returns>0 found, 2070 the same direction</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int aatCalCrs2l([In, Out] double[] rec, [In, Out] double[] angles);

        /// <summary>Drops the perpendicular from a point onto a line.</summary>
        /// <remarks>
        /// The foot counts as outside the segment when the product of its vectors to the two ends
        /// exceeds 1e-6, a product of distances and not errdist.
        /// </remarks>
        /// <param name="a1">the segment</param>
        /// <param name="a2">the segment</param>
        /// <param name="p">the point</param>
        /// <param name="foot">
        /// foot of the perpendicular on the infinite line; untouched when the result is -1
        /// </param>
        /// <param name="dist">distance of p from the line; 0 when the result is -1</param>
        /// <returns>
        /// 0 the foot lies on the segment, 1 outside it, -1 the segment is shorter than errdist
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_perln([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            p, out DTPOINT foot, out double dist);

        /// <summary>Moves a segment to its parallel at a distance.</summary>
        /// <param name="a1">the segment</param>
        /// <param name="a2">the segment</param>
        /// <param name="d">distance, drawing units</param>
        /// <param name="side">
        /// 1 to the right of the direction from a1 to a2, -1 to the left; another value scales the
        /// distance
        /// </param>
        /// <param name="out1">a1 and a2 moved</param>
        /// <param name="out2">a1 and a2 moved</param>
        /// <returns>
        /// 0 done; 1 when the ends coincide within errdist in x and in y, the outputs are then
        /// untouched
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_palds([In] ref DTPOINT a1, [In] ref DTPOINT a2, double d, short
            side, out DTPOINT out1, out DTPOINT out2);

        /// <summary>Tells on which side of a line a point lies.</summary>
        /// <remarks>
        /// The point counts as on the line when the cross product of the direction and its vector from
        /// a1, not divided by the length, is below errdist.
        /// </remarks>
        /// <param name="a1">the line</param>
        /// <param name="a2">the line</param>
        /// <param name="p">the point</param>
        /// <param name="side">
        /// 0 on the line, 1 right of the direction from a1 to a2, 65535 left of it
        /// </param>
        /// <returns>
        /// 0 done; 1 when a1 and a2 coincide within errdist in x and in y, side is then untouched
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_posln([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            p, out ushort side);

        /// <summary>Tells whether a point lies on a segment, within errdist.</summary>
        /// <remarks>
        /// The ends are asked first, so a point at the end of a segment of length zero is on it.
        /// </remarks>
        /// <param name="p1">the segment</param>
        /// <param name="p2">the segment</param>
        /// <param name="q">the point</param>
        /// <returns>
        /// 0 on the segment, ends included; 1 off it; -1 the segment is shorter than errdist
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_onlin([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref
            DTPOINT q);

        /// <summary>The same function as a2d_onlin().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_onlin([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref DTPOINT
            q);

        /// <summary>Finds the point at a distance along a segment.</summary>
        /// <param name="start">the segment</param>
        /// <param name="end">the segment</param>
        /// <param name="dist">distance from start; at or beyond the length it gives end</param>
        /// <param name="out">the point; untouched when the result is 0</param>
        /// <returns>1 done; 0 when start or end is null, or dist is negative</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_DistAlongbyLineFromSpnt([In] ref DTPOINT start, [In] ref DTPOINT
            end, double dist, out DTPOINT @out);

        /// <summary>Selects the end of a line to keep where it is cut by a collinear line.</summary>
        /// <remarks>
        /// The end is the first point of elem when the flag of ca_SetStartendFlg() is 1, else its
        /// second point. The attribute words are not read.
        /// </remarks>
        /// <param name="elem">the line whose end is wanted</param>
        /// <param name="cut">the cutting line; of length zero it counts as not collinear</param>
        /// <param name="out">the end; untouched unless the result is 1</param>
        /// <returns>
        /// 1 chosen; 0 that end is not on cut (see a2d_onlin()); -1 an end of elem is not nearer than
        /// errdist to the infinite line of cut
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_InsDl([In] ref DTLINE elem, [In] ref DTLINE cut, out DTPOINT
            @out);

        /// <summary>
        /// Tells where the projection of a point onto a line falls against a segment.
        /// </summary>
        /// <remarks>
        /// The tolerance at the ends is errdist, or half the distance of p3 from p1 where that is below
        /// errdist.
        /// </remarks>
        /// <param name="p1">the segment; equal points give 3</param>
        /// <param name="p2">the segment; equal points give 3</param>
        /// <param name="p3">the point</param>
        /// <returns>
        /// 3 on the segment or within the tolerance of an end; 1 beyond p2; 2 before p1; 0 only for
        /// non-finite input
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_Chk3pnt([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref
            DTPOINT p3);

        // ---- Lines with circles and arcs

        /// <summary>Intersects the infinite line through a1 and a2 with a full circle.</summary>
        /// <remarks>
        /// <code>
        ///       out2        out1
        /// a1 ----o-----------o----&gt; a2
        /// </code>
        /// The line is tangent when its distance from the centre differs from r by less than errdist,
        /// to either side; the one point is then the foot of the perpendicular from the centre.
        /// </remarks>
        /// <param name="a1">
        /// two points of the line; equal points are not checked for and give two non-finite outputs
        /// </param>
        /// <param name="a2">
        /// two points of the line; equal points are not checked for and give two non-finite outputs
        /// </param>
        /// <param name="center">
        /// the circle; a radius that is not positive has at most the tangent point
        /// </param>
        /// <param name="r">
        /// the circle; a radius that is not positive has at most the tangent point
        /// </param>
        /// <param name="out1">the point further along the direction from a1 to a2</param>
        /// <param name="out2">the other point; the same point when tangent</param>
        /// <param name="count">
        /// 2; 1 when tangent; 0 when the line misses the circle, and out1 and out2 are then untouched
        /// </param>
        /// <returns>always 0; the outcome is count</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int cross_lin_cir([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref
            DTPOINT center, double r, out DTPOINT out1, out DTPOINT out2, out ushort count);

        /// <summary>Intersects a line or segment with a circle or arc.</summary>
        /// <param name="mode">
        /// 0 line and circle, 1 line and arc, 2 segment and circle, 3 segment and arc; every other
        /// value as 0
        /// </param>
        /// <param name="a1">the line</param>
        /// <param name="a2">the line</param>
        /// <param name="center">the circle</param>
        /// <param name="r">the circle</param>
        /// <param name="angles">
        /// start and end of the arc, degrees; read in modes 1 and 3 only, may be null otherwise
        /// </param>
        /// <param name="out1">
        /// the points kept, the one further along the direction from a1 to a2 first; a single point in
        /// both; (0, 0) in both when none is kept, also after invalid input
        /// </param>
        /// <param name="out2">
        /// the points kept, the one further along the direction from a1 to a2 first; a single point in
        /// both; (0, 0) in both when none is kept, also after invalid input
        /// </param>
        /// <param name="count">number of points kept</param>
        /// <returns>
        /// 0 done, with or without points; 1 invalid input: r is not positive, or a1 and a2 coincide
        /// within errdist in x and in y
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_lin_arc(uint mode, [In] ref DTPOINT a1, [In] ref DTPOINT a2,
            [In] ref DTPOINT center, double r, [In] double[] angles, out DTPOINT out1, out DTPOINT
            out2, out ushort count);

        /// <summary>
        /// Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.
        /// </summary>
        /// <param name="a1">the line and the circle</param>
        /// <param name="a2">the line and the circle</param>
        /// <param name="center">the line and the circle</param>
        /// <param name="r">the line and the circle</param>
        /// <param name="out">two points, filled as out1 and out2 there: both always</param>
        /// <returns>the number of points, 0 to 2; 0 after invalid input</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dCrsLC([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            center, double r, [In, Out] DTPOINT[] @out);

        /// <summary>
        /// Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.
        /// </summary>
        /// <param name="a1">the line and the circle</param>
        /// <param name="a2">the line and the circle</param>
        /// <param name="center">the line and the circle</param>
        /// <param name="r">the line and the circle</param>
        /// <param name="out1">as there</param>
        /// <param name="out2">as there</param>
        /// <param name="count">as there</param>
        /// <returns>0 at least one point; 2071 none, for whatever reason</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_crslc([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            center, double r, out DTPOINT out1, out DTPOINT out2, out ushort count);

        /// <summary>Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.</summary>
        /// <param name="a1">the line and the arc</param>
        /// <param name="a2">the line and the arc</param>
        /// <param name="center">the line and the arc</param>
        /// <param name="r">the line and the arc</param>
        /// <param name="angles">the line and the arc</param>
        /// <param name="out1">as there</param>
        /// <param name="out2">as there</param>
        /// <param name="count">as there</param>
        /// <returns>0 at least one point; 2071 none, for whatever reason</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_crslc2([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref
            DTPOINT center, double r, [In] double[] angles, out DTPOINT out1, out DTPOINT out2, out
            ushort count);

        /// <summary>Intersects a segment with an arc, as a2d_lin_arc() in mode 3.</summary>
        /// <param name="a1">the segment and the arc</param>
        /// <param name="a2">the segment and the arc</param>
        /// <param name="center">the segment and the arc</param>
        /// <param name="r">the segment and the arc</param>
        /// <param name="angles">the segment and the arc</param>
        /// <param name="out1">as there</param>
        /// <param name="out2">as there</param>
        /// <param name="count">as there</param>
        /// <returns>as there: 0 done, with or without points; 1 invalid input</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_inslc([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            center, double r, [In] double[] angles, out DTPOINT out1, out DTPOINT out2, out ushort
            count);

        /// <summary>The same function as ca_inslc().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_inslc([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref
            DTPOINT center, double r, [In] double[] angles, out DTPOINT out1, out DTPOINT out2, out
            ushort count);

        /// <summary>Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.</summary>
        /// <param name="a1">the line and the arc</param>
        /// <param name="a2">the line and the arc</param>
        /// <param name="center">the line and the arc</param>
        /// <param name="r">the line and the arc</param>
        /// <param name="angles">the line and the arc</param>
        /// <param name="out1">as there</param>
        /// <param name="out2">as there</param>
        /// <param name="count">as there</param>
        /// <returns>as there: 0 done, with or without points; 1 invalid input</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int sb_inslc([In] ref DTPOINT a1, [In] ref DTPOINT a2, [In] ref DTPOINT
            center, double r, [In] double[] angles, out DTPOINT out1, out DTPOINT out2, out ushort
            count);

        // ---- Circles with circles

        /// <summary>Intersects two full circles, with tolerances of its own.</summary>
        /// <remarks>
        /// Circles touch when the distance of the centres differs from the sum or from the difference
        /// of the radii by at most 1e-6; the one point lies on the line of the centres, between equal
        /// radii (within 1e-12) midway. Centres nearer than 1e-6 count as concentric, without points
        /// even when the circles are equal.
        /// </remarks>
        /// <param name="c1">centre and radius of each circle; radii are not checked</param>
        /// <param name="r1">centre and radius of each circle; radii are not checked</param>
        /// <param name="c2">centre and radius of each circle; radii are not checked</param>
        /// <param name="r2">centre and radius of each circle; radii are not checked</param>
        /// <param name="out">
        /// four doubles x, y, x, y. Of two points the first lies right of the direction from c1 to c2;
        /// the last two doubles are untouched with one point, all four with none
        /// </param>
        /// <returns>the number of points, 0 to 2</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dCrs2C([In] ref DTPOINT c1, double r1, [In] ref DTPOINT c2,
            double r2, [In, Out] double[] @out);

        /// <summary>Intersects two arcs, with errdist.</summary>
        /// <remarks>
        /// Equal angles, or angles 360 apart (within 1e-8), mean the full circle. Arcs of one circle
        /// (centres and radii equal within errdist) meet only where one ends and the other begins:
        /// first the start of arc 1, then its end. An overlap has no point.
        /// </remarks>
        /// <param name="c1">centres, then radii</param>
        /// <param name="c2">centres, then radii</param>
        /// <param name="r1">centres, then radii</param>
        /// <param name="r2">centres, then radii</param>
        /// <param name="angles1">start and end of each arc, degrees</param>
        /// <param name="angles2">start and end of each arc, degrees</param>
        /// <param name="out1">
        /// the points, the one right of the direction from c1 to c2 first; a single point in both. (0,
        /// 0) in both when the ranges keep none; untouched when the circles do not meet, when arcs of
        /// one circle share no end, and when the result is 1
        /// </param>
        /// <param name="out2">
        /// the points, the one right of the direction from c1 to c2 first; a single point in both. (0,
        /// 0) in both when the ranges keep none; untouched when the circles do not meet, when arcs of
        /// one circle share no end, and when the result is 1
        /// </param>
        /// <param name="count">number of points, always written</param>
        /// <returns>
        /// 0 done, with or without points; 1 when the arcs are identical (radii, centres and angles
        /// within errdist) or a radius is not positive
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_ins2c([In] ref DTPOINT c1, [In] ref DTPOINT c2, double r1,
            double r2, [In] double[] angles1, [In] double[] angles2, out DTPOINT out1, out DTPOINT
            out2, out ushort count);

        /// <summary>
        /// As a2d_ins2c(), but a range is a full circle only when its ends are exactly equal or exactly
        /// 360 apart.
        /// </summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ins2c([In] ref DTPOINT c1, [In] ref DTPOINT c2, double r1,
            double r2, [In] double[] angles1, [In] double[] angles2, out DTPOINT out1, out DTPOINT
            out2, out ushort count);

        // ---- Arcs: construction and queries

        /// <summary>Finds the arc that runs from p1 by p2 to p3.</summary>
        /// <remarks>
        /// The angles always run anticlockwise: points that turn clockwise give the arc from p3 to p1.
        /// The points make no arc when two are nearer than errdist, or when the sines of all three
        /// angles between their sides are below 0.0001.
        /// </remarks>
        /// <param name="p1">start, a point on the arc, end</param>
        /// <param name="p2">start, a point on the arc, end</param>
        /// <param name="p3">start, a point on the arc, end</param>
        /// <param name="center">the circle; untouched when the result is 1</param>
        /// <param name="r">the circle; untouched when the result is 1</param>
        /// <param name="angles">
        /// start and end, degrees, each in [0, 360], the start above the end where the arc crosses 0;
        /// (0, 0) when the result is 1
        /// </param>
        /// <returns>0 done; 1 no arc</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_arc3p([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref DTPOINT
            p3, out DTPOINT center, out double r, [In, Out] double[] angles);

        /// <summary>
        /// Finds the arc over a chord whose height is a multiple of the chord's length.
        /// </summary>
        /// <param name="dir">
        /// 0 the arc lies left of the direction from the first to the second point; every other value
        /// right of it
        /// </param>
        /// <param name="ratio">
        /// height over chord; 0.5 is a half circle, a negative value changes the side; below 1e-6 in
        /// magnitude there is no arc
        /// </param>
        /// <param name="x1">
        /// first and second end of the chord, 0.003 units or longer; nor may the middle of the arc be
        /// nearer than 0.0015 to an end
        /// </param>
        /// <param name="y1">
        /// first and second end of the chord, 0.003 units or longer; nor may the middle of the arc be
        /// nearer than 0.0015 to an end
        /// </param>
        /// <param name="x2">
        /// first and second end of the chord, 0.003 units or longer; nor may the middle of the arc be
        /// nearer than 0.0015 to an end
        /// </param>
        /// <param name="y2">
        /// first and second end of the chord, 0.003 units or longer; nor may the middle of the arc be
        /// nearer than 0.0015 to an end
        /// </param>
        /// <param name="center">the circle; untouched when the result is 1</param>
        /// <param name="r">the circle; untouched when the result is 1</param>
        /// <param name="angles">
        /// start and end, degrees, as ca_arcan() leaves them. When the result is 1: untouched if a
        /// limit above is the reason, (0, 0) if ca_arc3p() finds no arc
        /// </param>
        /// <returns>0 done; 1 no arc</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_arc2pratio(int dir, double ratio, double x1, double y1, double
            x2, double y2, out DTPOINT center, out double r, [In, Out] double[] angles);

        /// <summary>Normalises the angles of an arc in place, keeping 360.</summary>
        /// <remarks>
        /// Ends more than 359.999999 apart, as given or afterwards, become (0, 360): so does (700, 10).
        /// Otherwise each is brought into [0, 360], an end below its start is raised by a turn, and a
        /// range that ends above 360 is lowered by one: (270, 90) becomes (-90, 90). Equal angles stay
        /// an arc without extent.
        /// </remarks>
        /// <param name="start">
        /// degrees; beyond 2^56 by the exact remainder, and two infinities of one sign become NaN
        /// </param>
        /// <param name="end">
        /// degrees; beyond 2^56 by the exact remainder, and two infinities of one sign become NaN
        /// </param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_arcan(ref double start, ref double end);

        /// <summary>Finds the ends of an arc whose angles are radians.</summary>
        /// <param name="center">the circle</param>
        /// <param name="r">the circle</param>
        /// <param name="angles">start and end in radians</param>
        /// <param name="pstart">the ends</param>
        /// <param name="pend">the ends</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_arccd([In] ref DTPOINT center, double r, [In] double[] angles,
            out DTPOINT pstart, out DTPOINT pend);

        /// <summary>Finds the box around an arc.</summary>
        /// <remarks>
        /// Besides the ends, the axis directions at -360, -270, ... 360 count that lie between them as
        /// given, without slack: normalise with a2d_StdSedeg() first. Of a range with start above end,
        /// or of equal ends, only the ends count.
        /// </remarks>
        /// <param name="center">the circle</param>
        /// <param name="r">the circle</param>
        /// <param name="start">degrees, within [-360, 360], start below end</param>
        /// <param name="end">degrees, within [-360, 360], start below end</param>
        /// <param name="pmax">
        /// upper right and lower left corner; a coordinate outside +-1e20 or NaN does not widen the
        /// box, which starts as (-1e20, -1e20) and (1e20, 1e20)
        /// </param>
        /// <param name="pmin">
        /// upper right and lower left corner; a coordinate outside +-1e20 or NaN does not widen the
        /// box, which starts as (-1e20, -1e20) and (1e20, 1e20)
        /// </param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_arcXY([In] ref DTPOINT center, double r, double start, double
            end, out DTPOINT pmax, out DTPOINT pmin);

        /// <summary>
        /// Tells whether a point, seen from the centre, lies in the direction of an arc.
        /// </summary>
        /// <remarks>
        /// The direction, or it less or more 360, must lie between start and end with 1e-6 degrees of
        /// slack. Equal angles are not the full circle. The distance is not asked: see ca_posar().
        /// </remarks>
        /// <param name="center">the centre</param>
        /// <param name="r">not read</param>
        /// <param name="start">degrees, start not above end</param>
        /// <param name="end">degrees, start not above end</param>
        /// <param name="point">the point; at the centre its direction is 0</param>
        /// <param name="ang">the direction, degrees, (-180, 180]; always written</param>
        /// <returns>0 on the arc's range, 1 off it</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_onarc([In] ref DTPOINT center, double r, double start, double
            end, [In] ref DTPOINT point, out double ang);

        /// <summary>Tells on which side of a circle a point lies, within errdist.</summary>
        /// <param name="center">the circle</param>
        /// <param name="r">the circle</param>
        /// <param name="point">the point</param>
        /// <param name="side">
        /// 0 on the circle, 65535 inside, 1 outside; untouched when the result is 1
        /// </param>
        /// <returns>0 done; 1 when r is not positive</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_posar([In] ref DTPOINT center, double r, [In] ref DTPOINT point,
            out ushort side);

        /// <summary>Turns an arc whose angles are radians about a point.</summary>
        /// <remarks>
        /// A turn of at most 1e-7 copies the arc. Otherwise a span of 0 or 2 pi, within 1e-7, becomes
        /// (0, 2 pi); the angles of others grow by rot, both are lowered by 2 pi once if one then
        /// exceeds 2 pi, and both raised once if one lies below -2 pi.
        /// </remarks>
        /// <param name="center">the circle</param>
        /// <param name="r">the circle</param>
        /// <param name="angles">start and end in radians</param>
        /// <param name="pivot">the point about which the arc turns</param>
        /// <param name="rot">radians, anticlockwise</param>
        /// <param name="out_center">the turned arc</param>
        /// <param name="out_r">the turned arc</param>
        /// <param name="out_angles">the turned arc</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_rvarc([In] ref DTPOINT center, double r, [In] double[] angles,
            [In] ref DTPOINT pivot, double rot, out DTPOINT out_center, out double out_r, [In, Out]
            double[] out_angles);

        /// <summary>
        /// Finds the angle reached after a distance along an arc. The result is an angle, not a point.
        /// </summary>
        /// <param name="center">only tested for null</param>
        /// <param name="r">radius</param>
        /// <param name="start">degrees, start not above end and at most 360 below it</param>
        /// <param name="end">degrees, start not above end and at most 360 below it</param>
        /// <param name="dist">distance from start; at or beyond the arc's length it gives end</param>
        /// <param name="ang">degrees; untouched when the result is 0</param>
        /// <returns>
        /// 1 done; 0 when center or ang is null, dist is negative, r is not positive, or the angles are
        /// not as above
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_DistAlongbyArcFromSpnt([In] ref DTPOINT center, double r, double
            start, double end, double dist, out double ang);

        /// <summary>
        /// Selects the end of an arc to keep where it is cut by an arc of the same circle.
        /// </summary>
        /// <remarks>
        /// The end is the start of elem when the flag of ca_SetStartendFlg() is 1, else its end; the
        /// other one when its word has PLANEGEO_ATTR_REVERSED. A cutting arc whose angles are 360 apart
        /// (within 1e-8) does not ask the flag: it counts as 0. Equal angles of cut are the full circle
        /// as for a2d_ChkDegr(), and ask it.
        /// </remarks>
        /// <param name="elem">the arc whose end is wanted</param>
        /// <param name="cut">
        /// the cutting arc; when its word has exactly one of PLANEGEO_ATTR_REVERSED and
        /// PLANEGEO_ATTR_CLOCKWISE, its range runs from its end to its start
        /// </param>
        /// <param name="out">the end; untouched unless the result is 1</param>
        /// <returns>
        /// 1 chosen; 0 that end is not on cut (see a2d_ChkDegr()); -1 the centres (in x or y) or the
        /// radii differ by errdist or more
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_InsDc([In] ref DTARC elem, [In] ref DTARC cut, out DTPOINT
            @out);

        /// <summary>Merges runs of points whose segments keep nearly the same direction.</summary>
        /// <remarks>
        /// A run takes in the segments whose direction differs from that of its first one by at most
        /// tol (plus errdist, taken as degrees); the points between its ends are removed. Directions in
        /// (-180, 180] are subtracted as they are: 179 and -179 do not merge.
        /// Cost: one pass over the points.
        /// </remarks>
        /// <param name="n">
        /// number of points in the array, which is not checked; below 3, also negative, it is returned
        /// as it is
        /// </param>
        /// <param name="list">
        /// address of the address of n points; those kept move to the front in their order, what
        /// follows them is undefined
        /// </param>
        /// <param name="tol">degrees, [0.1, 5.0]; a NaN merges nothing</param>
        /// <returns>the new number of points; -1 when the array is null or tol out of range</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_AutoUnionNrb(int n, ref IntPtr list, double tol);

        // ---- Circle tangents

        /// <summary>Finds where the tangents from a point touch a circle.</summary>
        /// <param name="center">the circle</param>
        /// <param name="r">the circle</param>
        /// <param name="point">
        /// the point; on or inside the circle, exactly and without a tolerance, it has no tangents
        /// </param>
        /// <param name="out1">
        /// the contact right of the direction from the centre to the point; (0, 0) without tangents
        /// </param>
        /// <param name="out2">the contact left of it; (0, 0) without tangents</param>
        /// <param name="count">0 or 2</param>
        /// <returns>always 0; the outcome is count</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_pctan([In] ref DTPOINT center, double r, [In] ref DTPOINT point,
            out DTPOINT out1, out DTPOINT out2, out ushort count);

        /// <summary>Finds the common tangents of two circles.</summary>
        /// <remarks>
        /// There are none when a radius is not positive, the centres coincide within errdist in x and
        /// in y, one circle lies inside the other, or they touch from inside: the squared distance of
        /// the centres and the squared difference of the radii then differ by less than errdist, as
        /// squares. Circles that overlap or touch from outside have the outer pair only.
        /// </remarks>
        /// <param name="c1">the circles</param>
        /// <param name="r1">the circles</param>
        /// <param name="c2">the circles</param>
        /// <param name="r2">the circles</param>
        /// <param name="t1">
        /// the outer tangents t1-t2 and t3-t4: the first with both circles on its left, seen from c1 to
        /// c2, the second with both on its right
        /// </param>
        /// <param name="t2">
        /// the outer tangents t1-t2 and t3-t4: the first with both circles on its left, seen from c1 to
        /// c2, the second with both on its right
        /// </param>
        /// <param name="t3">
        /// the outer tangents t1-t2 and t3-t4: the first with both circles on its left, seen from c1 to
        /// c2, the second with both on its right
        /// </param>
        /// <param name="t4">
        /// the outer tangents t1-t2 and t3-t4: the first with both circles on its left, seen from c1 to
        /// c2, the second with both on its right
        /// </param>
        /// <param name="t5">
        /// the inner tangents: t5-t6 touches circle 1 right of the direction from c1 to c2 and circle 2
        /// left of it, t7-t8 the reverse. Odd ones are on circle 1, even ones on circle 2; only the
        /// points of the lines counted are written
        /// </param>
        /// <param name="t6">
        /// the inner tangents: t5-t6 touches circle 1 right of the direction from c1 to c2 and circle 2
        /// left of it, t7-t8 the reverse. Odd ones are on circle 1, even ones on circle 2; only the
        /// points of the lines counted are written
        /// </param>
        /// <param name="t7">
        /// the inner tangents: t5-t6 touches circle 1 right of the direction from c1 to c2 and circle 2
        /// left of it, t7-t8 the reverse. Odd ones are on circle 1, even ones on circle 2; only the
        /// points of the lines counted are written
        /// </param>
        /// <param name="t8">
        /// the inner tangents: t5-t6 touches circle 1 right of the direction from c1 to c2 and circle 2
        /// left of it, t7-t8 the reverse. Odd ones are on circle 1, even ones on circle 2; only the
        /// points of the lines counted are written
        /// </param>
        /// <param name="count">number of lines: 0, 2 or 4</param>
        /// <returns>0 done; 1 no tangents</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_cctan([In] ref DTPOINT c1, double r1, [In] ref DTPOINT c2,
            double r2, out DTPOINT t1, out DTPOINT t2, out DTPOINT t3, out DTPOINT t4, out DTPOINT
            t5, out DTPOINT t6, out DTPOINT t7, out DTPOINT t8, out ushort count);

        // ---- Polynomial solvers

        /// <summary>Solves c[0] x + c[1] = 0.</summary>
        /// <param name="c">two coefficients</param>
        /// <param name="x">
        /// the root, one double without an imaginary part; untouched unless the result is 1
        /// </param>
        /// <returns>
        /// 1 one root; 0 both coefficients are zero, every x is a solution; -1 only c[0] is zero, there
        /// is no solution
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaSolveLinerEquation([In] double[] c, out double x);

        /// <summary>Solves a quadratic equation.</summary>
        /// <param name="c">three coefficients</param>
        /// <param name="out">
        /// two pairs: real roots greater first, else the conjugate with the positive imaginary part
        /// first; untouched when the result is -1
        /// </param>
        /// <returns>2 real roots (a double root counts as two), 0 a conjugate pair, -1</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaSolveEquationOf2ndD([In] double[] c, [In, Out] double[] @out);

        /// <summary>Solves a cubic equation.</summary>
        /// <remarks>
        /// Three real roots come in the order of the cosines of a third of an angle, the greatest
        /// first. Where the discriminant is exactly zero, the simple root is written twice and then the
        /// double root once: 1, 1, -2 are reported as -2, -2, 1. Close to such a case rounding can take
        /// the argument of the arc cosine beyond 1; the roots are then NaN.
        /// </remarks>
        /// <param name="c">four coefficients</param>
        /// <param name="out">
        /// three pairs: with one real root that one first, then the conjugate with the imaginary part
        /// of positive sign in Cardano's formula; untouched when the result is -1
        /// </param>
        /// <returns>3 real roots, 1 real root and a conjugate pair, -1</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaSolveEquationOf3rdD([In] double[] c, [In, Out] double[] @out);

        /// <summary>Solves a quartic equation.</summary>
        /// <remarks>
        /// The roots are those of two quadratic factors, each in the order of amaSolveEquationOf2ndD().
        /// Without a linear term in the shifted quartic (exactly zero, or below 1e-5 and 1e-12 of the
        /// quadratic term) it is solved as biquadratic, and also where the resolvent cubic gives no
        /// factors. A linear term just above those bounds is lost to rounding: roots and their count
        /// can then be wrong, and where the resolvent's roots are NaN so are all four
        /// (docs/behaviours.md).
        /// </remarks>
        /// <param name="c">five coefficients</param>
        /// <param name="out">
        /// four pairs; a factor with real roots before one without; untouched when the result is -1
        /// </param>
        /// <returns>
        /// 4, 2 or 0, the roots reported as real; -1. Real roots computed through complex arithmetic
        /// keep a small imaginary part and are not counted
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaSolveEquationOf4thD([In] double[] c, [In, Out] double[] @out);

        /// <summary>Returns the principal square root of a complex number.</summary>
        /// <param name="z">any number</param>
        /// <returns>
        /// the root: its real part is not negative, its imaginary part has the sign of that of z. A
        /// negative real number gives a positive imaginary root
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern DTCOMPLEX ama_c_sqrt(DTCOMPLEX z);

        /// <summary>
        /// Searches one real root by Newton's method, from minus the sum of the coefficients over n +
        /// 1.
        /// </summary>
        /// <remarks>
        /// The search ends with the first of 200 steps that is at most 1e-16 of the largest
        /// coefficient, or if there is none with the first that is at most 1e-6 of it: not of the root,
        /// so that polynomials with large coefficients are left early. Where the slope is exactly zero
        /// a step of second order is made; where that has no real value the step is zero, and the
        /// stationary point counts as the root.
        /// Cost: at most 200 steps, each in proportion to n.
        /// </remarks>
        /// <param name="c">n + 1 coefficients</param>
        /// <param name="n">degree, 2 to 200</param>
        /// <param name="x">the root, the last iterate when the result is -2; untouched when -1</param>
        /// <returns>0 found; -1 also for a degree out of range; -2 no step was small enough</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaNewtonRaphson([In] double[] c, int n, out double x);

        /// <summary>
        /// Finds all roots by quadratic factors (Bairstow), up to degree four in closed form.
        /// </summary>
        /// <remarks>
        /// Not reliable above: the best residual is never reset, and a factor may be found twice. All
        /// roots were right, mirrored ones aside, for 97 % of polynomials with random coefficients of
        /// degree 5, 63 % of degree 6, 7 % of degree 10, none of degree 19. Take amaDKA() there.
        /// Cost: at most 100 steps for each factor, each in proportion to the degree left.
        /// </remarks>
        /// <param name="c">n + 1 coefficients</param>
        /// <param name="n">degree, 1 to 200</param>
        /// <param name="out">
        /// n pairs; degree 1: one double. Above degree 4 the last factor comes first, the Newton root
        /// of an odd degree last; a discriminant down to -0.0001 counts as real; the second root of a
        /// complex pair is (-re, im), not the conjugate
        /// </param>
        /// <returns>
        /// 0 done; -1 also for a degree out of range; -2 a factor was not found, which x^2 + x + 1 as
        /// the first one never is; -3 the Newton root was not found. After -2 and -3 out is untouched
        /// but for the last pair of an odd degree: the Newton root, or after -3 its last iterate
        /// without an imaginary part
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaBairstaw([In] double[] c, int n, [In, Out] double[] @out);

        /// <summary>
        /// Finds all roots at once (Durand-Kerner, from Aberth's circle about the origin).
        /// </summary>
        /// <remarks>
        /// Sweeps end when all values met in one are below eps, or with the budget. Roots that repeat
        /// themselves bit by bit are carried to its end at once; without that, 10^7 / (n (n + 16))
        /// sweeps, but at least 1000, above degree 126 at least 1.8 10^7 / (n (n + 16)), are as a
        /// budget used up. A NaN does not count as a large value: where all are NaN, as with c[2] to
        /// c[n] all zero, so are the roots, and the result is 0.
        /// Cost: some n (n + 16) complex products a sweep.
        /// </remarks>
        /// <param name="c">n + 1 coefficients; c[1] to c[n] are divided by c[0]</param>
        /// <param name="n">
        /// degree, up to 200; below 1 nothing is written, and the result is 0 if eps &gt; 0 and maxiter &gt;=
        /// 0, else -1
        /// </param>
        /// <param name="eps">bound of |value| after that division</param>
        /// <param name="maxiter">budget of floor(maxiter) + 1 sweeps; none if negative or NaN</param>
        /// <param name="out">n pairs; imaginary parts below the root of eps become 0</param>
        /// <returns>
        /// 0 converged, or else at least one imaginary part became 0; -1 neither, or a degree above 200
        /// (c and out are untouched then)
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int amaDKA([In, Out] double[] c, int n, double eps, double maxiter,
            [In, Out] double[] @out);

        // ---- Ellipses: record and parameter conversion

        /// <summary>Finds the end points of an elliptic arc.</summary>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="angles">two doubles, the parametric angles of start and end</param>
        /// <param name="points">four doubles: start x, start y, end x, end y</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elpcd([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, [In, Out] double[] points);

        /// <summary>
        /// Finds the parametric angle of a point: of the place where the ray from the centre meets the
        /// ellipse once both are stretched so that the ellipse is a circle.
        /// </summary>
        /// <remarks>
        /// The point need not lie on the ellipse. With a negative axis the angle is that of the
        /// stretched point itself.
        /// </remarks>
        /// <param name="point">the point; the centre gives -rot</param>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="angle">
        /// degrees, a direction in [0, 360] less rot and not reduced: 350 on an ellipse turned by 30
        /// comes out as -10
        /// </param>
        /// <returns>0 done; -1 when an axis is shorter than errdist, angle is then untouched</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_elpdeg([In] ref DTPOINT point, [In] ref DTPOINT center, double
            a, double b, double rot, out double angle);

        /// <summary>
        /// Finds axes and rotation of the ellipse through the ends of two conjugate semi-diameters
        /// (parameters 90 degrees apart).
        /// </summary>
        /// <remarks>
        /// Semi-diameters whose dot product is below 1e-6 count as perpendicular and are the semi-axes;
        /// they are exchanged, and 90 is added to the rotation, when the second is the longer.
        /// </remarks>
        /// <param name="p">ends of the two semi-diameters</param>
        /// <param name="q">ends of the two semi-diameters</param>
        /// <param name="center">centre of the ellipse</param>
        /// <param name="a">full axis lengths, a never below b</param>
        /// <param name="b">full axis lengths, a never below b</param>
        /// <param name="rot">
        /// degrees, [0, 360) in general, up to 450 for the perpendicular case
        /// </param>
        /// <returns>
        /// 0 done; -1 when the cross product of the semi-diameters is below 1e-6 (they lie on one
        /// line), the three outputs are then 0
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dGetEllipsDt([In] ref DTPOINT p, [In] ref DTPOINT q, [In] ref
            DTPOINT center, out double a, out double b, out double rot);

        /// <summary>Converts between parametric and polar angle.</summary>
        /// <param name="mode">0 parametric to polar, 1 polar to parametric</param>
        /// <param name="ellipse">only the axes are read</param>
        /// <param name="parametric">degrees; read in mode 0, written in mode 1, in [0, 360]</param>
        /// <param name="polar">degrees; written in mode 0, in [0, 360], read in mode 1</param>
        /// <returns>0 done; -1 for another mode, nothing is then written</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ElpAngle(short mode, [In] ref DTELLIPSE ellipse, ref double
            parametric, ref double polar);

        /// <summary>Finds the place of an angle on an ellipse as an offset from the centre.</summary>
        /// <param name="mode">0 the angle is parametric, 1 it is polar</param>
        /// <param name="ellipse">
        /// axes and rotation are read; a rotation of up to 1e-6 to either side of 0 is not applied
        /// </param>
        /// <param name="angle">degrees</param>
        /// <param name="offset">the point less the centre, which callers add themselves</param>
        /// <returns>0 done; -1 for another mode, offset is then untouched</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ElpCordXY(short mode, [In] ref DTELLIPSE ellipse, double angle,
            out DTPOINT offset);

        // ---- Ellipses: queries and transforms

        /// <summary>Finds the foci of an ellipse from its semi-axes.</summary>
        /// <remarks>
        /// The lengths are taken as they are: unlike elsewhere, pass half the axes to get the foci. A
        /// circle has both in the centre.
        /// </remarks>
        /// <param name="center">centre of the ellipse</param>
        /// <param name="a">semi-axes; with b longer than a the foci are NaN, and 0 is returned</param>
        /// <param name="b">semi-axes; with b longer than a the foci are NaN, and 0 is returned</param>
        /// <param name="rot">degrees</param>
        /// <param name="focus1">centre - c (cos rot, sin rot), with c^2 = a^2 - b^2</param>
        /// <param name="focus2">centre + c (cos rot, sin rot)</param>
        /// <returns>
        /// 0 done; -1 when c - a exceeds 1e-6, as with a negative a, the outputs are then untouched
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int GetElpFocusPnt([In] ref DTPOINT center, double a, double b, double
            rot, out DTPOINT focus1, out DTPOINT focus2);

        /// <summary>
        /// Finds the tangent at a point of an ellipse about the origin whose first axis lies along x.
        /// </summary>
        /// <param name="ratio">
        /// second semi-axis over first; 0 is not checked for and divides by zero
        /// </param>
        /// <param name="point">the point</param>
        /// <param name="tangent">
        /// anticlockwise, not of unit length: (-y / ratio, x ratio); untouched when the result is 1
        /// </param>
        /// <returns>0 done; 1 for a null pointer or a ratio above 1</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_GetTangentVectorOnElp(double ratio, [In] ref DTPOINT point, out
            DTPOINT tangent);

        /// <summary>Finds the tangent at a point of an ellipse.</summary>
        /// <remarks>
        /// The first axis is to be the longer one: with a longer second axis the vector is that of the
        /// ellipse with its axes exchanged.
        /// </remarks>
        /// <param name="ellipse">start and end are not read</param>
        /// <param name="point">the point, in the plane</param>
        /// <param name="tangent">
        /// anticlockwise, not of unit length; untouched when the result is 1
        /// </param>
        /// <returns>0 done; 1 for a null pointer or an axis of zero or below</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_GetTangentVectorOnDTELLIPSE([In] ref DTELLIPSE ellipse, [In]
            ref DTPOINT point, out DTPOINT tangent);

        /// <summary>
        /// Tells whether the parametric angle of a point lies on an elliptic arc; the point need not
        /// lie on the curve.
        /// </summary>
        /// <remarks>
        /// The arc runs anticlockwise from start to end, both with 1e-8 degrees of slack; ends that are
        /// equal after reduction are the whole turn.
        /// </remarks>
        /// <param name="ellipse">the arc</param>
        /// <param name="point">the point</param>
        /// <returns>0 on the arc; 1 off it, or when an axis is shorter than errdist</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int CheckEllipseArcAngle([In] ref DTELLIPSE ellipse, [In] ref DTPOINT
            point);

        /// <summary>Tells whether an infinite line cuts, touches or misses a whole ellipse.</summary>
        /// <remarks>
        /// A line whose two points differ by at most 1e-6 across an axis runs along that axis and
        /// touches within 0.0001 units; any other touches where the discriminant of y = m x + c against
        /// the ellipse, a squared length, is within 0.0001 of zero.
        /// </remarks>
        /// <param name="line">two points of the line</param>
        /// <param name="ellipse">start and end are not read</param>
        /// <returns>0 misses, 1 touches, 2 cuts</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_hanel([In] ref DTLINE line, [In] ref DTELLIPSE ellipse);

        /// <summary>Tells whether a point lies on an elliptic arc.</summary>
        /// <remarks>
        /// It lies on the curve when its distances from the foci add up to the longer axis within 1e-6,
        /// and on the arc when pin_chk() finds its direction between those of the arc's ends, where
        /// local components below 1e-7 count as zero. Start and end both 0 (or 0 and 360) are the whole
        /// turn; other equal angles are that one direction.
        /// </remarks>
        /// <param name="center">the arc</param>
        /// <param name="a">the arc</param>
        /// <param name="b">the arc</param>
        /// <param name="rot">the arc</param>
        /// <param name="angles">the arc</param>
        /// <param name="point">the point; one with a NaN counts as on the arc</param>
        /// <returns>
        /// 0 on the arc; 1 off the curve or outside the arc; -1 an axis is 1e-8 or shorter
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_onelp([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, [In] ref DTPOINT point);

        /// <summary>
        /// Tells whether the direction of a point lies in a polar range, with 1e-8 degrees of slack.
        /// </summary>
        /// <remarks>
        /// The direction is that of ca_vcrad() less rot, raised by a turn where it is negative. A start
        /// above the end crosses 0. Ends both within 1e-6 of 0 are the whole turn. A negative start is
        /// raised by a turn, and a negative end with it; a start that stays negative, or an end below 0
        /// on its own, holds nothing.
        /// </remarks>
        /// <param name="center">centre of the ellipse</param>
        /// <param name="rot">rotation of its first axis, degrees</param>
        /// <param name="range">two doubles, start and end, polar, measured from the first axis</param>
        /// <param name="point">the point</param>
        /// <returns>0 in the range, 1 outside; 0 for a direction that is NaN</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int pin_chk([In] ref DTPOINT center, double rot, [In] double[] range,
            [In] ref DTPOINT point);

        /// <summary>
        /// Tells whether a point lies inside, on or outside an ellipse, by the sum of its distances
        /// from the foci, within 1e-6.
        /// </summary>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="point">the point</param>
        /// <param name="position">
        /// 0 on the ellipse, 1 outside, 65535 inside; 0 when the result is -1
        /// </param>
        /// <returns>0 done; -1 an axis is 1e-8 or shorter</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_posel([In] ref DTPOINT center, double a, double b, double rot,
            [In] ref DTPOINT point, out ushort position);

        /// <summary>Scales an ellipse along y: its image under (x, y) -&gt; (x, k y).</summary>
        /// <remarks>
        /// The result's first axis is never the shorter one; its rotation lies in [0, 450], its arc
        /// angles are those of a2d_elpdeg() for the images of the ends, not reduced. A negative k
        /// mirrors, and the arc then runs from its end to its start.
        /// </remarks>
        /// <param name="ellipse">the ellipse</param>
        /// <param name="k">the factor</param>
        /// <param name="result">may be ellipse; its attribute word is not written</param>
        /// <returns>
        /// 0 done; -1 when an axis of ellipse is not longer than errdist (nothing is written) or one of
        /// the image is shorter than errdist (centre, axes and rotation are written, start and end
        /// untouched)
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_elp_trans([In] ref DTELLIPSE ellipse, double k, out DTELLIPSE
            result);

        /// <summary>Turns an ellipse about a point.</summary>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="angles">the ellipse</param>
        /// <param name="pivot">the point</param>
        /// <param name="angle">degrees, anticlockwise</param>
        /// <param name="out_center">
        /// the turned ellipse; axes and angles are unchanged, and the rotation is moved by one turn at
        /// most towards [0, 360]
        /// </param>
        /// <param name="out_a">
        /// the turned ellipse; axes and angles are unchanged, and the rotation is moved by one turn at
        /// most towards [0, 360]
        /// </param>
        /// <param name="out_b">
        /// the turned ellipse; axes and angles are unchanged, and the rotation is moved by one turn at
        /// most towards [0, 360]
        /// </param>
        /// <param name="out_rot">
        /// the turned ellipse; axes and angles are unchanged, and the rotation is moved by one turn at
        /// most towards [0, 360]
        /// </param>
        /// <param name="out_angles">
        /// the turned ellipse; axes and angles are unchanged, and the rotation is moved by one turn at
        /// most towards [0, 360]
        /// </param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_rvelp([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, [In] ref DTPOINT pivot, double angle, out DTPOINT out_center, out
            double out_a, out double out_b, out double out_rot, [In, Out] double[] out_angles);

        /// <summary>Mirrors an ellipse in a line.</summary>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="angles">the ellipse</param>
        /// <param name="line_p1">
        /// two points of the line; equal points are not checked for and give a centre and rotation that
        /// are not finite
        /// </param>
        /// <param name="line_p2">
        /// two points of the line; equal points are not checked for and give a centre and rotation that
        /// are not finite
        /// </param>
        /// <param name="out_center">the mirrored centre and the same axes</param>
        /// <param name="out_a">the mirrored centre and the same axes</param>
        /// <param name="out_b">the mirrored centre and the same axes</param>
        /// <param name="out_rot">
        /// direction of the mirrored first axis by the rule of ca_vcrad(), [0, 360]
        /// </param>
        /// <param name="out_angles">
        /// 360 less the old end, 360 less the old start; both lowered by 360 where one exceeds
        /// 360.00000001
        /// </param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_vmelp([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, [In] ref DTPOINT line_p1, [In] ref DTPOINT line_p2, out DTPOINT
            out_center, out double out_a, out double out_b, out double out_rot, [In, Out] double[]
            out_angles);

        /// <summary>Scales an ellipse about its centre until it meets a point.</summary>
        /// <remarks>
        /// The ellipse is measured along the direction to the point mirrored in its first axis (along
        /// the horizontal where the point's x is within 1e-8 of the centre's): it meets the point when
        /// it is a circle, the point lies level with the centre, or the rotation is a multiple of 90
        /// and the point not straight above or below the centre.
        /// </remarks>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="angles">the ellipse</param>
        /// <param name="point">the point; at the centre it gives zero axes</param>
        /// <param name="out_a">the scaled axes; not finite when an axis is zero</param>
        /// <param name="out_b">the scaled axes; not finite when an axis is zero</param>
        /// <param name="out_center">as given</param>
        /// <param name="out_rot">as given</param>
        /// <param name="out_angles">as given</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_samel([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, [In] ref DTPOINT point, out DTPOINT out_center, out double out_a,
            out double out_b, out double out_rot, [In, Out] double[] out_angles);

        // ---- Ellipses: length and area

        /// <summary>
        /// The integrand of arc length: with A and B the half axes of the parameter table, sqrt(B^2
        /// cos^2 t + A^2 sin^2 t), the length per radian of the parameter.
        /// </summary>
        /// <param name="deg">parametric angle t</param>
        /// <param name="value">drawing units</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_lengelp(double deg, out double value);

        /// <summary>
        /// The integrand of sector area: with A and B the half axes of the parameter table, A^2 B^2 /
        /// (2 (B^2 cos^2 t + A^2 sin^2 t)), the area per radian of the polar angle.
        /// </summary>
        /// <param name="deg">polar angle t</param>
        /// <param name="value">
        /// drawing units squared; NaN when an axis is zero and the angle lies along the other, or both
        /// are zero
        /// </param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_AreaElp(double deg, out double value);

        /// <summary>
        /// Integrates over a range of degrees, with respect to the angle in radians.
        /// </summary>
        /// <remarks>
        /// The Simpson rule starts with an interval per degree (at least 4, an even count) and halves
        /// them until two sums differ by at most 1e-6, absolutely, or the interval falls below 0.001
        /// degrees. A range below 0.004 degrees gives 0.
        /// Cost: a call of the integrand per degree at first, and as many again as there were with each
        /// halving. The library's own integrands are summed in closed form as a rule, in constant time.
        /// </remarks>
        /// <param name="integrand">
        /// called at the lower limit, at the upper limit, then at all interior points of each pass in
        /// rising order, up to 2000 times per degree of the range; the library may evaluate its own
        /// integrands by other means
        /// </param>
        /// <param name="lower">degrees</param>
        /// <param name="upper">degrees</param>
        /// <param name="result">the integral; 0 unless the return value is 0</param>
        /// <returns>
        /// 0 done; -1 lower exceeds upper (nothing is called); -2 not settled when the interval count
        /// would pass 2^31 - 1: a range above 2^30 degrees, an infinite or a NaN limit get there at
        /// once, and with the library's own integrands a range above 36000 degrees, or above 1440 where
        /// one half axis exceeds four times the other; else the integrand's code
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_Simpson(PLANEGEO_INTEGRAND integrand, double lower, double
            upper, out double result);

        /// <summary>
        /// Moves one limit of a range until the integral over it is within 1e-6 of a value.
        /// </summary>
        /// <remarks>
        /// The limit moves by 10 degrees at first (by 5 if the range is too short) and by half as much
        /// after each change of direction. Each range is integrated as by ca_Simpson(); one whose lower
        /// limit has passed the upper counts as 0, so does one that did not settle.
        /// Cost: that of ca_Simpson() for each range on the way.
        /// </remarks>
        /// <param name="integrand">see ca_Simpson()</param>
        /// <param name="lower">
        /// degrees; only the moved one is written, and only when the value was found
        /// </param>
        /// <param name="upper">
        /// degrees; only the moved one is written, and only when the value was found
        /// </param>
        /// <param name="wanted">the integral to reach</param>
        /// <param name="which">0 moves the lower limit, any other value the upper</param>
        /// <returns>
        /// 0 found; -2 found, but a range on the way did not settle; -1 given up: ten ranges in a row
        /// gave nothing or no change above 1e-6, the integral is not finite and the limit no longer
        /// changes, wanted is infinite, or 2^28 samples are spent (the range has then grown by at most
        /// 80 turns), or with the library's own integrands 2^24 in 192 ranges that only samples decide;
        /// else the integrand's code
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_Simpson2(PLANEGEO_INTEGRAND integrand, ref double lower, ref
            double upper, double wanted, int which);

        /// <summary>Measures an elliptic arc.</summary>
        /// <remarks>
        /// The arc's angles are taken as the directions of its ends (see ca_ElpAngle()), and the speed
        /// is integrated between these numbers as if they were parameters: exact for whole, half and
        /// quarter turns and for circles. A span above 359.999999 degrees is the whole turn, equal ends
        /// are an empty arc. The directions lie in [0, 360], so a whole turn is safe as (0, 360) only;
        /// see docs/behaviours.md.
        /// Cost: that of ca_Simpson() with the library's own integrand.
        /// </remarks>
        /// <param name="ellipse">
        /// start, end and the ratio of the axes are read; the size comes from the parameter table
        /// </param>
        /// <param name="length">within about 1e-6; 0 for an arc below 0.004 degrees</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ElpLen([In] ref DTELLIPSE ellipse, out double length);

        /// <summary>Trims or extends an elliptic arc to a length, by moving one end.</summary>
        /// <remarks>
        /// Unlike ca_ElpLen() this integrates between the parametric angles. The search is that of
        /// ca_Simpson2(); the range found is then brought to an end of at most 360, one above
        /// 359.999999 degrees to (0, 360), and of it the moved angle is stored.
        /// Cost: that of ca_Simpson2() with the library's own integrand.
        /// </remarks>
        /// <param name="ellipse">
        /// start and end are read, the moved one is written; the half axes come from the parameter
        /// table
        /// </param>
        /// <param name="wanted">length, drawing units, reached within 1e-6</param>
        /// <param name="which">0 moves the start, any other value the end</param>
        /// <returns>0 done; -1 the search gave up, the record is untouched</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ElpLen2(ref DTELLIPSE ellipse, double wanted, int which);

        // ---- Ellipses: chains of circular arcs

        /// <summary>
        /// Replaces an elliptic arc by at most five arcs of the four-centre oval. Unlike other
        /// functions it takes half axes and radians.
        /// </summary>
        /// <remarks>
        /// Half axes that differ by at most 1e-7 give one arc of radius a with the angles as passed,
        /// the rotation not applied. A span within 0.001 of 2 pi is the whole turn: four arcs, the
        /// first at the end of the longer axis. Else the ends are cut by the directions from their
        /// arcs' centres to points of the circle about the longer axis, not of the ellipse, and arcs of
        /// at most 1e-7 go.
        /// Half axes of zero or below, numbers that are not finite, and angles beyond 1e15, which
        /// cannot be reduced to a turn, give arcs without meaning or none.
        /// </remarks>
        /// <param name="center">centre of the ellipse</param>
        /// <param name="a">half axes; the longer one comes to lie along the rotation</param>
        /// <param name="b">half axes; the longer one comes to lie along the rotation</param>
        /// <param name="angles">
        /// two doubles, start and end, parametric from the first axis, radians
        /// </param>
        /// <param name="rot">radians</param>
        /// <param name="out_centers">room for five arcs each; angles in radians</param>
        /// <param name="out_radii">room for five arcs each; angles in radians</param>
        /// <param name="out_angles">room for five arcs each; angles in radians</param>
        /// <param name="count">0 to 5 arcs; with 0 nothing else is written</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elips([In] ref DTPOINT center, double a, double b, [In] double[]
            angles, double rot, [In, Out] DTPOINT[] out_centers, [In, Out] double[] out_radii, [In,
            Out] double[] out_angles, out uint count);

        /// <summary>Replaces an elliptic arc by at most five arcs of the four-centre oval.</summary>
        /// <remarks>
        /// The oval goes through the ends of both axes and elsewhere runs outside the ellipse, by up to
        /// 2.8 % of the longer half axis (where the axes are as 1 to 0.22; 1.9 % at 1 to 0.5, 0.6 % at
        /// 1 to 0.8). Joints are tangent. The chain starts and ends at the points of the oval next to
        /// the ellipse's own, unlike that of ca_elips(), and lies along the ellipse whichever axis is
        /// the longer. Axes equal within errdist give one arc of the mean radius.
        /// </remarks>
        /// <param name="center">
        /// the arc; start and end equal after reduction are the whole turn: four arcs, the first at the
        /// end of the longer axis
        /// </param>
        /// <param name="a">
        /// the arc; start and end equal after reduction are the whole turn: four arcs, the first at the
        /// end of the longer axis
        /// </param>
        /// <param name="b">
        /// the arc; start and end equal after reduction are the whole turn: four arcs, the first at the
        /// end of the longer axis
        /// </param>
        /// <param name="rot">
        /// the arc; start and end equal after reduction are the whole turn: four arcs, the first at the
        /// end of the longer axis
        /// </param>
        /// <param name="angles">
        /// the arc; start and end equal after reduction are the whole turn: four arcs, the first at the
        /// end of the longer axis
        /// </param>
        /// <param name="out_centers">
        /// room for five arcs each; degrees, each range normalised as by a2d_StdSedeg()
        /// </param>
        /// <param name="out_radii">
        /// room for five arcs each; degrees, each range normalised as by a2d_StdSedeg()
        /// </param>
        /// <param name="out_angles">
        /// room for five arcs each; degrees, each range normalised as by a2d_StdSedeg()
        /// </param>
        /// <param name="count">1 to 5 arcs; 0 when the result is -1</param>
        /// <returns>
        /// 0 done; -1 when an axis is not above errdist or a number is not finite, the outputs but
        /// count are then untouched
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elip1([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, [In, Out] DTPOINT[] out_centers, [In, Out] double[] out_radii,
            [In, Out] double[] out_angles, out ushort count);

        /// <summary>
        /// Replaces an elliptic arc by a tangent-continuous chain of circular arcs within a tolerance.
        /// </summary>
        /// <remarks>
        /// No point of the chain lies further than tol from the arc, and none of the arc from the
        /// chain. The chain starts and ends on the arc's ends and goes through every end of an axis on
        /// the way, there square to the axis. Each quadrant has as few arcs as such a chain allows, and
        /// their number once fixed, the distance is made as small as it can be. Axes that differ by at
        /// most 2 tol give a whole ellipse as one circle.
        /// Cost: in proportion to the number of arcs, some tenfold for a tolerance a thousand times
        /// finer.
        /// </remarks>
        /// <param name="center">
        /// the arc; start and end equal after reduction are the whole turn, which is closed and begins
        /// at the end of an axis at or before the start
        /// </param>
        /// <param name="a">
        /// the arc; start and end equal after reduction are the whole turn, which is closed and begins
        /// at the end of an axis at or before the start
        /// </param>
        /// <param name="b">
        /// the arc; start and end equal after reduction are the whole turn, which is closed and begins
        /// at the end of an axis at or before the start
        /// </param>
        /// <param name="rot">
        /// the arc; start and end equal after reduction are the whole turn, which is closed and begins
        /// at the end of an axis at or before the start
        /// </param>
        /// <param name="angles">
        /// the arc; start and end equal after reduction are the whole turn, which is closed and begins
        /// at the end of an axis at or before the start
        /// </param>
        /// <param name="tol">drawing units; more than half the shorter axis counts as that</param>
        /// <param name="out_centers">
        /// room for count arcs each; degrees, each range normalised as by a2d_StdSedeg(); untouched
        /// unless the result is 0
        /// </param>
        /// <param name="out_radii">
        /// room for count arcs each; degrees, each range normalised as by a2d_StdSedeg(); untouched
        /// unless the result is 0
        /// </param>
        /// <param name="out_angles">
        /// room for count arcs each; degrees, each range normalised as by a2d_StdSedeg(); untouched
        /// unless the result is 0
        /// </param>
        /// <param name="count">
        /// room in arcs, 0 to ask for the number (the arrays may then be null); the number of arcs,
        /// also when the result is -2; 0 for -1 and -3
        /// </param>
        /// <returns>
        /// 0 done; -1 when an axis is not above errdist, tol not above 0 or a number not finite; -2
        /// when there are more arcs than room; -3 when a quadrant takes more than 512 arcs, or tol or
        /// half the shorter axis is below 4e-15 of the largest radius of curvature
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elip2([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, double tol, [In, Out] DTPOINT[] out_centers, [In, Out] double[]
            out_radii, [In, Out] double[] out_angles, ref ushort count);

        // ---- Ellipses: division into points

        /// <summary>
        /// Finds a division point to 0.001 degrees, from a table kept between calls.
        /// </summary>
        /// <remarks>
        /// Meant to be asked for k = 1, 2, ..., n in turn. The first call measures the arc and notes,
        /// in steps of 0.001 degrees, where each piece is full, to within the rounding of the sum; the
        /// calls that follow read it; the call with k = n releases the table, and so does one with k &gt;
        /// n. The table serves arcs whose centre and axes agree within 1e-6, rotation and angles within
        /// 1e-8, and whose n is equal: the piece length and the angle come from it, centre, axes and
        /// rotation from the call. Any other arc replaces it. A table is never shared: do not divide on
        /// two threads at once.
        /// Cost: the first call takes memory for n doubles, and time in proportion to n or, where
        /// pieces are short, to the number of steps; the others are constant.
        /// </remarks>
        /// <param name="center">the ellipse: full axis lengths, degrees</param>
        /// <param name="a">the ellipse: full axis lengths, degrees</param>
        /// <param name="b">the ellipse: full axis lengths, degrees</param>
        /// <param name="rot">the ellipse: full axis lengths, degrees</param>
        /// <param name="angles">
        /// start and end; a span below 0.004 degrees gives a length of 0 and the end as every point
        /// </param>
        /// <param name="n">number of pieces and of the point, 1 &lt;= k &lt;= n</param>
        /// <param name="k">number of pieces and of the point, 1 &lt;= k &lt;= n</param>
        /// <param name="out">the point</param>
        /// <param name="len">length of a piece</param>
        /// <returns>
        /// 0 done; 1 k exceeds n or is below 1, or no memory, or n above 2^20; -1 start exceeds end (at
        /// every call); outputs are untouched in these cases. -2 from the call that measures: the
        /// length does not settle, the span exceeds 36000 degrees, or it exceeds 1440 and the arc is
        /// too thin (an axis below some fifth of the other) or n too large (22500, in any case 65536)
        /// to be divided without a walk over it; the length is 0 and every point the end
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_elpdn([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, int n, int k, out DTPOINT @out, out double len);

        /// <summary>
        /// Finds a division point from the polyline through every whole degree of the arc.
        /// </summary>
        /// <remarks>
        /// Only whole degrees from the start count: the arc beyond the last of them is left out of the
        /// length, and only the point k = n reaches the end. Within a degree the point is placed by a
        /// rule of its own, which is not the interpolation along the segment; it may be off by a
        /// degree.
        /// Cost: constant, at most 362 samples.
        /// </remarks>
        /// <param name="center">the ellipse: full axis lengths, degrees</param>
        /// <param name="a">the ellipse: full axis lengths, degrees</param>
        /// <param name="b">the ellipse: full axis lengths, degrees</param>
        /// <param name="rot">the ellipse: full axis lengths, degrees</param>
        /// <param name="angles">start and end, no more than 361 degrees apart</param>
        /// <param name="n">number of pieces and of the point, 1 &lt;= k &lt;= n</param>
        /// <param name="k">number of pieces and of the point, 1 &lt;= k &lt;= n</param>
        /// <param name="out">
        /// the point; for k = n exactly the end of the arc; untouched when the result is 1
        /// </param>
        /// <param name="len">
        /// length of a piece; also written where the point lies beyond the polyline
        /// </param>
        /// <returns>
        /// 0 done; 1 n or k below 1, start above end or more than 362 samples (len is then untouched),
        /// or the point lies beyond the polyline: k exceeds n, an arc below a degree with k &lt; n, an
        /// ellipse of no size
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elpdn([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, int n, int k, out DTPOINT @out, out double len);

        // ---- Ellipses: extents and points of given tangent

        /// <summary>
        /// Finds the two points of a whole ellipse with a tangent of a given direction.
        /// </summary>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="direction">of the tangent, degrees; whole turns are taken off</param>
        /// <param name="out1">
        /// the point on the side to which the second axis points, or the end of the first axis when the
        /// tangent is parallel to the second within 1e-8
        /// </param>
        /// <param name="out2">the point opposite</param>
        /// <returns>always 1, though it never fails</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elaln([In] ref DTPOINT center, double a, double b, double rot,
            double direction, out DTPOINT out1, out DTPOINT out2);

        /// <summary>
        /// Finds the points of an elliptic arc with a tangent of a given direction; a point outside the
        /// arc gives way to the nearer end of the arc, to the end rather than the start where both are
        /// as near.
        /// </summary>
        /// <remarks>
        /// Whether a point is outside is decided by polar directions, as in pin_chk(): 0 and 360 are
        /// the whole turn, while other angles 360 apart, which name one direction, may hold that
        /// direction alone.
        /// </remarks>
        /// <param name="center">the arc; rot moves one turn at most towards 0</param>
        /// <param name="a">the arc; rot moves one turn at most towards 0</param>
        /// <param name="b">the arc; rot moves one turn at most towards 0</param>
        /// <param name="rot">the arc; rot moves one turn at most towards 0</param>
        /// <param name="angles">the arc; rot moves one turn at most towards 0</param>
        /// <param name="direction">
        /// of the tangent, degrees; moves one turn at most towards [0, 360]
        /// </param>
        /// <param name="out1">the points, before they give way in the order of ca_elaln()</param>
        /// <param name="out2">the points, before they give way in the order of ca_elaln()</param>
        /// <returns>always 0</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ang_pnt([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, double direction, out DTPOINT out1, out DTPOINT out2);

        /// <summary>Finds the box around an elliptic arc, parallel to the axes of the plane.</summary>
        /// <remarks>
        /// It is the box of the four points that ang_pnt() finds for the directions 90 and 0. An end of
        /// the arc counts only where it took the place of such a point: a box may be smaller than the
        /// arc.
        /// </remarks>
        /// <param name="center">the arc</param>
        /// <param name="a">the arc</param>
        /// <param name="b">the arc</param>
        /// <param name="rot">the arc</param>
        /// <param name="angles">the arc</param>
        /// <param name="lower">
        /// lower left and upper right corner; both (0, 0) when the result is 1
        /// </param>
        /// <param name="upper">
        /// lower left and upper right corner; both (0, 0) when the result is 1
        /// </param>
        /// <returns>
        /// 0 done; 1 when start and end differ by less than 1e-6 (a whole ellipse is to be given as a
        /// span of 360)
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elamn([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, out DTPOINT lower, out DTPOINT upper);

        /// <summary>As ca_elamn(), with the points that make the box.</summary>
        /// <param name="center">the arc</param>
        /// <param name="a">the arc</param>
        /// <param name="b">the arc</param>
        /// <param name="rot">the arc</param>
        /// <param name="angles">the arc</param>
        /// <param name="lower">as in ca_elamn()</param>
        /// <param name="upper">as in ca_elamn()</param>
        /// <param name="extremes">
        /// four points: the two with a tangent along y, then the two with one along x; untouched when
        /// the result is 1
        /// </param>
        /// <returns>as ca_elamn()</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_elpmn([In] ref DTPOINT center, double a, double b, double rot,
            [In] double[] angles, out DTPOINT lower, out DTPOINT upper, [In, Out] DTPOINT[]
            extremes);

        // ---- Lines with ellipses

        /// <summary>Intersects a line with an ellipse, with a tolerance of the call.</summary>
        /// <remarks>
        /// The plane is stretched across the first axis by a/b, so that the ellipse becomes a circle of
        /// radius a/2. There the line is tangent when its distance from the centre differs from the
        /// radius by less than tol, to either side: on an ellipse with a short second axis that is a
        /// much smaller distance in the plane.
        /// </remarks>
        /// <param name="p1">two points of the line</param>
        /// <param name="p2">two points of the line</param>
        /// <param name="center">the ellipse: full axes, rotation in degrees</param>
        /// <param name="a">the ellipse: full axes, rotation in degrees</param>
        /// <param name="b">the ellipse: full axes, rotation in degrees</param>
        /// <param name="rot">the ellipse: full axes, rotation in degrees</param>
        /// <param name="out1">
        /// the point further along the direction from p2 to p1; the touching point when tangent; (0, 0)
        /// when there is none
        /// </param>
        /// <param name="out2">the other point, or (0, 0)</param>
        /// <param name="count">32 bits: 0, 1 or 2 points; 0 when degenerate</param>
        /// <param name="tol">drawing units</param>
        /// <returns>
        /// 0 solved; 1 degenerate, out1 and out2 are then untouched: an axis is zero, or the line or
        /// its stretched unit direction is shorter than tol
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_CrsLE([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref
            DTPOINT center, double a, double b, double rot, out DTPOINT out1, out DTPOINT out2, out
            uint count, double tol);

        /// <summary>
        /// Intersects a line with an ellipse as a2d_CrsLE() does, with errdist for tolerance.
        /// </summary>
        /// <param name="p1">two points of the line</param>
        /// <param name="p2">two points of the line</param>
        /// <param name="center">the ellipse: full axes, rotation in degrees</param>
        /// <param name="a">the ellipse: full axes, rotation in degrees</param>
        /// <param name="b">the ellipse: full axes, rotation in degrees</param>
        /// <param name="rot">the ellipse: full axes, rotation in degrees</param>
        /// <param name="out1">
        /// the points, the one on p1's side first; (0, 0) where there is none; untouched when
        /// degenerate
        /// </param>
        /// <param name="out2">
        /// the points, the one on p1's side first; (0, 0) where there is none; untouched when
        /// degenerate
        /// </param>
        /// <param name="count">0, 1 or 2 points; 0 when degenerate</param>
        /// <returns>0 solved, -1 degenerate</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_insle([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref
            DTPOINT center, double a, double b, double rot, out DTPOINT out1, out DTPOINT out2, out
            ushort count);

        /// <summary>The same function as a2d_insle().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_insle([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref DTPOINT
            center, double a, double b, double rot, out DTPOINT out1, out DTPOINT out2, out ushort
            count);

        /// <summary>The same function as a2d_insle().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_insle2([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref
            DTPOINT center, double a, double b, double rot, out DTPOINT out1, out DTPOINT out2, out
            ushort count);

        /// <summary>Intersects a line with an elliptic arc.</summary>
        /// <remarks>
        /// The points are those of a2d_insle(); kept are those whose direction from the centre lies
        /// between the directions of the arc's ends, with 1e-8 degrees of slack. Directions within 1e-7
        /// units of an axis snap onto it, those of the ends in the ellipse's frame, those of the points
        /// in the plane.
        /// </remarks>
        /// <param name="p1">two points of the line</param>
        /// <param name="p2">two points of the line</param>
        /// <param name="center">the ellipse: full axes, rotation in degrees</param>
        /// <param name="a">the ellipse: full axes, rotation in degrees</param>
        /// <param name="b">the ellipse: full axes, rotation in degrees</param>
        /// <param name="rot">the ellipse: full axes, rotation in degrees</param>
        /// <param name="angles">
        /// start and end of the arc, parametric degrees; equal ends mean the full ellipse
        /// </param>
        /// <param name="out1">the first point kept, or (0, 0)</param>
        /// <param name="out2">
        /// the second point kept, or (0, 0); both are untouched when degenerate
        /// </param>
        /// <param name="count">0, 1 or 2 points kept; 0 when degenerate</param>
        /// <returns>0 solved, -1 degenerate</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_insl1([In] ref DTPOINT p1, [In] ref DTPOINT p2, [In] ref
            DTPOINT center, double a, double b, double rot, [In] double[] angles, out DTPOINT out1,
            out DTPOINT out2, out ushort count);

        /// <summary>
        /// Intersects a line with the ellipse centred at the origin with its first axis along x.
        /// </summary>
        /// <remarks>
        /// A line that a2d_IsElpTangentLine() accepts gives its touching point. Points no further apart
        /// than errdist count as one.
        /// </remarks>
        /// <param name="p1">
        /// two points of the line; vertical when their x differ by less than 1e-8
        /// </param>
        /// <param name="p2">
        /// two points of the line; vertical when their x differ by less than 1e-8
        /// </param>
        /// <param name="a">
        /// full axes; a zero axis has no points, unless the line touches its end or is vertical
        /// </param>
        /// <param name="b">
        /// full axes; a zero axis has no points, unless the line touches its end or is vertical
        /// </param>
        /// <param name="out1">
        /// the point with the greater x, of a vertical line with the greater y; (0, 0) when there is
        /// none
        /// </param>
        /// <param name="out2">the other point, or (0, 0)</param>
        /// <param name="count">0, 1 or 2 points</param>
        /// <returns>
        /// 0 solved; -1 axes too long for their squares left no quadratic, both outputs are then (0, 0)
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_insLStandardE([In] ref DTPOINT p1, [In] ref DTPOINT p2, double
            a, double b, out DTPOINT out1, out DTPOINT out2, out ushort count);

        /// <summary>
        /// Tells whether a line touches the ellipse centred at the origin with its first axis along x.
        /// </summary>
        /// <remarks>
        /// A line parallel to an axis (within 1e-8) touches when its distance from the centre is half
        /// the other axis within 1e-6. Any other line touches when the products of the focal tangent
        /// property differ by no more than 1e-6, a squared length, and its touching point lies within
        /// 1e-6 of it. Where the second axis is the longer the foci decide nothing and the touching
        /// point alone does. Nothing here follows errdist; only a line shorter than it counts as 0 away
        /// from all.
        /// </remarks>
        /// <param name="p1">two points of the line</param>
        /// <param name="p2">two points of the line</param>
        /// <param name="a">full axes</param>
        /// <param name="b">full axes</param>
        /// <param name="out">the touching point; untouched when the result is -1</param>
        /// <returns>
        /// 0 tangent; -1 not, or a line that crosses the first axis within the ellipse
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_IsElpTangentLine([In] ref DTPOINT p1, [In] ref DTPOINT p2,
            double a, double b, out DTPOINT @out);

        /// <summary>
        /// Selects the end of an elliptic arc to keep where it is cut by the same ellipse.
        /// </summary>
        /// <remarks>
        /// With the flag of ca_SetStartendFlg() at 1 that is the start of e1, else its end;
        /// PLANEGEO_ATTR_REVERSED in its attribute word exchanges the two. A full ellipse e2 does not
        /// ask the flag: it gives the start when the bit is set, else the end.
        /// </remarks>
        /// <param name="e1">the arc whose end is wanted</param>
        /// <param name="e2">
        /// the cutting arc; its range runs from its end to its start when exactly one of
        /// PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE is set
        /// </param>
        /// <param name="out">the end; untouched unless the result is 1</param>
        /// <returns>
        /// 1 chosen; 0 the end is not on e2 (1e-8 degrees of slack); -1 not the same ellipse: centres
        /// and axes must agree within errdist, rotations within 1e-8 degrees or differ by 180, even
        /// those of a circle
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_InsDe([In] ref DTELLIPSE e1, [In] ref DTELLIPSE e2, out DTPOINT
            @out);

        // ---- Ellipses with circles and ellipses

        /// <summary>
        /// Intersects a circle about the origin with an ellipse whose axes lie along x and y.
        /// </summary>
        /// <remarks>
        /// Points lie on both curves; of a touch within the tolerances one or both points are given.
        /// Fixed tolerances decide: an ellipse with b below 1e-6 is a segment, one whose half axes
        /// differ by less than errdist a circle (see a2dCrs2C()), and one whose centre lies within 1e-6
        /// of the y axis is taken as lying on it. Where nothing is found, two points that need not lie
        /// on the ellipse are given if the discriminant, a length to the sixth, is below 1e-6: always
        /// so in drawings of some hundredths of a unit.
        /// </remarks>
        /// <param name="ex">centre of the ellipse, seen from that of the circle</param>
        /// <param name="ey">centre of the ellipse, seen from that of the circle</param>
        /// <param name="a">half axes, a along x and not the shorter</param>
        /// <param name="b">half axes, a along x and not the shorter</param>
        /// <param name="r">radius</param>
        /// <param name="out">
        /// four points: those found, in the order in which the quartic of their ordinates is solved by
        /// radicals; beyond the count (0, 0) or what was tried and dropped; untouched when refused
        /// </param>
        /// <returns>
        /// the number of points, 0 to 4; -1001 when b exceeds a, or when a or r is below 1e-6
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dIntersectionEC(double ex, double ey, double a, double b, double
            r, [In, Out] DTPOINT[] @out);

        /// <summary>Intersects a circular with an elliptic arc.</summary>
        /// <remarks>
        /// The points are those of a2dIntersectionEC(); kept are those on both arcs, with 1e-8 degrees
        /// of slack. An ellipse with half a second axis below 1e-6 is a segment, of which no part is
        /// left out.
        /// </remarks>
        /// <param name="center">centre of the circle, x and y</param>
        /// <param name="r">radius</param>
        /// <param name="angles">start and end of its arc, degrees</param>
        /// <param name="ecenter">centre of the ellipse, x and y</param>
        /// <param name="a">full axes; a must not be the shorter</param>
        /// <param name="b">full axes; a must not be the shorter</param>
        /// <param name="rot">rotation of the first axis, degrees</param>
        /// <param name="eangles">
        /// start and end of the elliptic arc, parametric degrees; equal ends mean the full ellipse
        /// </param>
        /// <param name="p1">the points kept; those beyond the count are untouched</param>
        /// <param name="p2">the points kept; those beyond the count are untouched</param>
        /// <param name="p3">the points kept; those beyond the count are untouched</param>
        /// <param name="p4">the points kept; those beyond the count are untouched</param>
        /// <param name="count">
        /// 0 to 4, lowered by as many points as a2d_chk_distdeg() drops while the points stay in their
        /// places; untouched when refused
        /// </param>
        /// <returns>
        /// 0 done; -1 refused: a shape that a2dIntersectionEC() refuses, or an axis below errdist where
        /// a point on the circle's arc was found
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_insce([In] double[] center, double r, [In] double[] angles,
            [In] double[] ecenter, double a, double b, double rot, [In] double[] eangles, out
            DTPOINT p1, out DTPOINT p2, out DTPOINT p3, out DTPOINT p4, out short count);

        /// <summary>The same function as a2d_insce().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_insce([In] double[] center, double r, [In] double[] angles, [In]
            double[] ecenter, double a, double b, double rot, [In] double[] eangles, out DTPOINT p1,
            out DTPOINT p2, out DTPOINT p3, out DTPOINT p4, out short count);

        /// <summary>Intersects two elliptic arcs.</summary>
        /// <remarks>
        /// The plane is stretched so that the first ellipse becomes a circle, and a2d_insce() answers.
        /// Any axis may be the longer one.
        /// </remarks>
        /// <param name="center1">the centres, x and y each</param>
        /// <param name="center2">the centres, x and y each</param>
        /// <param name="a1">full first axes</param>
        /// <param name="a2">full first axes</param>
        /// <param name="b1">
        /// full second axes; with b1 zero the answer is no points, and y coordinates of the outputs
        /// that are not finite or lost
        /// </param>
        /// <param name="b2">
        /// full second axes; with b1 zero the answer is no points, and y coordinates of the outputs
        /// that are not finite or lost
        /// </param>
        /// <param name="rot1">rotations, degrees</param>
        /// <param name="rot2">rotations, degrees</param>
        /// <param name="angles1">start and end of each arc, parametric degrees</param>
        /// <param name="angles2">start and end of each arc, parametric degrees</param>
        /// <param name="p1">
        /// the points found. Those beyond the count are carried out of the stretched frame too, from
        /// whatever they held
        /// </param>
        /// <param name="p2">
        /// the points found. Those beyond the count are carried out of the stretched frame too, from
        /// whatever they held
        /// </param>
        /// <param name="p3">
        /// the points found. Those beyond the count are carried out of the stretched frame too, from
        /// whatever they held
        /// </param>
        /// <param name="p4">
        /// the points found. Those beyond the count are carried out of the stretched frame too, from
        /// whatever they held
        /// </param>
        /// <param name="count">0 to 4</param>
        /// <returns>
        /// 0 done; 1 the ellipses coincide within errdist (axes, rotations and squared distance of the
        /// centres), count is 0; -1 refused: an axis of the second ellipse is not longer than errdist,
        /// or a2d_insce() refused; in these two cases the points are untouched and count is 0
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_ins2e([In] double[] center1, [In] double[] center2, double a1,
            double a2, double b1, double b2, double rot1, double rot2, [In] double[] angles1, [In]
            double[] angles2, ref DTPOINT p1, ref DTPOINT p2, ref DTPOINT p3, ref DTPOINT p4, out
            short count);

        /// <summary>The same function as a2d_ins2e().</summary>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_ins2e([In] double[] center1, [In] double[] center2, double a1,
            double a2, double b1, double b2, double rot1, double rot2, [In] double[] angles1, [In]
            double[] angles2, ref DTPOINT p1, ref DTPOINT p2, ref DTPOINT p3, ref DTPOINT p4, out
            short count);

        /// <summary>Drops the points of a list that repeat an earlier one.</summary>
        /// <remarks>
        /// Two points are one when their squared distance is below errdist (one thousandth of a unit
        /// apart by default) and their parameters on the ellipse differ by less than 1e-8 degrees.
        /// </remarks>
        /// <param name="points">n points</param>
        /// <param name="n">their number, 2 to 4</param>
        /// <param name="center">centre of the ellipse, x and y</param>
        /// <param name="rot">rotation of the first axis, degrees</param>
        /// <param name="a">full axes</param>
        /// <param name="b">full axes</param>
        /// <param name="out">
        /// n points: the distinct ones in their order, what follows them is untouched; may be points
        /// itself
        /// </param>
        /// <returns>
        /// the number of distinct points; -1 when n is not 2 to 4, or an axis is shorter than errdist,
        /// out is then untouched
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_chk_distdeg([In] DTPOINT[] points, int n, [In] double[] center,
            double rot, double a, double b, [In, Out] DTPOINT[] @out);

        // ---- Ellipses: perpendiculars

        /// <summary>
        /// Finds the nearest foot of a perpendicular, the one in the point's own quadrant.
        /// </summary>
        /// <remarks>
        /// From the centre and from the first axis inside the evolute two feet are as near.
        /// </remarks>
        /// <param name="p">the point</param>
        /// <param name="e">the ellipse; start and end are not read</param>
        /// <param name="out">
        /// array of 2, cleared first: the foot; (0, B) and (0, -B) in the ellipse's frame from the
        /// centre; both feet from the first axis, the one to the left of the axis first
        /// </param>
        /// <param name="dist">its distance from p; untouched without a foot</param>
        /// <returns>
        /// 1 or 2 feet; 0 for a NaN or an infinity; -1 an axis is not above errdist; -2 the first axis
        /// does not exceed the second by more than errdist
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dEllpsPer([In] ref DTPOINT p, [In] ref DTELLIPSE e, [In, Out]
            DTPOINT[] @out, out double dist);

        /// <summary>Finds all feet of perpendiculars from a point to a full ellipse.</summary>
        /// <remarks>
        /// The order, in the ellipse's frame: from the centre (A, 0), (0, B), (-A, 0), (0, -B); from
        /// the second axis (0, B), (0, -B), then the two beside it, the one with x &gt; 0 first; from the
        /// first axis (A, 0), (-A, 0), then the two beside it, y &gt; 0 first; from any other point the
        /// nearest foot, the farthest, then the two across the first axis, the one nearer to its end
        /// first.
        /// </remarks>
        /// <param name="p">the point</param>
        /// <param name="e">the ellipse; start and end are not read</param>
        /// <param name="out">array of 4, cleared first</param>
        /// <returns>
        /// number of feet, 2 or 4, or 0 for a NaN or an infinity; -1 an axis is not above errdist; -2
        /// the first axis does not exceed the second by more than errdist (a circle, or the second axis
        /// the longer)
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dEllpsPerPnts([In] ref DTPOINT p, [In] ref DTELLIPSE e, [In, Out]
            DTPOINT[] @out);

        /// <summary>
        /// As a2dEllpsPerPnts(), with only the feet that lie on the arc by ca_onelp().
        /// </summary>
        /// <param name="p">the point and the arc</param>
        /// <param name="e">the point and the arc</param>
        /// <param name="out">array of 4; untouched beyond the result</param>
        /// <returns>number of feet on the arc, 0 to 4; -1 and -2 as there</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2dEllpsArcPerPnts([In] ref DTPOINT p, [In] ref DTELLIPSE e, [In,
            Out] DTPOINT[] @out);

        /// <summary>
        /// Finds the feet of perpendiculars to an ellipse, or what stands in for them.
        /// </summary>
        /// <remarks>
        /// Where a2dEllpsPerPnts() has no foot it is the nearest sample of the arc by ca_dstpp(), p
        /// itself if that is nearer than errdist. Where it answers -2 the ellipse counts as the circle
        /// over its first axis, and the answer is that of cross_lin_cir() for the line from p to the
        /// centre: the far point first.
        /// </remarks>
        /// <param name="p">the point</param>
        /// <param name="e">the ellipse; its arc counts for the nearest sample alone</param>
        /// <param name="out">array of 4, cleared first; a single point of the circle twice</param>
        /// <param name="count">number of points; untouched when the result is -1</param>
        /// <returns>
        /// 0 done; -1 an axis is not above errdist, or p is the centre of a circle (within errdist in x
        /// and in y)
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_PerEP([In] ref DTPOINT p, [In] ref DTELLIPSE e, [In, Out]
            DTPOINT[] @out, out uint count);

        /// <summary>
        /// As a2d_PerEP(), for an arc: by a2dEllpsArcPerPnts(), unless start and end are 0 and 360
        /// within errdist. A circle's points are kept by a2d_lin_arc() in mode 1, with start and end
        /// raised by the rotation.
        /// </summary>
        /// <param name="p">the point and the arc</param>
        /// <param name="e">the point and the arc</param>
        /// <param name="out">
        /// array of 4; cleared first for 0 and 360 only; both of the first two are written for a
        /// circle, as a2d_lin_arc() does
        /// </param>
        /// <param name="count">
        /// number of points, 0 where a circle's arc holds none; untouched when the result is -1
        /// </param>
        /// <returns>0 done; -1 as there</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_PerEP2([In] ref DTPOINT p, [In] ref DTELLIPSE e, [In, Out]
            DTPOINT[] @out, out uint count);

        /// <summary>
        /// Projects a point onto an ellipse by its polar angle, taken for a parameter.
        /// </summary>
        /// <remarks>
        /// The result is the point (A cos t, B sin t) for the direction t of p from the centre: no foot
        /// of a perpendicular, and on the ray to p on the axes alone. Whether it lies on the arc is
        /// asked of its own direction with 1e-8 degrees of slack, between start and end taken as polar
        /// angles.
        /// </remarks>
        /// <param name="p">the point</param>
        /// <param name="e">
        /// the ellipse; where exactly one of PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE is set
        /// the arc runs from end to start; an end of the arc within 1e-6 of 0 counts as 360, and a
        /// negative start is raised by a turn, the end with it if negative
        /// </param>
        /// <param name="out">the point; untouched when the result is -1</param>
        /// <returns>
        /// 0 on the arc; 1 off it; -1 an axis is at most 1e-6, or p lies within 1e-6 of the centre in x
        /// and in y
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_perle([In] ref DTPOINT p, [In] ref DTELLIPSE e, out DTPOINT
            @out);

        // ---- Ellipses: tangents

        /// <summary>
        /// There are none where the discriminant of the polar line y = m x + q against the ellipse, a
        /// length to the sixth, is at most 1e-8; for a point within 1e-8 of the first axis, where the
        /// squared ordinate of the contacts is. Small ellipses have none for that reason.
        /// </summary>
        /// <param name="p">the point</param>
        /// <param name="center">
        /// the ellipse; either axis may be the longer; one of zero gives the ends of the segment,
        /// non-finite outputs, or 1
        /// </param>
        /// <param name="a">
        /// the ellipse; either axis may be the longer; one of zero gives the ends of the segment,
        /// non-finite outputs, or 1
        /// </param>
        /// <param name="b">
        /// the ellipse; either axis may be the longer; one of zero gives the ends of the segment,
        /// non-finite outputs, or 1
        /// </param>
        /// <param name="rot">
        /// the ellipse; either axis may be the longer; one of zero gives the ends of the segment,
        /// non-finite outputs, or 1
        /// </param>
        /// <param name="out1">
        /// cleared first; the contact with the greater x in the ellipse's frame is out1; for a point on
        /// the first axis the one with the greater y
        /// </param>
        /// <param name="out2">
        /// cleared first; the contact with the greater x in the ellipse's frame is out1; for a point on
        /// the first axis the one with the greater y
        /// </param>
        /// <returns>0 done; 1 the point lies inside or on the ellipse</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int ca_inspe([In] ref DTPOINT p, [In] ref DTPOINT center, double a,
            double b, double rot, out DTPOINT out1, out DTPOINT out2);

        /// <summary>
        /// Finds the points of contact of the tangents from a point to an ellipse, by the feet of the
        /// foci: where a perpendicular from a focus meets a tangent, on the circle over the first axis.
        /// </summary>
        /// <remarks>
        /// The point must be outside: half the sum of its focal distances must exceed half the first
        /// axis by more than 1e-6. A tangent that runs along one axis (to 1e-8 between point and foot)
        /// touches at the end of the other.
        /// </remarks>
        /// <param name="p">the point</param>
        /// <param name="center">the ellipse; the first axis must not be the shorter</param>
        /// <param name="a">the ellipse; the first axis must not be the shorter</param>
        /// <param name="b">the ellipse; the first axis must not be the shorter</param>
        /// <param name="rot">the ellipse; the first axis must not be the shorter</param>
        /// <param name="out1">
        /// the contacts; that of the nearer focus's foot to the right of the direction from the centre
        /// to the middle between focus and point is out1. Unless the result is 2, untouched or points
        /// in the ellipse's frame that tell nothing
        /// </param>
        /// <param name="out2">
        /// the contacts; that of the nearer focus's foot to the right of the direction from the centre
        /// to the middle between focus and point is out1. Unless the result is 2, untouched or points
        /// in the ellipse's frame that tell nothing
        /// </param>
        /// <returns>
        /// 2 both found; 0 the point lies inside or on the ellipse, or the second axis is zero or the
        /// longer; -1 the first axis is not positive
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_tchpe([In] ref DTPOINT p, [In] ref DTPOINT center, double a,
            double b, double rot, out DTPOINT out1, out DTPOINT out2);

        /// <summary>
        /// Finds the common tangents of two ellipses, each by its point of contact on ellipse 1 and on
        /// ellipse 2: (t1, t2), (t3, t4), (t5, t6), (t7, t8).
        /// </summary>
        /// <remarks>
        /// Ellipses apart have two outer tangents and two inner ones, which cross between them;
        /// ellipses that cross have two outer ones, or four where they cross four times; one inside the
        /// other has none. Outer tangents come first. Each kind is ordered by the direction from
        /// ellipse 1 square to the line, measured from the direction of centre 2 in (-180, 180] (from
        /// the first axis of ellipse 1 where the centres coincide within errdist): for two circles the
        /// tangent to the right of the direction from centre 1 to centre 2 is before that to its left.
        /// Where the ellipses touch within errdist two tangents merge into the one at that point, where
        /// both points of contact would coincide: it is not given.
        /// </remarks>
        /// <param name="center1">the full ellipses; either axis may be the longer</param>
        /// <param name="center2">the full ellipses; either axis may be the longer</param>
        /// <param name="a1">the full ellipses; either axis may be the longer</param>
        /// <param name="a2">the full ellipses; either axis may be the longer</param>
        /// <param name="b1">the full ellipses; either axis may be the longer</param>
        /// <param name="b2">the full ellipses; either axis may be the longer</param>
        /// <param name="rot1">the full ellipses; either axis may be the longer</param>
        /// <param name="rot2">the full ellipses; either axis may be the longer</param>
        /// <param name="t1">the points of contact; untouched beyond the count</param>
        /// <param name="t2">the points of contact; untouched beyond the count</param>
        /// <param name="t3">the points of contact; untouched beyond the count</param>
        /// <param name="t4">the points of contact; untouched beyond the count</param>
        /// <param name="t5">the points of contact; untouched beyond the count</param>
        /// <param name="t6">the points of contact; untouched beyond the count</param>
        /// <param name="t7">the points of contact; untouched beyond the count</param>
        /// <param name="t8">the points of contact; untouched beyond the count</param>
        /// <param name="count">number of tangents: 0, 2 or 4</param>
        /// <returns>
        /// 0 done; 1 the ellipses coincide within errdist; 2 one lies inside the other, touching or
        /// not; -1 an axis is not longer than errdist, or an argument is not finite
        /// </returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_tch2e([In] ref DTPOINT center1, [In] ref DTPOINT center2,
            double a1, double a2, double b1, double b2, double rot1, double rot2, out DTPOINT t1,
            out DTPOINT t2, out DTPOINT t3, out DTPOINT t4, out DTPOINT t5, out DTPOINT t6, out
            DTPOINT t7, out DTPOINT t8, out ushort count);

        // ---- Ellipses: distance

        /// <summary>Tells whether a point lies on, outside or inside a full ellipse.</summary>
        /// <remarks>
        /// The point counts as on the ellipse when A^2 y^2 + B^2 x^2 - A^2 B^2, with half axes A and B
        /// and the point in the frame of the ellipse, is at most 0.0001. That is a length to the
        /// fourth: a band wide for small ellipses, narrow for large ones. A difference so small is
        /// formed with twice the digits of a double.
        /// </remarks>
        /// <param name="p">the point</param>
        /// <param name="e">
        /// the ellipse; start and end are not read, either axis may be the longer
        /// </param>
        /// <returns>0 on, 1 outside, 2 inside; 2 for a NaN</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern int a2d_distpe([In] ref DTPOINT p, [In] ref DTELLIPSE e);

        /// <summary>
        /// Finds the nearest sample of an elliptic arc: at whole degrees of the parameter from the
        /// start on, then at tenths of a degree within a degree of the best.
        /// </summary>
        /// <remarks>
        /// The answer is exact to 0.1 degrees of the parameter, not to rounding; of equal distances the
        /// earlier sample counts. The end itself is a sample only where whole degrees, or then tenths,
        /// lead to it. Equal start and end are that one point, except for a point on the whole ellipse
        /// with both 0 (see ca_onelp()).
        /// Cost: constant, at most 364 samples and then 21, of which most are ruled out unseen.
        /// </remarks>
        /// <param name="center">the ellipse</param>
        /// <param name="a">the ellipse</param>
        /// <param name="b">the ellipse</param>
        /// <param name="rot">the ellipse</param>
        /// <param name="angles">
        /// start and end, degrees; a start above the end means an arc through 0; of a span beyond a
        /// turn the first 363 degrees are sampled; the step ends where it no longer changes the angle
        /// </param>
        /// <param name="p">the point</param>
        /// <param name="out">
        /// the nearest sample, coordinates below 1e-6 as 0; p itself where it lies on the arc by
        /// ca_onelp(); (0, 0) for an angle that is NaN
        /// </param>
        /// <returns>the distance of that sample; 0 on the arc; NaN for an angle that is NaN</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double ca_dstpp([In] ref DTPOINT center, double a, double b, double
            rot, [In] double[] angles, [In] ref DTPOINT p, out DTPOINT @out);

        /// <summary>Returns the distance of ca_dstpp() alone.</summary>
        /// <param name="center">the arc and the point</param>
        /// <param name="a">the arc and the point</param>
        /// <param name="b">the arc and the point</param>
        /// <param name="rot">the arc and the point</param>
        /// <param name="angles">the arc and the point</param>
        /// <param name="p">the arc and the point</param>
        /// <returns>as there</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double ca_dstpe([In] ref DTPOINT center, double a, double b, double
            rot, [In] double[] angles, [In] ref DTPOINT p);

        /// <summary>Finds the nearest point of an elliptic arc, to rounding.</summary>
        /// <remarks>
        /// The point is the foot of a normal or an end of the arc; the distance is right to 1e-15 of
        /// itself or of the longer axis, whichever is larger. Circles, flat ellipses down to segments,
        /// and points on the axes and the evolute need no care. Of two nearest points either may be
        /// given.
        /// </remarks>
        /// <param name="center">the ellipse; either axis may be the longer, or zero</param>
        /// <param name="a">the ellipse; either axis may be the longer, or zero</param>
        /// <param name="b">the ellipse; either axis may be the longer, or zero</param>
        /// <param name="rot">the ellipse; either axis may be the longer, or zero</param>
        /// <param name="angles">
        /// start and end, degrees, any that a2d_StdSedeg() takes; equal ends mean the whole ellipse
        /// </param>
        /// <param name="p">the point</param>
        /// <param name="out">the nearest point; p itself where it is nearer than errdist</param>
        /// <returns>the distance; 0 where it is below errdist</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double a2d_dstpp([In] ref DTPOINT center, double a, double b, double
            rot, [In] double[] angles, [In] ref DTPOINT p, out DTPOINT @out);

        /// <summary>Returns the distance of a2d_dstpp() alone.</summary>
        /// <param name="center">the arc and the point</param>
        /// <param name="a">the arc and the point</param>
        /// <param name="b">the arc and the point</param>
        /// <param name="rot">the arc and the point</param>
        /// <param name="angles">the arc and the point</param>
        /// <param name="p">the arc and the point</param>
        /// <returns>as there</returns>
        [DllImport(Library, CallingConvention = CallingConvention.Cdecl)]
        public static extern double a2d_dstpe([In] ref DTPOINT center, double a, double b, double
            rot, [In] double[] angles, [In] ref DTPOINT p);
    }
}
