// SPDX-License-Identifier: GPL-3.0-or-later
// Every calculation kind for every substance of the master database, and with odd inputs for some: each run
// ends, nothing that is not finite comes back from a run that did not fail, and no text shows such a number.
#include <cmath>
#include <limits>
#include <map>

#include "calc/calc_batch.h"
#include "substance_shard.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

namespace orva::test {
namespace {

// The sanitizers look at a part of the substances.
#if defined(__SANITIZE_ADDRESS__)
constexpr int substanceStep = 24;
#else
constexpr int substanceStep = 1;
#endif
constexpr int rowsPerSubstance = 2;
constexpr int oddSubstanceStep = 97;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double oddTemperatures[] = {0,   1e-300, 1e300, -5,      1e-6,     0.5,        60,
                                      250, 298.15, 700,   5000.25, infinity, notANumber, -infinity};
constexpr double oddPressures[] = {0,       1e-300, 1e300, -1,        1e-6,     0.01,      1e-6,
                                   101.325, 2000,   1e5,   1e7 + 0.5, infinity, notANumber};
constexpr float oddDensities[] = {0, 1e-30F, -1, 1e-4F, 2, 150, 700, 1e6F, std::numeric_limits<float>::max()};

// "NaN" or "Inf" in whatever letters, but not within a word such as "Nonan".
bool ShowsNoNumber(std::string_view text) {
    const auto lower = [&](std::size_t at) { return at < text.size() ? text[at] | 0x20 : 0; };
    const auto letter = [&](std::size_t at) { return 'a' <= lower(at) && lower(at) <= 'z'; };
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (lower(at) != 'a' && lower(at) != 'n')
            continue;
        const bool nan = lower(at - 1) == 'n' && lower(at) == 'a' && lower(at + 1) == 'n';
        const bool inf = lower(at - 1) == 'i' && lower(at) == 'n' && lower(at + 1) == 'f';
        if ((nan || inf) && !letter(at - 2) && !letter(at + 2))
            return true;
    }
    return false;
}

template<class Where> void ExpectReadable(const PointResult& r, Where where) {
    for (const ResultLabel* label : {&r.par1, &r.par2, &r.co1, &r.co2})
        ASSERT_FALSE(ShowsNoNumber(label->text)) << where() << '\n' << label->text;
    for (const Message& message : r.messages)
        ASSERT_FALSE(ShowsNoNumber(message.text)) << where() << '\n' << message.text;
    ASSERT_FALSE(ShowsNoNumber(r.report)) << where() << '\n' << r.report;
}

template<class Where> void ExpectFinite(const PointResult& r, Where where) {
    for (std::size_t slot = 0; slot < resultCount; ++slot)
        ASSERT_TRUE(std::isfinite(r.results[slot])) << where() << " slot " << slot;
    for (const double root : r.roots)
        ASSERT_TRUE(std::isfinite(root)) << where();
    const ResultRecord& record = r.record;
    for (const double value : {r.T, r.p, static_cast<double>(r.liquidPercent)})
        ASSERT_TRUE(std::isfinite(value)) << where();
    for (const float value : {record.T, record.p, record.v, record.Tcalc, record.pcalc, record.rhoV,
                              record.rhoL, record.hLV, record.h, record.s, record.g, record.eH, record.eU})
        ASSERT_TRUE(std::isfinite(value)) << where();
    for (const std::size_t phase : {0U, 1U}) {
        for (const float value : record.deriv[phase])
            ASSERT_TRUE(std::isfinite(value)) << where();
        for (const float value : record.resid[phase])
            ASSERT_TRUE(std::isfinite(value)) << where();
        for (const float value : record.coeff[phase])
            ASSERT_TRUE(std::isfinite(value)) << where();
        for (const float value : record.mech[phase])
            ASSERT_TRUE(std::isfinite(value)) << where();
    }
}

struct Input {
    const char* name;
    double T = 0, p = 0;           // K, kPa
    double rho = 0, rhoLiquid = 0; // kg/m^3
};

// Saturation as the model has it: the cubic equation's own, or the vapour-pressure equation's.
Input AtSaturation(SubstanceModel& model, const char* name, double T) {
    const double M = model.substance.molarMass;
    if (model.selection.nonCubic) {
        const double p = VapourPressure(model.substance, T, model.selection.vaporPressure).value;
        return {name, T, p, p * M / (8.31451 * T), model.substance.rhoLb};
    }
    const double p = EosSaturationPressure(model, T).value;
    const auto& roots = model.work.Roots;
    return {name, T, p, 2 * M / (roots[0] + roots[2]), M / roots[0]};
}

// States that a user asks for, the borders between them, and what lies far outside.
std::vector<Input> Inputs(SubstanceModel& model) {
    const SubstanceData& s = model.substance;
    const auto gasDensity = [&](double T, double p) { return p * s.molarMass / (8.31451 * T); };
    const double rhoLb = s.rhoLb > 0 ? s.rhoLb : 3 * s.rhoc;
    return {
        {"gas", 0.8 * s.Tc, 0.001 * s.pc, gasDensity(0.8 * s.Tc, 0.001 * s.pc), 1.01 * rhoLb},
        {"dense gas", 1.1 * s.Tc, 0.8 * s.pc, 0.4 * s.rhoc, 0.9 * s.rhoc},
        {"liquid", 0.7 * s.Tc, 0.9 * s.pc, rhoLb, rhoLb},
        {"supercritical", 1.3 * s.Tc, 2.5 * s.pc, 1.1 * s.rhoc, 1.1 * s.rhoc},
        {"cold and compressed", 0.9 * s.Tc, 5 * s.pc, 1.2 * rhoLb, 1.2 * rhoLb},
        AtSaturation(model, "saturation", 0.85 * s.Tc),
        AtSaturation(model, "saturation near critical", 0.999 * s.Tc),
        {"boiling point", s.Tb, 101.325, gasDensity(s.Tb, 101.325), rhoLb},
        {"triple point", s.Ttrip, s.ptrip, gasDensity(std::max(s.Ttrip, 1.0F), s.ptrip), 1.1 * rhoLb},
        {"critical point", s.Tc, s.pc, s.rhoc, s.rhoc},
        {"room", 298.15, 100, 0.5 * rhoLb, rhoLb},
        {"cold and empty", 1, 1e-6, 1e-6, 1e-6},
        {"cold and crushed", 1, 1e7, 1e4, 1e4},
        {"warm and empty", 300, 1e-6, 1e-6, 1e-6},
        {"warm and crushed", 300, 1e7, 5e3, 5e3},
        {"hot and crushed", 5000, 1e7, 3e3, 3e3},
    };
}

class PointSweep : public SubstanceShard {
protected:
    int run = 0, good = 0;
    std::map<std::pair<int, int>, int> meetings; // of row and kind

    void Check(int kind, const Input& input) {
        CalculationState& calculation = session.calculation;
        calculation.CalcKind = static_cast<std::int16_t>(kind);
        const auto rho = static_cast<float>(input.rho);
        session.batch.rows[0] = {false, input.T, input.p, static_cast<float>(input.rhoLiquid), rho, 0, 0};
        calculation.vessel = {rho, 1.5F, static_cast<float>(input.T), false};
        ++run;
        CalculationContext context = session.Calculation();
        const PointResult r = CalcBatch(context, kind, 0);
        const auto where = [&] {
            return ModelName() + " kind " + std::to_string(kind) + ' ' + input.name + " T "
                   + std::to_string(input.T) + " p " + std::to_string(input.p) + " rho "
                   + std::to_string(input.rho) + " rhoL " + std::to_string(input.rhoLiquid)
                   + (calculation.GlobalMethod ? " global" : " partial") + " level "
                   + std::to_string(calculation.ExtendedLevel);
        };
        good += r.failed ? 0 : 1;
        ++meetings[{session.model.selection.eos, kind}];
        if (!r.failed)
            ExpectFinite(r, where);
        ExpectReadable(r, where);
    }

    // The methods and the display, a different mixture for each model.
    void SetUpCalculation(bool global, int turn) {
        SubstanceModel& model = session.model;
        CalculationState& calculation = session.calculation;
        calculation.GlobalMethod = global && !model.selection.nonCubic;
        calculation.BensonLiquid = turn % 2 == 0;
        calculation.referenceDensity = {model.substance.Tb, 101.3F, model.substance.rhoLb, 2};
        calculation.ReferenceDensityPointValid = turn % 5 != 0;
        model.selection.vaporization = static_cast<std::int16_t>(1 + turn % 7);
        model.selection.eosPriority = turn % 3 != 0;
        session.options.unitBasis = static_cast<std::int16_t>(turn % 4);
        session.options.volumeBasis = static_cast<std::int16_t>(turn / 4 % 3);
    }

    void SweepInputs(bool global, int turn) {
        CalculationState& calculation = session.calculation;
        const std::vector<Input> inputs = Inputs(session.model);
        SetUpCalculation(global, turn);
        for (int kind = kindTRho; kind <= kindSolidDensity; ++kind) {
            if (kind == kindPolytrope)
                continue;
            for (const Input& input : inputs) {
                calculation.ExtendedLevel = 1 + (run + turn) % 4;
                calculation.FunctionList = run % 3 == 0;
                calculation.AssumeEquilibrium = !calculation.GlobalMethod && run % 2 == 0;
                ASSERT_NO_FATAL_FAILURE(Check(kind, input));
            }
        }
    }

    void SweepOddInputs(int kind) {
        const auto check = [&](double T, double p) {
            CalculationState& calculation = session.calculation;
            const auto turn = static_cast<std::size_t>(run);
            calculation.ExtendedLevel = run % 16 == 0 ? 4 : 1;
            calculation.FunctionList = run % 5 == 0;
            calculation.AssumeEquilibrium = !calculation.GlobalMethod && run % 2 == 0;
            Check(kind, {"odd", T, p, oddDensities[turn % std::size(oddDensities)],
                         oddDensities[turn / 3 % std::size(oddDensities)]});
        };
        const double Tc = session.model.substance.Tc;
        const double pc = session.model.substance.pc;
        for (const double T : oddTemperatures)
            for (const double p : oddPressures)
                ASSERT_NO_FATAL_FAILURE(check(T, p));
        for (const double Tr : {0.4, 0.7, 0.95, 0.99999, 1.0, 1.00001, 1.3})
            for (const double pr : {1e-4, 0.1, 0.9, 1.0, 1.0001, 3.0})
                ASSERT_NO_FATAL_FAILURE(check(Tr * Tc, pr * pc));
    }
};

TEST_P(PointSweep, EverySubstanceGivesFiniteResults) {
    int turn = GetParam();
    ForRotatingModels(substanceStep, rowsPerSubstance, [&](SubstanceModel&) {
        for (const bool global : {true, false})
            ASSERT_NO_FATAL_FAILURE(SweepInputs(global, turn));
        ++turn;
    });
    EXPECT_GE(substancesSeen, session.state.substanceCount / (substanceStep * shards) * 9 / 10);
    EXPECT_GT(good, run / 3) << run;
    if (substanceStep > 1)
        return;
    EXPECT_EQ(meetings.size(), 15U * 23U);
    for (const auto& [meeting, times] : meetings)
        EXPECT_GE(times, 200) << "row " << meeting.first << " kind " << meeting.second;
}

TEST_P(PointSweep, OddInputsGiveFiniteResults) {
    int turn = GetParam();
    ForRotatingModels(oddSubstanceStep, 2, [&](SubstanceModel&) {
        for (const bool global : {true, false}) {
            SetUpCalculation(global, turn++);
            for (int kind = kindTRho; kind <= kindSolidDensity; ++kind)
                ASSERT_NO_FATAL_FAILURE(SweepOddInputs(kind));
        }
    });
    EXPECT_GT(run, 5000);
}

INSTANTIATE_TEST_SUITE_P(Substances, PointSweep, testing::Range(0, shards));

TEST(NoNumber, IsFoundInATextButNotWithinAWord) {
    for (const char* text : {"NaN", "x = Inf kPa", "-inf", "(nan)", "nan0"})
        EXPECT_TRUE(ShowsNoNumber(text)) << text;
    for (const char* text : {"", "na", "Nonan", "Information", "Einfluss", "Phosphornanoxid"})
        EXPECT_FALSE(ShowsNoNumber(text)) << text;
}

} // namespace
} // namespace orva::test
