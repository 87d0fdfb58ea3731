// SPDX-License-Identifier: GPL-3.0-or-later
// Every diagram type as the user meets it: entry, kind, window, titles in all units.
#include <gmock/gmock.h>

#include "butane_diagram.h"
#include "diagrams/axis_titles.h"

namespace orva {
namespace {

using test::ButaneDiagram;
using R = DiagramRanges;

struct Expected {
    int type;
    const char* command;
    int index;
    int kind;
    const char* code; // null: not fixed
    float R::*xMax;   // null: from the limits of the function
    float R::*yMax;
    const char *xTitle, *yTitle, *title;
};

constexpr const char* cutCode = nullptr;
constexpr const char *T = "T / K", *p = "p / kPa", *v = "v / (m^3/kmol)", *rho = "rho / (kg/m^3)",
                     *pv = "p v / (kPa m^3/kmol)", *h = "h / (kJ/kmol) ", *s = "s / (kJ/(kmol K)) ",
                     *g = "g / (kJ/kmol) ", *u = "u / (kJ/kmol) ", *a = "a / (kJ/kmol) ",
                     *e = "e / (kJ/kmol) ", *eU = "e(U) / (kJ/kmol) ", *cp = "cp / (kJ/(kmol K)) ",
                     *cV = "cV / (kJ/(kmol K)) ", *sEnergy = "T(u) s / (kJ/kmol) ";

// clang-format off
constexpr Expected table[] = {
    {1, "mnuGraf_sub_cut", 1, 1, cutCode, &R::vMax, &R::pMax, v, p, "isothermer Schnitt p - v"},
    {26, "mnuGraf_sub_cut", 2, 1, cutCode, &R::pMax, &R::rhoMax, p, rho, "isothermer Schnitt rho - p"},
    {2, "mnuGraf_sub_cut", 3, 1, cutCode, &R::pMax, &R::pvMax, p, pv, "Isothermer Schnitt  pv - p"},
    {3, "mnuGraf_sub_cut", 5, 2, cutCode, &R::vMax, &R::TMax, v, T, "isobarer Schnitt T - v"},
    {4, "mnuGraf_sub_cut", 6, 2, cutCode, &R::rhoMax, &R::TMax, rho, T, "isobarer Schnitt T -rho"},
    {5, "mnuGraf_sub_cut", 8, 3, cutCode, &R::TMax, &R::pMax, T, p, "isochorer Schnitt p - T"},
    {34, "mnuGraf_sub_FuT", 1, 2, "yT", &R::TwideMax, &R::deltaMax, T, "delta / (K/kPa)",
     "differentieller Joule-Thomson-Koeffizient aus EOS, isobar"},
    {15, "mnuGraf_sub_FuT", 3, 2, "yT", &R::TMax, &R::hMax, T, h, "molare Enthalpie h"},
    {16, "mnuGraf_sub_FuT", 4, 2, "yT", &R::TMax, &R::sMax, T, s, "molare Entropie s"},
    {17, "mnuGraf_sub_FuT", 5, 2, "yT", &R::TMax, &R::hMax, T, g, "molare Freie Enthalpie g"},
    {18, "mnuGraf_sub_FuT", 6, 2, "yT", &R::TMax, &R::hMax, T, e, "molare Exergie der Enthalpie e "},
    {19, "mnuGraf_sub_FuT", 7, 2, "yT", &R::TMax, &R::cpMax, T, cp,
     "Wärmekapazazität cp (real) = cp(idGas) + Residualwert nach EOS"},
    {184, "mnuGraf_sub_FuT", 9, 3, "yT", &R::TMax, &R::sMax, T, s, "Entropie s"},
    {183, "mnuGraf_sub_FuT", 10, 3, "yT", &R::TMax, &R::hMax, T, u, "Innere Energie u vs. Temperatur T"},
    {182, "mnuGraf_sub_FuT", 11, 3, "yT", &R::TMax, &R::hMax, T, a, "Freie Energie a vs. Temperatur T"},
    {181, "mnuGraf_sub_FuT", 12, 3, "yT", &R::TMax, &R::hMax, T, eU, "Exergie der Inneren Energie e "},
    {185, "mnuGraf_sub_FuT", 13, 3, "yT", &R::TMax, &R::cpMax, T, cV, "Wärmekapazität cV"},
    {150, "mnuGraf_sub_Fup", 1, 1, "yp", &R::pMax, &R::hMax, p, h, "molare Enthalpie h"},
    {151, "mnuGraf_sub_Fup", 2, 1, "yp", &R::pMax, &R::sMax, p, s, "molare Entropie s"},
    {152, "mnuGraf_sub_Fup", 3, 1, "yp", &R::pMax, &R::hMax, p, g, "molare Freie Enthalpie g"},
    {153, "mnuGraf_sub_Fup", 4, 1, "yp", &R::pMax, &R::hMax, p, e, "molare Exergie der Enthalpie e "},
    {154, "mnuGraf_sub_Fup", 5, 1, "yp", &R::pMax, &R::cpMax, p, cp,
     "Wärmekapazazität cp (real) = cp(idGas) + Residualwert nach EOS"},
    {158, "mnuGraf_sub_FuV", 1, 1, "yv", &R::vMax, &R::sMax, v, s, "Entropie s vs. Volumen"},
    {157, "mnuGraf_sub_FuV", 2, 1, "yv", &R::vMax, &R::hMax, v, u, "Innere Energie u vs. Volumen"},
    {156, "mnuGraf_sub_FuV", 3, 1, "yv", &R::vMax, &R::hMax, v, a, "Freie Energie a vs. Volumen v"},
    {160, "mnuGraf_sub_FuV", 4, 1, "yv", &R::vMax, &R::hMax, v, eU,
     "Exergie der Inneren Energie e vs. Volumen"},
    {159, "mnuGraf_sub_FuV", 5, 1, "yv", &R::vMax, &R::cpMax, v, cV, "Wärmekapazität cV vs. Volumen"},
    {31, "mnuGraf_sub_res_FuT", 1, 2, "yT", &R::TwideMax, &R::dhMax, T, "(h - h_id) / (kJ/kmol) ",
     "residuale Enthalpie (h - h_id), isobar"},
    {30, "mnuGraf_sub_res_FuT", 2, 2, "yT", &R::TwideMax, &R::dsMax, T, "(s - s_id) / (kJ/(kmol K)) ",
     "residuale Entropie (s - s_id), isobar"},
    {32, "mnuGraf_sub_res_FuT", 3, 2, "yT", &R::TwideMax, &R::dhMax, T, "(g - g_id) / (kJ/kmol) ",
     "residuale Freie Enthalpie (g - g_id) = RT ln(phi), isobar"},
    {33, "mnuGraf_sub_res_FuT", 4, 2, "yT", &R::TwideMax, &R::cpMax, T, "(cp - cp_id) / (kJ/(kmol K)) ",
     "residuale Wärmekapazität (cp - cp_id), isobar"},
    {41, "mnuGraf_sub_res_Fup", 1, 1, "yp", &R::pMax, &R::dhMax, p, "(h - h_id) / (kJ/kmol) ",
     "residuale Enthalpie (h - h_id), isotherm"},
    {40, "mnuGraf_sub_res_Fup", 2, 1, "yp", &R::pMax, &R::dsMax, p, "(s - s_id) / (kJ/(kmol K)) ",
     "residuale Entropie (s - s_id), isotherm"},
    {42, "mnuGraf_sub_res_Fup", 3, 1, "yp", &R::pMax, &R::dhMax, p, "(g - g_id) / (kJ/kmol) ",
     "residuale Freie Enthalpie (g - g_id) = RT ln(phi), isotherm"},
    {43, "mnuGraf_sub_res_Fup", 4, 1, "yp", &R::pMax, &R::cpMax, p, "(cp - cp_id) / (kJ/(kmol K)) ",
     "residuale Wärmekapazität (cp - cp_id), isotherm"},
    {107, "mnuGraf_sub_HS", 0, 1, "yy", &R::sMax, &R::hMax, s, h, "Enthalpie h vs. Entropie s, isotherm"},
    {24, "mnuGraf_sub_HS", 1, 2, "yy", &R::sMax, &R::hMax, s, h, "Enthalpie h vs. Entropie s, isobar"},
    {109, "mnuGraf_sub_ES", 0, 1, "yy", &R::hMax, &R::hMax, sEnergy, e,
     "Exergie der Enthalpie e vs. T(u) * Entropie, isotherm"},
    {23, "mnuGraf_sub_ES", 1, 2, "yy", &R::hMax, &R::hMax, sEnergy, e,
     "Exergie der Enthalpie e vs. T(u) * Entropie, isobar"},
    {21, "mnuGraf_sub_EH", 0, 1, "yy", &R::hMax, &R::hMax, h, e,
     "Exergie der Enthalpie e vs. Enthalpie, isotherm"},
    {22, "mnuGraf_sub_EH", 1, 2, "yy", &R::hMax, &R::hMax, h, e, "Exergie der Enthalpie e vs. Enthalpie, isobar"},
    {13, "mnuGraf_sub_proj", 0, 5, nullptr, &R::TMax, &R::hVapMax, T, "delta(LV)h / (kJ/kmol) ",
     "Verdampfungsenthalpie delta(LV)h = F(T)"},
    {6, "mnuGraf_sub_proj", 1, 5, nullptr, &R::vMax, &R::pMax, v, p, "Projektion p - v"},
    {27, "mnuGraf_sub_proj", 2, 5, nullptr, &R::pMax, &R::rhoMax, p, rho, "Projektion rho - p"},
    {106, "mnuGraf_sub_proj", 3, 5, nullptr, &R::pMax, &R::pvMax, p, pv, "Projektion pv - p"},
    {7, "mnuGraf_sub_proj", 4, 5, nullptr, &R::vMax, &R::TMax, v, T, "Projektion T - v"},
    {8, "mnuGraf_sub_proj", 5, 5, nullptr, &R::TMax, &R::rhoMax, T, rho, "Projektion rho - T"},
    {9, "mnuGraf_sub_proj", 6, 5, nullptr, &R::TMax, &R::pMax, T, p, "Projektion p - T"},
    {90, "mnuGraf_sub_proj", 8, 5, nullptr, &R::TMax, &R::hMax, T, h,
     "Enthalpie H(T) im Phasengleichgewicht V - L"},
    {91, "mnuGraf_sub_proj", 9, 5, nullptr, &R::TMax, &R::sMax, T, s,
     "Entropie S(T) im Phasengleichgewicht V - L"},
    {93, "mnuGraf_sub_proj", 10, 5, nullptr, &R::TMax, &R::hMax, T, g,
     "Freie Enthalpie G(T) im Phasengleichgewicht V - L"},
    {94, "mnuGraf_sub_proj", 11, 5, nullptr, &R::TMax, &R::hMax, T, e, "Exergie der Enthalpie  e(T) im VLE"},
    {92, "mnuGraf_sub_proj", 12, 5, nullptr, &R::TMax, &R::cpMax, T, cp,
     "Wärmekapazität cp(T) im Phasengleichgewicht V - L"},
    {10, "mnuGraf_sub_proj", 14, 5, nullptr, &R::invTMax, &R::lnPMax, "1/T / (1/K)", "ln(p / kPa)",
     "Dampfdruckkurve mit CEOS Peng / Robinson"},
    {11, "mnuGraf_sub_proj", 15, 5, nullptr, &R::invTMax, &R::dlnMax, "1/T / (1/K)", "dlnp / d(1/T) / K",
     "dlnp / d(1/T) vs. 1/T für Dampfdruckgleichung"},
    {306, "mnuGraf_sub_sub_database", 0, 7, "pT", nullptr, nullptr, T, p,
     "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion erweiterte Frost-Kalkwarf-Gleichung"},
    {307, "mnuGraf_sub_sub_database", 1, 7, "pT", nullptr, nullptr, T, p,
     "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion Wagner-Gleichung"},
    {308, "mnuGraf_sub_sub_database", 2, 7, "pT", nullptr, nullptr, T, p,
     "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion Antoine-Gleichung (Lo-p)"},
    {309, "mnuGraf_sub_sub_database", 3, 7, "pT", nullptr, nullptr, T, p,
     "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion Antoine-Gleichung (Hi-p)"},
    {300, "mnuGraf_sub_database", 1, 7, "yT", nullptr, nullptr, T, rho, "L-Dichte aus Datenbankfunktion"},
    {301, "mnuGraf_sub_database", 2, 7, "yT", nullptr, nullptr, T, v,
     "molares Volumen aus Datenbankfunktion rho(L)= F(T)"},
    {310, "mnuGraf_sub_database", 3, 7, "yT", nullptr, nullptr, T, rho, "S-Dichte aus Datenbankfunktion"},
    {305, "mnuGraf_sub_database", 4, 7, "yT", nullptr, nullptr, T, "delta(LV)h / (kJ/kmol) ",
     "Verdampfungsenthalpie delta(LV)h = Fu(T), Datenbankfunktion"},
    {302, "mnuGraf_sub_database", 5, 7, "yT", nullptr, nullptr, T, cp,
     "Idealgas-Wärmekapazität cp = Fu(T), Datenbankfunktion"},
    {303, "mnuGraf_sub_database", 6, 7, "yT", nullptr, nullptr, T, cp,
     "Flüssigkeits-Wärmekapazität cp = Fu(T), Datenbankfunktion"},
    {304, "mnuGraf_sub_database", 7, 7, "yT", nullptr, nullptr, T, cp,
     "Feststoff-Wärmekapazität cp = Fu(T), Datenbankfunktion"},
};

// The lower limit that belongs to an upper one.
constexpr std::pair<float R::*, float R::*> lowerLimits[] = {
    {&R::pMax, &R::pMin},       {&R::TMax, &R::TMin},     {&R::TwideMax, &R::TMin}, {&R::vMax, &R::vMin},
    {&R::rhoMax, &R::rhoMin},   {&R::pvMax, &R::pvMin},   {&R::lnPMax, &R::lnPMin}, {&R::invTMax, &R::invTMin},
    {&R::dlnMax, &R::dlnMin},   {&R::hVapMax, &R::hVapMin}, {&R::deltaMax, &R::deltaMin},
    {&R::hMax, &R::hMin},       {&R::sMax, &R::sMin},     {&R::cpMax, &R::cpMin},   {&R::dsMax, &R::dsMin},
    {&R::dhMax, &R::dhMin},
};
// clang-format on

float LowerOf(const DiagramRanges& ranges, float R::*high) {
    for (const auto& [upper, lower] : lowerLimits)
        if (upper == high)
            return ranges.*lower;
    ADD_FAILURE() << "no lower limit";
    return 0;
}

// Ranges that tell each limit from every other.
void NumberRanges(DiagramRanges& ranges) {
    float number = 1;
    for (const auto& [upper, lower] : lowerLimits) {
        ranges.*lower = number++;
        ranges.*upper = number++;
    }
}

TEST(Catalogue, MenuHoldsTheseDiagramsAndNoOthers) {
    std::size_t entries = 0;
    for (const DiagramRow& row : Catalogue())
        entries += row.command.empty() ? 0 : 1;
    EXPECT_EQ(entries, std::size(table));
    for (const Expected& expected : table) {
        const DiagramRow* row = FindDiagram(expected.command, expected.index);
        ASSERT_NE(row, nullptr) << expected.type;
        EXPECT_EQ(row->type, expected.type);
        EXPECT_EQ(row->curveKind, expected.kind) << expected.type;
        if (expected.code != nullptr) {
            EXPECT_EQ(row->curveCode, expected.code) << expected.type;
        }
        EXPECT_EQ(row->curveCode.size(), 2U) << expected.type;
    }
}

TEST(Catalogue, EveryDiagramHasItsWindow) {
    ButaneDiagram d;
    d.session.rangesStale = false;
    NumberRanges(d.ranges);
    for (const Expected& expected : table) {
        if (expected.xMax == nullptr)
            continue;
        DiagramRecords records = d.Records();
        SelectDiagram(records, *FindDiagram(expected.type), d.spec);
        EXPECT_EQ(d.spec.xMax, d.ranges.*expected.xMax) << expected.type;
        EXPECT_EQ(d.spec.xMin, LowerOf(d.ranges, expected.xMax)) << expected.type;
        EXPECT_EQ(d.spec.yMax, d.ranges.*expected.yMax) << expected.type;
        EXPECT_EQ(d.spec.yMin, LowerOf(d.ranges, expected.yMax)) << expected.type;
    }
}

TEST(Catalogue, EveryDiagramHasItsTitles) {
    ButaneDiagram d;
    for (const Expected& expected : table) {
        DiagramRecords records = d.Records();
        SelectDiagram(records, *FindDiagram(expected.type), d.spec);
        EXPECT_EQ(d.spec.xTitle, expected.xTitle) << expected.type;
        EXPECT_EQ(d.spec.yTitle, expected.yTitle) << expected.type;
        EXPECT_EQ(d.spec.typeTitle, expected.title) << expected.type;
        EXPECT_EQ(d.spec.heading, d.spec.headingText + " Diagrammtyp:  " + expected.title) << expected.type;
        if (expected.kind == 7) {
            EXPECT_TRUE(d.spec.subTitle.starts_with(", Gültigkeit T = ")) << d.spec.subTitle;
            EXPECT_TRUE(d.spec.subTitle.ends_with(" K")) << d.spec.subTitle;
        } else {
            EXPECT_EQ(d.spec.subTitle, ", CEOS Peng / Robinson") << expected.type;
        }
    }
}

TEST(Catalogue, VapourPressureDiagramsNameTheEquationInForce) {
    ButaneDiagram d;
    d.model.selection.eosPriority = false;
    for (const int type : {10, 11}) {
        DiagramRecords records = d.Records();
        SelectDiagram(records, *FindDiagram(type), d.spec);
        EXPECT_EQ(d.spec.subTitle, ", Wagner") << type;
    }
    DiagramRecords records = d.Records();
    SelectDiagram(records, *FindDiagram(10), d.spec);
    EXPECT_EQ(d.spec.typeTitle, "Dampfdruckkurve mit Wagner");
    SelectDiagram(records, *FindDiagram(9), d.spec);
    EXPECT_EQ(d.spec.subTitle, ", CEOS Peng / Robinson");
}

TEST(Catalogue, SpecificUnitsChangeTheWordOfTheHeading) {
    ButaneDiagram d(eosPengRobinson, 1, 3);
    for (const Expected& expected : table) {
        DiagramRecords records = d.Records();
        SelectDiagram(records, *FindDiagram(expected.type), d.spec);
        std::string title = expected.title;
        if (title.starts_with("molare ")) // "molares Volumen" keeps its word
            title.replace(0, 7, "spezifische ");
        EXPECT_EQ(d.spec.typeTitle, title) << expected.type;
    }
}

TEST(Catalogue, CaloricAxesHaveFourUnits) {
    constexpr struct {
        int type;
        const char* titles[4];
    } rows[] = {
        {15, {"h / (kJ/kmol) ", "h / K", "h / (R T)", "h / (kJ/kg) "}},
        {16, {"s / (kJ/(kmol K)) ", "s / R", "s / (1/K)", "s / (kJ/(kg K)) "}},
        {17, {"g / (kJ/kmol) ", "g / K", "g / (R T)", "g / (kJ/kg) "}},
        {18, {"e / (kJ/kmol) ", "e / K", "e / (R T)", "e / (kJ/kg) "}},
        {19, {"cp / (kJ/(kmol K)) ", "cp / R ", "cp / (1/K) ", "cp / (kJ/(kg K)) "}},
        {154, {"cp / (kJ/(kmol K)) ", "cp / R ", "cp / (1/K) ", "cp / (kJ/(kg K)) "}},
        {159, {"cV / (kJ/(kmol K)) ", "cV / R ", "cV / (1/K) ", "cV / (kJ/(kg K)) "}},
        {185, {"cV / (kJ/(kmol K)) ", "cp / R ", "cV / (1/K) ", "cV / (kJ/(kg K)) "}}, // kept on purpose
        {182, {"a / (kJ/kmol) ", "a / K", "a / (R T)", "a / (kJ/kg) "}},
        {183, {"u / (kJ/kmol) ", "u / K", "u / (R T)", "u / (kJ/kg) "}},
        {181, {"e(U) / (kJ/kmol) ", "e(U) / K", "e(U) / (R T)", "e(U) / (kJ/kg) "}},
        {13, {"delta(LV)h / (kJ/kmol) ", "delta(LV)h / K", "delta(LV)h / (R T)", "delta(LV)h / (kJ/kg) "}},
        {31, {"(h - h_id) / (kJ/kmol) ", "(h - h_id) / K", "(h - h_id) / (R T)", "(h - h_id) / (kJ/kg) "}},
    };
    for (const auto& row : rows)
        for (int basis = 0; basis < 4; ++basis) {
            ButaneDiagram d(eosPengRobinson, 0, basis);
            DiagramRecords records = d.Records();
            SelectDiagram(records, *FindDiagram(row.type), d.spec);
            EXPECT_EQ(d.spec.yTitle, row.titles[basis]) << row.type << " " << basis;
        }
}

TEST(Catalogue, VolumeBasisChangesTheAxesOfTheSections) {
    constexpr struct {
        int type;
        const char *xSpecific, *ySpecific, *xReduced, *yReduced;
    } rows[] = {
        {1, "v / (m^3/kg)", "p / kPa", "V(red)", "p / p(cr)"},
        {2, "p / kPa", "p v / (kPa m^3/kg)", "p / p(cr)", "p(red) V(red)"},
        {26, "p / kPa", "rho / (kg/m^3)", "p / p(cr)", "rho / (kg/m^3)"},
        {3, "v / (m^3/kg)", "T / K", "V(red)", "T(red)"},
        {5, "T / K", "p / kPa", "T(red)", "p / p(cr)"},
        {10, "1/T / (1/K)", "ln(p / kPa)", "1 / T(red)", "ln(p(red))"},
    };
    for (const auto& row : rows) {
        ButaneDiagram specific(eosPengRobinson, 1, 3);
        DiagramRecords records = specific.Records();
        SelectDiagram(records, *FindDiagram(row.type), specific.spec);
        EXPECT_EQ(specific.spec.xTitle, row.xSpecific) << row.type;
        EXPECT_EQ(specific.spec.yTitle, row.ySpecific) << row.type;
        ButaneDiagram reduced(eosPengRobinson, 2);
        DiagramRecords reducedRecords = reduced.Records();
        SelectDiagram(reducedRecords, *FindDiagram(row.type), reduced.spec);
        EXPECT_EQ(reduced.spec.xTitle, row.xReduced) << row.type;
        EXPECT_EQ(reduced.spec.yTitle, row.yReduced) << row.type;
    }
}

// Normal pressure belongs to the types between 12 and 100, the critical pressure to all others.
TEST(Catalogue, FirstPressureFollowsTheType) {
    for (const Expected& expected : table) {
        ButaneDiagram d;
        DiagramRecords records = d.Records();
        SelectDiagram(records, *FindDiagram(expected.type), d.spec);
        const bool normal = expected.type > 12 && expected.type < 100;
        EXPECT_EQ(d.request.curveP, normal ? 101.325 : d.model.substance.pc) << expected.type;
        EXPECT_EQ(d.request.curveT, d.model.substance.Tc) << expected.type;
    }
}

} // namespace
} // namespace orva
