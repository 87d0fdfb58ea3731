// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "diagrams/chart_document.h"
#include "diagrams/curve_generator.h"
#include "state/diagram_ranges.h"
#include "text/number_format.h"

namespace orva {

// What the description of a curve is made of.
struct CurveDescription {
    const DiagramSpec& spec;
    const CurveMode& mode;
    const CurveRequest& request;
    const Options& options;
    double vCritCalc;
    NumberStyle style;
};

// The description in the legend: what is constant along the curve, "300.0 K ", or what it is. Empty for a
// function of the database.
std::string DescribeCurve(const CurveDescription& description);

// A point of a curve in the chart.
struct NearestPoint {
    int slot = 0, point = 0; // from 1
    float x = 0, y = 0;
    double distance = 0; // in the measure of `place`
};

// Where a point of the chart lies on the sheet, in pixels.
using PlaceOnSheet = std::function<std::pair<double, double>(double x, double y)>;

// The point of a visible curve that lies nearest to a place on the sheet; nothing on an empty sheet.
std::optional<NearestPoint> FindNearestPoint(const ChartDocument& chart, double sheetX, double sheetY,
                                             const PlaceOnSheet& place);

// T, p and v of a point as the status line shows them, as far as axes and z tell them.
std::string CoordinateText(const ChartDocument& chart, const NearestPoint& nearest, const Options& options,
                           NumberStyle style);

// All curves as a table: heading, and for each curve its description, a line with quantities and units, and
// its points. With a comma as separator the numbers have a decimal point.
std::string CurveTableText(const ChartDocument& chart, char separator, NumberStyle style);

} // namespace orva
