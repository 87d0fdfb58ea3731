// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calc/calc_batch.h"

namespace orva {

// State and rules of `frmCalcOut`, the window in which every point calculation appears.
class ResultWindow {
public:
    ResultWindow(CalculationContext context, const SubstanceData& substance);

    // "Ergebnis der Berechnung  T, p => rho" and the like.
    std::string Caption() const;
    // The line under the report: models and critical data, with points whatever the system's separator. It
    // also settles the model text of list and protocol.
    std::string StatusLine() const;
    std::string InputCaption() const { return " Vorgabewert Direkteingabe "; }
    std::string CloseText() const { return "Schließen"; }

    // Runs the calculation in force for the row in force.
    const PointResult& Calculate();
    const PointResult& Result() const { return result; }

private:
    CalculationContext context;
    const SubstanceData& substance;
    PointResult result;
};

// Short title of a calculation kind, with its leading blank.
std::string_view ShortTitle(int kind);

} // namespace orva
