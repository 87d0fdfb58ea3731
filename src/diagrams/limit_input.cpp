// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/limit_input.h"

#include <array>

#include "text/number_input.h"

namespace orva {

namespace {

constexpr double largestValue = 1e9; // beyond it no property model means anything

} // namespace

LimitInput::LimitInput(DiagramRecords theRecords, DiagramWindow& theWindow, Dialogs& theDialogs)
    : records(theRecords), window(theWindow), dialogs(theDialogs) {}

bool LimitInput::IsIsobar() const {
    return window.Spec().curveKind == curveIsobar;
}

std::string LimitInput::Shown(double number) const {
    return Format(number, "######0.0###", records.style);
}

std::string LimitInput::Caption() const {
    return IsIsobar() ? "Isobare: Druck und Temperaturbereich" : "Isotherme: Temperatur und Druckbereich";
}

std::string LimitInput::ValueLabel() const {
    return IsIsobar() ? "p/kPa = " : "T/K = ";
}
std::string LimitInput::LowLabel() const {
    return IsIsobar() ? "T1/K = " : "p1/kPa = ";
}
std::string LimitInput::HighLabel() const {
    return IsIsobar() ? "T2/K = " : "p2/kPa = ";
}
std::string LimitInput::Value() const {
    return Shown(IsIsobar() ? records.request.curveP : records.request.curveT);
}
std::string LimitInput::Low() const {
    return Shown(window.LimitLow());
}
std::string LimitInput::High() const {
    return Shown(window.LimitHigh());
}

bool LimitInput::cmdDraw(std::string_view value, std::string_view low, std::string_view high) {
    const std::array<std::string_view, 3> texts = {value, low, high};
    std::array<double, 3> numbers{};
    const char* error = nullptr;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::optional<double> number = ReadNumber(texts[i]);
        if (!number)
            error = "Eingabe nicht vollständig oder ungültig";
        numbers[i] = number.value_or(0);
    }
    for (const double number : numbers) {
        if (error == nullptr && !(number > 0))
            error = "T- und p-Vorgabe müssen größer Null sein";
        if (error == nullptr && number > largestValue)
            error = "Eingabewert nicht im gültigen Bereich";
    }
    if (error == nullptr && numbers[1] == numbers[2])
        error = "Bereichsangabe ungültig";
    if (error != nullptr) {
        dialogs.Show({"Ausführung nicht möglich", error});
        return false;
    }
    (IsIsobar() ? records.request.curveP : records.request.curveT) = numbers[0];
    if (!IsIsobar())
        records.diagramTemperature = numbers[0];
    window.SetLimits(numbers[1], numbers[2]);
    window.cmdDraw();
    return true;
}

} // namespace orva
