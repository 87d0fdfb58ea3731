// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "calc/calc_batch.h"

namespace orva {

// The state on an isobar or isotherm at which a thermodynamic function takes a given value.

inline constexpr int isoFunctionCount = 8;

// Labels of the functions v, h, s, g, u, a, e of h, e of u.
inline constexpr std::array<const char*, isoFunctionCount> isoFunctionLabels = {
    "V  = ", "H  = ", "S  = ", "G  = ", "U  = ", "A  = ", "E(H)=", "E(U)="};

// Slot of a function among the results. `function` 0 to 7, `phase` 0 vapour, 1 liquid.
std::size_t IsoSlot(int function, int phase);

struct IsoSolution {
    double x = 0; // T in K or p in kPa, 0 when failed
    bool failed = false;
    PointResult point; // at row 0 as it stands afterwards
};

// Newton search with a difference quotient for T (`solveForT`) or p such that the function has the value
// `target`, in display units. `row` is row 0 of the context's data series and holds the start; it takes the
// solution. The search itself works on copies: where it fails, after 500 passes or beyond the bounds 0 and
// 1e9, the row keeps its start point, so that the next search does not begin where this one was lost.
// Warnings are off during the search. Either way the point of the row is calculated once more, with its
// report.
IsoSolution SolveIso(CalculationContext& context, BatchRow& row, bool solveForT, int function, double target,
                     int phase);

// State and rules of `frmIsoCalc`. The choices are those of the last time; where the chosen phase does not
// exist at the start point, the one that exists is taken.
class IsoCalculation {
public:
    // Row 0 of the data series is the working point.
    IsoCalculation(CalculationContext context, BatchDataSet& batch);

    int IsoVariable() const { return State().IsoVariable; }
    int IsoPhase() const { return State().IsoPhase; }
    int IsoFunction() const { return State().IsoFunction; }
    void optIsoTp(int variable);
    void optIsoPhase(int phase);
    void OptIsoFu(int function);

    // "p/kPa = " or "  T/K =", beside the value that stays fixed.
    std::string GivenLabel() const;
    // "S  = ", of the chosen function.
    std::string FunctionLabel() const;
    // "kJ/kmol/K", and the value at the working point in the chosen phase as the reports write it.
    std::string FunctionUnit(int function) const;
    std::string CurrentValue(int function) const;

    // The texts of the fields.
    std::string txtTpVorgabe, txtFuConst, txtTpCalc;

    // Searches. A box, and nothing changed, where a field holds no usable number.
    std::optional<Message> cmdCalc();
    // Back to the point that the input window gave.
    void cmdReset();
    // Another point in row 0, other units or another reference point: begins anew there. False, and nothing
    // changed, where the point and its values are those that stand here.
    bool Follow();

private:
    IsoState& State() const { return context.calculation.iso; }
    BatchRow& Row() const { return batch.rows.front(); }
    void Begin();
    void CalculateRow();
    void TakeExistingPhase();
    void FillFields();

    CalculationContext context;
    BatchDataSet& batch;
    PointResult current; // of the working point
};

} // namespace orva
