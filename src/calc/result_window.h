// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "calc/calc_batch.h"

namespace orva {

// Where the result list goes when the window is left.
enum class ResultOutput : std::uint8_t { None, Printer, File };

// What a click on `cmdVor` or `cmdRueck` does.
enum class StepResult : std::uint8_t { Beep, Calculate };

// State and rules of `frmCalcOut`, the window in which every point calculation appears: what is offered for
// the kind in force, the steps through a data series, the display options. A display option empties the
// report; the caller calculates again.
class ResultWindow {
public:
    // Settles the controls for the calculation in force and starts at its first data set.
    explicit ResultWindow(CalculationContext context);

    // "Ergebnis der Berechnung  T, p => rho" and the like.
    std::string Caption() const;
    // The title of the calculation, as the result list has it.
    const std::string& Title() const { return windowTitle; }
    // The line under the report: models and critical data, with points whatever the system's separator.
    const std::string& StatusLine() const { return statusLine; }
    const std::string& InputCaption() const { return inputCaption; }
    std::string CloseText() const { return context.options.batchMode ? "Beenden (+Ausgabe)" : "Schließen"; }

    // A process tells of all its states in its report: no given values, no words on a single state.
    bool PointVisible() const;
    bool StepsEnabled() const { return context.options.batchMode; }
    bool OutputVisible() const;
    bool ProtocolVisible() const;
    bool ExtensionVisible() const;
    bool ExtensionEnabled() const { return !PartialEquilibrium(); }
    bool FunctionListVisible() const;
    bool FunctionListChecked() const { return context.calculation.FunctionList; }
    bool IsoCalcEnabled() const;

    // Runs the calculation in force for the row in force and keeps its record.
    const PointResult& Calculate();
    const PointResult& Result() const { return result; }
    // Results of the data sets, row 0 the direct input.
    const std::vector<ResultRecord>& BatchResults() const { return batchResults; }

    StepResult StepBack();    // cmdRueck
    StepResult StepForward(); // cmdVor

    void SetFunctionList(bool listed); // chkUHS
    // `ResPlus`, number 1 coefficients, 2 derivatives.
    void SetExtension(int number, bool shown);

    // `optResultPrint` and `chkFuncPrint`.
    void SetOutput(ResultOutput chosen);
    ResultOutput Output() const { return output; }
    bool PrintFunctionsEnabled() const { return printFunctionsEnabled; }
    void SetPrintFunctions(bool printed) { printFunctions = printed; }
    bool PrintFunctions() const { return printFunctions; }

private:
    int LastRow() const { return static_cast<int>(context.batch.rows.size()) - 1; }
    bool Skipped(int row) const;
    bool PartialEquilibrium() const;
    void StartAtFirstRow();
    void Step(int row);

    CalculationContext context;
    PointResult result;
    std::vector<ResultRecord> batchResults;
    std::string windowTitle;
    std::string statusLine;
    std::string inputCaption;
    std::array<bool, 2> extensions{};
    ResultOutput output = ResultOutput::None;
    bool printFunctions = false;
    bool printFunctionsEnabled = false;
};

// Short title of a calculation kind, with its leading blank.
std::string_view ShortTitle(int kind);

// The models in words, as result list and protocol name them; and with the critical data.
std::string ModelText(const CalculationContext& context);
std::string ModelDescription(const CalculationContext& context);

} // namespace orva
