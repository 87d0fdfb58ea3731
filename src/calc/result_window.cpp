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
};

// Numbers of the status line do not change with the system's separator.
const NumberStyle pointStyle{'.'};

} // namespace

std::string_view ShortTitle(int kind) {
    const auto row = std::find_if(std::begin(titles), std::end(titles),
                                  [kind](const TitleRow& candidate) { return candidate.kind == kind; });
    return row == std::end(titles) ? std::string_view() : row->title;
}

ResultWindow::ResultWindow(CalculationContext calculationContext, const SubstanceData& data)
    : context(calculationContext), substance(data) {}

std::string ResultWindow::Caption() const {
    const int kind = context.calculation.CalcKind;
    std::string title(ShortTitle(kind));
    if (kind == kindSaturationPressure || kind == kindSaturationTemperature)
        title += context.calculation.GlobalMethod ? " (Globalberechnung)" : " (Partialberechnung)";
    if (kind == kindFunctions)
        title += " (Globalberechnung)";
    return "Ergebnis der Berechnung " + title;
}

std::string ResultWindow::StatusLine() const {
    const ModelSelection& selection = context.model.selection;
    const auto eos = static_cast<std::size_t>(std::max<int>(selection.eos, 0));
    const auto vaporPressure = static_cast<std::size_t>(selection.vaporPressure);
    context.calculation.CurrentModelText =
        std::string(Trim(context.names.EosNames.at(eos))) + "; "
        + std::string(Trim(context.names.VaporPressureNames.at(vaporPressure)));
    std::string line = context.calculation.CurrentModelText + "; ";
    line += " T(cr)/K = " + Format(substance.Tc, "###.##", pointStyle);
    if (substance.pc > 0)
        line += "; p(cr)/kPa =" + Str(static_cast<float>(substance.pc), pointStyle);
    if (substance.vcDatabase > 0)
        line += "; v(cr, exp)/m^3/kmol= " + Format(substance.vcDatabase, "##0.0###", pointStyle);
    if (context.model.eos.vCritCalc > 0)
        line += "; v(cr, calc)= " + Format(context.model.eos.vCritCalc, "##0.0###", pointStyle);
    return line + " ";
}

const PointResult& ResultWindow::Calculate() {
    result = CalcBatch(context, context.calculation.CalcKind, context.calculation.CurrentDataSet);
    return result;
}

} // namespace orva
