// SPDX-License-Identifier: GPL-3.0-or-later
// Diagrams of the caloric functions, of residual functions and of the functions of the database, as a lecture
// shows them.
#include <algorithm>

#include <gtest/gtest.h>

#include "diagrams/database_curves.h"
#include "ui/diagram_pictures_fixture.h"

namespace orva::test {
namespace {

struct FunctionCase {
    DiagramCase diagram;
    const char* name;
    bool coexistence = false, tieLine = false, sCurve = false; // what the diagram can take besides its curves
};

constexpr const char* h = "h / (kJ/kmol) ";
constexpr const char* s = "s / (kJ/(kmol K)) ";
constexpr const char* g = "g / (kJ/kmol) ";
constexpr const char* a = "a / (kJ/kmol) ";
constexpr const char* u = "u / (kJ/kmol) ";
constexpr const char* e = "e / (kJ/kmol) ";
constexpr const char* eU = "e(U) / (kJ/kmol) ";
constexpr const char* cp = "cp / (kJ/(kmol K)) ";
constexpr const char* cV = "cV / (kJ/(kmol K)) ";
constexpr const char* Tus = "T(u) s / (kJ/kmol) ";
constexpr const char* T = "T / K";
constexpr const char* p = "p / kPa";
constexpr const char* v = "v / (m³/kmol)";

struct FunctionPictures : DiagramPictures {
    void AddAll(const FunctionCase& row, const QString& sCurve) {
        if (row.coexistence)
            AddCoexistence();
        if (row.tieLine)
            AddTieLine();
        if (row.sCurve)
            Add("mnuMarkSKurve", {sCurve});
        ExpectWholeCurves();
        Shoot(row.name);
    }
    // The window reaches from limit to limit of the function, and from its lowest to its highest value.
    void ExpectFilledWindow(int type) const {
        const DatabaseRange range = DatabaseRangeOf(type, Model());
        std::vector<double> values(2);
        ASSERT_TRUE(DatabaseValue(type, Model(), session->options, range.low, values[0]));
        ASSERT_TRUE(DatabaseValue(type, Model(), session->options, range.high, values[1]));
        for (const QCPCurveData& point : *qobject_cast<QCPCurve*>(graph->Plot().plottable(0))->data())
            values.push_back(point.value);
        const auto [low, high] = std::minmax_element(values.begin(), values.end());
        const bool constant = *high - *low < 1e-6 * *high;
        const double nearly = constant ? 2e-3 * *high : 0.01 * (*high - *low);
        EXPECT_EQ(graph->Plot().xAxis->range(), QCPRange(range.low, range.high)) << type;
        EXPECT_NEAR(graph->Plot().yAxis->range().lower, *low, nearly) << type;
        EXPECT_NEAR(graph->Plot().yAxis->range().upper, *high, nearly) << type;
    }
    void TakeIsobars(std::initializer_list<FunctionCase> rows) {
        for (const FunctionCase& row : rows) {
            Open(row.diagram);
            Draw(Pressures(), " kPa");
            Keep(Pressures()[1]);
            AddAll(row, Number(Pressures()[1]) + " kPa");
        }
    }
    void TakeIsotherms(std::initializer_list<FunctionCase> rows) {
        for (const FunctionCase& row : rows) {
            Open(row.diagram);
            Draw(Temperatures(), " K");
            Keep(Temperatures()[1]);
            AddAll(row, Number(Temperatures()[1]) + " K");
        }
    }
};

TEST_P(FunctionPictures, OverTemperatureAtConstantPressure) {
    TakeIsobars({
        {{"mnuGraf(1)", "mnuGraf_sub_FuT(1)", T, "delta / (K/kPa)"}, "034-delta-T"},
        {{"mnuGraf(1)", "mnuGraf_sub_FuT(3)", T, h}, "015-h-T", true, true, true},
        {{"mnuGraf(1)", "mnuGraf_sub_FuT(4)", T, s}, "016-s-T", true, true, true},
        {{"mnuGraf(1)", "mnuGraf_sub_FuT(5)", T, g}, "017-g-T", true, true, true},
        {{"mnuGraf(1)", "mnuGraf_sub_FuT(6)", T, e}, "018-e-T", true, true, true},
        {{"mnuGraf(1)", "mnuGraf_sub_FuT(7)", T, cp}, "019-cp-T", true},
    });
}

TEST_P(FunctionPictures, OverTemperatureAtConstantVolume) {
    for (const FunctionCase& row : std::initializer_list<FunctionCase>{
             {{"mnuGraf(1)", "mnuGraf_sub_FuT(9)", T, s}, "184-s-T", true},
             {{"mnuGraf(1)", "mnuGraf_sub_FuT(10)", T, u}, "183-u-T", true},
             {{"mnuGraf(1)", "mnuGraf_sub_FuT(11)", T, a}, "182-a-T", true},
             {{"mnuGraf(1)", "mnuGraf_sub_FuT(12)", T, eU}, "181-eU-T", true},
             {{"mnuGraf(1)", "mnuGraf_sub_FuT(13)", T, cV}, "185-cV-T"},
         }) {
        Open(row.diagram);
        Draw(Volumes(), " m^3/kmol");
        AddAll(row, {});
    }
}

TEST_P(FunctionPictures, OverPressure) {
    TakeIsotherms({
        {{"mnuGraf(2)", "mnuGraf_sub_Fup(1)", p, h}, "150-h-p", true, true, true},
        {{"mnuGraf(2)", "mnuGraf_sub_Fup(2)", p, s}, "151-s-p", true, true, true},
        {{"mnuGraf(2)", "mnuGraf_sub_Fup(3)", p, g}, "152-g-p", true, true, true},
        {{"mnuGraf(2)", "mnuGraf_sub_Fup(4)", p, e}, "153-e-p", true, true, true},
        {{"mnuGraf(2)", "mnuGraf_sub_Fup(5)", p, cp}, "154-cp-p", true},
    });
}

TEST_P(FunctionPictures, OverVolume) {
    TakeIsotherms({
        {{"mnuGraf(3)", "mnuGraf_sub_FuV(1)", v, s}, "158-s-v", true, true, true},
        {{"mnuGraf(3)", "mnuGraf_sub_FuV(2)", v, u}, "157-u-v", true, true, true},
        {{"mnuGraf(3)", "mnuGraf_sub_FuV(3)", v, a}, "156-a-v", true, true, true},
        {{"mnuGraf(3)", "mnuGraf_sub_FuV(4)", v, eU}, "160-eU-v", true, true, true},
        {{"mnuGraf(3)", "mnuGraf_sub_FuV(5)", v, cV}, "159-cV-v", true, true},
    });
}

TEST_P(FunctionPictures, OfResidualsOverTemperature) {
    TakeIsobars({
        {{"mnuGraf(4)", "mnuGraf_sub_res_FuT(1)", T, "(h - h_id) / (kJ/kmol) "}, "031-hR-T", false, true},
        {{"mnuGraf(4)", "mnuGraf_sub_res_FuT(2)", T, "(s - s_id) / (kJ/(kmol K)) "}, "030-sR-T", false, true},
        {{"mnuGraf(4)", "mnuGraf_sub_res_FuT(3)", T, "(g - g_id) / (kJ/kmol) "}, "032-gR-T", false, true},
        {{"mnuGraf(4)", "mnuGraf_sub_res_FuT(4)", T, "(cp - cp_id) / (kJ/(kmol K)) "}, "033-cpR-T"},
    });
}

TEST_P(FunctionPictures, OfResidualsOverPressure) {
    TakeIsotherms({
        {{"mnuGraf(5)", "mnuGraf_sub_res_Fup(1)", p, "(h - h_id) / (kJ/kmol) "}, "041-hR-p", false, true},
        {{"mnuGraf(5)", "mnuGraf_sub_res_Fup(2)", p, "(s - s_id) / (kJ/(kmol K)) "}, "040-sR-p", false, true},
        {{"mnuGraf(5)", "mnuGraf_sub_res_Fup(3)", p, "(g - g_id) / (kJ/kmol) "}, "042-gR-p", false, true},
        {{"mnuGraf(5)", "mnuGraf_sub_res_Fup(4)", p, "(cp - cp_id) / (kJ/(kmol K)) "}, "043-cpR-p"},
    });
}

// The last curve lies below the critical point, so that its tie line can be drawn.
TEST_P(FunctionPictures, OfOneFunctionOverTheOther) {
    const double Tc = Model().substance.Tc;
    const double pc = Model().substance.pc;
    const std::vector<double> isotherms = {Round(1.3 * Tc), Round(1.1 * Tc), Round(0.8 * Tc),
                                           Round(0.9 * Tc)};
    const std::vector<double> isobars = {Round(1.5 * pc), Round(0.7 * pc), Round(0.03 * pc), Round(0.3 * pc)};
    for (const FunctionCase& row : std::initializer_list<FunctionCase>{
             {{"mnuGraf(6)", "mnuGraf_sub_HS(0)", s, h}, "107-h-s-isotherm"},
             {{"mnuGraf(7)", "mnuGraf_sub_ES(0)", Tus, e}, "109-e-Ts-isotherm"},
             {{"mnuGraf(8)", "mnuGraf_sub_EH(0)", h, e}, "021-e-h-isotherm"},
         }) {
        Open(row.diagram);
        DrawBetween(isotherms, Round(0.01 * pc), Round(1.4 * pc), " K");
        AddTieLine();
        AddCoexistence();
        AddAll(row, {});
    }
    for (const FunctionCase& row : std::initializer_list<FunctionCase>{
             {{"mnuGraf(6)", "mnuGraf_sub_HS(1)", s, h}, "024-h-s-isobar"},
             {{"mnuGraf(7)", "mnuGraf_sub_ES(1)", Tus, e}, "023-e-Ts-isobar"},
             {{"mnuGraf(8)", "mnuGraf_sub_EH(1)", h, e}, "022-e-h-isobar"},
         }) {
        Open(row.diagram);
        DrawBetween(isobars, std::ceil(std::max<double>(0.6 * Tc, Model().substance.Ttrip)), Round(1.3 * Tc),
                    " kPa");
        AddTieLine();
        AddCoexistence();
        AddAll(row, {});
    }
}

// Each function that the substance has, over its whole range.
TEST_P(FunctionPictures, OfTheDatabase) {
    struct DatabaseCase {
        int type;
        DiagramCase diagram;
    };
    int drawn = 0;
    for (const auto& [type, diagram] : {
             DatabaseCase{306, {"mnuGraf_sub_database(0)", "mnuGraf_sub_sub_database(0)", T, p}},
             DatabaseCase{307, {"mnuGraf_sub_database(0)", "mnuGraf_sub_sub_database(1)", T, p}},
             DatabaseCase{308, {"mnuGraf_sub_database(0)", "mnuGraf_sub_sub_database(2)", T, p}},
             DatabaseCase{309, {"mnuGraf_sub_database(0)", "mnuGraf_sub_sub_database(3)", T, p}},
             DatabaseCase{300, {"mnuGraf(10)", "mnuGraf_sub_database(1)", T, "rho / (kg/m³)"}},
             DatabaseCase{301, {"mnuGraf(10)", "mnuGraf_sub_database(2)", T, v}},
             DatabaseCase{310, {"mnuGraf(10)", "mnuGraf_sub_database(3)", T, "rho / (kg/m³)"}},
             DatabaseCase{305, {"mnuGraf(10)", "mnuGraf_sub_database(4)", T, "delta(LV)h / (kJ/kmol) "}},
             DatabaseCase{302, {"mnuGraf(10)", "mnuGraf_sub_database(5)", T, cp}},
             DatabaseCase{303, {"mnuGraf(10)", "mnuGraf_sub_database(6)", T, cp}},
             DatabaseCase{304, {"mnuGraf(10)", "mnuGraf_sub_database(7)", T, cp}},
         }) {
        ASSERT_EQ(Command(diagram.command)->isEnabled(), DatabaseRangeOf(type, Model()).Exists()) << type;
        if (!Command(diagram.command)->isEnabled())
            continue;
        Open(diagram);
        Expect({});
        ExpectWholeCurves();
        ExpectFilledWindow(type);
        Shoot(std::to_string(type).c_str());
        ++drawn;
    }
    EXPECT_GE(drawn, 5);
}

INSTANTIATE_TEST_SUITE_P(Substance, FunctionPictures,
                         testing::Values("Wasser", "n-Butan", "Kohlendioxid", "R134a"), PictureName);

} // namespace
} // namespace orva::test
