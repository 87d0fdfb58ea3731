// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/units.h"

#include <gtest/gtest.h>

namespace orva {
namespace {

SubstanceModel Methane() {
    SubstanceModel model;
    model.substance.molarMass = 16.043F;
    model.substance.Tc = 190.564;
    model.substance.pc = 4599.2;
    model.eos.vCritCalc = 0.1059;
    return model;
}

TEST(Units, MolarUnitsHaveFactorsOfOne) {
    Options options;
    options.pFactor = 7;
    options.TFactor = 7;
    options.volumeFactor = 7;
    options.TUnit = options.pUnit = options.vUnit = "?";
    SetUnits(Methane(), options);
    EXPECT_EQ(options.pFactor, 1.0F);
    EXPECT_EQ(options.TFactor, 1.0F);
    EXPECT_EQ(options.volumeFactor, 1.0);
    EXPECT_EQ(options.TUnit, "K");
    EXPECT_EQ(options.pUnit, "kPa");
    EXPECT_EQ(options.vUnit, "m^3/kmol");
}

TEST(Units, SpecificVolumeIsDividedByTheMolarMass) {
    Options options;
    options.volumeBasis = 1;
    SetUnits(Methane(), options);
    EXPECT_DOUBLE_EQ(options.volumeFactor, 1 / static_cast<double>(16.043F));
    EXPECT_EQ(options.vUnit, "m^3/kg  ");
    EXPECT_EQ(options.TFactor, 1.0F);
    EXPECT_EQ(options.volumeBasis, 1);
}

TEST(Units, ReducedFactorsAreSinglesOfTheCriticalData) {
    Options options;
    options.volumeBasis = 2;
    SetUnits(Methane(), options);
    EXPECT_EQ(options.TFactor, static_cast<float>(1 / 190.564));
    EXPECT_EQ(options.pFactor, static_cast<float>(1 / 4599.2));
    EXPECT_DOUBLE_EQ(options.volumeFactor, 1 / 0.1059);
    EXPECT_EQ(options.vUnit, "V(red)");
}

TEST(Units, ReducedPressureLabelStandsInTheTemperatureUnit) {
    Options options;
    options.volumeBasis = 2;
    SetUnits(Methane(), options);
    EXPECT_EQ(options.TUnit, "p(red)");
    EXPECT_EQ(options.pUnit, "kPa");
}

TEST(Units, ReducedTemperatureLabelStaysWithoutACriticalPressure) {
    Options options;
    options.volumeBasis = 2;
    SubstanceModel model = Methane();
    model.substance.pc = 0;
    SetUnits(model, options);
    EXPECT_EQ(options.TUnit, "T(red)");
    EXPECT_EQ(options.pFactor, 1.0F);
}

TEST(Units, ReducedVolumeWithoutACriticalVolumeFallsBackToMolar) {
    Options options;
    options.volumeBasis = 2;
    SubstanceModel model = Methane();
    model.eos.vCritCalc = 0;
    SetUnits(model, options);
    EXPECT_EQ(options.volumeBasis, 0);
    EXPECT_EQ(options.volumeFactor, 1.0);
    EXPECT_EQ(options.vUnit, "m^3/kmol");
    EXPECT_EQ(options.TFactor, static_cast<float>(1 / 190.564));
}

TEST(Units, SpecificVolumeWithoutAMolarMassFallsBackToMolar) {
    Options options;
    options.volumeBasis = 1;
    SetUnits(SubstanceModel(), options);
    EXPECT_EQ(options.volumeBasis, 0);
    EXPECT_EQ(options.volumeFactor, 1.0);
}

TEST(Units, EnergyFactorFollowsTheBasis) {
    SubstanceData substance;
    substance.molarMass = 16;
    EXPECT_EQ(EnergyFactor(0, 300, substance), 1.0);
    EXPECT_DOUBLE_EQ(EnergyFactor(1, 300, substance), 1 / 8.31451);
    EXPECT_DOUBLE_EQ(EnergyFactor(2, 300, substance), 1 / (8.31451 * 300));
    EXPECT_DOUBLE_EQ(EnergyFactor(3, 300, substance), 0.0625);
}

TEST(Units, EnergyFactorIsNeverInfinite) {
    SubstanceData substance;
    substance.molarMass = 16;
    EXPECT_EQ(EnergyFactor(2, 0, substance), 1.0);
    EXPECT_EQ(EnergyFactor(3, 300, SubstanceData()), 1.0);
}

} // namespace
} // namespace orva
