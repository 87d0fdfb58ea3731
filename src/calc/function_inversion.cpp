// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/function_inversion.h"

#include <algorithm>
#include <cmath>

#include "calc/point_input.h"
#include "calc/report_units.h"
#include "calc/units.h"
#include "state/constants.h"
#include "text/columns.h"
#include "text/number_input.h"

namespace orva {

namespace {

constexpr int mostPasses = 500;
constexpr float lowerBound = 0;
constexpr float upperBound = 1e9F;
constexpr double startIncrementT = 0.0001; // K
constexpr double startIncrementP = 0.0005; // kPa
constexpr double relativeTolerance = 1.5e-6;
constexpr double flatGrowth = 50; // of the increment, where the function does not change

// The function of one unknown, on copies of the working point and of the state of the calculation.
class InvertedFunction {
public:
    InvertedFunction(CalculationContext& outer, const BatchRow& start, bool solvesForT, std::size_t theSlot)
        : calculation(outer.calculation), context{outer.model, outer.options, outer.names,
                                                  batch,       calculation,   outer.style},
          ambient(EvaluateAmbientState(outer.model)), solveForT(solvesForT), slot(theSlot) {
        batch.rows.front() = start;
        calculation.ExtendedLevel = 1;
    }

    double operator()(double x) {
        BatchRow& row = batch.rows.front();
        (solveForT ? row.T : row.p) = x;
        return CalcBatch(context, kindFunctions, 0, {true, false, &ambient}).results[slot];
    }

private:
    BatchDataSet batch;
    CalculationState calculation;
    CalculationContext context;
    AmbientState ambient;
    bool solveForT;
    std::size_t slot;
};

bool IsInBounds(double x) {
    const auto single = static_cast<float>(x);
    return single >= lowerBound && single <= upperBound;
}

std::optional<double> Search(InvertedFunction& function, double x, double increment, double target) {
    double correction = increment;
    for (int pass = 1; pass <= mostPasses; ++pass) {
        if (std::abs(correction) < increment)
            increment = correction;
        const double first = function(x);
        const double second = function(x + increment);
        const double slope = (second - first) / increment;
        if (slope == 0) {
            increment *= flatGrowth;
            correction = increment; // or the next pass would take the growth back
            if (!std::isfinite(x + increment))
                return std::nullopt;
            continue;
        }
        correction = (first - target) / slope;
        x -= correction;
        if (x < 0)
            x *= -2;
        if (!IsInBounds(x))
            return std::nullopt;
        if (std::abs(correction / x) <= relativeTolerance)
            return x;
    }
    return std::nullopt;
}

// All digits of a double without an exponent, which the fields do not take.
std::string FieldNumber(double x) {
    const std::string general = General(x);
    return general.find('E') == general.npos ? general : Format(x, "0.####################");
}

bool IsUsable(double x) {
    return x >= missingValue && IsInBounds(x);
}

} // namespace

std::size_t IsoSlot(int function, int phase) {
    return (phase == 0 ? slotVolumeV : slotVolumeL) + static_cast<std::size_t>(function);
}

IsoSolution SolveIso(CalculationContext& context, BatchRow& row, bool solveForT, int function, double target,
                     int phase) {
    IsoSolution solution;
    double& unknown = solveForT ? row.T : row.p;
    InvertedFunction inverted(context, row, solveForT, IsoSlot(function, phase));
    const std::optional<double> x =
        Search(inverted, unknown, solveForT ? startIncrementT : startIncrementP, target);
    solution.failed = !x;
    solution.x = x.value_or(0);
    if (x)
        unknown = *x;
    solution.point = CalcBatch(context, kindFunctions, 0, {.warn = false});
    return solution;
}

IsoCalculation::IsoCalculation(CalculationContext ownContext, BatchDataSet& ownBatch)
    : context(ownContext), batch(ownBatch) {
    Begin();
}

void IsoCalculation::Begin() {
    IsoState& state = State();
    const bool stillThere = state.moved && Row().T == state.workingT && Row().p == state.workingP;
    if (!stillThere) {
        state.moved = false;
        state.givenT = Row().T;
        state.givenP = Row().p;
    }
    CalculateRow();
    TakeExistingPhase();
    FillFields();
}

bool IsoCalculation::Follow() {
    const PointResult before = current;
    CalculateRow();
    const auto values = [](const PointResult& point) {
        const auto first = point.results.begin() + slotVolumeV;
        return std::vector<double>(first, first + 2 * (slotVolumeL - slotVolumeV));
    };
    if (before.T == current.T && before.p == current.p && values(before) == values(current))
        return false;
    Begin();
    return true;
}

void IsoCalculation::CalculateRow() {
    current = CalcBatch(context, kindFunctions, 0, {.warn = false});
}

void IsoCalculation::TakeExistingPhase() {
    if (current.hasL != current.hasV)
        State().IsoPhase = current.hasL ? 1 : 0;
}

void IsoCalculation::FillFields() {
    txtTpVorgabe = FieldNumber(IsoVariable() == 0 ? Row().p : Row().T);
    txtFuConst = FieldNumber(current.results[IsoSlot(IsoFunction(), IsoPhase())]);
    txtTpCalc.clear();
}

void IsoCalculation::optIsoTp(int variable) {
    State().IsoVariable = variable == 0 ? 0 : 1;
    FillFields();
}

void IsoCalculation::optIsoPhase(int phase) {
    State().IsoPhase = phase == 0 ? 0 : 1;
    FillFields();
}

void IsoCalculation::OptIsoFu(int function) {
    State().IsoFunction = std::clamp(function, 0, isoFunctionCount - 1);
    FillFields();
}

std::string IsoCalculation::GivenLabel() const {
    return IsoVariable() == 0 ? "p/kPa = " : "  T/K =";
}

std::string IsoCalculation::FunctionLabel() const {
    return isoFunctionLabels[static_cast<std::size_t>(IsoFunction())];
}

std::string IsoCalculation::FunctionUnit(int function) const {
    if (function == 0)
        return context.options.vUnit;
    constexpr UnitQuantity quantities[] = {UnitQuantity::H, UnitQuantity::S, UnitQuantity::G, UnitQuantity::U,
                                           UnitQuantity::A, UnitQuantity::E, UnitQuantity::E};
    std::string_view text = UnitText(quantities[function - 1], context.options.unitBasis);
    text = Trim(text.substr(text.find('/') + 1)); // behind the letter of the quantity
    if (text.starts_with('(') && text.ends_with(')'))
        text = text.substr(1, text.size() - 2);
    return std::string(text);
}

std::string IsoCalculation::CurrentValue(int function) const {
    return General(static_cast<float>(current.results[IsoSlot(function, IsoPhase())]), context.style);
}

std::optional<Message> IsoCalculation::cmdCalc() {
    const bool solveForT = IsoVariable() == 0;
    const double given = ParseNumber(txtTpVorgabe);
    const double start = solveForT ? Row().T : Row().p;
    if (!IsNumber(txtTpVorgabe) || !IsNumber(txtFuConst) || !IsUsable(given) || !IsUsable(start))
        return InvalidInputMessage();
    IsoState& state = State();
    (solveForT ? Row().p : Row().T) = given;
    IsoSolution solution =
        SolveIso(context, Row(), solveForT, IsoFunction(), ParseNumber(txtFuConst), IsoPhase());
    state.moved = true;
    state.workingT = Row().T;
    state.workingP = Row().p;
    current = std::move(solution.point);
    if (solution.failed)
        txtTpCalc = "keine Lösung";
    else
        txtTpCalc = (solveForT ? "T/K =" : "p/kPa =") + Str(static_cast<float>(solution.x), context.style);
    return std::nullopt;
}

void IsoCalculation::cmdReset() {
    IsoState& state = State();
    Row().T = state.givenT;
    Row().p = state.givenP;
    state.moved = false;
    CalculateRow();
    FillFields();
}

} // namespace orva
