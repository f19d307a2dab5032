// A few calls of each kind.
program example;

{$mode objfpc}
{$T+} // an address has the type of what it is of

uses
  planegeo;

function Text(const p: DTPOINT): string;
var
  x, y: string;
begin
  Str(p.x:0:6, x);
  Str(p.y:0:6, y);
  Result := ' (' + x + ', ' + y + ')';
end;

function Identity(deg: Double; var value: Double): Integer; cdecl;
begin
  value := deg;
  Result := 0;
end;

function Point(x, y: Double): DTPOINT;
begin
  Result.x := x;
  Result.y := y;
end;

var
  a1, a2, b1, b2, center, hit1, hit2: DTPOINT;
  angles: array[0..1] of Double = (45, 180);
  quadratic: array[0..2] of Double = (1, -3, 2);
  pairs: array[0..3] of Double;
  count: Word = 0;
  code: Integer;
  start, stop, integral: Double;
  elem, cut: DTLINE;
  ellipse: DTELLIPSE;
  feet, polyline: array[0..3] of DTPOINT;
  list: PDTPOINT;
  z: DTCOMPLEX;
  halfAxes: PDouble;

begin
  WriteLn('sine ', sind(30):0:6);

  a1 := Point(0, 30);
  a2 := Point(100, 30);
  center := Point(50, 10);
  hit1 := Point(0, 0);
  hit2 := hit1;
  code := ca_inslc(@a1, @a2, @center, 25, @angles[0], hit1, hit2, count);
  WriteLn('meet ', code, ':', Text(hit1), Text(hit2));

  b1 := Point(0, 31);
  b2 := Point(100, 31);
  WriteLn('parallel ', a2dCrs2L(@a1, @a2, @b1, @b2, hit1));

  start := 350;
  stop := 10;
  code := a2d_StdSedeg(start, stop);
  WriteLn('range ', code, ': ', start:0:6, ' ', stop:0:6);

  FillChar(elem, SizeOf(elem), 0);
  elem.x2 := 4;
  cut := elem;
  cut.x1 := -1;
  cut.x2 := 5;
  code := a2d_InsDl(@elem, @cut, hit1);
  WriteLn('cut ', code, ':', Text(hit1));

  FillChar(ellipse, SizeOf(ellipse), 0);
  ellipse.cx := 10;
  ellipse.a := 10;
  ellipse.b := 6;
  center := Point(10, 0);
  code := a2dEllpsPerPnts(@center, @ellipse, @feet[0]);
  WriteLn('feet ', code, ':', Text(feet[0]), Text(feet[1]), Text(feet[2]), Text(feet[3]));

  z.re := -4;
  z.im := 0;
  z := ama_c_sqrt(z);
  WriteLn('root ', z.re:0:6, ' ', z.im:0:6);

  code := amaSolveEquationOf2ndD(@quadratic[0], @pairs[0]);
  WriteLn('roots ', code, ': ', pairs[0]:0:6, ' ', pairs[2]:0:6);

  integral := 0;
  ca_Simpson(@Identity, 0, 90, integral);
  WriteLn('own integral ', integral:0:6);

  halfAxes := ca_Simpson_getParmtbl;
  halfAxes[0] := 5;
  halfAxes[1] := 3;
  ca_Simpson(@ca_lengelp, 0, 360, integral);
  WriteLn('circumference ', integral:0:6);

  polyline[0] := Point(0, 0);
  polyline[1] := Point(1, 0);
  polyline[2] := Point(2, 0);
  polyline[3] := Point(2, 1);
  list := @polyline[0];
  code := ca_AutoUnionNrb(4, list, 1);
  WriteLn('merged ', code, ':', Text(polyline[0]), Text(polyline[1]), Text(polyline[2]));
end.
