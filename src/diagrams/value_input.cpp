// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/value_input.h"

#include <cmath>

#include "state/constants.h"
#include "text/columns.h"
#include "text/number_input.h"
#include "thermo/cubic_equation.h"

namespace orva {

namespace {

constexpr const char* titleRefused = "Ausführung nicht möglich";
constexpr double largestValue = 1e9;  // beyond it no property model means anything
constexpr double nearCoVolume = 1.05; // v below this many b counts as near b
constexpr std::int16_t basisReduced = 2;

// What the window asks for, by the kind of the curve.
struct InputRow {
    std::int16_t curveKind;
    std::string_view caption, label, reducedLabel;
    double CurveRequest::*value;
};

constexpr InputRow rows[] = {
    {curveIsotherm, "Temperatur der Isotherme", " T = ", " T(red) = ", &CurveRequest::curveT},
    {curveIsobar, "Druck der Isobare", "p = ", "p(red) = ", &CurveRequest::curveP},
    {curveIsochor, "Volumen der Isochore", "v = ", "v(red) = ", &CurveRequest::curveV},
};

const InputRow& RowOf(int curveKind) {
    for (const InputRow& row : rows)
        if (row.curveKind == curveKind)
            return row;
    return rows[0];
}

double FactorOf(int curveKind, const Options& options) {
    if (curveKind == curveIsobar)
        return options.pFactor;
    return curveKind == curveIsochor ? options.volumeFactor : options.TFactor;
}

} // namespace

ValueInput::ValueInput(DiagramRecords theRecords, DiagramWindow& theWindow, Dialogs& theDialogs)
    : records(theRecords), window(theWindow), dialogs(theDialogs) {}

bool ValueInput::IsReduced() const {
    return records.options.volumeBasis == basisReduced;
}

std::string ValueInput::Caption() const {
    return std::string(RowOf(window.Spec().curveKind).caption);
}

std::string ValueInput::Label() const {
    const InputRow& row = RowOf(window.Spec().curveKind);
    return std::string(IsReduced() ? row.reducedLabel : row.label);
}

std::string ValueInput::Unit() const {
    if (IsReduced())
        return {};
    switch (window.Spec().curveKind) {
    case curveIsobar:
        return " kPa";
    case curveIsochor:
        return std::string(" ").append(Trim(records.options.vUnit));
    default:
        return " K";
    }
}

std::string ValueInput::Value() const {
    const int kind = window.Spec().curveKind;
    const double factor = FactorOf(kind, records.options);
    return Format(records.request.*RowOf(kind).value * factor,
                  kind == curveIsotherm ? "#######.00#" : "######0.00####", records.style);
}

bool ValueInput::cmdOK(std::string_view text) {
    return Take(text);
}

bool ValueInput::cmdOKAndDraw(std::string_view text) {
    if (!Take(text))
        return false;
    window.cmdDraw();
    return true;
}

bool ValueInput::Take(std::string_view text) {
    const int kind = window.Spec().curveKind;
    const double shown = ParseNumber(text);
    if (shown == 0 && !IsNumber(text)) {
        dialogs.Show({titleRefused, "keine gültige Eingabe"});
        return false;
    }
    const double value = shown / FactorOf(kind, records.options);
    if (!(value >= missingValue && value <= largestValue)) {
        dialogs.Show({titleRefused, "diese Eingabe ist nicht im Gültigkeitsbereich!"});
        return false;
    }
    if (kind == curveIsochor && !CheckVolume(value))
        return false;
    records.request.*RowOf(kind).value = value;
    if (kind == curveIsotherm)
        records.diagramTemperature = value;
    return true;
}

// A cubic equation has no states below its co-volume and bad ones just above it.
bool ValueInput::CheckVolume(double v) {
    if (records.model.selection.nonCubic)
        return true;
    SubstanceModel copy = records.model;
    SetEosCoefficients(copy, records.request.curveT);
    if (v < copy.eos.B) {
        dialogs.Show({titleRefused, "v < b nicht möglich"});
        return false;
    }
    if (v < nearCoVolume * copy.eos.B)
        dialogs.Show({"Warnung", "v ist nahe b\nEs treten möglicherweise Probleme bei der Berechnung auf."});
    return true;
}

} // namespace orva
