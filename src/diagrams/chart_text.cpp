// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/chart_text.h"

#include <cmath>

#include "text/columns.h"

namespace orva {

namespace {

constexpr std::int16_t basisSpecific = 1;
constexpr std::int16_t basisReduced = 2;
constexpr std::int16_t isochorSection = 5; // diagram type
constexpr double belowCriticalVolume = 0.999999, aboveCriticalVolume = 1.000001;

// A thermal quantity of a point, in K, kPa or m^3/kmol times the display factor.
struct PointValues {
    std::optional<double> T, p, v;

    void Set(Quantity quantity, double value) {
        if (quantity == Quantity::Temperature)
            T = value;
        else if (quantity == Quantity::Pressure)
            p = value;
        else if (quantity == Quantity::Volume)
            v = value;
    }
};

Quantity ZQuantity(int zKind) {
    switch (zKind) {
    case zTemperature:
        return Quantity::Temperature;
    case zPressure:
        return Quantity::Pressure;
    case zVolume:
        return Quantity::Volume;
    default:
        return Quantity::None;
    }
}

double DisplayFactor(Quantity quantity, const Options& options) {
    switch (quantity) {
    case Quantity::Temperature:
        return options.TFactor;
    case Quantity::Pressure:
        return options.pFactor;
    case Quantity::Volume:
        return options.volumeFactor;
    default:
        return 1;
    }
}

std::string_view ZTitle(int zKind) {
    switch (zKind) {
    case zTemperature:
        return "T / K";
    case zPressure:
        return "p / kPa";
    case zVolume:
        return "v / (m^3/kmol)";
    case zVapourFraction:
        return "y(V)";
    default:
        return "";
    }
}

// Which boundary of the two-phase region the coexistence command has drawn.
std::string BoundaryText(const CurveMode& mode) {
    if (!mode.coexistenceMode)
        return {};
    if (mode.vapourFraction == 0)
        return " (L)";
    return mode.vapourFraction == 1 ? " (V)" : "";
}

// An isochor with its side of the critical volume.
std::string IsochorText(const CurveDescription& description) {
    const double v = description.request.curveV;
    const bool specific = description.options.volumeBasis == basisSpecific;
    std::string side = " (cr) ";
    if (v < belowCriticalVolume * description.vCritCalc)
        side = " (L) ";
    else if (v > aboveCriticalVolume * description.vCritCalc)
        side = " (V) ";
    return Format(specific ? v * description.options.volumeFactor : v, "###0.0####", description.style)
           + (specific ? " m^3/kg " : " m^3/kmol ") + side;
}

std::string ReducedText(const PointValues& values, NumberStyle style) {
    std::string text;
    if (values.T)
        text += " T(red) = " + Format(*values.T, "###0.00", style) + "   ";
    if (values.p)
        text += "p(red) = " + Format(*values.p, "###0.00##", style) + "   ";
    if (values.v)
        text += "v(red) = " + Format(*values.v, "##0.00##", style);
    return text;
}

std::string PlainText(const PointValues& values, bool specific, NumberStyle style) {
    std::string text;
    if (values.T)
        text += " T = " + Format(*values.T, "#######.00", style) + " K   ";
    if (values.p)
        text += "p = " + Format(*values.p, "######0.00##", style) + " kPa   ";
    if (values.v)
        text += "v = " + Format(*values.v, "####0.00###", style) + "  m^3/" + (specific ? "kg" : "kmol");
    return text;
}

} // namespace

std::string DescribeCurve(const CurveDescription& description) {
    const CurveRequest& request = description.request;
    const NumberStyle style = description.style;
    if (description.mode.tieLineMode)
        return "Konnode V-L ";
    if (description.spec.type == isochorSection)
        return IsochorText(description);
    switch (description.spec.curveKind) {
    case curveIsotherm:
        return Format(request.curveT, "####0.0# K ", style);
    case curveIsobar:
        return Format(request.curveP, "#####0.0# kPa ", style);
    case curveIsochor:
        return Format(request.curveV, "####0.0#### m^3/kmol ", style);
    case curveProjection:
        return "VLE " + BoundaryText(description.mode);
    case curveInversion:
        return "Inversionskurve delta = 0 ";
    default:
        return {};
    }
}

std::optional<NearestPoint> FindNearestPoint(const ChartDocument& chart, double sheetX, double sheetY,
                                             const PlaceOnSheet& place) {
    std::optional<NearestPoint> nearest;
    for (int slot = 1; slot <= largestCurveCount; ++slot) {
        const ChartSeries& series = chart.Series(slot);
        if (!chart.IsTaken(slot) || !series.visible)
            continue;
        for (int i = 1; i <= series.Count(); ++i) {
            const float x = series.x[static_cast<std::size_t>(i) - 1];
            const float y = series.y[static_cast<std::size_t>(i) - 1];
            const auto [atX, atY] = place(x, y);
            const double distance = std::hypot(atX - sheetX, atY - sheetY);
            if (!nearest || distance < nearest->distance)
                nearest = NearestPoint{slot, i, x, y, distance};
        }
    }
    return nearest;
}

std::string CoordinateText(const ChartDocument& chart, const NearestPoint& nearest, const Options& options,
                           NumberStyle style) {
    const ChartSeries& series = chart.Series(nearest.slot);
    PointValues values;
    if (const std::optional<float> z = series.Z(nearest.point)) {
        const Quantity quantity = ZQuantity(series.ZKind());
        values.Set(quantity, *z * DisplayFactor(quantity, options));
    }
    values.Set(chart.xQuantity, nearest.x);
    values.Set(chart.yQuantity, nearest.y);
    return options.volumeBasis == basisReduced
               ? ReducedText(values, style)
               : PlainText(values, options.volumeBasis == basisSpecific, style);
}

std::string CurveTableText(const ChartDocument& chart, char separator, NumberStyle style) {
    if (separator == ',')
        style.decimal = '.';
    std::string text;
    for (const std::string& line : chart.headingLines)
        text += line;
    text += '\n';
    for (int slot = 1; slot <= largestCurveCount; ++slot) {
        if (!chart.IsTaken(slot))
            continue;
        const ChartSeries& series = chart.Series(slot);
        const std::string_view zTitle = ZTitle(series.ZKind());
        text += '\n' + std::string(Trim(series.legend)) + '\n' + chart.xTitle + separator + chart.yTitle;
        if (!zTitle.empty())
            text += separator + std::string(zTitle);
        text += '\n';
        for (int i = 1; i <= series.Count(); ++i) {
            text += General(series.x[static_cast<std::size_t>(i) - 1], style) + separator
                    + General(series.y[static_cast<std::size_t>(i) - 1], style);
            if (const std::optional<float> z = series.Z(i))
                text += separator + General(*z, style);
            text += '\n';
        }
    }
    return text;
}

} // namespace orva
