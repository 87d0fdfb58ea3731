// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "calc/calc_batch.h"
#include "thermo/fluids.h"

namespace orva {
namespace {

constexpr std::size_t inputPoints = 64; // a power of two

// The records of a session around n-butane with the Peng/Robinson equation.
struct Records {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    Options options;
    NameTables names = FillNameTables();
    BatchDataSet batch;
    CalculationState state;
    CalculationContext context{model, options, names, batch, state, {}};

    // Points that move a little from row to row, so that nothing is computed ahead.
    Records(int kind, double T, double p, float rho) {
        state.CalcKind = static_cast<std::int16_t>(kind);
        model.selection.cpModel = 1;
        model.substance.cpPolynomial = {9.487F, 0.3313F, -1.108e-4F, -2.822e-9F, 0, 200, 1500};
        batch.rows.resize(inputPoints);
        for (std::size_t i = 0; i < inputPoints; ++i) {
            batch.rows[i].T = T * (1 + 1e-6 * static_cast<double>(i));
            batch.rows[i].p = p;
            batch.rows[i].rhoV = rho;
        }
    }
};

void Measure(benchmark::State& state, Records& records, RunOptions run) {
    std::size_t i = 0;
    for (auto _ : state) {
        i = (i + 1) % inputPoints;
        const PointResult result =
            CalcBatch(records.context, records.state.CalcKind, static_cast<int>(i), run);
        if (result.failed)
            state.SkipWithError("the calculation failed");
        benchmark::DoNotOptimize(result.results.data());
    }
}

void NumbersOnly(benchmark::State& state, int kind, double T, double p, float rho) {
    Records records(kind, T, p, rho);
    const AmbientState ambient = EvaluateAmbientState(records.model);
    Measure(state, records, {.suppressReport = true, .warn = false, .ambient = &ambient});
}

void WithReport(benchmark::State& state, int kind, double T, double p, float rho) {
    Records records(kind, T, p, rho);
    Measure(state, records, {});
}

// All blocks of a report at their longest.
void WithEveryBlock(benchmark::State& state, int kind, double T, double p, float rho) {
    Records records(kind, T, p, rho);
    records.state.ExtendedLevel = 4;
    records.state.FunctionList = true;
    Measure(state, records, {});
}

BENCHMARK_CAPTURE(NumbersOnly, T_p_vapour, kindTP, 350, 500, 0);
BENCHMARK_CAPTURE(NumbersOnly, T_p_undivided, kindTP, 600, 5000, 0);
BENCHMARK_CAPTURE(NumbersOnly, functions, kindFunctions, 350, 500, 0);
BENCHMARK_CAPTURE(NumbersOnly, T_rho_vapour, kindTRho, 350, 0, 5);
BENCHMARK_CAPTURE(NumbersOnly, T_rho_both, kindTRho, 350, 0, 100);
BENCHMARK_CAPTURE(NumbersOnly, saturation, kindSaturationPressure, 350, 0, 0);
BENCHMARK_CAPTURE(WithReport, T_p_vapour, kindTP, 350, 500, 0);
BENCHMARK_CAPTURE(WithReport, functions, kindFunctions, 350, 500, 0);
BENCHMARK_CAPTURE(WithReport, T_rho_vapour, kindTRho, 350, 0, 5);
BENCHMARK_CAPTURE(WithReport, T_rho_both, kindTRho, 350, 0, 100);
BENCHMARK_CAPTURE(WithReport, saturation, kindSaturationPressure, 350, 0, 0);
BENCHMARK_CAPTURE(WithEveryBlock, saturation, kindSaturationPressure, 350, 0, 0);

} // namespace
} // namespace orva
