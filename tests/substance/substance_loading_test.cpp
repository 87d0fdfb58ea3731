// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/substance_loading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/sample_database.h"
#include "support/test_machine.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

using test::FieldValue;

struct Filled {
    SubstanceData substance;
    SubstanceLoadResult result;
    bool good = false;
};

Filled Fill(const DatabaseRecord& record, bool englishText = false) {
    Filled filled;
    filled.good = FillFromRecord(record, englishText, filled.substance, filled.result);
    return filled;
}

SubstanceData Load(const std::vector<FieldValue>& fields) {
    const Filled filled = Fill(test::SampleRecord("CH4", "Methan", "74-82-8", 1, fields));
    EXPECT_TRUE(filled.good);
    return filled.substance;
}

// Water after Wagner's equation in the 2.5, 5 form; rounded constants, Tref and pref at the critical point.
const std::vector<FieldValue> waterWagner = {
    {"molarMass", 18.0153F}, {"Tc", 647.096F},         {"pc", 22064},         {"wagner.w1", -7.77224F},
    {"wagner.w2", 1.45684F}, {"wagner.w3", -2.71942F}, {"wagner.w4", 3},      {"wagner.w5", -1.41336F},
    {"wagner.w6", 6},        {"wagner.w9", 647.3F},    {"wagner.w10", 22120}, {"wagner.Tlo", 275},
    {"wagner.Thi", 647}};

TEST(SubstanceLoading, TakesFormulaNameAndCas) {
    DatabaseRecord record =
        test::SampleRecord("C H 4       ", "Methan  ; Grubengas; Sumpfgas", "74-82-8     ", 1, {});
    record.nameEnglish = "Methane; marsh gas";
    const SubstanceData german = Fill(record).substance;
    EXPECT_EQ(german.formula, "C H 4       ");
    EXPECT_EQ(german.formulaCompact, "CH4");
    EXPECT_EQ(german.name, "Methan");
    EXPECT_EQ(german.cas, "74-82-8     ");
    EXPECT_EQ(Fill(record, true).substance.name, "Methane");
}

TEST(SubstanceLoading, ANameOfSynonymsOnlyIsEmpty) {
    EXPECT_EQ(Fill(test::SampleRecord("X", ";Stoff", "1", 1, {})).substance.name, "");
}

TEST(SubstanceLoading, RemovesEveryBlankOfAFormula) {
    EXPECT_EQ(CompactFormula("  C 2 H 6  "), "C2H6");
}

TEST(SubstanceLoading, RoundsMolarMassAndCriticalDataToFourDecimals) {
    const SubstanceData s = Load({{"molarMass", 58.12225F}, {"Tc", 425.12503F}, {"pc", 3796.00004F}});
    EXPECT_EQ(s.molarMass, static_cast<float>(std::floor(58.12225F * 10000.0 + 0.5) / 10000));
    EXPECT_EQ(s.Tc, 425.125);
    EXPECT_EQ(s.pc, 3796.0);
    EXPECT_EQ(Load({{"Tc", 190.564F}}).Tc, 190.564)
        << "the double nearest to the decimals, not the stored single";
}

TEST(SubstanceLoading, TakesTheOthersAsStored) {
    const SubstanceData s =
        Load({{"rhoc", 162.66F}, {"omega", 0.01142F}, {"Tb", 111.667F}, {"ptrip", 11.6961F}});
    EXPECT_EQ(s.rhoc, static_cast<double>(162.66F));
    EXPECT_EQ(s.omega, static_cast<double>(0.01142F));
    EXPECT_EQ(s.Tb, 111.667F);
    EXPECT_EQ(s.ptrip, 11.6961F);
}

TEST(SubstanceLoading, TakesTheTriplePointFromItsSecondSource) {
    DatabaseRecord record = test::SampleRecord("X", "X", "1", 1, {});
    record.values[93] = 90.7F;
    EXPECT_EQ(Fill(record).substance.Ttrip, 90.7F);
    record.values[91] = 9e-7F;
    EXPECT_EQ(Fill(record).substance.Ttrip, 90.7F);
    record.values[91] = 90.69F;
    EXPECT_EQ(Fill(record).substance.Ttrip, 90.69F);
}

TEST(SubstanceLoading, TellsOfMissingCriticalDataAndLoadsOn) {
    const auto missing = [](const std::vector<FieldValue>& fields) {
        const Filled filled = Fill(test::SampleRecord("X", "Stoff", "1", 1, fields));
        EXPECT_TRUE(filled.good);
        EXPECT_EQ(filled.substance.name, "Stoff");
        return filled.result.criticalDataMissing;
    };
    EXPECT_TRUE(missing({}));
    EXPECT_TRUE(missing({{"Tc", 190}}));
    EXPECT_TRUE(missing({{"pc", 4599}}));
    EXPECT_TRUE(missing({{"Tc", 9e-7F}, {"pc", 4599}}));
    EXPECT_FALSE(missing({{"Tc", 190}, {"pc", 4599}}));
}

TEST(SubstanceLoading, DividesByTheCriticalDensityWhenItIsGiven) {
    EXPECT_DOUBLE_EQ(Load({{"molarMass", 58}, {"rhoc", 232}}).vcDatabase, 0.25);
    EXPECT_EQ(Load({{"molarMass", 58}}).vcDatabase, 0);
    EXPECT_EQ(Load({{"molarMass", 58}, {"rhoc", 9e-7F}}).vcDatabase, 0);
}

TEST(SubstanceLoading, TheAugustEquationPassesThroughBoilingAndCriticalPoint) {
    const SubstanceData s = Load({{"Tc", 425.125F}, {"pc", 3796}, {"Tb", 272.66F}});
    const double Tb = 272.66F;
    EXPECT_FLOAT_EQ(s.august.B, static_cast<float>(Tb * 425.125 * std::log(3796 / 101.325) / (Tb - 425.125)));
    EXPECT_NEAR(std::exp(s.august.A + s.august.B / Tb), 101.325, 0.001);
    EXPECT_NEAR(std::exp(s.august.A + s.august.B / s.Tc), 3796, 0.01);
}

TEST(SubstanceLoading, TheAugustEquationHoldsNothingThatIsNotFinite) {
    const std::vector<std::vector<FieldValue>> incomplete = {
        {},
        {{"Tc", 425}},
        {{"pc", 3796}},
        {{"Tb", 272}},
        {{"Tc", 425}, {"Tb", 425}, {"pc", 3796}},
        {{"Tc", 425}, {"Tb", 272}, {"pc", -5}},
        {{"Tc", 3e38F}, {"Tb", 2e38F}, {"pc", 3e38F}},
    };
    for (const auto& fields : incomplete) {
        const SubstanceData s = Load(fields);
        EXPECT_TRUE(std::isfinite(s.august.A));
        EXPECT_TRUE(std::isfinite(s.august.B));
    }
    const SubstanceData noBoiling = Load({{"Tc", 425}, {"pc", 3796}});
    EXPECT_EQ(noBoiling.august.B, 0);
    EXPECT_FLOAT_EQ(noBoiling.august.A, static_cast<float>(std::log(3796.0))) << "what the arithmetic gives";
}

TEST(SubstanceLoading, ComputesAMissingBoilingTemperatureFromTheWagnerBlock) {
    const SubstanceData s = Load(waterWagner);
    EXPECT_NEAR(s.Tb, 373.15, 0.1); // boiling point of water at 101.325 kPa
    EXPECT_EQ(s.august.B, 0) << "the August equation is computed before";
}

TEST(SubstanceLoading, WithoutAVapourPressureBlockTheBoilingTemperatureStaysZero) {
    EXPECT_EQ(Load({{"Tc", 425}, {"pc", 3796}}).Tb, 0);
}

TEST(SubstanceLoading, AGivenBoilingTemperatureStays) {
    std::vector<FieldValue> fields = waterWagner;
    fields.emplace_back("Tb", 370);
    EXPECT_EQ(Load(fields).Tb, 370);
}

TEST(SubstanceLoading, PrefersWagnerThenFrostKalkwarfThenTheLowAntoine) {
    // Blocks that boil at different temperatures: lg p = A - B / T, with C = 273.15.
    const auto antoine = [](std::string_view block, float Tboil, std::vector<FieldValue>& fields) {
        const float A = 6;
        const float B = Tboil * (A - std::log10(101.325F));
        static const std::vector<std::string> names = {"antoineLow.A",   "antoineLow.B",   "antoineLow.C",
                                                       "antoineLow.Tlo", "antoineHigh.A",  "antoineHigh.B",
                                                       "antoineHigh.C",  "antoineHigh.Tlo"};
        const std::size_t at = block == "antoineLow" ? 0 : 4;
        const float values[] = {A, B, 273.15F, 100};
        for (std::size_t i = 0; i < 4; ++i)
            fields.emplace_back(names[at + i], values[i]);
    };
    std::vector<FieldValue> fields = {{"Tc", 600}, {"pc", 9000}};
    antoine("antoineHigh", 350, fields);
    EXPECT_NEAR(Load(fields).Tb, 350, 0.01);
    antoine("antoineLow", 340, fields);
    EXPECT_NEAR(Load(fields).Tb, 340, 0.01);
    // The stored C counts from the Celsius scale.
    fields.insert(fields.end(), {{"frostKalkwarf.c1", 6},
                                 {"frostKalkwarf.c2", -330 * (6 - std::log10(101.325F))},
                                 {"frostKalkwarf.c3", 273.15F},
                                 {"frostKalkwarf.Tlo", 100}});
    EXPECT_NEAR(Load(fields).Tb, 330, 0.01);
    fields.insert(fields.end(), waterWagner.begin() + 3, waterWagner.end());
    EXPECT_NEAR(Load(fields).Tb, 373, 1.0);
}

TEST(SubstanceLoading, ABlockWithoutItsLowerLimitIsAbsent) {
    std::vector<FieldValue> fields = waterWagner;
    fields.emplace_back("wagner.Tlo", 0);
    EXPECT_EQ(Load(fields).Tb, 0);
}

TEST(SubstanceLoading, CopiesEveryBlockFromItsPositions) {
    DatabaseRecord record = test::SampleRecord("X", "X", "1", 1, {});
    for (std::size_t k = 0; k < recordValueCount; ++k)
        record.values[k] = static_cast<float>(k + 200);
    record.values[positionTVapSecond] = 5000; // far from Tb, so that the first point stays
    const Filled filled = Fill(record);
    ASSERT_TRUE(filled.good);
    for (const RecordField& field : RecordFields())
        EXPECT_EQ(field.get(filled.substance), field.position + 200) << field.name;
}

TEST(SubstanceLoading, EveryPositionLandsInItsFieldOnly) {
    const SubstanceData empty = Fill(test::SampleRecord("X", "X", "1", 1, {})).substance;
    for (const RecordField& written : RecordFields()) {
        DatabaseRecord record = test::SampleRecord("X", "X", "1", 1, {});
        record.values[static_cast<std::size_t>(written.position)] = 321;
        const SubstanceData s = Fill(record).substance;
        // Without Tb the second point of the enthalpy of vaporisation wins, and that is empty.
        const bool watson = written.name == "hVapRef" || written.name == "TVapRef";
        EXPECT_EQ(written.get(s), watson ? 0 : 321) << written.name;
        for (const RecordField& other : RecordFields()) {
            // A sinh/cosh form with its first coefficient alone gets a divisor.
            const bool divisor = written.name == "cpSinhCosh.q0" && other.name == "cpSinhCosh.q2";
            if (other.position != written.position && !divisor) {
                EXPECT_EQ(other.get(s), other.get(empty)) << written.name << " also went to " << other.name;
            }
        }
    }
}

TEST(SubstanceLoading, UnusedPositionsGoNowhere) {
    const SubstanceData empty = Fill(test::SampleRecord("X", "X", "1", 1, {})).substance;
    for (const std::size_t k : {1, 2, 3, 4, 5, 35, 41, 60, 68, 76, 84, 86, 90, 95, 109, 117}) {
        DatabaseRecord record = test::SampleRecord("X", "X", "1", 1, {});
        record.values[k] = 321;
        const SubstanceData s = Fill(record).substance;
        for (const RecordField& field : RecordFields())
            EXPECT_EQ(field.get(s), field.get(empty)) << k << " went to " << field.name;
    }
}

TEST(SubstanceLoading, APolynomialNeedsItsLimitsAndItsFirstCoefficient) {
    const auto valid = [](float C0, float C1, float Tlo, float Thi) {
        return Load({{"cpPolynomial.C0", C0},
                     {"cpPolynomial.C1", C1},
                     {"cpPolynomial.Tlo", Tlo},
                     {"cpPolynomial.Thi", Thi}})
            .cpPolynomialValid;
    };
    EXPECT_TRUE(valid(30, 0, 200, 1500));
    EXPECT_TRUE(valid(-30, 0, 200, 1500));
    EXPECT_FALSE(valid(0, 0.1F, 200, 1500)) << "a form that starts at zero counts as absent";
    EXPECT_FALSE(valid(30, 0, 0, 1500));
    EXPECT_FALSE(valid(30, 0, 200, 0));
}

TEST(SubstanceLoading, TheThirdSinhCoshCoefficientIsPositiveAndNeverZero) {
    const auto load = [](float q0, float q2) {
        return Load({{"cpSinhCosh.q0", q0},
                     {"cpSinhCosh.q2", q2},
                     {"cpSinhCosh.Tlo", 200},
                     {"cpSinhCosh.Thi", 1500}});
    };
    EXPECT_EQ(load(33, -2000).cpSinhCosh.q2, 2000.0F);
    EXPECT_TRUE(load(33, -2000).cpSinhCoshValid);
    EXPECT_EQ(load(33, 0).cpSinhCosh.q2, 0.1F);
    EXPECT_EQ(load(-33, 0).cpSinhCosh.q2, 0.1F);
    EXPECT_EQ(load(33, 2e-6F).cpSinhCosh.q2, 2e-6F);
    EXPECT_EQ(load(0, 0).cpSinhCosh.q2, 0);
    EXPECT_FALSE(load(0, 2000).cpSinhCoshValid);
}

TEST(SubstanceLoading, ACondensedHeatCapacityNeedsOneOfItsFirstTwoCoefficients) {
    for (const bool liquid : {true, false}) {
        const auto valid = [liquid](float C0, float C1, float Tlo, float Thi) {
            const SubstanceData s =
                liquid ? Load(
                    {{"cpLiquid.C0", C0}, {"cpLiquid.C1", C1}, {"cpLiquid.Tlo", Tlo}, {"cpLiquid.Thi", Thi}})
                       : Load({{"cpSolid.C0", C0},
                               {"cpSolid.C1", C1},
                               {"cpSolid.Tlo", Tlo},
                               {"cpSolid.Thi", Thi}});
            EXPECT_FALSE(liquid ? s.cpSolidValid : s.cpLiquidValid);
            return liquid ? s.cpLiquidValid : s.cpSolidValid;
        };
        EXPECT_TRUE(valid(75, 0, 273, 373));
        EXPECT_TRUE(valid(0, -0.5F, 273, 373));
        EXPECT_FALSE(valid(0, 0, 273, 373));
        EXPECT_FALSE(valid(75, 0, 0, 373));
        EXPECT_FALSE(valid(75, 0, 273, 0));
        EXPECT_FALSE(valid(75, 0, -273, 373));
    }
}

TEST(SubstanceLoading, ThePointAtTheBoilingTemperatureIsPreferred) {
    const auto load = [](float Tb, float second) {
        DatabaseRecord record =
            test::SampleRecord("X", "X", "1", 1, {{"Tb", Tb}, {"hVapRef", 19000}, {"TVapRef", 298}});
        record.values[positionHVapSecond] = 22400;
        record.values[positionTVapSecond] = second;
        return Fill(record).substance;
    };
    EXPECT_EQ(load(272, 273.5F).hVapRef, 22400);
    EXPECT_EQ(load(272, 273.5F).TVapRef, 273.5F);
    EXPECT_EQ(load(272, 270.5F).TVapRef, 270.5F);
    EXPECT_EQ(load(272, 274).hVapRef, 19000) << "2 K off is too far";
    EXPECT_EQ(load(272, 274).TVapRef, 298);
    EXPECT_EQ(load(272, 0).TVapRef, 298);
}

TEST(SubstanceLoading, WithoutBoilingTemperatureAnEmptySecondPointWins) {
    const SubstanceData s = Load({{"hVapRef", 19000}, {"TVapRef", 298}});
    EXPECT_EQ(s.hVapRef, 0);
    EXPECT_EQ(s.TVapRef, 0);
}

TEST(SubstanceLoading, TheSecondPointIsComparedWithTheComputedBoilingTemperature) {
    DatabaseRecord record = test::SampleRecord("H2O", "Wasser", "7732-18-5", 1, waterWagner);
    record.values[positionHVapSecond] = 40650;
    record.values[positionTVapSecond] = 373.15F;
    EXPECT_EQ(Fill(record).substance.hVapRef, 40650);
}

TEST(SubstanceLoading, ComputesTheEntropyOfFormation) {
    const SubstanceData s = Load(
        {{"hFormation", -74520}, {"gFormation", -50490}, {"sConventional", 186.3F}, {"gFormationAlt", -1}});
    EXPECT_FLOAT_EQ(s.sFormation, static_cast<float>((-74520.0 + 50490.0) / 298.15));
    EXPECT_EQ(s.sConventional, 186.3F);
    EXPECT_EQ(s.gFormationAlt, -1);
    EXPECT_EQ(Load({{"hFormation", -74520}}).sFormation, 0);
    EXPECT_EQ(Load({{"gFormation", -50490}}).sFormation, 0);
}

TEST(SubstanceLoading, KeepsTheCorrelatedBlocks) {
    SubstanceData substance;
    substance.kfw.c1 = 1;
    substance.kfr.c2 = 2;
    substance.thompson.B = 3;
    substance.sFormation = 4;
    SubstanceLoadResult result;
    ASSERT_TRUE(FillFromRecord(test::SampleRecords()[0], false, substance, result));
    EXPECT_EQ(substance.kfw.c1, 1);
    EXPECT_EQ(substance.kfr.c2, 2);
    EXPECT_EQ(substance.thompson.B, 3);
    EXPECT_EQ(substance.sFormation, 0) << "nothing of the substance before is left";
}

TEST(SubstanceLoading, RefusesNumbersThatAreNotFinite) {
    for (const float bad : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                            -std::numeric_limits<float>::infinity()}) {
        for (const std::size_t k : {0, 6, 9, 21, 71, 93, 107, 123}) {
            DatabaseRecord record = test::SampleRecords()[0];
            record.values[k] = bad;
            SubstanceData substance;
            substance.name = "vorher";
            SubstanceLoadResult result;
            EXPECT_FALSE(FillFromRecord(record, false, substance, result));
            EXPECT_TRUE(result.readError);
            EXPECT_FALSE(result.criticalDataMissing);
            EXPECT_EQ(substance.name, "vorher");
            EXPECT_EQ(substance.Tc, 0);
        }
    }
}

TEST(SubstanceLoading, RefusesLimitsThatDoNotFit) {
    for (const RecordField& field : RecordFields()) {
        DatabaseRecord record = test::SampleRecords()[0];
        record.values[static_cast<std::size_t>(field.position)] = 40000;
        EXPECT_EQ(Fill(record).good, !field.isLimit) << field.name;
    }
}

class SubstanceRecordLoading : public testing::Test {
protected:
    test::TestMachine machine;
    Database database;
    SubstanceData substance;

    void SetUp() override {
        test::WriteSampleDatabase(machine.InstallationFolder());
        ASSERT_TRUE(database.LoadDatabase("ORVA.Q05", machine.InstallationFolder(), false).Good());
    }
};

TEST_F(SubstanceRecordLoading, TakesTheRecordOfTheListIndex) {
    const SubstanceLoadResult result = LoadSubstanceRecord(database, 1, false, substance);
    EXPECT_FALSE(result.readError);
    EXPECT_FALSE(result.criticalDataMissing);
    EXPECT_EQ(substance.name, "n-Butan");
    EXPECT_EQ(substance.Tc, 425.125);
    EXPECT_EQ(substance.wagner.w10, 3800);
}

TEST_F(SubstanceRecordLoading, AListIndexOfZeroChangesNothing) {
    substance.name = "vorher";
    const SubstanceLoadResult result = LoadSubstanceRecord(database, 0, false, substance);
    EXPECT_FALSE(result.readError);
    EXPECT_FALSE(result.criticalDataMissing);
    EXPECT_EQ(substance.name, "vorher");
}

TEST_F(SubstanceRecordLoading, AListIndexOutsideOfTheListIsAReadError) {
    substance.name = "vorher";
    EXPECT_TRUE(LoadSubstanceRecord(database, 4, false, substance).readError);
    EXPECT_TRUE(LoadSubstanceRecord(database, -1, false, substance).readError);
    EXPECT_EQ(substance.name, "vorher");
}

TEST_F(SubstanceRecordLoading, WithoutCriticalDataTheSubstanceIsLoadedForTheEditor) {
    EXPECT_TRUE(LoadSubstanceRecord(database, 3, false, substance).criticalDataMissing);
    EXPECT_EQ(substance.name, "Stoff ohne kritische Daten");
    EXPECT_EQ(
        CriticalDataMissingMessage(substance),
        (Message{"WARNUNG",
                 "T(cr) und/oder p(cr) in der Datenbank nicht verfügbar.\n\n"
                 "(fehlende kritische Daten können im Stoffdatenbank-Editor manuell eingetragen werden.)\n\n"
                 "Für Stoff ohne kritische Daten sind keine Berechnungen möglich!",
                 MessageIcon::Exclamation}));
}

TEST_F(SubstanceRecordLoading, AnUnreadableRecordIsNamed) {
    EXPECT_EQ(
        RecordUnreadableMessage(7),
        (Message{"WARNUNG", "Der Datensatz 7 der Datenbank ist beschädigt und kann nicht gelesen werden.",
                 MessageIcon::Exclamation}));
}

} // namespace
} // namespace orva
