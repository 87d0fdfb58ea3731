// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "calc/function_inversion.h"
#include "calc/point_input.h"
#include "calc_fixture.h"
#include "text/number_input.h"

namespace orva::test {
namespace {

// n-butane with the ideal-gas heat capacity of Reid, Prausnitz, Poling (1987), so that all functions exist.
SubstanceData ButaneWithCp() {
    SubstanceData s = Butane();
    s.cpPolynomial = {9.487F, 0.3313F, -1.108e-4F, -2.822e-9F, 0, 200, 1500};
    s.cpPolynomialValid = true;
    return s;
}

struct Inversion : testing::Test {
    Calculation c{eosPengRobinson, ButaneWithCp()};

    Inversion() { c.model.selection.cpModel = 1; }

    BatchRow& Row() { return c.batch.rows.front(); }

    void Start(double T, double p) {
        Row().T = T;
        Row().p = p;
    }

    double Value(double T, double p, int function, int phase) {
        const double keptT = Row().T, keptP = Row().p;
        Start(T, p);
        CalculationContext context = c.Context();
        const double value =
            CalcBatch(context, kindFunctions, 0, {true, false}).results[IsoSlot(function, phase)];
        Start(keptT, keptP);
        return value;
    }

    IsoSolution Solve(bool forT, int function, double target, int phase) {
        CalculationContext context = c.Context();
        return SolveIso(context, Row(), forT, function, target, phase);
    }
};

TEST_F(Inversion, SlotsAreThoseOfThePhases) {
    EXPECT_EQ(IsoSlot(0, 0), 9U);
    EXPECT_EQ(IsoSlot(7, 0), 16U);
    EXPECT_EQ(IsoSlot(0, 1), 19U);
    EXPECT_EQ(IsoSlot(2, 1), 21U);
    EXPECT_EQ(IsoSlot(7, 1), 26U);
}

TEST_F(Inversion, FindsTheTemperatureOfEveryFunctionOfTheVapour) {
    for (int function = 0; function < isoFunctionCount; ++function) {
        const double target = Value(355, 200, function, 0);
        ASSERT_NE(target, 0) << function;
        Start(340, 200);
        const IsoSolution found = Solve(true, function, target, 0);
        EXPECT_FALSE(found.failed) << function;
        // The exergies have their minimum near the ambient state, so they may have a second solution.
        EXPECT_NEAR(Value(found.x, 200, function, 0), target, 1e-5 * std::abs(target)) << function;
        if (function < 6) {
            EXPECT_NEAR(found.x, 355, 355e-5) << function;
        }
        EXPECT_EQ(Row().T, found.x);
        EXPECT_EQ(Row().p, 200);
    }
}

TEST_F(Inversion, FindsThePressureOfAnIsentropeOfTheVapour) {
    const double s = Value(400, 100, 2, 0);
    Start(430, 100);
    const IsoSolution found = Solve(false, 2, s, 0);
    ASSERT_FALSE(found.failed);
    EXPECT_GT(found.x, 100);
    EXPECT_NEAR(Value(430, found.x, 2, 0), s, 1e-6 * std::abs(s) + 1e-4);
    EXPECT_EQ(Row().T, 430);
}

TEST_F(Inversion, FindsTheTemperatureOfALiquid) {
    const double v = Value(290, 1500, 0, 1);
    Start(270, 1500);
    const IsoSolution found = Solve(true, 0, v, 1);
    ASSERT_FALSE(found.failed);
    EXPECT_NEAR(found.x, 290, 290e-5);
}

TEST_F(Inversion, GivesThePointOfTheSolutionWithItsReport) {
    const double h = Value(355, 200, 1, 0);
    Start(340, 200);
    const IsoSolution found = Solve(true, 1, h, 0);
    EXPECT_EQ(found.point.results[slotT], found.x);
    EXPECT_NEAR(found.point.results[slotVolumeV + 1], h, 1e-5 * std::abs(h));
    EXPECT_FALSE(found.point.report.empty());
    EXPECT_EQ(c.state.eosState.T, static_cast<float>(found.x));
}

TEST_F(Inversion, TargetOutOfReachFailsAndLeavesTheStartPoint) {
    Start(340, 200);
    const IsoSolution found = Solve(true, 0, -5, 0); // no volume is negative
    EXPECT_TRUE(found.failed);
    EXPECT_EQ(found.x, 0);
    EXPECT_EQ(Row().T, 340);
    EXPECT_EQ(Row().p, 200);
    EXPECT_EQ(found.point.results[slotT], 340);
    EXPECT_FALSE(found.point.failed);
    EXPECT_EQ(c.state.eosState.T, 340.0F);
}

TEST_F(Inversion, TargetBeyondTheUpperBoundFails) {
    Start(300, 100);
    EXPECT_TRUE(Solve(true, 0, 1e12, 0).failed); // R T / p would need T above 1e9
    EXPECT_EQ(Row().T, 300);
}

TEST_F(Inversion, PhaseThatDoesNotExistReadsZeroUntilTheIncrementReachesIt) {
    Start(200, 2000); // one root, the liquid
    EXPECT_EQ(Value(200, 2000, 0, 0), 0);
    const double target = Value(450, 2000, 0, 0);
    const IsoSolution found = Solve(true, 0, target, 0);
    ASSERT_FALSE(found.failed);
    EXPECT_NEAR(found.x, 450, 450e-5);
}

TEST_F(Inversion, FunctionThatNeverChangesFailsAfterAllPasses) {
    Start(300, 100);
    c.model.eos = {}; // no equation, no function
    EXPECT_TRUE(Solve(true, 0, 25, 0).failed);
    EXPECT_EQ(Row().T, 300);
}

TEST_F(Inversion, WarnsOfNothingOnTheWay) {
    Start(136, 1e-5);
    const double target = Value(130, 1e-5, 0, 0);
    ASSERT_GT(target, 0);
    const IsoSolution found = Solve(true, 0, target, 0);
    EXPECT_NEAR(found.x, 130, 130e-5);
    EXPECT_TRUE(found.point.messages.empty());
}

TEST_F(Inversion, NumbersThatAreNoneAreNoSolution) {
    Start(300, 100);
    EXPECT_TRUE(Solve(true, 0, std::nan(""), 0).failed);
    Start(std::nan(""), 100);
    EXPECT_TRUE(Solve(true, 0, 25, 0).failed);
}

struct IsoWindow : Inversion {
    IsoCalculation Open() { return {c.Context(), c.batch}; }

    // To the 15 digits that a text holds.
    static bool Shows(const std::string& text, double value) {
        return std::abs(ParseNumber(text) - value) <= 1e-14 * std::abs(value) && value != 0;
    }
};

TEST_F(IsoWindow, StartsWithTheChoicesOfTheProgramAndTheStartPoint) {
    Start(300, 500);
    const IsoCalculation iso = Open();
    EXPECT_EQ(iso.IsoVariable(), 0);
    EXPECT_EQ(iso.IsoPhase(), 1);
    EXPECT_EQ(iso.IsoFunction(), 2);
    EXPECT_EQ(iso.GivenLabel(), "p/kPa = ");
    EXPECT_EQ(iso.FunctionLabel(), "S  = ");
    EXPECT_EQ(iso.FunctionUnit(2), "kJ/kmol/K");
    EXPECT_EQ(iso.txtTpVorgabe, "500");
    EXPECT_TRUE(Shows(iso.txtFuConst, Value(300, 500, 2, 1)));
    EXPECT_EQ(iso.txtTpCalc, "");
}

TEST_F(IsoWindow, TakesThePhaseThatExists) {
    Start(300, 100);
    const IsoCalculation iso = Open();
    EXPECT_EQ(iso.IsoPhase(), 0);
    EXPECT_TRUE(Shows(iso.txtFuConst, Value(300, 100, 2, 0)));
}

TEST_F(IsoWindow, ChoicesSettleLabelsAndValues) {
    Start(300, 100);
    IsoCalculation iso = Open();
    const char* const labels[] = {"V  = ", "H  = ", "S  = ", "G  = ", "U  = ", "A  = ", "E(H)=", "E(U)="};
    const char* const units[] = {"m^3/kmol", "kJ/kmol", "kJ/kmol/K", "kJ/kmol",
                                 "kJ/kmol",  "kJ/kmol", "kJ/kmol",   "kJ/kmol"};
    for (int function = 0; function < isoFunctionCount; ++function) {
        iso.OptIsoFu(function);
        EXPECT_EQ(iso.FunctionLabel(), labels[function]);
        EXPECT_EQ(iso.FunctionUnit(function), units[function]);
        EXPECT_TRUE(Shows(iso.txtFuConst, Value(300, 100, function, 0))) << function;
        EXPECT_EQ(iso.CurrentValue(function), General(static_cast<float>(Value(300, 100, function, 0))));
        EXPECT_THAT(iso.txtFuConst, testing::Not(testing::HasSubstr("E")));
    }
    iso.optIsoTp(1);
    EXPECT_EQ(iso.GivenLabel(), "  T/K =");
    EXPECT_EQ(iso.txtTpVorgabe, "300");
    iso.optIsoPhase(1);
    EXPECT_EQ(ParseNumber(iso.txtFuConst), 0); // kept: a phase that does not exist has the value 0
}

TEST_F(IsoWindow, CalculatesAndMovesTheWorkingPoint) {
    Start(400, 100);
    IsoCalculation iso = Open();
    iso.txtTpVorgabe = "150,5";
    EXPECT_EQ(iso.cmdCalc(), std::nullopt);
    EXPECT_EQ(Row().p, 150.5);
    EXPECT_GT(Row().T, 400);
    EXPECT_EQ(iso.txtTpCalc, "T/K =" + Str(static_cast<float>(Row().T)));
    EXPECT_NEAR(Value(Row().T, 150.5, 2, 0), Value(400, 100, 2, 0), 1e-3);
    iso.optIsoTp(1);
    iso.txtTpVorgabe = "420";
    EXPECT_EQ(iso.cmdCalc(), std::nullopt);
    EXPECT_EQ(Row().T, 420);
    EXPECT_EQ(iso.txtTpCalc, "p/kPa =" + Str(static_cast<float>(Row().p)));
}

TEST_F(IsoWindow, ResetGoesBackToThePointOfTheInputWindow) {
    Start(400, 100);
    IsoCalculation iso = Open();
    iso.txtTpVorgabe = "150";
    iso.cmdCalc();
    iso.cmdReset();
    EXPECT_EQ(Row().T, 400);
    EXPECT_EQ(Row().p, 100);
    EXPECT_EQ(iso.txtTpVorgabe, "100");
    EXPECT_EQ(iso.txtTpCalc, "");
    EXPECT_EQ(c.state.eosState.T, 400.0F);
}

TEST_F(IsoWindow, ResetKnowsTheGivenPointAfterTheWindowWasClosed) {
    Start(400, 100);
    {
        IsoCalculation iso = Open();
        iso.txtTpVorgabe = "150";
        iso.cmdCalc();
    }
    IsoCalculation again = Open();
    EXPECT_EQ(again.txtTpVorgabe, "150");
    again.cmdReset();
    EXPECT_EQ(Row().T, 400);
    again.txtTpVorgabe = "150";
    again.cmdCalc();
    // Accepting the shown point in the input window makes it the given one.
    const double T = Row().T;
    PointInput input(kindFunctions + inputContextOffset, {c.model.substance, c.options, c.batch, c.state});
    ASSERT_EQ(input.Accept(), std::nullopt);
    IsoCalculation third = Open();
    third.cmdReset();
    EXPECT_NEAR(Row().T, T, 1e-10);
}

TEST_F(IsoWindow, SaysThatThereIsNoSolutionAndKeepsAUsablePoint) {
    Start(400, 100);
    IsoCalculation iso = Open();
    iso.OptIsoFu(0);
    iso.txtFuConst = "-3";
    iso.txtTpVorgabe = "120";
    EXPECT_EQ(iso.cmdCalc(), std::nullopt);
    EXPECT_EQ(iso.txtTpCalc, "keine Lösung");
    EXPECT_EQ(Row().T, 400);
    EXPECT_EQ(Row().p, 120);
    iso.txtFuConst = "25";
    iso.cmdCalc();
    EXPECT_THAT(iso.txtTpCalc, testing::StartsWith("T/K ="));
}

TEST_F(IsoWindow, RefusesFieldsWithoutAUsableNumber) {
    Start(400, 100);
    IsoCalculation iso = Open();
    const std::string value = iso.txtFuConst;
    for (const auto& [given, function] : {std::pair<std::string, std::string>{"", value},
                                          {"0", value},
                                          {"-5", value},
                                          {"abc", value},
                                          {"100", ""},
                                          {"100", "."}}) {
        iso.txtTpVorgabe = given;
        iso.txtFuConst = function;
        const std::optional<Message> refused = iso.cmdCalc();
        ASSERT_TRUE(refused.has_value()) << given << "|" << function;
        EXPECT_EQ(refused->title, "Ausführung nicht möglich");
        EXPECT_EQ(refused->text, "keine gültige Eingabe");
        EXPECT_EQ(Row().T, 400);
        EXPECT_EQ(Row().p, 100);
    }
}

TEST_F(IsoWindow, SearchesInDisplayUnits) {
    c.options.unitBasis = 3;
    Start(400, 100);
    IsoCalculation iso = Open();
    EXPECT_EQ(iso.FunctionUnit(2), "kJ/(kg K)");
    iso.txtTpVorgabe = "150";
    iso.cmdCalc();
    const double T = Row().T;
    c.options.unitBasis = 0;
    Start(400, 100);
    IsoCalculation molar = Open();
    molar.txtTpVorgabe = "150";
    molar.cmdCalc();
    EXPECT_NEAR(Row().T, T, 1e-3);
}

} // namespace
} // namespace orva::test
