// SPDX-License-Identifier: GPL-3.0-or-later
// The property models against the same formulas evaluated one number after the other: equal to the last bit.
#include "thermo/plain_evaluation.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>

#include "thermo/caloric_fixture.h"
#include "thermo/caloric_state.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/saturation_bracket.h"

namespace orva::caloric {
namespace {

constexpr double idealCp = 90;

std::uint64_t Bits(double x) {
    return std::bit_cast<std::uint64_t>(x);
}

// Every substance of the fixture with every cubic row.
class PlainEvaluation : public testing::TestWithParam<int> {
protected:
    template<class Check> void ForEveryState(Check check) {
        for (const SubstanceData& substance : fluids::All()) {
            SubstanceModel model = ModelOf(GetParam(), substance);
            for (int i = 0; i < 60; ++i)
                for (int j = 0; j < 40; ++j)
                    check(model, substance.Tc * (0.3 + 0.0371 * i), 1e-2 * std::pow(10, 0.19 * j));
        }
    }
};

TEST_P(PlainEvaluation, GivesTheSameVolumesAndAreas) {
    int triple = 0;
    ForEveryState([&](SubstanceModel& model, double T, double p) {
        SetEosCoefficients(model, T);
        const CubicSolution solution = SolveEosCubic(model, T, p);
        const std::vector<double> plain = plain::Roots(model.eos, T, p);
        const auto& roots = model.work.Roots;
        ASSERT_EQ(static_cast<std::size_t>(solution.rootCount), plain.size()) << T << ' ' << p;
        for (std::size_t i = 0; i < plain.size(); ++i)
            ASSERT_EQ(Bits(roots[i]), Bits(plain[i])) << T << ' ' << p;
        if (solution.rootCount < 3 || !(roots[0] > model.eos.B))
            return;
        ++triple;
        const AreaRatio areas = MaxwellAreaRatio(model, T, p);
        const double area1 = plain::Lobe(model.eos, T, p, roots[2], roots[1]);
        const double area2 = plain::Lobe(model.eos, T, p, roots[1], roots[0]);
        ASSERT_EQ(Bits(areas.area1), Bits(area1));
        ASSERT_EQ(Bits(areas.area2), Bits(area2));
        ASSERT_EQ(Bits(areas.ratio), Bits((area1 + area2) / (area1 - area2)));
    });
    EXPECT_GT(triple, 200);
}

void ExpectSame(const ResidualState& state, const ResidualState& plain) {
    for (int row = 0; row <= 10; ++row)
        ASSERT_EQ(Bits(state.table.Row(row)), Bits(plain.table.Row(row))) << row;
    const ThermalDerivatives& d = state.thermal;
    const ThermalDerivatives& e = plain.thermal;
    const double derivatives[][2] = {{d.dpdv, e.dpdv},     {d.dpdT, e.dpdT},     {d.dvdp, e.dvdp},
                                     {d.dvdT, e.dvdT},     {d.dTdv, e.dTdv},     {d.dTdp, e.dTdp},
                                     {d.d2pdv2, e.d2pdv2}, {d.d2vdT2, e.d2vdT2}, {d.d2Tdv2, e.d2Tdv2}};
    for (const auto& [value, expected] : derivatives)
        ASSERT_EQ(Bits(value), Bits(expected));
    ASSERT_EQ(state.unstable, plain.unstable);
}

TEST_P(PlainEvaluation, GivesTheSameResidualFunctions) {
    int good = 0;
    ForEveryState([&](SubstanceModel& model, double T, double p) {
        PhaseVolumes phases;
        EosPhaseVolumes(model, T, p, phases);
        if (phases.failed)
            return;
        const double v = phases.hasV ? phases.vV : phases.vL;
        const ResidualState state = ResidualFunctions(model, T, p, v, idealCp);
        if (state.failed)
            return;
        ++good;
        ExpectSame(state, plain::Residual(model, T, p, v, idealCp));
    });
    EXPECT_GT(good, 8000);
}

// A saturated state takes its volumes from the search; asking for them anew gives the same.
TEST_P(PlainEvaluation, GivesTheSameSaturatedStates) {
    int good = 0;
    for (const SubstanceData& substance : fluids::All()) {
        SubstanceModel model = ModelOf(GetParam(), substance);
        model.selection.cpModel = 0;
        const AmbientState ambient = EvaluateAmbientState(model);
        for (int i = 0; i < 120; ++i) {
            const double T = substance.Tc * (0.4 + 0.005 * i);
            const SaturationCaloricResult both = SaturationCaloric(model, T, ambient);
            if (both.failed)
                continue;
            ++good;
            const double p = EosSaturationPressure(model, T).value;
            ASSERT_EQ(Bits(both.p), Bits(p));
            PhaseVolumes phases;
            EosPhaseVolumes(model, T, p, phases);
            // Where the bracketed search finished, its volumes are taken: the cubic at p may not show them.
            if (Bits(BracketedSaturationPressure(model, T).value) == Bits(p)) {
                phases.vL = model.work.Roots[0];
                phases.vV = model.work.Roots[2];
            }
            ASSERT_EQ(Bits(both.vL), Bits(phases.vL));
            ASSERT_EQ(Bits(both.vV), Bits(phases.vV));
            const CaloricValues vapour = CaloricState(model, T, p, phases.vV, ambient).values;
            ASSERT_EQ(Bits(both.vapour.h), Bits(vapour.h));
            ASSERT_EQ(Bits(both.vapour.s), Bits(vapour.s));
            ASSERT_EQ(Bits(both.vapour.soundSpeed), Bits(vapour.soundSpeed));
            ASSERT_EQ(Bits(both.liquid.cv), Bits(CaloricState(model, T, p, phases.vL, ambient).values.cv));
        }
    }
    EXPECT_GT(good, 400);
}

INSTANTIATE_TEST_SUITE_P(CubicRows, PlainEvaluation, testing::Values(2, 3, 4, 5, 6, 7, 8));

} // namespace
} // namespace orva::caloric
