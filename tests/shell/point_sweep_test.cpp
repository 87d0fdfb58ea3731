// SPDX-License-Identifier: GPL-3.0-or-later
// Every calculation kind on a sample of the master database with every equation of state and odd inputs: each
// run ends, and nothing that is not finite comes back from a run that did not fail.
#include <cmath>
#include <limits>

#include "calc/calc_batch.h"
#include "master_database.h"

namespace orva::test {
namespace {

constexpr int substanceStep = 97;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double temperatures[] = {0,   1e-300, 1e300, -5,      1e-6,     0.5,        60,
                                   250, 298.15, 700,   5000.25, infinity, notANumber, -infinity};
constexpr double pressures[] = {0, 1e-300, 1e300, -1, 1e-6, 0.01, 101.325, 2000, 1e5, infinity, notANumber};
constexpr float densities[] = {0, 1e-30F, -1, 1e-4F, 2, 150, 700, 1e6F, std::numeric_limits<float>::max()};

void ExpectFinite(const PointResult& r, const std::string& where) {
    for (std::size_t slot = 0; slot < resultCount; ++slot)
        ASSERT_TRUE(std::isfinite(r.results[slot])) << where << " slot " << slot;
    ASSERT_TRUE(std::isfinite(r.T) && std::isfinite(r.p)) << where;
    const ResultRecord& record = r.record;
    for (const float value : {record.T, record.p, record.v, record.Tcalc, record.pcalc, record.rhoV,
                              record.rhoL, record.hLV, record.h, record.s, record.g, record.eH, record.eU})
        ASSERT_TRUE(std::isfinite(value)) << where;
    for (const char* word : {"NaN", "Inf"})
        ASSERT_EQ(r.report.find(word), std::string::npos) << where << '\n' << r.report;
}

class PointSweep : public MasterDatabase {
protected:
    int run = 0;

    void Check(int kind, double T, double p) {
        CalculationState& calculation = session.calculation;
        calculation.CalcKind = static_cast<std::int16_t>(kind);
        const float rho = densities[static_cast<std::size_t>(run) % std::size(densities)];
        const float rhoL = densities[static_cast<std::size_t>(run / 3) % std::size(densities)];
        session.batch.rows[0] = {false, T, p, rhoL, rho, 0, 0};
        calculation.vessel = {rho, 1.5F, static_cast<float>(T), false};
        calculation.ExtendedLevel = run % 16 == 0 ? 4 : 1;
        calculation.FunctionList = run % 5 == 0;
        calculation.AssumeEquilibrium = !calculation.GlobalMethod && run % 2 == 0;
        ++run;
        CalculationContext context = session.Calculation();
        const PointResult r = CalcBatch(context, kind, 0);
        if (!r.failed)
            ExpectFinite(r, session.model.substance.name + " row "
                                + std::to_string(session.model.selection.eos) + " kind "
                                + std::to_string(kind) + " T " + std::to_string(T) + " p " + std::to_string(p)
                                + " rho " + std::to_string(rho) + " rhoL " + std::to_string(rhoL)
                                + (calculation.GlobalMethod ? " global" : " partial"));
    }

    void CheckAllInputs(int kind) {
        const double Tc = session.model.substance.Tc;
        const double pc = session.model.substance.pc;
        for (const double T : temperatures)
            for (const double p : pressures)
                ASSERT_NO_FATAL_FAILURE(Check(kind, T, p));
        for (const double Tr : {0.4, 0.7, 0.95, 0.99999, 1.0, 1.00001, 1.3})
            for (const double pr : {1e-4, 0.1, 0.9, 1.0, 1.0001, 3.0})
                ASSERT_NO_FATAL_FAILURE(Check(kind, Tr * Tc, pr * pc));
    }
};

TEST_F(PointSweep, GivesNothingButFiniteResults) {
    ForEveryModel(substanceStep, [this](SubstanceModel& model) {
        for (const bool global : {true, false}) {
            session.calculation.GlobalMethod = global && !model.selection.nonCubic;
            session.calculation.BensonLiquid = global;
            session.calculation.referenceDensity = {model.substance.Tb, 101.3F, model.substance.rhoLb, 2};
            session.calculation.ReferenceDensityPointValid = true;
            model.selection.vaporization = static_cast<std::int16_t>(1 + run % 7);
            for (int kind = kindTRho; kind <= kindSolidDensity; ++kind)
                ASSERT_NO_FATAL_FAILURE(CheckAllInputs(kind));
        }
    });
    EXPECT_GT(run, 50000);
}

} // namespace
} // namespace orva::test
