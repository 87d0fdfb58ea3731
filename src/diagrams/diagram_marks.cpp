// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "diagrams/diagram_window.h"
#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

// The marker lines and points of the diagram window.

namespace orva {

namespace {

// A line at a value of the quantity, on the axis that shows it; nothing if neither does.
void AddLine(const ChartDocument& chart, Quantity quantity, double value, const char* text,
             std::vector<ChartMark>& marks) {
    if (!(value > missingValue))
        return;
    if (chart.xQuantity == quantity)
        marks.push_back({ChartMark::Kind::VerticalLine, value, 0, text, {}});
    else if (chart.yQuantity == quantity)
        marks.push_back({ChartMark::Kind::HorizontalLine, 0, value, text, {}});
}

// p(LV) at T from the equation that has priority; 0 if there is none. Works on a copy of the model.
double SaturationPressure(const SubstanceModel& model, double T) {
    if (model.selection.eosPriority && !model.selection.nonCubic) {
        SubstanceModel copy = model;
        return EosSaturationPressure(copy, T).value;
    }
    return VapourPressure(model.substance, T, model.selection.vaporPressure).value;
}

double SaturationTemperature(const SubstanceModel& model, double p) {
    if (model.selection.eosPriority && !model.selection.nonCubic) {
        SubstanceModel copy = model;
        return EosSaturationTemperature(copy, p).value;
    }
    return VapourPressureTemperature(model.substance, p, model.selection.vaporPressure).value;
}

double CoVolume(const SubstanceModel& model, double T) {
    SubstanceModel copy = model;
    SetEosCoefficients(copy, T);
    return copy.eos.B;
}

void AddCriticalPoint(const ChartDocument& chart, const Options& options, double p, double v,
                      std::vector<ChartMark>& marks) {
    if (chart.xQuantity == Quantity::Volume && chart.yQuantity == Quantity::Pressure && p > missingValue
        && v > missingValue)
        marks.push_back({ChartMark::Kind::Point, v * options.volumeFactor, p * options.pFactor, "c.P.", {}});
}

} // namespace

bool DiagramWindow::mnuMarkT() {
    const SubstanceData& substance = records.model.substance;
    const double factor = records.options.TFactor;
    std::vector<ChartMark> marks;
    AddLine(chart, Quantity::Temperature, substance.Tc * factor, "T(cr)", marks);
    AddLine(chart, Quantity::Temperature, substance.Ttrip * factor, "T(Trip.P.)", marks);
    AddLine(chart, Quantity::Temperature,
            SaturationTemperature(records.model, records.request.curveP) * factor,
            "                      T(LV) bei p", marks);
    AddLine(chart, Quantity::Temperature, SaturationTemperature(records.model, normalPressure) * factor,
            "                      T(LV) bei Normaldruck", marks);
    return Toggle("mnuMarkT", marks);
}

bool DiagramWindow::mnuMarkP() {
    const double factor = records.options.pFactor;
    std::vector<ChartMark> marks;
    AddLine(chart, Quantity::Pressure, records.model.substance.pc * factor, "p(cr)", marks);
    AddLine(chart, Quantity::Pressure, SaturationPressure(records.model, records.request.curveT) * factor,
            "p(LV) bei T ", marks);
    AddLine(chart, Quantity::Pressure, normalPressure * factor, "Normal-p", marks);
    return Toggle("mnuMarkP", marks);
}

bool DiagramWindow::mnuMarkV() {
    const SubstanceModel& model = records.model;
    const double v = model.selection.nonCubic ? model.substance.vcDatabase : model.eos.vCritCalc;
    std::vector<ChartMark> marks;
    AddLine(chart, Quantity::Volume, v * records.options.volumeFactor, "v(crit)", marks);
    return Toggle("mnuMarkV", marks);
}

bool DiagramWindow::mnuMarkB() {
    std::vector<ChartMark> marks;
    if (!records.model.selection.nonCubic)
        AddLine(chart, Quantity::Volume,
                CoVolume(records.model, records.request.curveT) * records.options.volumeFactor, "v = b",
                marks);
    return Toggle("mnuMarkB", marks);
}

bool DiagramWindow::mnuMarkCritPointCalc() {
    std::vector<ChartMark> marks;
    AddCriticalPoint(chart, records.options, records.model.substance.pc, records.model.eos.vCritCalc, marks);
    return Toggle("mnuMarkCritPointCalc", marks);
}

bool DiagramWindow::mnuMarkCritPointEx() {
    const SubstanceData& substance = records.model.substance;
    std::vector<ChartMark> marks;
    AddCriticalPoint(chart, records.options, substance.pc, substance.vcDatabase, marks);
    return Toggle("mnuMarkCritPointEx", marks);
}

bool DiagramWindow::HasMark(std::string_view command) const {
    return std::any_of(chart.marks.begin(), chart.marks.end(),
                       [command](const ChartMark& mark) { return mark.command == command; });
}

// Sets the marks of a command, or takes them away if they stand. True if they stand afterwards.
bool DiagramWindow::Toggle(const char* command, std::vector<ChartMark> marks) {
    if (HasMark(command)) {
        std::erase_if(chart.marks, [command](const ChartMark& mark) { return mark.command == command; });
    } else {
        for (ChartMark& mark : marks) {
            mark.command = command;
            chart.marks.push_back(mark);
        }
    }
    Notify();
    return HasMark(command);
}

} // namespace orva
