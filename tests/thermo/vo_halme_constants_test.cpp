// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/vo_halme_constants.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"

namespace orva {
namespace {

SubstanceModel ButaneWith(double zeta) {
    SubstanceModel model;
    model.substance = fluids::NButane();
    model.selection.eos = eosVoHalme1;
    model.voHalme.zeta = zeta;
    model.voHalme.m1 = 0.33;
    return model;
}

TEST(VoHalmeConstants, SolveTheConditionOfTheCriticalPoint) {
    for (const double zeta : {0.2, 0.2431, 0.29, 0.3074, 1.0 / 3, 0.36}) {
        const VoHalmeCriticalConstants c = VoHalmeConstantsOf(zeta);
        ASSERT_FALSE(c.failed);
        const double b = c.OmegaB;
        EXPECT_NEAR(b * b * b + (1 - 3 * zeta) * b * b + 3 * zeta * zeta * b - zeta * zeta * zeta, 0, 1e-15);
        EXPECT_NEAR(c.s * b, 1 - 3 * zeta + b, 1e-15);
    }
}

TEST(VoHalmeConstants, AreThoseOfVanDerWaalsForACriticalFactorOfThreeEighths) {
    const VoHalmeCriticalConstants c = VoHalmeConstantsOf(3.0 / 8);
    EXPECT_NEAR(c.OmegaA, 27.0 / 64, 1e-14);
    EXPECT_NEAR(c.OmegaB, 1.0 / 8, 1e-14);
    EXPECT_NEAR(c.s, 0, 1e-13);
}

TEST(VoHalmeConstants, FailForACriticalFactorWithoutRealSolution) {
    for (const double zeta : {0.0, 0.1, -0.3, std::nan(""), HUGE_VAL})
        EXPECT_TRUE(VoHalmeConstantsOf(zeta).failed) << zeta;
}

TEST(VoHalmeConstants, LetTheThreeVolumesCoincideAtTheCriticalPoint) {
    for (const double zeta : {0.25, 0.29, 0.34}) {
        SubstanceModel model = ButaneWith(zeta);
        ASSERT_TRUE(SetVoHalmeConstants(model));
        const SubstanceData& s = model.substance;
        SetEosCoefficients(model, s.Tc);
        const EosParameters& e = model.eos;
        const double v = zeta * gasConstant * s.Tc / s.pc;
        const double RT = gasConstant * s.Tc;
        const double u = v - e.B;
        const double W = (v + e.C) * (v + e.D);
        const double dW = 2 * v + e.C + e.D;
        EXPECT_NEAR(RT / u - e.A / W, s.pc, 1e-9 * s.pc);
        EXPECT_NEAR(-RT / (u * u) + e.A * dW / (W * W), 0, 1e-9 * RT / (u * u));
        const double second = 2 * RT / (u * u * u);
        EXPECT_NEAR(second + e.A * (2 / (W * W) - 2 * dW * dW / (W * W * W)), 0, 1e-9 * second);
    }
}

TEST(VoHalmeConstants, GiveTheCriticalVolumeAndDensityOfTheRow) {
    SubstanceModel model = ButaneWith(0.29);
    ASSERT_TRUE(SetVoHalmeConstants(model));
    const SubstanceData& s = model.substance;
    EXPECT_DOUBLE_EQ(model.eos.vCritCalc, 0.29 * gasConstant * s.Tc / s.pc);
    EXPECT_DOUBLE_EQ(model.eos.rhoCritCalc, s.molarMass / model.eos.vCritCalc);
    EXPECT_DOUBLE_EQ(model.voHalme.ac, gasConstant * gasConstant * model.voHalme.OmegaA * s.Tc * s.Tc / s.pc);
}

TEST(VoHalmeConstants, LeaveNoCriticalVolumeWhereTheyFail) {
    SubstanceModel model = ButaneWith(0);
    model.eos.vCritCalc = model.eos.rhoCritCalc = 5;
    EXPECT_FALSE(SetVoHalmeConstants(model));
    EXPECT_EQ(model.eos.vCritCalc, 0);
    EXPECT_EQ(model.eos.rhoCritCalc, 0);
    model = ButaneWith(0.29);
    model.substance.pc = 0;
    EXPECT_FALSE(SetVoHalmeConstants(model));
    EXPECT_EQ(model.eos.vCritCalc, 0);
}

} // namespace
} // namespace orva
