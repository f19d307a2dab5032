/// One constant per question, not per value: equal values with different meanings stay apart.
/// The name tells quantity and unit, the comment who asks and with which comparison.
#pragma once

namespace planegeo {

// Angles and points.

/// Two angles of a range are equal (<); the ends of an arc still belong to it.
inline constexpr double kAngleSlackDeg = 1e-8;
/// A reduced angle above it, or below its negative, is brought back by a turn.
inline constexpr double kReducedMaxDeg = 359.99999999;
/// A component this short counts as zero in a direction (<): ca_vcrad.
inline constexpr double kAxisSnapLength = 1e-7;

// Lines.

/// Cross product of two raw directions of parallel lines (<): a2dCrs2L.
inline constexpr double kParallelCross = 1e-6;
/// Two direction angles of lines are equal (<), or one is vertical (<): aatCalCrs2l.
inline constexpr double kDirectionSlackDeg = 1e-8;
/// Product of the vectors from the foot to both ends of the segment that still holds it
/// (outside when >): ca_perln.
inline constexpr double kFootBeyondEndProduct = 1e-6;

// Circles and arcs.

/// Ends of a range that make a full circle (<), slack of both ends, and what a direction may
/// lack to 360 to count as 0 (<): a2d_lin_arc.
inline constexpr double kLineArcSlackDeg = 1e-8;
/// Squared distance of concentric centres (<): a2dCrs2C.
inline constexpr double kConcentricSquared = 1e-12;
/// Circles this near to touching touch, from inside or outside (< and >): a2dCrs2C.
inline constexpr double kTouchLength = 1e-6;
/// Radii are equal, and the touch is midway between the centres (<): a2dCrs2C.
inline constexpr double kEqualRadiiLength = 1e-12;
/// Ends of a range that make a full circle (<): a2d_ins2c. ca_ins2c asks for equality.
inline constexpr double kFullArcSlackDeg = 1e-8;
/// Slack of both ends of an arc that meets an arc: a2d_ins2c, ca_ins2c.
inline constexpr double kArcArcSlackDeg = 0.0001;
/// Sine of each angle between the sides of a triangle that is no arc (<): ca_arc3p.
inline constexpr double kCollinearSine = 0.0001;
/// Height over chord of a straight arc (<): ca_arc2pratio.
inline constexpr double kFlattestRatio = 1e-6;
/// Chord of an arc without size (<): ca_arc2pratio.
inline constexpr double kShortestChord = 0.003;
/// Distance of the middle of an arc from its ends (<): ca_arc2pratio.
inline constexpr double kMiddleToEnd = 0.0015;
/// A span above it is stored as the whole turn (>); six nines, where kReducedMaxDeg has eight:
/// ca_arcan.
inline constexpr double kStoredTurnDeg = 359.999999;
/// Bounds of a box that holds nothing yet: ca_arcXY.
inline constexpr double kEmptyBoxLength = 1e20;
/// Slack of both ends (<): ca_onarc.
inline constexpr double kOnArcSlackDeg = 1e-6;
/// A turn that leaves an arc where it is (<=): ca_rvarc.
inline constexpr double kNoTurnRad = 1e-7;
/// Spans of nothing and of a whole turn are a full circle (<=): ca_rvarc.
inline constexpr double kFullSpanSlackRad = 1e-7;
/// A span of 360 is a full cutting circle (<): a2d_InsDc.
inline constexpr double kFullCutSlackDeg = 1e-8;
/// Tolerances accepted, both included: ca_AutoUnionNrb.
inline constexpr double kSmallestMergeDeg = 0.1;
inline constexpr double kLargestMergeDeg = 5.0;

// Polynomial solvers.

/// Linear term of a shifted quartic (<), and its ratio to the quadratic term (<), that are
/// both ignored: the quartic then counts as biquadratic.
inline constexpr double kBiquadraticLinearTerm = 1e-5;
inline constexpr double kBiquadraticRatio = 1e-12;
/// Newton step over the largest coefficient that ends the search at once (<=), and that ends it
/// where none is so small.
inline constexpr double kNewtonTightStep = 1e-16;
inline constexpr double kNewtonLooseStep = 1e-6;
/// Residual of a quadratic factor over the largest coefficient: so small that the factor is
/// taken at once (<=), and large enough never to be taken (improved on when <).
inline constexpr double kBairstowExactResidual = 1e-100;
inline constexpr double kBairstowWorstResidual = 1e-6;
/// Discriminant of a quadratic factor with real roots (>=): slightly negative ones count as zero.
inline constexpr double kBairstowRealDiscriminant = -0.0001;

// Ellipses: record, queries, transforms.

/// Cross product of two semi-diameters on one line (<): a2dGetEllipsDt.
inline constexpr double kConjugateCollinearCross = 1e-6;
/// Dot product of perpendicular semi-diameters, which are then the semi-axes (<): a2dGetEllipsDt.
inline constexpr double kConjugatePerpendicularDot = 1e-6;
/// Rotations above it turn an offset from the centre (>): ca_ElpCordXY.
inline constexpr double kOffsetTurnDeg = 1e-6;
/// A focus this far beyond the end of the axis is none (>): GetElpFocusPnt.
inline constexpr double kFocusBeyondAxis = 1e-6;
/// Two ordinates (<=) or abscissas (not >) of a line along an axis are equal: a2d_hanel.
inline constexpr double kLineAlongAxis = 1e-6;
/// A line touches (<=): a length along an axis, a discriminant elsewhere: a2d_hanel.
inline constexpr double kLineTouches = 0.0001;
/// A full axis that leaves nothing to ask (<=): ca_onelp, ca_posel.
inline constexpr double kAxisTooShort = 1e-8;
/// A rotation turns the foci from it on (>=): ca_onelp, ca_posel.
inline constexpr double kFociTurnDeg = 1e-6;
/// The two focal distances of a point on the curve add up to the long axis (<): ca_onelp, ca_posel.
inline constexpr double kFocalSumSlack = 1e-6;
/// A direction may lie this far outside a polar range, and an angle below 0 by it (<): pin_chk.
inline constexpr double kPolarSlackDeg = 1e-8;
/// Directions above it are lowered by a turn, once (>): pin_chk.
inline constexpr double kPolarMaxDeg = 360.00000001;
/// A polar range whose ends are both this near to 0 is the whole turn (<): pin_chk.
inline constexpr double kWholeTurnAtZeroDeg = 1e-6;
/// A new rotation below its negative is raised by a turn, once (<): ca_rvelp.
inline constexpr double kRotationSlackDeg = 1e-8;
/// A new rotation or mirrored angle above it is lowered by a turn, once (>): ca_rvelp, ca_vmelp.
inline constexpr double kRotationMaxDeg = 360.00000001;
/// A rotation below it leaves the first axis along x (<): ca_vmelp.
inline constexpr double kMirroredTurnDeg = 1e-8;
/// Abscissas this close give no slope (<): ca_samel.
inline constexpr double kSlopeVertical = 1e-8;

// Ellipses: length, area, division.

/// Two passes of the Simpson rule agree (<=).
inline constexpr double kSettledIntegral = 1e-6;
/// An integral is the wanted one (<=): ca_Simpson2.
inline constexpr double kReachedIntegral = 1e-6;
/// An integral is nothing, or no progress to the one before (<): ca_Simpson2.
inline constexpr double kStalledIntegral = 1e-6;
/// A step of the Simpson rule this short ends its refinement (<).
inline constexpr double kSmallestStepDeg = 0.001;
/// A span above it is the whole turn (>): ca_ElpLen, ca_ElpLen2.
inline constexpr double kWholeTurnDeg = 359.999999;
/// Centre, axes (<=) of the ellipse whose division is kept: a2d_elpdn.
inline constexpr double kSameEllipseLength = 1e-6;
/// Its rotation, start and end (<=): a2d_elpdn.
inline constexpr double kSameEllipseDeg = 1e-8;
/// A piece left over shorter than it (<) is lengthened by it: ca_elpdn.
inline constexpr double kShortRestLength = 1e-6;

// Ellipses: chains of arcs, extents.

/// Two half axes make a circle (<=): ca_elips.
inline constexpr double kOvalCircleLength = 1e-7;
/// A parameter may lie this far beyond an arc's range (<, >=): ca_elips.
inline constexpr double kOvalParameterSlackRad = 1e-7;
/// A span is the whole turn (<=): ca_elips.
inline constexpr double kOvalWholeTurnRad = 0.001;
/// An arc has to be longer (>): ca_elips.
inline constexpr double kOvalArcSpanRad = 1e-7;
/// A turn has to be larger (>): ca_elips.
inline constexpr double kOvalTurnRad = 1e-7;
/// The part of an arc up to an axis, times the ratio of the axes, that is not chained on its own
/// (not >): ca_elip2.
inline constexpr double kChainPieceDeg = 1e-7;
/// Tolerance over the largest radius of curvature, which doubles cannot hold (<): ca_elip2.
inline constexpr double kChainRounding = 0x1p-48;

/// A direction below its negative is raised by a turn (<): ca_elaln, ang_pnt.
inline constexpr double kDirectionBelowZeroDeg = 1e-8;
/// A direction above it is lowered by a turn (>): ca_elaln, ang_pnt.
inline constexpr double kDirectionMaxDeg = 360.00000001;
/// A tangent direction along an axis (<): ca_elaln, ang_pnt.
inline constexpr double kTangentAlongAxisDeg = 1e-8;
/// Start and end of an arc that has no extents (<): ca_elamn, ca_elpmn.
inline constexpr double kArcWithoutSpanDeg = 1e-6;

// Ellipses: intersections.

/// A difference of coordinates of a line parallel to an axis (<): a2d_insLStandardE,
/// a2d_IsElpTangentLine.
inline constexpr double kAxisParallelSpan = 1e-8;
/// Distance of a line along one axis from the ends of the other, where it touches (<=):
/// a2d_IsElpTangentLine.
inline constexpr double kAxisTouchDistance = 1e-6;
/// Excess of the focal distance over half the first axis that is still an ellipse (refused
/// when >): a2d_IsElpTangentLine.
inline constexpr double kLineFocusExcess = 1e-6;
/// Difference of squared lengths in the focal test of a tangent (no tangent when >):
/// a2d_IsElpTangentLine.
inline constexpr double kFocalDifference = 1e-6;
/// Distance of a touching point from its line (<=): a2d_IsElpTangentLine.
inline constexpr double kTouchDistance = 1e-6;
/// Discriminant (length to the sixth, times four) of a vertical line that touches (<=):
/// a2d_insLStandardE.
inline constexpr double kVerticalTouchDiscriminant = 1e-6;
/// Rotations of the same ellipse are equal, or differ by 180 (<): a2d_InsDe.
inline constexpr double kSameRotationDeg = 1e-8;
/// A range that differs from 360 by less is a full ellipse (<): a2d_InsDe.
inline constexpr double kFullEllipseDeg = 1e-8;
/// A half axis or radius that is none (<); half a second axis below it makes the ellipse a
/// segment: a2dIntersectionEC, a2d_insce.
inline constexpr double kShortestHalfAxis = 1e-6;
/// A circle touches the line of a segment (<): a2dIntersectionEC.
inline constexpr double kSegmentTouch = 1e-6;
/// Slack of both ends of that segment (<, >, <=): a2dIntersectionEC.
inline constexpr double kSegmentEnd = 1e-6;
/// The ellipse's centre lies on the y axis through the circle's (<): a2dIntersectionEC.
inline constexpr double kCenterOnAxis = 1e-6;
/// It lies on the x axis where both curves touch (<): a2dIntersectionEC.
inline constexpr double kTouchOnAxis = 1e-6;
/// Imaginary part of a root that counts as real (<=): a2dIntersectionEC.
inline constexpr double kRealRoot = 1e-6;
/// Ordinates of two roots are equal (<), and so are their key angles (<): a2dIntersectionEC.
inline constexpr double kSameOrdinate = 1e-8;
inline constexpr double kSameKeyAngleDeg = 1e-8;
/// What either equation, as a ratio of squares, may miss 1 by at a point of both curves (<=):
/// a2dIntersectionEC.
inline constexpr double kOffCurve = 1e-6;
/// Discriminant (length to the sixth) of curves that touch (<): a2dIntersectionEC.
inline constexpr double kQuadraticTouch = 1e-6;
/// Squared distance from the y axis of a point on it (<): a2dIntersectionEC.
inline constexpr double kCircleTopSquared = 1e-10;
/// Parameters of two points that are one (<): a2d_chk_distdeg.
inline constexpr double kSameParameterDeg = 1e-8;

// Ellipses: perpendiculars, tangents, distances.

/// A^2 y^2 + B^2 x^2 - A^2 B^2 of a point on the ellipse, a length to the fourth (<=): a2d_distpe.
inline constexpr double kOnCurveValue = 0.0001;
/// A full axis that leaves nothing to project onto (<=): a2d_perle.
inline constexpr double kProjectedShortAxis = 1e-6;
/// Both coordinates of a point at the centre (<): a2d_perle.
inline constexpr double kProjectedAtCenter = 1e-6;
/// The end of a range that counts as 360 (<): a2d_perle.
inline constexpr double kProjectedEndAtZeroDeg = 1e-6;
/// Slack of both ends of a range, and how far below 0 an angle may lie: a2d_perle.
inline constexpr double kProjectedSlackDeg = 1e-8;
/// A direction above it is lowered by a turn, once (>), and is beyond the turn's end: a2d_perle.
inline constexpr double kProjectedMaxDeg = 360.00000001;
/// Ordinate of a point whose polar line is upright (<): ca_inspe.
inline constexpr double kPolarLineUpright = 1e-8;
/// A squared ordinate, or a discriminant (length to the sixth), of a polar line that cuts the
/// ellipse in no two points (<=): ca_inspe.
inline constexpr double kPolarLineMisses = 1e-8;
/// Excess of the focal distance over half the first axis that is still an ellipse (refused
/// when >): a2d_tchpe.
inline constexpr double kTangentFocusExcess = 1e-6;
/// Distance of a focus's foot from the point at which it is the point itself (<): a2d_tchpe.
inline constexpr double kFootAtPoint = 1e-6;
/// A coordinate of the nearest sample that counts as zero (<): ca_dstpp.
inline constexpr double kSampleSnapLength = 1e-6;

} // namespace planegeo
