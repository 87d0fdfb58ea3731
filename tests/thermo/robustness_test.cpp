// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
#include "thermo/fluids.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/virial_equation.h"

namespace orva {
namespace {

// Every operation ends on any input, and what it calls good is a finite number.
class AnyInput : public testing::TestWithParam<int> {
protected:
    static constexpr double infinity = std::numeric_limits<double>::infinity();
    static constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    static constexpr std::array<double, 21> values = {
        -infinity, -1e300, -1000, -1e-300, 0,    1e-300, 1e-30, 1e-6, 1e-3,  0.1,     1,
        30,        300,    425,   425.125, 1000, 3796,   1e5,   1e12, 1e300, infinity};

    static std::vector<double> Inputs() {
        std::vector<double> inputs(values.begin(), values.end());
        inputs.push_back(nan);
        inputs.push_back(std::numeric_limits<double>::denorm_min());
        inputs.push_back(std::numeric_limits<double>::max());
        return inputs;
    }

    SubstanceModel Model() const {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam(), vpWagner);
        if (GetParam() == eosVoHalme1 || GetParam() == eosVoHalme2)
            fluids::SetVoHalme(model, 0.2);
        if (GetParam() == virialByHand) {
            model.eos.b0 = 0.1;
            model.eos.nB = 4000;
            model.eos.nF = 1.5;
        }
        return model;
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, AnyInput, testing::Range(0, 17),
                         [](const auto& row) { return "Row" + std::to_string(row.param); });

TEST_P(AnyInput, OfTemperatureAndPressureGivesFiniteVolumesOrAFailure) {
    SubstanceModel model = Model(); // one model for all: what a call leaves behind meets the next one
    for (const double T : Inputs())
        for (const double p : Inputs()) {
            PhaseVolumes state;
            EosPhaseVolumes(model, T, p, state);
            if (state.failed)
                continue;
            for (const double x :
                 {state.vV, state.vL, state.rhoV, state.rhoL, state.areaRatio, state.area1, state.area2})
                EXPECT_TRUE(std::isfinite(x)) << T << " " << p;
            StatusText(state);
        }
}

TEST_P(AnyInput, OfTemperatureAndVolumeGivesAFinitePressureOrAFailure) {
    SubstanceModel model = Model();
    for (const double T : Inputs())
        for (const double v : Inputs()) {
            const PressureResult result = EosPressure(model, T, v);
            EXPECT_TRUE(std::isfinite(result.p)) << T << " " << v;
            if (result.failed) {
                EXPECT_EQ(result.p, 0);
            }
        }
}

TEST_P(AnyInput, OfTheSaturationSearchesGivesAPositiveValueOrAFailure) {
    SubstanceModel model = Model();
    for (const double x : Inputs()) {
        for (const SaturationResult& result :
             {EosSaturationPressure(model, x), EosSaturationTemperature(model, x)}) {
            EXPECT_TRUE(std::isfinite(result.value)) << x;
            EXPECT_TRUE(result.failed ? result.value == 0 : result.value > 0) << x;
            EXPECT_TRUE(std::isfinite(result.areaRatio + result.area1 + result.area2)) << x;
        }
        for (const double start : Inputs()) {
            const SaturationResult result = EosSaturationTemperature(model, x, start);
            EXPECT_TRUE(std::isfinite(result.value)) << x << " from " << start;
            EXPECT_TRUE(result.failed ? result.value == 0 : result.value > 0) << x << " from " << start;
        }
    }
}

TEST_P(AnyInput, OfPressureAndDensityGivesAFiniteTemperature) {
    SubstanceModel model = Model();
    for (const double p : Inputs())
        for (const double rho : Inputs())
            for (const bool skip : {false, true}) {
                const double T = EosTemperature(model, p, rho, skip);
                EXPECT_TRUE(std::isfinite(T)) << p << " " << rho;
                EXPECT_GE(T, 0) << p << " " << rho;
            }
}

TEST_P(AnyInput, OfTheVirialCoefficientIsFiniteForEveryTemperature) {
    SubstanceModel model = Model();
    for (const double T : Inputs())
        if (std::isfinite(T)) {
            EXPECT_TRUE(std::isfinite(VirialCoefficientB(model, GetParam(), T))) << T;
        }
}

TEST_P(AnyInput, OfSubstanceConstantsEndsAndGivesNothingNonFinite) {
    for (const double Tc : {0.0, -5.0, 1e-300, 400.0, 1e300, infinity, nan})
        for (const double pc : {0.0, -5.0, 1e-300, 4000.0, 1e300, infinity, nan})
            for (const double omega : {0.0, 0.3, -1e10, nan}) {
                SubstanceModel model = Model();
                model.substance.Tc = Tc;
                model.substance.pc = pc;
                model.substance.omega = omega;
                DetermineEosParameters(model, GetParam());
                for (const double T : {1e-3, 300.0, 1000.0})
                    for (const double p : {1e-3, 100.0, 1e5}) {
                        PhaseVolumes state;
                        EosPhaseVolumes(model, T, p, state);
                        if (!state.failed) {
                            EXPECT_TRUE(std::isfinite(state.vV + state.vL + state.rhoV + state.rhoL))
                                << Tc << " " << pc << " " << omega;
                        }
                        EXPECT_TRUE(std::isfinite(EosSaturationPressure(model, T).value));
                        EXPECT_TRUE(std::isfinite(EosSaturationTemperature(model, p).value));
                        EXPECT_TRUE(std::isfinite(EosTemperature(model, p, T, false)));
                    }
            }
}

} // namespace
} // namespace orva
