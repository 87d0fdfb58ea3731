// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/result_window.h"

#include <algorithm>

#include "text/columns.h"

namespace orva {

namespace {

struct TitleRow {
    int kind;
    std::string_view title;
};

constexpr TitleRow titles[] = {
    {kindTRho, " T, rho(V)  => p"},
    {kindTRhoLiquid, " T, rho(L)  => p"},
    {kindTP, " T, p => rho"},
    {kindPRho, " p, rho => T"},
    {kindSaturationPressure, " T => p(LV)"},
    {kindSaturationTemperature, " p => T(LV)"},
    {kindVaporisationAtT, " T => Verdampfungsenthalpie entsprechend \"Modelle\""},
    {kindVaporisationAtP, " p => Verdampfungsenthalpie entsprechend \"Modelle\""},
    {kindFunctions, " thermodynamische Funktionen F(T, p)"},
    {kindPolytrope, "Polytropen-Prozess"},
    {kindVirialComparison, " Vergleich Virialkoeffizienten"},
    {kindLiquidDensity, " T => L-Dichte (Datenbankfunktion)"},
    {kindSolidDensity, " T => S-Dichte (Datenbankfunktion)"},
    {kindVaporisationDb, " T => Verdampfungsenthalpie (Datenbankfunktion)"},
    {kindIdealGasCp, " T => Idealgas-Wärmekapazität (Datenbankfunktion)"},
    {kindLiquidCp, " T => L-Wärmekapazität (Datenbankfunktion)"},
    {kindSolidCp, " T => S-Wärmekapazität (Datenbankfunktion)"},
    {kindFrostKalkwarf, " T => p(LV), erweiterte Frost-Kalkwarf-Gleichung"},
    {kindWagner, " T => p(LV), Wagner-Gleichung"},
    {kindAntoineLow, " T => p(LV), Antoine-Gleichung (Lo-p)"},
    {kindAntoineHigh, " T => p(LV), Antoine-Gleichung (Hi-p)"},
};

// Numbers of the status line do not change with the system's separator.
const NumberStyle pointStyle{'.'};

} // namespace

std::string_view ShortTitle(int kind) {
    const auto row = std::find_if(std::begin(titles), std::end(titles),
                                  [kind](const TitleRow& candidate) { return candidate.kind == kind; });
    return row == std::end(titles) ? std::string_view() : row->title;
}

namespace {

bool IsEquilibrium(int kind) {
    return kind == kindSaturationPressure || kind == kindSaturationTemperature;
}

bool IsVaporisation(int kind) {
    return kind == kindVaporisationAtT || kind == kindVaporisationAtP;
}

// Functions of T alone: nothing to extend, no list of results.
bool IsFunctionOfT(int kind) {
    return kind == kindVirialComparison || kind >= kindLiquidDensity;
}

std::string VesselTitle(const CalculationState& calculation) {
    const std::string title = "Phasenzustand und Druck in einem Behälter";
    if (calculation.GlobalMethod)
        return title + " (Globalberechnung)";
    return title + " (Partialberechnung, rho(L) "
           + (calculation.BensonLiquid ? " nach BENSON)" : " aus Datenbank)");
}

std::string WindowTitle(const CalculationState& calculation) {
    const int kind = calculation.CalcKind;
    if (IsVessel(kind))
        return VesselTitle(calculation);
    std::string title(ShortTitle(kind));
    if (IsEquilibrium(kind))
        title += calculation.GlobalMethod ? " (Globalberechnung)" : " (Partialberechnung)";
    if (kind == kindFunctions)
        title += " (Globalberechnung)";
    return title;
}

} // namespace

std::string ModelText(const CalculationContext& context) {
    const ModelSelection& selection = context.model.selection;
    const auto eos = static_cast<std::size_t>(std::max<int>(selection.eos, 0));
    const auto vaporPressure = static_cast<std::size_t>(selection.vaporPressure);
    return std::string(Trim(context.names.EosNames.at(eos))) + "; "
           + std::string(Trim(context.names.VaporPressureNames.at(vaporPressure)));
}

std::string ModelDescription(const CalculationContext& context) {
    const SubstanceData& substance = context.model.substance;
    std::string line = ModelText(context) + "; ";
    line += " T(cr)/K = " + Format(substance.Tc, "###.##", pointStyle);
    if (substance.pc > 0)
        line += "; p(cr)/kPa =" + Str(static_cast<float>(substance.pc), pointStyle);
    if (substance.vcDatabase > 0)
        line += "; v(cr, exp)/m^3/kmol= " + Format(substance.vcDatabase, "##0.0###", pointStyle);
    if (context.model.eos.vCritCalc > 0)
        line += "; v(cr, calc)= " + Format(context.model.eos.vCritCalc, "##0.0###", pointStyle);
    return line + " ";
}

ResultWindow::ResultWindow(CalculationContext calculationContext)
    : context(calculationContext), batchResults(std::max<std::size_t>(context.batch.rows.size(), 1)) {
    CalculationState& calculation = context.calculation;
    calculation.CurrentModelText = ModelText(context);
    statusLine = ModelDescription(context);
    calculation.ExtendedLevel = 1;
    calculation.FunctionList = IsEquilibrium(calculation.CalcKind) && calculation.GlobalMethod;
    windowTitle = WindowTitle(calculation);
    StartAtFirstRow();
}

void ResultWindow::StartAtFirstRow() {
    CalculationState& calculation = context.calculation;
    if (!context.options.batchMode) {
        calculation.CurrentDataSet = 0;
        inputCaption = " Vorgabewert Direkteingabe ";
        return;
    }
    const int last = std::max(LastRow(), 1);
    calculation.CurrentDataSet = last;
    for (int row = last; row >= 1; --row)
        if (!Skipped(row))
            calculation.CurrentDataSet = row;
    inputCaption = " Vorgabewert aus Datensatz #" + std::to_string(calculation.CurrentDataSet);
}

std::string ResultWindow::Caption() const {
    return IsVessel(context.calculation.CalcKind) ? windowTitle : "Ergebnis der Berechnung " + windowTitle;
}

bool ResultWindow::Skipped(int row) const {
    const auto at = static_cast<std::size_t>(row);
    return row >= 0 && at < context.batch.rows.size() && context.batch.rows[at].skip;
}

bool ResultWindow::PartialEquilibrium() const {
    return IsEquilibrium(context.calculation.CalcKind) && !context.calculation.GlobalMethod;
}

bool ResultWindow::OutputVisible() const {
    return context.options.batchMode && !IsFunctionOfT(context.calculation.CalcKind);
}

bool ResultWindow::PointVisible() const {
    return context.calculation.CalcKind != kindPolytrope;
}

bool ResultWindow::ProtocolVisible() const {
    return !IsVessel(context.calculation.CalcKind) && context.calculation.CalcKind != kindPolytrope;
}

bool ResultWindow::ExtensionVisible() const {
    const int kind = context.calculation.CalcKind;
    return !IsVaporisation(kind) && !IsFunctionOfT(kind) && kind != kindPolytrope;
}

bool ResultWindow::FunctionListVisible() const {
    const int kind = context.calculation.CalcKind;
    return kind < kindVaporisationAtT || kind == kindVesselGlobal;
}

bool ResultWindow::IsoCalcEnabled() const {
    const BatchRow& row = context.batch.rows.front();
    return context.calculation.CalcKind == kindFunctions && row.T * row.p > 0;
}

const PointResult& ResultWindow::Calculate() {
    CalculationState& calculation = context.calculation;
    result = CalcBatch(context, calculation.CalcKind, calculation.CurrentDataSet);
    const auto row = static_cast<std::size_t>(calculation.CurrentDataSet);
    if (row < batchResults.size())
        batchResults[row] = result.record;
    return result;
}

void ResultWindow::Step(int row) {
    context.calculation.CurrentDataSet = row;
    inputCaption = "Vorgabewerte aus Datensatz " + std::to_string(row);
}

// An excluded row is passed over by one more step, and only one.
StepResult ResultWindow::StepBack() {
    int row = context.calculation.CurrentDataSet - 1;
    if (row >= 1 && Skipped(row))
        --row;
    if (row < 1) {
        context.calculation.CurrentDataSet = 1;
        return StepResult::Beep;
    }
    Step(row);
    return StepResult::Calculate;
}

StepResult ResultWindow::StepForward() {
    int row = context.calculation.CurrentDataSet + 1;
    if (row <= LastRow() && Skipped(row))
        ++row;
    if (row > LastRow()) {
        context.calculation.CurrentDataSet = LastRow();
        return StepResult::Beep;
    }
    Step(row);
    return StepResult::Calculate;
}

void ResultWindow::SetFunctionList(bool listed) {
    context.calculation.FunctionList = listed;
    result.report.clear();
}

void ResultWindow::SetExtension(int number, bool shown) {
    extensions.at(static_cast<std::size_t>(number) - 1) = shown;
    context.calculation.ExtendedLevel = 1 + (extensions[0] ? 1 : 0) + (extensions[1] ? 2 : 0);
    printFunctionsEnabled = context.calculation.ExtendedLevel > 1
                            && context.calculation.CalcKind < kindVaporisationAtT
                            && output != ResultOutput::None;
}

void ResultWindow::SetOutput(ResultOutput chosen) {
    output = chosen;
    if (chosen == ResultOutput::None)
        printFunctionsEnabled = false;
    else if (context.calculation.CalcKind < kindVaporisationAtT && context.calculation.ExtendedLevel >= 2)
        printFunctionsEnabled = true;
}

} // namespace orva
