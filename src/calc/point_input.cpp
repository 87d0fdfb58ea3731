// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/point_input.h"

#include <cmath>

#include "state/constants.h"
#include "text/number_format.h"
#include "text/number_input.h"

namespace orva {

namespace {

struct KindLines {
    int kind;
    bool T, p, rhoV, rhoL;
};

constexpr KindLines kindLines[] = {
    {kindTRho, true, false, true, false},
    {kindTRhoLiquid, true, false, false, true},
    {kindTP, true, true, false, false},
    {kindSaturationPressure, true, false, false, false},
    {kindSaturationTemperature, false, true, false, false},
    {kindVaporisationAtT, true, false, false, false},
    {kindVaporisationAtP, false, true, false, false},
    {kindFunctions, true, true, false, false},
    {kindVirialComparison, true, false, false, false},
    {kindPRho, false, true, true, false},
};

// Every kind that is not listed asks for T alone.
KindLines LinesOf(int kind) {
    for (const KindLines& row : kindLines)
        if (row.kind == kind)
            return row;
    return {kind, true, false, false, false};
}

// All digits that the row holds, so that calculating again means the same point.
template<class Number> std::string ShownNumber(Number x) {
    return x > missingValue ? FieldText(x) : std::string();
}

// Numbers that all belong to one statement: none may be missing, and each must be a single.
bool UsableSingles(std::initializer_list<double> values) {
    double product = 1;
    for (const double value : values) {
        if (!(value > 0) || !std::isfinite(static_cast<float>(value)))
            return false;
        product *= value;
    }
    return product > missingValue;
}

} // namespace

PointInput::PointInput(int inputContext, PointInputRecords ownRecords)
    : context(inputContext), records(ownRecords) {
    if (IsReference())
        BuildReferenceLines();
    else if (IsVessel())
        BuildVesselLines();
    else
        BuildPointLines();
}

void PointInput::BuildPointLines() {
    const KindLines shown = LinesOf(context - inputContextOffset);
    const BatchRow& row = records.batch.rows.front();
    lines[0] = {shown.T, "", "      T/K = ", ShownNumber(row.T)};
    lines[1] = {shown.p, "", "      p/kPa = ", ShownNumber(row.p)};
    lines[2] = {shown.rhoV, "", "", ShownNumber(row.rhoV)};
    lines[3] = {shown.rhoL, " Eingabe Dichte kg/m^3", " rho/kg/m^3 = ", ShownNumber(row.rhoL)};
    LabelDensityLine();
}

void PointInput::BuildVesselLines() {
    const VesselInput& vessel = records.calculation.vessel;
    const double M = records.substance.molarMass;
    amountInput = vessel.byAmount;
    // An amount comes from a division: seven digits say it without its rounding.
    const std::string amount =
        vessel.m > 0 && M > 0 ? General(static_cast<float>(vessel.m / M)) : std::string();
    lines[0] = {true, "", "      V/m^3   ", ShownNumber(vessel.V)};
    lines[1] = {true, "", "", amountInput ? amount : ShownNumber(vessel.m)};
    lines[3] = {true, "", "      T/K     ", ShownNumber(vessel.T)};
    SetAmountInput(amountInput);
}

void PointInput::BuildReferenceLines() {
    const ReferenceDensityPoint& point = records.calculation.referenceDensity;
    lines[0] = {true, "", "        T/K = ", ShownNumber(point.T)};
    lines[1] = {true, "", "  p(LV)/kPa = ", ShownNumber(point.p)};
    lines[2] = {true, "", "rho_L/kg/m^3= ", ShownNumber(point.rhoL)};
    lines[3] = {true, "", "rho_V/kg/m^3= ", ShownNumber(point.rhoV)};
}

std::string PointInput::Title() const {
    if (IsReference())
        return "Eingabe: Bezugspunkt";
    return IsVessel() ? "Behälter-Berechnung" : "Eingabe Direktberechnung";
}

void PointInput::SetAmountInput(bool amount) {
    amountInput = amount;
    lines[1].label = amount ? "      n/kmol  " : "      m/kg    ";
}

void PointInput::SetVolumeInput(bool volume) {
    if (volume == volumeInput)
        return;
    volumeInput = volume;
    lines[2].text.clear();
    LabelDensityLine();
}

void PointInput::FollowUnits() {
    if (!TakesDensity())
        return;
    const std::string label = lines[2].label;
    LabelDensityLine();
    if (lines[2].label != label)
        lines[2].text.clear();
}

void PointInput::LabelDensityLine() {
    InputLine& line = lines[2];
    if (!volumeInput) {
        line.heading = " Eingabe Dichte kg/m^3";
        line.label = " rho/kg/m^3 = ";
    } else if (records.options.volumeBasis == 2) {
        line.heading = "Eingabe reduz. Volumen, vgl. Optionen ";
        line.label = "  V/(m^3/m^3)= ";
    } else if (records.options.volumeBasis == 1) {
        line.heading = "Eingabe spezif. Volumen, vgl. Optionen ";
        line.label = "  V/m^3/kg  = ";
    } else {
        line.heading = " Eingabe mol. Volumen, vgl. \"Optionen\" ";
        line.label = " V/m^3/kmol = ";
    }
}

std::optional<Message> PointInput::Accept() {
    std::array<double, 4> values{};
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].visible)
            values[i] = ParseNumber(lines[i].text);
    const bool taken = IsReference() ? AcceptReference(values)
                       : IsVessel()  ? AcceptVessel(values)
                                     : AcceptPoint(values);
    if (!taken)
        return InvalidInputMessage();
    return std::nullopt;
}

bool PointInput::AcceptPoint(const std::array<double, 4>& values) {
    double density = values[2];
    if (volumeInput && density != 0)
        density = records.substance.molarMass / (density / records.options.volumeFactor);
    const double sum = values[0] + values[1] + values[2] + values[3];
    if (!(sum > missingValue) || !std::isfinite(static_cast<float>(density)))
        return false;
    BatchRow& row = records.batch.rows.front();
    row.T = values[0];
    row.p = values[1];
    row.rhoV = static_cast<float>(density);
    row.rhoL = static_cast<float>(values[3]);
    records.calculation.iso.moved = false;
    return true;
}

bool PointInput::AcceptVessel(const std::array<double, 4>& values) {
    const double content = amountInput ? values[1] * records.substance.molarMass : values[1];
    if (!UsableSingles({values[0], values[1], values[3]}) || !std::isfinite(static_cast<float>(content)))
        return false;
    VesselInput& vessel = records.calculation.vessel;
    vessel.V = static_cast<float>(values[0]);
    vessel.m = static_cast<float>(content);
    vessel.T = static_cast<float>(values[3]);
    vessel.byAmount = amountInput;
    return true;
}

bool PointInput::AcceptReference(const std::array<double, 4>& values) {
    if (!UsableSingles({values[0], values[1], values[2], values[3]}))
        return false;
    records.calculation.referenceDensity = {static_cast<float>(values[0]), static_cast<float>(values[1]),
                                            static_cast<float>(values[2]), static_cast<float>(values[3])};
    return true;
}

Message InvalidInputMessage() {
    return {"Ausführung nicht möglich", "keine gültige Eingabe", MessageIcon::Exclamation};
}

} // namespace orva
