// A few calls of each kind.
using System;
using System.Globalization;
using System.Linq;
using System.Runtime.InteropServices;
using Planegeo;
using static Planegeo.Native;

public static class Example
{
    private static string Text(double value) => value.ToString("F6", CultureInfo.InvariantCulture);

    private static string Text(params DTPOINT[] points) =>
        string.Join(" ", points.Select(p => $"({Text(p.x)}, {Text(p.y)})"));

    private static DTPOINT Point(double x, double y) => new DTPOINT { x = x, y = y };

    private static int Identity(double deg, out double value)
    {
        value = deg;
        return 0;
    }

    public static void Main()
    {
        Console.WriteLine($"sine {Text(sind(30))}");

        DTPOINT a1 = Point(0, 30), a2 = Point(100, 30), center = Point(50, 10);
        int code = ca_inslc(ref a1, ref a2, ref center, 25, new double[] { 45, 180 },
            out DTPOINT hit1, out DTPOINT hit2, out ushort count);
        Console.WriteLine($"meet {code}: {Text(hit1, hit2)}");

        DTPOINT b1 = Point(0, 31), b2 = Point(100, 31);
        Console.WriteLine($"parallel {a2dCrs2L(ref a1, ref a2, ref b1, ref b2, out _)}");

        double start = 350, end = 10;
        code = a2d_StdSedeg(ref start, ref end);
        Console.WriteLine($"range {code}: {Text(start)} {Text(end)}");

        DTLINE elem = new DTLINE { x2 = 4 }, cut = new DTLINE { x1 = -1, x2 = 5 };
        code = a2d_InsDl(ref elem, ref cut, out DTPOINT kept);
        Console.WriteLine($"cut {code}: {Text(kept)}");

        var feet = new DTPOINT[4];
        var ellipse = new DTELLIPSE { cx = 10, a = 10, b = 6 };
        center = Point(10, 0);
        code = a2dEllpsPerPnts(ref center, ref ellipse, feet);
        Console.WriteLine($"feet {code}: {Text(feet)}");

        DTCOMPLEX root = ama_c_sqrt(new DTCOMPLEX { re = -4 });
        Console.WriteLine($"root {Text(root.re)} {Text(root.im)}");

        var pairs = new double[4];
        code = amaSolveEquationOf2ndD(new double[] { 1, -3, 2 }, pairs);
        Console.WriteLine($"roots {code}: {Text(pairs[0])} {Text(pairs[2])}");

        ca_Simpson(Identity, 0, 90, out double integral);
        Console.WriteLine($"own integral {Text(integral)}");

        Marshal.Copy(new double[] { 5, 3 }, 0, ca_Simpson_getParmtbl(), 2);
        ca_Simpson(ca_lengelp, 0, 360, out integral);
        Console.WriteLine($"circumference {Text(integral)}");

        var polyline = new[] { Point(0, 0), Point(1, 0), Point(2, 0), Point(2, 1) };
        GCHandle pinned = GCHandle.Alloc(polyline, GCHandleType.Pinned);
        IntPtr list = pinned.AddrOfPinnedObject();
        code = ca_AutoUnionNrb(polyline.Length, ref list, 1);
        pinned.Free();
        Console.WriteLine($"merged {code}: {Text(polyline.Take(code).ToArray())}");
    }
}
