// SPDX-License-Identifier: GPL-3.0-or-later
// Derivatives and residual functions of every row against differences of p(T, v), of ln phi along the isobar,
// and against the integral that defines ln phi.
#include <gtest/gtest.h>

#include "caloric_fixture.h"
#include "state/constants.h"
#include "thermo/residual_functions.h"

namespace orva::caloric {
namespace {

constexpr double R = 8.31451;

class EveryState : public testing::TestWithParam<State> {
protected:
    State s = GetParam();
    SubstanceModel model = ModelOf(s.eos);
    double p = PressureAt(model, s.T, s.v);

    ResidualState At(double T, double v) { return ResidualFunctions(model, T, p, v, 100); }
    // ln phi along the isobar through the state.
    double LnPhi(double T) { return At(T, VolumeAt(model, T, p, s.v)).table.lnPhi; }
};

// Compared where the state is mechanically far from a spinodal, so that differences along the isobar mean
// something.
bool Steep(const ResidualState& r, double p, double v) {
    return r.thermal.dpdv < 0 && -r.thermal.dpdv * v > 0.5 * p;
}

TEST_P(EveryState, FirstDerivativesAreThoseOfThePressure) {
    const ThermalDerivatives d = At(s.T, s.v).thermal;
    const double dpdv = CentralSlope([&](double v) { return PressureAt(model, s.T, v); }, s.v, 1e-4 * s.v);
    const double dpdT = CentralSlope([&](double T) { return PressureAt(model, T, s.v); }, s.T, 1e-3 * s.T);
    const double scale = R * s.T / (s.v * s.v);
    EXPECT_NEAR(d.dpdv, dpdv, 1e-7 * (std::abs(dpdv) + scale)) << Name(s);
    EXPECT_NEAR(d.dpdT, dpdT, 1e-7 * (std::abs(dpdT) + R / s.v)) << Name(s);
    EXPECT_DOUBLE_EQ(d.dvdp, 1 / d.dpdv);
    EXPECT_NEAR(d.dvdT, -dpdT / dpdv, 1e-6 * std::abs(dpdT / dpdv)) << Name(s);
    EXPECT_NEAR(d.dTdv * d.dvdT, 1, 1e-12);
    EXPECT_NEAR(d.dTdp * d.dpdT, 1, 1e-12);
}

TEST_P(EveryState, SecondDerivativesAreThoseOfThePressure) {
    const ResidualState r = At(s.T, s.v);
    const ThermalDerivatives& d = r.thermal;
    const double d2pdv2 =
        CentralCurvature([&](double v) { return PressureAt(model, s.T, v); }, s.v, 2e-3 * s.v);
    const double scale = R * s.T / (s.v * s.v * s.v);
    EXPECT_NEAR(d.d2pdv2, d2pdv2, 1e-5 * (std::abs(d2pdv2) + scale)) << Name(s);
    if (!Steep(r, p, s.v))
        return;
    const double d2vdT2 =
        CentralCurvature([&](double T) { return VolumeAt(model, T, p, s.v); }, s.T, 2e-3 * s.T);
    EXPECT_NEAR(d.d2vdT2, d2vdT2, 1e-4 * (std::abs(d2vdT2) + s.v / (s.T * s.T))) << Name(s);
}

// Kept on purpose: the row is -(dv/dT) times the second derivative of T in v for the cubic rows. For the
// virial rows, whose slip has the other sign, it is (d2v/dT2) / (dv/dT)^2.
TEST_P(EveryState, TheLastSecondDerivativeKeepsItsForm) {
    const ThermalDerivatives d = At(s.T, s.v).thermal;
    const double trueValue = -d.d2vdT2 / (d.dvdT * d.dvdT * d.dvdT);
    const double scale = std::abs(1 / (d.dvdT * d.dvdT)) * s.v / (s.T * s.T);
    EXPECT_NEAR(d.d2Tdv2, -d.dvdT * trueValue, 1e-8 * (std::abs(d.d2Tdv2) + scale)) << Name(s);
}

// ln phi = integral from v to infinity of (p/(RT) - 1/v) dv + z - 1 - ln z, by Simpson's rule in 1/v.
TEST_P(EveryState, FugacityIsTheIntegralOfThePressure) {
    if (model.selection.nonCubic)
        return; // the truncated virial form is explicit in v: see below
    const auto integrand = [&](double density) {
        if (density < 1e-12)
            density = 1e-12;
        const double v = 1 / density;
        return (PressureAt(model, s.T, v) / (R * s.T) - density) * v * v;
    };
    const int steps = 4000;
    const double h = 1 / s.v / steps;
    double sum = integrand(1e-7) + integrand(1 / s.v);
    for (int i = 1; i < steps; ++i)
        sum += (i % 2 == 1 ? 4 : 2) * integrand(i * h);
    const double z = p * s.v / (R * s.T);
    const double expected = sum * h / 3 + z - 1 - std::log(z);
    EXPECT_NEAR(At(s.T, s.v).table.lnPhi, expected, 2e-6 * (1 + std::abs(expected))) << Name(s);
}

TEST_P(EveryState, SlopesOfTheFugacityAreThoseAlongTheIsobar) {
    const ResidualState r = At(s.T, s.v);
    if (!Steep(r, p, s.v))
        return;
    const double first = CentralSlope([&](double T) { return LnPhi(T); }, s.T, 1e-3 * s.T);
    const double second = CentralCurvature([&](double T) { return LnPhi(T); }, s.T, 3e-3 * s.T);
    EXPECT_NEAR(r.table.dlnPhidT, first, 1e-6 * (std::abs(first) + 1e-3 / s.T)) << Name(s);
    EXPECT_NEAR(r.table.d2lnPhidT2, second, 2e-4 * (std::abs(second) + 1e-2 / (s.T * s.T))) << Name(s);
}

TEST_P(EveryState, DerivedRowsFollowFromTheFirstThree) {
    const ResidualState r = At(s.T, s.v);
    const ResidualTable& t = r.table;
    const double T = s.T;
    EXPECT_DOUBLE_EQ(t.s, -t.lnPhi - T * t.dlnPhidT);
    EXPECT_DOUBLE_EQ(t.h, -T * T * t.dlnPhidT);
    EXPECT_DOUBLE_EQ(t.g, T * t.lnPhi);
    EXPECT_NEAR(t.h - T * t.s, t.g, 1e-9 * (std::abs(t.h) + std::abs(t.g)));
    EXPECT_DOUBLE_EQ(t.cpTotal, R * t.cp + 100);
    // cp - cv = -T (dp/dT)^2 / (dp/dv)
    const double difference = -T * r.thermal.dpdT * r.thermal.dpdT / r.thermal.dpdv;
    if (!model.selection.nonCubic) {
        EXPECT_NEAR(t.cpTotal - t.cv, difference, 1e-8 * std::abs(difference));
    }
    for (int k = 0; k <= 10; ++k)
        EXPECT_TRUE(std::isfinite(t.Row(k))) << Name(s) << " row " << k;
    EXPECT_EQ(t.Row(11), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryState, testing::ValuesIn(States()));

TEST(ResidualFunctions, VirialFugacityIsThatOfThePressureSeries) {
    for (const int eos : {10, 11, 12, 13, 14, 15, 16}) {
        SubstanceModel model = ModelOf(eos);
        const double T = 400;
        const double p = 200;
        const ResidualState r = ResidualFunctions(model, T, p, R * T / p + model.work.BVirial, 100);
        EXPECT_DOUBLE_EQ(r.table.lnPhi, model.work.BVirial * (p / (R * T))) << eos;
        // h residual of v = RT/p + B: (B - T dB/dT) p / R
        const auto B = [&](double t) {
            ResidualFunctions(model, t, p, 20, 100);
            return model.work.BVirial;
        };
        const double dB = CentralSlope(B, T, 0.5);
        EXPECT_NEAR(r.table.h, (B(T) - T * dB) * p / R, 1e-6 * std::abs(r.table.h)) << eos;
    }
}

TEST(ResidualFunctions, AnIdealGasHasNone) {
    SubstanceModel model = ModelOf(eosIdealGas);
    const double v = R * 300 / 100;
    const ResidualState r = ResidualFunctions(model, 300, 100, v, 100);
    EXPECT_EQ(r.table.lnPhi, 0);
    EXPECT_EQ(r.table.h, 0);
    EXPECT_EQ(r.table.cp, 0);
    EXPECT_NEAR(r.table.jouleThomson, 0, 1e-15);
    // w = sqrt(kappa R T / M) with kappa = 100 / (100 - R)
    const double kappa = 100 / (100 - R);
    EXPECT_NEAR(r.table.soundSpeed, std::sqrt(kappa * R * 1000 * 300 / 58.124), 1e-4);
}

TEST(ResidualFunctions, EveryRowIsIdealAtLowPressure) {
    for (const int eos : {2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 16}) {
        SubstanceModel model = ModelOf(eos);
        const double T = 350;
        const double p = 1e-4;
        PhaseVolumes phases;
        EosPhaseVolumes(model, T, p, phases);
        const ResidualState r = ResidualFunctions(model, T, p, phases.vV, 100);
        EXPECT_NEAR(r.table.lnPhi, 0, 1e-6) << eos;
        EXPECT_NEAR(r.table.h / T, 0, 1e-6) << eos;
        EXPECT_NEAR(r.table.cp, 0, 1e-5) << eos;
    }
}

TEST(ResidualFunctions, AnUnstableStateMissesOnlyItsSpeedOfSound) {
    SubstanceModel model = ModelOf(eosPengRobinson);
    int unstableStates = 0;
    for (double v = 0.2; v < 1.5; v += 0.01) {
        const double p = PressureAt(model, 330, v);
        if (p <= 0)
            continue;
        const ResidualState r = ResidualFunctions(model, 330, p, v, 100);
        EXPECT_FALSE(r.failed) << v;
        EXPECT_NE(r.table.lnPhi, 0) << v;
        if (!r.unstable)
            continue;
        ++unstableStates;
        EXPECT_GT(r.thermal.dpdv, 0) << v;
        EXPECT_EQ(r.table.soundSpeed, 0) << v;
    }
    EXPECT_GT(unstableStates, 0);
}

TEST(ResidualFunctions, TheCoVolumeFails) {
    SubstanceModel model = ModelOf(eosPengRobinson);
    SetEosCoefficients(model, 300);
    EXPECT_TRUE(ResidualFunctions(model, 300, 100, model.eos.B, 100).failed);
    EXPECT_TRUE(ResidualFunctions(model, 300, 100, 0.5 * model.eos.B, 100).failed);
}

TEST(ResidualFunctions, RowsWithoutAndWithPolesApartTakeTheirOwnPath) {
    for (const int eos : {2, 3}) {
        SubstanceModel model = ModelOf(eos);
        SetEosCoefficients(model, 400);
        EXPECT_EQ(model.eos.C, model.eos.D) << eos;
    }
    for (const int eos : {4, 5, 6, 7}) {
        SubstanceModel model = ModelOf(eos);
        SetEosCoefficients(model, 400);
        EXPECT_NE(model.eos.C, model.eos.D) << eos;
    }
}

TEST(MechanicalCoefficients, AreRelativeSlopes) {
    SubstanceModel model = ModelOf(eosPengRobinson);
    const double v = 6;
    const double p = PressureAt(model, 400, v);
    const ThermalDerivatives d = ResidualFunctions(model, 400, p, v, 100).thermal;
    const MechanicalCoefficientValues m = MechanicalCoefficients(p, v, d);
    EXPECT_DOUBLE_EQ(m.alpha, d.dvdT / v);
    EXPECT_DOUBLE_EQ(m.chi, -d.dvdp / v);
    EXPECT_DOUBLE_EQ(m.beta, d.dpdT / p);
    EXPECT_NEAR(m.alpha, m.beta * p * m.chi, 1e-15);
}

} // namespace
} // namespace orva::caloric
