// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "fluids.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

// n-butane with the function of Perry's Handbook (2008), table 2-150, and the heat at the boiling point,
// 22.42 kJ/mol, Buecker, Wagner (2006).
SubstanceModel Model(int eos = eosPengRobinson, int equation = vpWagner) {
    SubstanceData s = fluids::NButane();
    s.hVapFunction = {36238, 0, 0.8337F, -0.82274F, 0.39613F, 0, 425.12F, 135, 425};
    s.hVapRef = 22420;
    s.TVapRef = 272.66F;
    s.rhoLiquid = {0, 1.0677F * s.molarMass, 0.27188F, 0.28688F, 0, 0, 0, 425.12F, 135, 425};
    SubstanceModel model = fluids::ModelOf(s, eos, equation);
    model.selection.watsonExponent = 0.38F;
    return model;
}

VaporisationResult AtT(SubstanceModel& model, int way, double T, const VaporisationRequest& more = {}) {
    VaporisationRequest request = more;
    request.T = T;
    return VaporisationEnthalpy(model, way, model.selection.vaporPressure, request);
}

const VaporisationRequest withReference{0, 0, 0, 0, {272.66, 601.3, 2.71}};

TEST(VaporisationEnthalpy, AllSevenWaysMeetTheReferenceWithinTheirKind) {
    // 21.02 kJ/mol at 300 K and 18.85 at 330 K (saturated): Buecker, Wagner (2006).
    SubstanceModel model = Model();
    for (int way = 1; way <= 7; ++way) {
        const VaporisationResult a = AtT(model, way, 300, withReference);
        const VaporisationResult b = AtT(model, way, 330, withReference);
        EXPECT_FALSE(a.failed) << way;
        EXPECT_NEAR(a.h, 21020, 0.03 * 21020) << way;
        EXPECT_NEAR(b.h, 18850, 0.04 * 18850) << way;
    }
}

// Below about 1e-3 kPa the cubic solved at the pressure loses the liquid volume to rounding.
TEST(VaporisationEnthalpy, OfAColdLiquidFromTheCubicMeetsClapeyron) {
    SubstanceModel model = Model();
    for (const double T : {112.0, 120.0, 126.0, 130.0}) {
        const VaporisationResult r = AtT(model, vaporisationCubic, T);
        ASSERT_FALSE(r.failed) << T;
        EXPECT_LT(r.p, 1e-3) << T;
        const double step = 1e-3 * T;
        const double slope = std::log(EosSaturationPressure(model, T + step).value
                                      / EosSaturationPressure(model, T - step).value)
                             / (2 * step);
        EXPECT_NEAR(r.h, 8.31451 * T * T * (r.zEosV - r.zEosL) * slope, 1e-4 * r.h) << T;
        VaporisationRequest back;
        back.p = r.p;
        const VaporisationResult again = VaporisationEnthalpy(model, vaporisationCubic, vpWagner, back);
        EXPECT_NEAR(again.T, T, 1e-3);
        EXPECT_NEAR(again.h, r.h, 2);
    }
}

TEST(VaporisationEnthalpy, GivenPressureFindsTheTemperature) {
    SubstanceModel model = Model();
    for (int way = 1; way <= 7; ++way) {
        VaporisationRequest request = withReference;
        request.p = 500;
        const VaporisationResult r = VaporisationEnthalpy(model, way, vpWagner, request);
        EXPECT_FALSE(r.failed) << way;
        EXPECT_NEAR(r.T, 322.9, 0.8) << way;
        EXPECT_EQ(InfoText(r.info),
                  way == 7 ? "T = T(LV) von kubischer EOS" : "T = T(LV) von Dampfdruckgleichung:");
    }
}

TEST(VaporisationEnthalpy, SaysWhereThePressureCameFrom) {
    SubstanceModel model = Model();
    EXPECT_EQ(InfoText(AtT(model, 7, 300).info), "p = p(LV) von kubischer EOS");
    EXPECT_EQ(InfoText(AtT(model, 2, 300).info), "p = p(LV) von Dampfdruckgleichung:");
    for (const int way : {1, 3, 4}) {
        const VaporisationResult r = AtT(model, way, 300);
        EXPECT_EQ(InfoText(r.info), "");
        EXPECT_EQ(r.p, 0);
    }
}

TEST(VaporisationEnthalpy, FallsBackToTheDataRow) {
    SubstanceModel model = Model(eosPengRobinson, vpNone);
    VaporisationRequest row;
    row.rowP = 257;
    const VaporisationResult r = AtT(model, 2, 300, row);
    EXPECT_EQ(r.p, 257);
    EXPECT_EQ(InfoText(r.info), "p(LV) = p aus akt. Datensatz");
    EXPECT_FALSE(r.failed);
    const VaporisationResult none = AtT(model, 2, 300);
    EXPECT_TRUE(none.failed);
    EXPECT_EQ(InfoText(none.info), "kein p verfügbar");
    VaporisationRequest byPressure;
    byPressure.p = 257;
    EXPECT_EQ(InfoText(VaporisationEnthalpy(model, 1, vpNone, byPressure).info), "kein T verfügbar");
    byPressure.rowT = 300;
    EXPECT_EQ(InfoText(VaporisationEnthalpy(model, 1, vpNone, byPressure).info),
              "(T(LV) aus aktuellem Datensatz)");
    byPressure.rowT = 500;
    const VaporisationResult above = VaporisationEnthalpy(model, 1, vpNone, byPressure);
    EXPECT_TRUE(above.failed);
    EXPECT_EQ(InfoText(above.info), "T > T(cr)!");
}

TEST(VaporisationEnthalpy, SaysThatTheEquationOfStateFailed) {
    SubstanceModel model = Model(virialPitzerCurl);
    EXPECT_EQ(InfoText(AtT(model, 7, 300).info), "p(LV) von EOS: Fehler -1");
    VaporisationRequest byPressure;
    byPressure.p = 257;
    EXPECT_EQ(InfoText(VaporisationEnthalpy(model, 7, vpWagner, byPressure).info),
              "T(LV) von EOS: Fehler -1");
}

TEST(VaporisationEnthalpy, IsAWholeNumberRoundedHalfToEven) {
    SubstanceModel model = Model();
    model.substance.hVapFunction = {2.5F, 0, 0, 0, 0, 0, 425, 135, 425};
    EXPECT_EQ(AtT(model, 1, 300).h, 2);
    model.substance.hVapFunction.A = 3.5F;
    EXPECT_EQ(AtT(model, 1, 300).h, 4);
}

TEST(VaporisationEnthalpy, TheCriticalTemperatureIsAllowedAndNothingAboveIt) {
    SubstanceModel model = Model();
    EXPECT_EQ(AtT(model, 4, model.substance.Tc).h, 0);
    EXPECT_FALSE(AtT(model, 4, model.substance.Tc).failed);
    EXPECT_TRUE(AtT(model, 4, 425.126).failed);
}

TEST(VaporisationEnthalpy, DatabaseFunctionTellsItsRange) {
    SubstanceModel model = Model();
    model.substance.hVapFunction.Tlo = 200;
    model.substance.hVapFunction.Thi = 400;
    const VaporisationResult low = AtT(model, 1, 190.4);
    EXPECT_EQ(low.outside, 10);
    ASSERT_EQ(low.warnings.size(), 1U);
    EXPECT_EQ(low.warnings[0].title, "Warnung zur Gleichung delta(LV)h = Fu(T)");
    EXPECT_EQ(low.warnings[0].text, "Temperatur 10 K außerhalb Parameter-Gültigkeitsbereich\n"
                                    "(vgl. unter Daten/Parameter delta(LV)h = Fu(T))");
    EXPECT_EQ(AtT(model, 1, 404).outside, 4);
    EXPECT_TRUE(AtT(model, 1, 404).warnings.empty());
    EXPECT_EQ(AtT(model, 1, 300).outside, 0);
}

TEST(VaporisationEnthalpyDb, EndsAtItsReferenceTemperature) {
    SubstanceModel model = Model();
    EXPECT_EQ(VaporisationEnthalpyDb(model.substance, model.substance.hVapFunction.Tcr).h, 0);
    EXPECT_FALSE(VaporisationEnthalpyDb(model.substance, model.substance.hVapFunction.Tcr).failed);
    EXPECT_TRUE(VaporisationEnthalpyDb(model.substance, 426).failed);
    model.substance.hVapFunction = {1000, 0, 2, 0, 0, 0, 400, 135, 399}; // a whole exponent hides the sign
    EXPECT_TRUE(VaporisationEnthalpyDb(model.substance, 420).failed);
    model.substance.hVapFunction = {};
    EXPECT_TRUE(VaporisationEnthalpyDb(model.substance, 300).failed);
}

TEST(VaporisationEnthalpy, ClapeyronUsesBothCompressibilityFactors) {
    SubstanceModel model = Model();
    const VaporisationResult r = AtT(model, 5, 300);
    PhaseVolumes phases;
    EosPhaseVolumes(model, 300, r.p, phases);
    EXPECT_NEAR(r.zV, r.p * model.substance.molarMass / (8.31451 * 300 * phases.rhoV), 1e-12);
    EXPECT_GT(r.zL, 0);
    const double slope = static_cast<float>(VapourPressureSlope(model.substance, 300, vpWagner).slope);
    EXPECT_NEAR(r.h, -8.31451 * slope * (r.zV - r.zL), 0.5);
}

TEST(VaporisationEnthalpy, ClapeyronFailsWithoutADensityOrASlope) {
    SubstanceModel model = Model();
    EXPECT_TRUE(AtT(model, 6, 300).failed); // no reference point
    model.substance.rhoLiquid = {};
    EXPECT_TRUE(AtT(model, 5, 300).failed);
    SubstanceModel virial = Model(virialPitzerCurl);
    EXPECT_FALSE(AtT(virial, 5, 300).failed); // the virial equation gives the vapour
}

TEST(VaporisationEnthalpy, CubicWayIsTheDifferenceOfResidualEnthalpies) {
    SubstanceModel model = Model();
    const VaporisationResult r = AtT(model, 7, 350);
    const double h = 0.01;
    const double slope =
        (EosSaturationPressure(model, 350 + h).value - EosSaturationPressure(model, 350 - h).value) / (2 * h);
    const double RT = 8.31451 * 350;
    const double clapeyron = 350 * slope * (r.zEosV - r.zEosL) * RT / r.p;
    EXPECT_NEAR(r.h, clapeyron, 0.02 * clapeyron);
    EXPECT_EQ(r.rootIndex, 3);
}

TEST(VaporisationEnthalpy, NothingGivenFails) {
    SubstanceModel model = Model();
    for (int way = 0; way <= 8; ++way)
        EXPECT_TRUE(VaporisationEnthalpy(model, way, vpWagner, {}).failed) << way;
    EXPECT_TRUE(AtT(model, 0, 300).failed);
    EXPECT_EQ(InfoText(VaporisationEnthalpy(model, 2, vpWagner, {}).info), "kein p verfügbar");
    VaporisationRequest row;
    row.rowT = 300;
    row.rowP = 257;
    EXPECT_FALSE(VaporisationEnthalpy(model, 2, vpNone, row).failed);
}

} // namespace
} // namespace orva
