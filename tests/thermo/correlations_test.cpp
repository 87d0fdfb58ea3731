// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "fluids.h"
#include "thermo/density_correlations.h"
#include "thermo/heat_capacity.h"
#include "thermo/reference_density.h"

namespace orva {
namespace {

// Saturated liquid water after DIPPR 105 in the form of Perry's Handbook (2008), table 2-32, n-butane
// likewise.
SubstanceData ButaneWithDensity() {
    SubstanceData s = fluids::NButane();
    const float M = s.molarMass;
    s.rhoLiquid = {0, 1.0677F * M, 0.27188F, 0.28688F, 0, 0, 0, 425.12F, 135, 425};
    return s;
}

TEST(LiquidDensity, RackettFormMeetsTheReferenceEquation) {
    // 572.6 kg/m^3 at 300 K (saturated): Buecker, Wagner (2006).
    const DensityResult r = LiquidDensity(ButaneWithDensity(), 300);
    EXPECT_FALSE(r.failed);
    EXPECT_NEAR(r.rho, 571, 4);
    EXPECT_EQ(r.deviation, 0);
}

TEST(LiquidDensity, RackettFormGivesZeroAboveItsReferenceTemperature) {
    const DensityResult r = LiquidDensity(ButaneWithDensity(), 430);
    EXPECT_EQ(r.rho, 0);
    EXPECT_FALSE(r.failed);
    EXPECT_EQ(r.deviation, 0);
}

TEST(LiquidDensity, PolynomialHasAPoleAndACubeRoot) {
    SubstanceData s;
    s.rhoLiquid = {800, -1, 0.002F, -1e-6F, 50, 10, 300, 500, 200, 480};
    const double T = 300;
    const double expected = 800 - T + 0.002F * T * T - static_cast<double>(1e-6F) * T * T * T + 50 / (10 + T)
                            + 300 * std::cbrt(1 - T / 500);
    EXPECT_NEAR(LiquidDensity(s, 300).rho, expected, 1e-9);
    // Above the reference temperature the root is left out.
    EXPECT_NEAR(LiquidDensity(s, 501).rho,
                800 - 501 + 0.002F * 501.0 * 501 - static_cast<double>(1e-6F) * 501 * 501 * 501 + 50.0 / 511,
                1e-9);
}

TEST(LiquidDensity, PolynomialWithoutAPositiveValueFails) {
    SubstanceData s;
    s.rhoLiquid = {-10, 0, 0, 0, 0, 0, 0, 500, 200, 480};
    const DensityResult r = LiquidDensity(s, 300);
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.rho, 0);
}

// Kept on purpose: the temperature of the point is not subtracted, unlike in the proposal of the reference
// point.
TEST(LiquidDensity, SinglePointTakesItsSlopeFromZeroKelvin) {
    SubstanceData s;
    s.rhoLiquid = {800, -1, 293.15F, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_NEAR(LiquidDensity(s, 300).rho, 500, 1e-9);
    EXPECT_EQ(LiquidDensity(s, 900).deviation, 0);
}

TEST(LiquidDensity, WarnsBeyondFiveKelvins) {
    const SubstanceData s = ButaneWithDensity();
    EXPECT_FALSE(LiquidDensityWarning(LiquidDensity(s, 130)));
    const auto box = LiquidDensityWarning(LiquidDensity(s, 128.6F));
    ASSERT_TRUE(box);
    EXPECT_EQ(box->title, "Warnung zur Dichtegleichung rho(L) = Fu(T)");
    EXPECT_EQ(box->text, " Temperatur -6 K außerhalb Parameter-Gültigkeitsbereich\n"
                         "(zum Gültigkeitsbereich der Dichtegleichung vgl. Fenster \"Modelle\")");
}

TEST(SolidDensity, HasACubicAPointWithSlopeOrNothing) {
    SubstanceData s;
    EXPECT_EQ(SolidDensity(s, 200).rho, 0);
    s.rhoSolid = {1000, -0.5F, 1e-4F, 1e-7F, 100, 250};
    EXPECT_FLOAT_EQ(static_cast<float>(SolidDensity(s, 200).rho), 1000 - 100 + 4 + 0.8F);
    const auto box = SolidDensityWarning(SolidDensity(s, 260), s.rhoSolid);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->title, "Warnung zur Dichtegleichung rho(S) = Fu(T)");
    EXPECT_EQ(box->text,
              " Temperatur 10 K außerhalb Parameter-Gültigkeitsbereich\n(Gültigkeitsbereich: 100 ... 250 K)");
    s.rhoSolid.Tlo = s.rhoSolid.Thi = 0;
    EXPECT_FLOAT_EQ(static_cast<float>(SolidDensity(s, 200).rho), 900);
}

TEST(Benson, ApproximatesTheDensityAtTheBoilingPoint) {
    // n-butane: 601.3 kg/m^3 at 272.66 K, Buecker, Wagner (2006); the rule is good to some percent.
    EXPECT_NEAR(BensonApproximation(101.3, 3796, 228), 601.3, 20);
    EXPECT_EQ(BensonApproximation(0, 3796, 228), 0);
    EXPECT_EQ(BensonApproximation(1e-6, 3796, 228), 0);
}

TEST(DiameterLiquidDensity, PassesThroughBothPointsOfTheDiameter) {
    EXPECT_NEAR(DiameterLiquidDensity(272.66, 425.125, 228, 2.71, 272.66, 2.71, 601.3), 601.3, 1e-9);
    EXPECT_NEAR(DiameterLiquidDensity(425.125, 425.125, 228, 228, 272.66, 2.71, 601.3), 228, 1e-9);
    // 531.3 kg/m^3 at 330 K with 12.5 kg/m^3 of the vapour, Buecker, Wagner (2006): a straight diameter
    // within 1 %.
    EXPECT_NEAR(DiameterLiquidDensity(330, 425.125, 228, 14.4, 272.66, 2.71, 601.3), 533, 6);
    EXPECT_EQ(DiameterLiquidDensity(300, 400, 228, 2, 400, 2, 600), 0); // no diameter through one point
}

TEST(HeatCapacity, TheSizeOfTheLastCoefficientTellsTheForm) {
    SubstanceData s;
    s.cpPolynomial = {0, 1, 2, 3, 4e4F, 100, 500};
    EXPECT_NEAR(IdealGasCp(s, 200, 1).cp, 1 + 400 + 3 * 40000.0 + 1, 1e-9);
    s.cpPolynomial = {10, 1, 0, 0, 1, 100, 500};
    EXPECT_NEAR(IdealGasCp(s, 200, 1).cp, 210 + 1 / 40000.0, 1e-9);
    s.cpPolynomial = {10, 1, 0, 0, 0.5F, 100, 500};
    EXPECT_NEAR(IdealGasCp(s, 200, 1).cp, 210 + 0.5 * 1.6e9, 1e-3);
    s.cpPolynomial = {0, 7, 0, 0, 0, 100, 500};
    EXPECT_EQ(IdealGasCp(s, 200, 1).cp, 7);
    s.cpLiquid = s.cpSolid = {10, 1, 0, 0, -2, 100, 500};
    EXPECT_FLOAT_EQ(LiquidCp(s, 200), 210 - 2 / 40000.0F);
    EXPECT_FLOAT_EQ(SolidCp(s, 200), LiquidCp(s, 200));
}

TEST(HeatCapacity, SinhCoshFormMeetsTheTables) {
    SubstanceData s;
    // Nitrogen: Perry's Handbook (2008), table 2-156; 32.697 J/(mol K) at 1000 K, JANAF (1998).
    s.cpSinhCosh = {29.105F, 8.6149F, 1701.6F, 0.10347F, 909.79F, 50, 1500};
    EXPECT_NEAR(IdealGasCp(s, 1000, 2).cp, 32.697, 0.1);
    EXPECT_TRUE(IdealGasCp(s, 1, 2).failed); // sinh overflows
    EXPECT_TRUE(IdealGasCp(s, 0, 2).failed);
}

TEST(HeatCapacity, AnyOtherModelGivesZero) {
    SubstanceData s;
    for (const int model : {-1, 0, 3}) {
        EXPECT_EQ(IdealGasCp(s, 300, model).cp, 0);
        EXPECT_FALSE(IdealGasCp(s, 300, model).failed);
    }
}

TEST(ReferenceDensityPoint, TakesTheDensityAtTheBoilingPointFirst) {
    SubstanceModel model = fluids::ModelOf(ButaneWithDensity(), eosPengRobinson, vpWagner);
    model.substance.rhoLb = 601.3F;
    const ReferenceDensityProposal p = ProposeReferenceDensityPoint(model);
    EXPECT_TRUE(p.atBoilingPoint);
    EXPECT_EQ(p.T, 272.66F);
    EXPECT_EQ(p.p, 101.3F); // kept on purpose, the text says 101.325
    EXPECT_EQ(p.rhoL, 601.3F);
    EXPECT_EQ(p.liquid, LiquidDensitySource::BoilingPointValue);
    EXPECT_EQ(p.vapour, VapourDensitySource::EquationOfState);
    EXPECT_NEAR(p.rhoV, 2.71, 0.05);
}

TEST(ReferenceDensityPoint, FallsBackToTheEquationThenToTheSlope) {
    SubstanceModel model = fluids::ModelOf(ButaneWithDensity(), eosPengRobinson, vpWagner);
    ReferenceDensityProposal p = ProposeReferenceDensityPoint(model);
    EXPECT_EQ(p.liquid, LiquidDensitySource::Equation);
    EXPECT_NEAR(p.rhoL, 601.3, 5);
    model.substance.rhoLiquid = {600, -1.2F, 270, 0, 0, 0, 0, 0, 0, 0};
    p = ProposeReferenceDensityPoint(model);
    EXPECT_EQ(p.liquid, LiquidDensitySource::Slope);
    EXPECT_NEAR(p.rhoL, 600 - 1.2 * (272.66 - 270), 1e-3);
    model.substance.rhoLiquid = {};
    EXPECT_EQ(ProposeReferenceDensityPoint(model).liquid, LiquidDensitySource::None);
}

TEST(ReferenceDensityPoint, WithoutABoilingPointTheSinglePointStands) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    model.substance.Tb = 0;
    model.substance.rhoLiquid = {579, -1.1F, 293.15F, 0, 0, 0, 0, 0, 0, 0};
    const ReferenceDensityProposal p = ProposeReferenceDensityPoint(model);
    EXPECT_FALSE(p.atBoilingPoint);
    EXPECT_EQ(p.T, 293.15F);
    EXPECT_EQ(p.rhoL, 579);
    EXPECT_NEAR(p.p, 208, 3); // vapour pressure at 20 C
    EXPECT_EQ(p.liquid, LiquidDensitySource::SinglePoint);
}

TEST(ReferenceDensityPoint, VapourFallsBackToPitzerCurlAndTheIdealGas) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    model.eos = {}; // no constants: the equation of state gives nothing
    ReferenceDensityProposal p = ProposeReferenceDensityPoint(model);
    EXPECT_EQ(p.vapour, VapourDensitySource::PitzerCurl);
    EXPECT_NEAR(p.rhoV, 2.71, 0.05);
    EXPECT_EQ(model.selection.eos, eosPengRobinson);
    model.substance.omega = 0;
    p = ProposeReferenceDensityPoint(model);
    EXPECT_EQ(p.vapour, VapourDensitySource::IdealGas);
    EXPECT_NEAR(p.rhoV, 58.124 * 101.3 / (8.31451 * 272.66), 1e-4);
}

} // namespace
} // namespace orva
