// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "calc/reference_input.h"
#include "thermo/caloric_fixture.h"
#include "thermo/caloric_state.h"

namespace orva::test {
namespace {

// n-butane with data of formation, and the record that the window edits.
struct ReferenceWindow : testing::Test {
    SubstanceData butane = caloric::Butane();
    ReferencePoint reference;

    ReferenceInput Open() { return {reference, butane}; }

    // What the window says to one text in one field; the record must not have changed.
    void ExpectRefused(int field, const std::string& text) {
        const ReferencePoint before = reference;
        ReferenceInput input = Open();
        input.T[static_cast<std::size_t>(field)] = text;
        const auto refused = input.OK();
        ASSERT_TRUE(refused.has_value()) << field << " \"" << text << '"';
        EXPECT_EQ(refused->message.text, "keine gültige Eingabe");
        EXPECT_EQ(refused->message.title, "Ausführung nicht möglich");
        EXPECT_EQ(refused->field, field) << text;
        EXPECT_FALSE(input.Changed());
        EXPECT_EQ(reference, before) << text;
    }

    void Enter(int field, const std::string& text) {
        ReferenceInput input = Open();
        input.T[static_cast<std::size_t>(field)] = text;
        EXPECT_FALSE(input.OK().has_value()) << field << " \"" << text << '"';
    }
};

TEST_F(ReferenceWindow, ShowsTheRecordInItsFields) {
    reference = {1, 273.15F, 100, -1234.5, 0.25, 293.15, 95};
    const ReferenceInput input = Open();
    EXPECT_EQ(input.opt_HNull, 0);
    EXPECT_THAT(input.T, testing::ElementsAre("273.15", "100", "293.15", "95", "-1234.5", "0.25"));
}

TEST_F(ReferenceWindow, OptionsStandForTheirKinds) {
    const std::pair<int, int> kinds[] = {{0, 1}, {1, 2}, {2, 10}};
    for (const auto& [option, kind] : kinds) {
        ReferenceInput input = Open();
        input.TakeOption(option);
        EXPECT_FALSE(input.OK().has_value());
        EXPECT_EQ(reference.kind, kind);
        EXPECT_EQ(Open().opt_HNull, option);
    }
    ReferenceInput input = Open();
    input.TakeOption(3);
    input.TakeOption(-1);
    EXPECT_EQ(input.opt_HNull, 2);
}

TEST_F(ReferenceWindow, AKindThatThereIsNotCountsLikeTheFirst) {
    reference.kind = 7;
    ReferenceInput input = Open();
    EXPECT_EQ(input.opt_HNull, 0);
    EXPECT_FALSE(input.OK().has_value());
    EXPECT_EQ(reference.kind, 1);
}

TEST_F(ReferenceWindow, SetsTheNormalPressureThatTheResetLeftOut) {
    reference.p0 = 0;
    ReferenceInput input = Open();
    EXPECT_EQ(input.T[refP0], "101.325");
    EXPECT_EQ(reference.p0, 0);
    EXPECT_FALSE(input.OK().has_value());
    EXPECT_EQ(reference.p0, 101.325F);
    EXPECT_FALSE(input.Changed()); // the functions counted from there before
}

TEST_F(ReferenceWindow, TakingTheFirstOptionSetsTheNormalPressure) {
    reference.kind = 2;
    reference.T0 = 298.15F;
    reference.p0 = 101.325F;
    ReferenceInput input = Open();
    input.T[refP0] = "7";
    input.TakeOption(0);
    EXPECT_EQ(input.T[refP0], "101.325");
    input.T[refP0] = "50";
    input.TakeOption(0); // it is taken already
    EXPECT_EQ(input.T[refP0], "50");
}

TEST_F(ReferenceWindow, DataOfFormationHoldForTheStandardStateAlone) {
    reference = {1, 273.15F, 50, 3, 4, 300, 90};
    for (const int option : {1, 2}) {
        ReferenceInput input = Open();
        input.TakeOption(option);
        EXPECT_EQ(input.T[refT0], "298.15");
        EXPECT_EQ(input.T[refP0], "101.325");
        for (int field = 0; field < refFieldCount; ++field)
            EXPECT_EQ(input.Editable(field), field != refT0 && field != refP0) << field;
        input.TakeOption(0);
        for (int field = 0; field < refFieldCount; ++field)
            EXPECT_TRUE(input.Editable(field)) << field;
        EXPECT_EQ(input.T[refT0], "273.15");
        EXPECT_EQ(input.T[refP0], "101.325");
        EXPECT_EQ(input.T[refH0], "3");
        EXPECT_EQ(input.T[refS0], "4");
    }
}

TEST_F(ReferenceWindow, StandardStateIsWrittenWithTheKind) {
    reference = {1, 273.15F, 50, 3, 4, 300, 90};
    ReferenceInput input = Open();
    input.TakeOption(2);
    EXPECT_FALSE(input.OK().has_value());
    EXPECT_TRUE(input.Changed());
    EXPECT_EQ(reference, (ReferencePoint{10, 298.15F, 101.325F, 3, 4, 300, 90}));
}

TEST_F(ReferenceWindow, TypedTemperatureComesBackWithTheFirstOption) {
    ReferenceInput input = Open();
    input.T[refT0] = "250,5";
    input.TakeOption(1);
    input.TakeOption(2);
    input.TakeOption(0);
    EXPECT_EQ(input.T[refT0], "250,5");
}

TEST_F(ReferenceWindow, OpeningAndAcceptingChangesNothing) {
    reference.T0 = std::nextafterf(273.15F, 300);
    reference.p0 = 1.0F / 3;
    reference.h0 = -1.0 / 3 * 1e6;
    reference.s0 = std::nextafter(12.345, 13);
    reference.Tenv = 0.1 + 298;
    reference.penv = 1e3 / 7;
    for (const int kind : {1, 2, 10}) {
        reference.kind = static_cast<std::int16_t>(kind);
        if (kind != 1) {
            reference.T0 = 298.15F;
            reference.p0 = 101.325F;
        }
        const ReferencePoint before = reference;
        ReferenceInput input = Open();
        EXPECT_FALSE(input.OK().has_value());
        EXPECT_EQ(reference, before) << kind;
        EXPECT_FALSE(input.Changed());
    }
}

TEST_F(ReferenceWindow, SinglesStaySingle) {
    Enter(refT0, "273.15");
    Enter(refP0, "0.1");
    EXPECT_EQ(reference.T0, 273.15F);
    EXPECT_EQ(reference.p0, 0.1F);
    Enter(refTenv, "273.15");
    EXPECT_EQ(reference.Tenv, 273.15);
    EXPECT_NE(reference.Tenv, 273.15F);
}

TEST_F(ReferenceWindow, AnAmbientTemperatureOfZeroBecomesATinyOne) {
    for (const char* zero : {"0", "0.0", "-0", "0e5"}) {
        reference.Tenv = 300;
        Enter(refTenv, zero);
        EXPECT_EQ(reference.Tenv, 1e-6) << zero;
    }
    EXPECT_EQ(Open().T[refTenv], "0.000001");
    Enter(refTenv, "1E-7"); // no zero
    EXPECT_EQ(reference.Tenv, 1e-7);
}

TEST_F(ReferenceWindow, CommaAndPointAreTheSame) {
    Enter(refT0, "273,15");
    EXPECT_EQ(reference.T0, 273.15F);
    Enter(refH0, "-1,25e3");
    EXPECT_EQ(reference.h0, -1250);
    Enter(refPenv, " 1.01325E2 ");
    EXPECT_EQ(reference.penv, 101.325);
}

TEST_F(ReferenceWindow, ReadingStopsAtTheFirstCharacterThatIsNoPartOfANumber) {
    Enter(refT0, "280 K");
    EXPECT_EQ(reference.T0, 280.0F);
    Enter(refS0, "12e");
    EXPECT_EQ(reference.s0, 12);
}

TEST_F(ReferenceWindow, RefusesTemperaturesAndPressuresOfNoUse) {
    for (const int field : {refT0, refP0, refTenv, refPenv})
        for (const char* text : {"", " ", "-", "abc", "-1", "-1e-30", "1e400", "inf", "nan", "."})
            ExpectRefused(field, text);
    for (const int field : {refT0, refP0, refPenv}) // a zero of these is no value
        for (const char* text : {"0", "1e-6", "1e-7", "1e-50"})
            ExpectRefused(field, text);
    for (const int field : {refT0, refP0}) // beyond single precision
        for (const char* text : {"1e39", "3.5e38"})
            ExpectRefused(field, text);
}

TEST_F(ReferenceWindow, TakesAnyFiniteEnthalpyAndEntropy) {
    for (const int field : {refH0, refS0})
        for (const char* text : {"-", "abc", "1e309", "-1e400", "e5"})
            ExpectRefused(field, text);
    Enter(refH0, "-1e300");
    EXPECT_EQ(reference.h0, -1e300);
    Enter(refS0, "0");
    EXPECT_EQ(reference.s0, 0);
    Enter(refH0, " ");
    EXPECT_EQ(reference.h0, 0);
}

TEST_F(ReferenceWindow, NamesTheFirstBadFieldOfSeveral) {
    ReferenceInput input = Open();
    input.T[refPenv] = "-1";
    input.T[refH0] = "x";
    EXPECT_EQ(input.OK()->field, refPenv);
    input.T[refPenv] = "100";
    EXPECT_EQ(input.OK()->field, refH0);
    input.T[refH0] = "5";
    EXPECT_FALSE(input.OK().has_value());
}

TEST_F(ReferenceWindow, ADamagedRecordIsMendedByHand) {
    reference.T0 = std::numeric_limits<float>::quiet_NaN();
    reference.penv = std::numeric_limits<double>::infinity();
    ReferenceInput input = Open();
    EXPECT_EQ(input.T[refT0], "");
    EXPECT_EQ(input.T[refPenv], "");
    EXPECT_EQ(input.OK()->field, refT0);
    input.T[refT0] = "298.15";
    EXPECT_EQ(input.OK()->field, refPenv);
    input.T[refPenv] = "101.325";
    EXPECT_FALSE(input.OK().has_value());
    EXPECT_EQ(reference, ReferencePoint());
}

TEST_F(ReferenceWindow, SaysWhereTheFunctionsCountFrom) {
    ReferenceInput input = Open();
    EXPECT_EQ(input.Explanation(), "h = h0, s = s0 im Idealgas-Zustand bei T0, p0");
    input.TakeOption(1);
    EXPECT_EQ(input.Explanation(),
              "h(f) = -125790 kJ/kmol, s(konv) = 309.91 kJ/(kmol K); h0, s0 werden addiert");
    input.TakeOption(2); // (-125790 + 16700) / 298.15
    EXPECT_EQ(input.Explanation(),
              "h(f) = -125790 kJ/kmol, s(f) = -365.8896 kJ/(kmol K); h0, s0 werden addiert");
}

TEST_F(ReferenceWindow, SaysWhichDataOfFormationAreMissing) {
    butane.gFormation = 0;
    butane.sConventional = 0;
    ReferenceInput input = Open();
    input.TakeOption(1);
    EXPECT_EQ(input.Explanation(), "h(f) = -125790 kJ/kmol, s(konv) nicht verfügbar; h0, s0 werden addiert");
    input.TakeOption(2);
    EXPECT_EQ(input.Explanation(), "h(f) = -125790 kJ/kmol, s(f) nicht verfügbar; h0, s0 werden addiert");
    butane.hFormation = 0;
    butane.gFormation = 5;
    EXPECT_EQ(input.Explanation(), "h(f) nicht verfügbar, s(f) nicht verfügbar; h0, s0 werden addiert");
    butane.hFormation = 1e-37F; // an element
    EXPECT_TRUE(input.Explanation().starts_with("h(f) = 1E-37 kJ/kmol, s(f) = "));
}

// The window changes the record, the next state counts from it.
struct ReferenceInForce : testing::Test {
    SubstanceModel model = caloric::ModelOf(eosPengRobinson);

    CaloricValues At(double T, double p) {
        PhaseVolumes phases;
        EosPhaseVolumes(model, T, p, phases);
        const CaloricResult result = CaloricState(model, T, p, phases.vV);
        EXPECT_FALSE(result.failed);
        return result.values;
    }
    void Accept(int option, std::initializer_list<std::pair<int, const char*>> texts) {
        ReferenceInput input(model.reference, model.substance);
        input.TakeOption(option);
        for (const auto& [field, text] : texts)
            input.T[static_cast<std::size_t>(field)] = text;
        ASSERT_FALSE(input.OK().has_value());
        EXPECT_TRUE(input.Changed());
    }
};

TEST_F(ReferenceInForce, EnthalpyAndEntropyShiftAtOnce) {
    const CaloricValues before = At(350, 100);
    Accept(0, {{refH0, "1000"}, {refS0, "5"}});
    const CaloricValues shifted = At(350, 100);
    EXPECT_NEAR(shifted.h - before.h, 1000, 1e-8);
    EXPECT_NEAR(shifted.s - before.s, 5, 1e-11);
    EXPECT_NEAR(shifted.exergyH, before.exergyH, 1e-7); // differences do not count from anywhere
    EXPECT_EQ(shifted.cp, before.cp);
}

TEST_F(ReferenceInForce, FormationShiftsByItsDataAtOnce) {
    const CaloricValues before = At(350, 100);
    Accept(1, {});
    const CaloricValues shifted = At(350, 100);
    EXPECT_NEAR(shifted.h - before.h, -125790, 1e-7);
    EXPECT_NEAR(shifted.s - before.s, 309.91F, 1e-10);
    Accept(2, {});
    EXPECT_NEAR(At(350, 100).s - before.s, (-125790.0 + 16700) / 298.15, 1e-10);
}

TEST_F(ReferenceInForce, ExergiesFollowTheSurroundingsAtOnce) {
    At(350, 100);
    Accept(0, {{refTenv, "350"}, {refPenv, "100"}});
    const CaloricValues ambient = At(350, 100);
    EXPECT_NEAR(ambient.exergyH, 0, 1e-9);
    EXPECT_NEAR(ambient.exergyU, 0, 1e-9);
    Accept(0, {{refTenv, "300"}});
    EXPECT_GT(At(350, 100).exergyH, 1);
}

} // namespace
} // namespace orva::test
