// Every exported function: its documented results, and what its signature does not tell.

#include "entry.h"

namespace fuzz {

namespace {

// Functions whose contract ties arguments together are called through one of these.

void writeParameters(double a, double b, double other) {
    double *table = ca_Simpson_getParmtbl();
    table[0] = a;
    table[1] = b;
    table[9] = other;
}

/// Without an arc in the question its angles are not read.
std::int32_t lineAndArc(std::uint32_t mode, const DTPOINT *a1, const DTPOINT *a2,
                        const DTPOINT *center, double r, const double *angles, DTPOINT *out1,
                        DTPOINT *out2, std::uint16_t *count) {
    const bool asks = mode == 1 || mode == 3;
    return a2d_lin_arc(mode, a1, a2, center, r, asks ? angles : nullptr, out1, out2, count);
}

constexpr std::int32_t kMostRuns = 300;
std::int32_t mergeRuns(std::int32_t n, DTPOINT *points, double tol) {
    const std::int32_t held = n > kMostRuns ? 0 : n;
    const std::int32_t merged = ca_AutoUnionNrb(held, &points, tol);
    return merged == -1 || merged == held || (merged >= 0 && merged <= held) ? 0 : 1;
}

/// Without room there need not be arrays.
std::int32_t chain(const DTPOINT *center, double a, double b, double rot, const double *angles,
                   double tol, std::uint16_t room, DTPOINT *centers, double *radii,
                   double *outAngles, std::uint16_t *count) {
    *count = room;
    if (room == 0)
        return ca_elip2(center, a, b, rot, angles, tol, nullptr, nullptr, nullptr, count);
    return ca_elip2(center, a, b, rot, angles, tol, centers, radii, outAngles, count);
}

constexpr std::int64_t kMostDegree = 200;
constexpr int kLeft = 65535; // or inside

} // namespace

const std::vector<Entry> kEntries = {
    // settings
    entry<ca_geterrdist>("ca_geterrdist"),
    entry<ca_seterrdist>("ca_seterrdist").alone(),
    entry<ca_GetStartendFlg>("ca_GetStartendFlg"),
    entry<ca_SetStartendFlg>("ca_SetStartendFlg").alone(),
    entry<writeParameters>("ca_Simpson_getParmtbl").alone(),
    // angles
    entry<sind>("sind"),
    entry<cosd>("cosd"),
    entry<tand>("tand"),
    entry<asind>("asind"),
    entry<acosd>("acosd"),
    entry<atand>("atand"),
    entry<atan2d>("atan2d"),
    entry<a2d_StdSedeg>("a2d_StdSedeg").codes(0, 1),
    entry<a2d_ChkDegr>("a2d_ChkDegr").codes(0, 1),
    entry<a2d_GetBedeg>("a2d_GetBedeg"),
    // points
    entry<c_pnt>("c_pnt").codes(0).separate(),
    entry<ca_rvpnt>("ca_rvpnt").codes(0).separate(),
    entry<pnt_std>("pnt_std").codes(0),
    entry<pnt_formd>("pnt_formd").codes(0),
    entry<pnt_mer>("pnt_mer").codes(0),
    entry<ca_vmpnt>("ca_vmpnt").codes(0),
    entry<ca_vcrad>("ca_vcrad"),
    entry<ca_dstpt>("ca_dstpt"),
    // lines
    entry<a2dCrs2L>("a2dCrs2L").codes(0, 1),
    entry<a2d_ins2l>("a2d_ins2l").codes(0, 1, 2),
    entry<ca_ins2l>("ca_ins2l").codes(0, 1, 2),
    entry<aatCalCrs2l>("aatCalCrs2l").room(0, 6).room(1, 2).codes(0, 2070),
    entry<ca_perln>("ca_perln").codes(-1, 0, 1),
    entry<ca_palds>("ca_palds").codes(0, 1),
    entry<ca_posln>("ca_posln").codes(0, 1).writes(0, 1, kLeft),
    entry<a2d_onlin>("a2d_onlin").codes(-1, 0, 1),
    entry<ca_onlin>("ca_onlin").codes(-1, 0, 1),
    entry<ca_DistAlongbyLineFromSpnt>("ca_DistAlongbyLineFromSpnt")
        .codes(0, 1)
        .nullable(0)
        .nullable(1),
    entry<a2d_InsDl>("a2d_InsDl").codes(-1, 0, 1),
    entry<a2d_Chk3pnt>("a2d_Chk3pnt").codes(0, 1, 2, 3),
    // lines with circles and arcs
    entry<cross_lin_cir>("cross_lin_cir").codes(0).writes(0, 1, 2),
    entry<lineAndArc>("a2d_lin_arc").codes(0, 1).writes(0, 1, 2),
    entry<a2dCrsLC>("a2dCrsLC").room(4, 2).codes(0, 1, 2),
    entry<ca_crslc>("ca_crslc").codes(0, 2071).writes(0, 1, 2),
    entry<ca_crslc2>("ca_crslc2").codes(0, 2071).writes(0, 1, 2),
    entry<ca_inslc>("ca_inslc").codes(0, 1).writes(0, 1, 2),
    entry<a2d_inslc>("a2d_inslc").codes(0, 1).writes(0, 1, 2),
    entry<sb_inslc>("sb_inslc").codes(0, 1).writes(0, 1, 2),
    // circles with circles
    entry<a2dCrs2C>("a2dCrs2C").room(4, 4).codes(0, 1, 2),
    entry<a2d_ins2c>("a2d_ins2c").codes(0, 1).writes(0, 1, 2),
    entry<ca_ins2c>("ca_ins2c").codes(0, 1).writes(0, 1, 2),
    // arcs
    entry<ca_arc3p>("ca_arc3p").room(5, 2).codes(0, 1),
    entry<ca_arc2pratio>("ca_arc2pratio").room(8, 2).codes(0, 1),
    entry<ca_arcan>("ca_arcan").codes(0),
    entry<ca_arccd>("ca_arccd").codes(0),
    entry<ca_arcXY>("ca_arcXY").codes(0),
    entry<ca_onarc>("ca_onarc").codes(0, 1),
    entry<ca_posar>("ca_posar").codes(0, 1).writes(0, 1, kLeft),
    entry<ca_rvarc>("ca_rvarc").room(7, 2).codes(0),
    entry<ca_DistAlongbyArcFromSpnt>("ca_DistAlongbyArcFromSpnt")
        .codes(0, 1)
        .nullable(0)
        .nullable(5),
    entry<a2d_InsDc>("a2d_InsDc").codes(-1, 0, 1),
    entry<mergeRuns>("ca_AutoUnionNrb").roomBy(1, 0, 1, 0, kMostRuns).nullable(1).codes(0),
    // circle tangents
    entry<ca_pctan>("ca_pctan").codes(0).writes(0, 2),
    entry<ca_cctan>("ca_cctan").codes(0, 1).writes(0, 2, 4),
    // polynomial solvers
    entry<amaSolveLinerEquation>("amaSolveLinerEquation").codes(-1, 0, 1),
    entry<amaSolveEquationOf2ndD>("amaSolveEquationOf2ndD").room(0, 3).room(1, 4).codes(-1, 0, 2),
    entry<amaSolveEquationOf3rdD>("amaSolveEquationOf3rdD").room(0, 4).room(1, 6).codes(-1, 1, 3),
    entry<amaSolveEquationOf4thD>("amaSolveEquationOf4thD")
        .room(0, 5)
        .room(1, 8)
        .codes(-1, 0, 2, 4),
    entry<ama_c_sqrt>("ama_c_sqrt"),
    entry<amaNewtonRaphson>("amaNewtonRaphson").roomBy(0, 1, 1, 1, kMostDegree).codes(-2, -1, 0),
    entry<amaBairstaw>("amaBairstaw")
        .roomBy(0, 1, 1, 1, kMostDegree)
        .roomBy(2, 1, 2, 0, kMostDegree)
        .codes(-3, -2, -1, 0),
    entry<amaDKA>("amaDKA")
        .roomBy(0, 1, 1, 1, kMostDegree)
        .roomBy(4, 1, 2, 0, kMostDegree)
        .codes(-1, 0),
    // ellipses: record
    entry<ca_elpcd>("ca_elpcd").room(5, 4).codes(0),
    entry<a2d_elpdeg>("a2d_elpdeg").codes(-1, 0),
    entry<a2dGetEllipsDt>("a2dGetEllipsDt").codes(-1, 0),
    entry<ca_ElpAngle>("ca_ElpAngle").codes(-1, 0),
    entry<ca_ElpCordXY>("ca_ElpCordXY").codes(-1, 0),
    // ellipses: queries and transforms
    entry<GetElpFocusPnt>("GetElpFocusPnt").codes(-1, 0),
    entry<a2d_GetTangentVectorOnElp>("a2d_GetTangentVectorOnElp")
        .codes(0, 1)
        .nullable(1)
        .nullable(2),
    entry<a2d_GetTangentVectorOnDTELLIPSE>("a2d_GetTangentVectorOnDTELLIPSE")
        .codes(0, 1)
        .nullable(0)
        .nullable(1)
        .nullable(2),
    entry<CheckEllipseArcAngle>("CheckEllipseArcAngle").codes(0, 1),
    entry<a2d_hanel>("a2d_hanel").codes(0, 1, 2),
    entry<ca_onelp>("ca_onelp").codes(-1, 0, 1),
    entry<pin_chk>("pin_chk").codes(0, 1),
    entry<ca_posel>("ca_posel").codes(-1, 0).writes(0, 1, kLeft),
    entry<a2d_elp_trans>("a2d_elp_trans").codes(-1, 0),
    entry<ca_rvelp>("ca_rvelp").room(11, 2).codes(0),
    entry<ca_vmelp>("ca_vmelp").room(11, 2).codes(0),
    entry<ca_samel>("ca_samel").room(10, 2).codes(0),
    // ellipses: length and area
    entry<ca_lengelp>("ca_lengelp").codes(0),
    entry<ca_AreaElp>("ca_AreaElp").codes(0),
    entry<ca_Simpson>("ca_Simpson").codes(-2, -1, 0, 77),
    entry<ca_Simpson2>("ca_Simpson2").codes(-2, -1, 0, 77),
    entry<ca_ElpLen>("ca_ElpLen").codes(0),
    entry<ca_ElpLen2>("ca_ElpLen2").codes(-1, 0),
    // ellipses: chains of arcs
    entry<ca_elips>("ca_elips").room(5, 5).room(6, 5).room(7, 10).codes(0).writes(0, 1, 2, 3, 4, 5),
    entry<ca_elip1>("ca_elip1")
        .room(5, 5)
        .room(6, 5)
        .room(7, 10)
        .codes(-1, 0)
        .writes(0, 1, 2, 3, 4, 5),
    entry<chain>("ca_elip2")
        .roomBy(7, 6, 1, 0, 65535)
        .roomBy(8, 6, 1, 0, 65535)
        .roomBy(9, 6, 2, 0, 65535)
        .codes(-3, -2, -1, 0),
    // ellipses: division
    entry<a2d_elpdn>("a2d_elpdn").codes(-2, -1, 0, 1).alone(),
    entry<ca_elpdn>("ca_elpdn").codes(0, 1),
    // ellipses: extents
    entry<ca_elaln>("ca_elaln").codes(1),
    entry<ang_pnt>("ang_pnt").codes(0),
    entry<ca_elamn>("ca_elamn").codes(0, 1),
    entry<ca_elpmn>("ca_elpmn").room(7, 4).codes(0, 1),
    // lines with ellipses
    entry<a2d_CrsLE>("a2d_CrsLE").codes(0, 1).writes(0, 1, 2),
    entry<a2d_insle>("a2d_insle").codes(-1, 0).writes(0, 1, 2),
    entry<ca_insle>("ca_insle").codes(-1, 0).writes(0, 1, 2),
    entry<a2d_insle2>("a2d_insle2").codes(-1, 0).writes(0, 1, 2),
    entry<a2d_insl1>("a2d_insl1").codes(-1, 0).writes(0, 1, 2),
    entry<a2d_insLStandardE>("a2d_insLStandardE").codes(-1, 0).writes(0, 1, 2),
    entry<a2d_IsElpTangentLine>("a2d_IsElpTangentLine").codes(-1, 0),
    entry<a2d_InsDe>("a2d_InsDe").codes(-1, 0, 1),
    // ellipses with circles and ellipses
    entry<a2dIntersectionEC>("a2dIntersectionEC").room(5, 4).codes(-1001, 0, 1, 2, 3, 4),
    entry<a2d_insce>("a2d_insce").codes(-1, 0).writes(0, 1, 2, 3, 4),
    entry<ca_insce>("ca_insce").codes(-1, 0).writes(0, 1, 2, 3, 4),
    entry<a2d_ins2e>("a2d_ins2e").codes(-1, 0, 1).writes(0, 1, 2, 3, 4),
    entry<ca_ins2e>("ca_ins2e").codes(-1, 0, 1).writes(0, 1, 2, 3, 4),
    entry<a2d_chk_distdeg>("a2d_chk_distdeg")
        .roomBy(0, 1, 1, 0, 4)
        .roomBy(6, 1, 1, 0, 4)
        .codes(-1, 1, 2, 3, 4),
    // ellipses: perpendiculars
    entry<a2dEllpsPer>("a2dEllpsPer").room(2, 2).codes(-2, -1, 0, 1, 2),
    entry<a2dEllpsPerPnts>("a2dEllpsPerPnts").room(2, 4).codes(-2, -1, 0, 2, 4),
    entry<a2dEllpsArcPerPnts>("a2dEllpsArcPerPnts").room(2, 4).codes(-2, -1, 0, 1, 2, 3, 4),
    entry<a2d_PerEP>("a2d_PerEP").room(2, 4).codes(-1, 0).writes(0, 1, 2, 4),
    entry<a2d_PerEP2>("a2d_PerEP2").room(2, 4).codes(-1, 0).writes(0, 1, 2, 3, 4),
    entry<a2d_perle>("a2d_perle").codes(-1, 0, 1),
    // ellipses: tangents
    entry<ca_inspe>("ca_inspe").codes(0, 1),
    entry<a2d_tchpe>("a2d_tchpe").codes(-1, 0, 2),
    entry<a2d_tch2e>("a2d_tch2e").codes(-1, 0, 1, 2).writes(0, 2, 4),
    // ellipses: distance
    entry<a2d_distpe>("a2d_distpe").codes(0, 1, 2),
    entry<ca_dstpp>("ca_dstpp"),
    entry<ca_dstpe>("ca_dstpe"),
    entry<a2d_dstpp>("a2d_dstpp"),
    entry<a2d_dstpe>("a2d_dstpe"),
};

} // namespace fuzz
