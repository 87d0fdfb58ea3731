// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/saturated_state.h"

#include <cmath>

#include "helpers/deviations.h"

namespace orva::dvopar {
namespace {

constexpr double R = 8.31451;

SubstanceModel PengRobinson() {
    SubstanceModel model;
    model.substance.molarMass = 58.1222F;
    model.substance.Tc = 425.125;
    model.substance.pc = 3796;
    model.substance.omega = 0.2;
    model.selection.eos = eosPengRobinson;
    EXPECT_TRUE(DetermineEosParameters(model, eosPengRobinson));
    return model;
}

Isotherm IsothermAt(SubstanceModel& model, double T) {
    SetEosCoefficients(model, T);
    return {R * T, model.eos.A, model.eos.B, model.eos.C, model.eos.D, model.eos.vCritCalc};
}

TEST(Saturate, AgreesWithEqualAreasFromAnyStart) {
    SubstanceModel model = PengRobinson();
    for (const double Tr : {0.35, 0.5, 0.7, 0.9, 0.99, 0.999}) {
        const double T = Tr * model.substance.Tc;
        const SaturationResult areas = BracketedSaturationPressure(model, T);
        ASSERT_FALSE(areas.failed);
        const std::array<double, 3> roots = model.work.Roots;
        for (const double factor : {1e-3, 0.5, 0.95, 1.0, 1.05, 2.0, 1e3}) {
            const SaturatedState state = Saturate(IsothermAt(model, T), factor * areas.value);
            ASSERT_FALSE(state.failed) << Tr << " " << factor;
            EXPECT_NEAR(state.p, areas.value, 1e-8 * areas.value) << Tr << " " << factor;
            EXPECT_NEAR(state.vL, roots[0], 1e-5 * roots[0]);
            EXPECT_NEAR(state.vV, roots[2], 1e-5 * roots[2]);
        }
    }
}

TEST(Saturate, FailsWithoutALoopOrWithoutNumbers) {
    SubstanceModel model = PengRobinson();
    EXPECT_TRUE(Saturate(IsothermAt(model, 1.2 * model.substance.Tc), 3000).failed);
    EXPECT_TRUE(Saturate(IsothermAt(model, 300), 0).failed);
    EXPECT_TRUE(Saturate(IsothermAt(model, 300), std::nan("")).failed);
    EXPECT_TRUE(Saturate(IsothermAt(model, 300), HUGE_VAL).failed);
    EXPECT_TRUE(Saturate({}, 100).failed);
    EXPECT_TRUE(Saturate({std::nan(""), 1, 1, 1, 2, 3}, 100).failed);
}

} // namespace
} // namespace orva::dvopar
