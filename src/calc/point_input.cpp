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

} // namespace

PointInput::PointInput(int calcKind, const SubstanceData& data, const Options& displayOptions,
                       BatchDataSet& batchData)
    : kind(calcKind), substance(data), options(displayOptions), batch(batchData) {
    const KindLines shown = LinesOf(kind);
    const BatchRow& row = batch.rows.front();
    lines[0] = {shown.T, "", "      T/K = ", ShownNumber(row.T)};
    lines[1] = {shown.p, "", "      p/kPa = ", ShownNumber(row.p)};
    lines[2] = {shown.rhoV, "", "", ShownNumber(row.rhoV)};
    lines[3] = {shown.rhoL, " Eingabe Dichte kg/m^3", " rho/kg/m^3 = ", ShownNumber(row.rhoL)};
    LabelDensityLine();
}

std::string PointInput::Title() const {
    return "Eingabe Direktberechnung";
}

bool PointInput::TakesDensity() const {
    return lines[2].visible;
}

void PointInput::SetVolumeInput(bool volume) {
    if (volume == volumeInput)
        return;
    volumeInput = volume;
    lines[2].text.clear();
    LabelDensityLine();
}

void PointInput::FollowUnits() {
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
    } else if (options.volumeBasis == 2) {
        line.heading = "Eingabe reduz. Volumen, vgl. Optionen ";
        line.label = "  V/(m^3/m^3)= ";
    } else if (options.volumeBasis == 1) {
        line.heading = "Eingabe spezif. Volumen, vgl. Optionen ";
        line.label = "  V/m^3/kg  = ";
    } else {
        line.heading = " Eingabe mol. Volumen, vgl. \"Optionen\" ";
        line.label = " V/m^3/kmol = ";
    }
}

std::optional<Message> PointInput::Accept() {
    std::array<double, 4> values{};
    double sum = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].visible)
            continue;
        values[i] = ParseNumber(lines[i].text);
        sum += values[i];
    }
    double density = values[2];
    if (volumeInput && density != 0)
        density = substance.molarMass / (density / options.volumeFactor);
    if (!(sum > missingValue) || !std::isfinite(static_cast<float>(density)))
        return InvalidInputMessage();
    BatchRow& row = batch.rows.front();
    row.T = values[0];
    row.p = values[1];
    row.rhoV = static_cast<float>(density);
    row.rhoL = static_cast<float>(values[3]);
    return std::nullopt;
}

Message InvalidInputMessage() {
    return {"Ausführung nicht möglich", "keine gültige Eingabe", MessageIcon::Exclamation};
}

} // namespace orva
