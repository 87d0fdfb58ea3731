// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc/isotherm_plot.h"

#include <cmath>

#include <qcustomplot.h>

#include "text/number_format.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr double markerSize = 11;
constexpr double smallestLobe = 0.1;  // of the window's height, for a name within it
constexpr double smallestFine = 0.01; // kPa; below, the heading shows all digits
constexpr double mostDecades = 5;     // of the axis of the volume, with a number at each
const QColor isobarColour(0x55, 0x5B, 0x63);
const QColor upperColour(0xE6, 0x9F, 0x00); // orange and blue, which colour-blind eyes tell apart
const QColor lowerColour(0x56, 0xB4, 0xE9);
constexpr int fillOpacity = 110;

struct StabilityRow {
    RootStability stability;
    QColor onLight, onDark;
};

const StabilityRow stabilityRows[] = {
    {RootStability::Stable, {0x0B, 0x7A, 0x4B}, {0x5F, 0xD3, 0xA0}},
    {RootStability::Metastable, {0xB2, 0x62, 0x00}, {0xF0, 0xB0, 0x5A}},
    {RootStability::Unstable, {0xB7, 0x1C, 0x1C}, {0xFF, 0x8A, 0x80}},
};

const StabilityRow& RowOf(RootStability stability) {
    for (const StabilityRow& row : stabilityRows)
        if (row.stability == stability)
            return row;
    return stabilityRows[0];
}

// Series, axes and headings, as any diagram has them.
ChartDocument DocumentOf(const EosDiagnosis& diagnosis, const IsothermPicture& picture,
                         const std::string& heading, const NumberStyle numbers) {
    ChartDocument chart;
    const std::string p = diagnosis.p < smallestFine ? General(static_cast<float>(diagnosis.p), numbers)
                                                     : Format(diagnosis.p, "####0.0##", numbers);
    chart.headingLines = {heading,
                          "T = " + Format(diagnosis.T, "###0.000 K", numbers) + ",  p = " + p + " kPa"};
    chart.xTitle = "v / (m^3/kmol)";
    chart.yTitle = "p / kPa";
    chart.logX = true;
    chart.showLegend = chart.showLabels = false;
    chart.view = chart.window = {picture.vMin, picture.vMax, picture.pMin, picture.pMax};
    ChartSeries& series = chart.Series(chart.TakeSlot());
    for (const IsothermPoint& point : picture.curve) {
        series.x.push_back(static_cast<float>(point.v));
        series.y.push_back(static_cast<float>(point.p));
    }
    return chart;
}

void AddText(QCustomPlot& plot, const QString& text, double v, double p, Qt::Alignment side,
             const QColor& colour, const PlotStyle& style, bool bold) {
    auto* item = new QCPItemText(&plot);
    item->position->setCoords(v, p);
    item->setPositionAlignment(side);
    item->setText(text);
    item->setTextAlignment(side & Qt::AlignLeft ? Qt::AlignLeft : Qt::AlignHCenter);
    QFont font;
    font.setPointSizeF(style.fontSize * 0.95);
    font.setBold(bold);
    item->setFont(font);
    item->setColor(colour);
    item->setPadding(QMargins(8, 5, 8, 5));
    item->setClipToAxisRect(true);
}

void AddLobe(QCustomPlot& plot, const std::vector<IsothermPoint>& lobe, double p, QColor colour,
             const QString& name, const PlotStyle& style) {
    if (lobe.size() < 2)
        return;
    auto* curve = plot.addGraph();
    auto* base = plot.addGraph();
    IsothermPoint farthest{lobe.front().v, p};
    for (const IsothermPoint& point : lobe) {
        curve->addData(point.v, point.p);
        if (std::abs(point.p - p) > std::abs(farthest.p - p))
            farthest = point;
    }
    base->addData(lobe.front().v, p);
    base->addData(lobe.back().v, p);
    for (QCPGraph* graph : {curve, base}) {
        graph->setPen(Qt::NoPen);
        graph->setLayer(QStringLiteral("grid")); // below the isotherm
        graph->removeFromLegend();
    }
    const QColor ink = colour.darker(170);
    colour.setAlpha(fillOpacity);
    curve->setBrush(colour);
    curve->setChannelFillGraph(base);
    const QCPRange range = plot.yAxis->range();
    const double edge = std::clamp(farthest.p, range.lower, range.upper);
    if (std::abs(edge - p) <= smallestLobe * range.size())
        return;
    // The dip of a cold liquid lies close to its steep branch; its name stands on the open side.
    const double v = farthest.p < p ? std::sqrt(farthest.v * lobe.back().v) : farthest.v;
    AddText(plot, name, v, p + 0.35 * (edge - p), Qt::AlignCenter, ink, style, true);
}

void AddIsobar(QCustomPlot& plot, double p) {
    auto* line = new QCPItemStraightLine(&plot);
    line->point1->setCoords(plot.xAxis->range().lower, p);
    line->point2->setCoords(plot.xAxis->range().upper, p);
    line->setPen(QPen(isobarColour, 1.4, Qt::DashLine));
}

// The names stand where the isotherm leaves room: of the middle root below the isobar, of the others above.
// What the colours mean is said beside the picture.
void AddRoot(QCustomPlot& plot, const DiagnosisLine& line, int number, double p, const PlotStyle& style) {
    const StabilityRow& row = RowOf(line.kind);
    auto* point = new QCPCurve(plot.xAxis, plot.yAxis);
    point->addData(0, line.v, p);
    point->setLineStyle(QCPCurve::lsNone);
    point->setScatterStyle(QCPScatterStyle(
        QCPScatterStyle::ssCircle, QPen(row.onLight, 2.2),
        line.kind == RootStability::Stable ? QBrush(row.onLight) : QBrush(Qt::white), markerSize));
    point->removeFromLegend();
    const auto side = Qt::AlignLeft | (line.kind == RootStability::Unstable ? Qt::AlignTop : Qt::AlignBottom);
    AddText(plot, QStringLiteral("v(%1)").arg(number), line.v, p, side, row.onLight, style, true);
}

} // namespace

QColor ColourOf(RootStability stability, const QPalette& palette) {
    const StabilityRow& row = RowOf(stability);
    return IsDark(palette) ? row.onDark : row.onLight;
}

void ShowIsotherm(QCustomPlot& plot, const EosDiagnosis& diagnosis, const IsothermPicture& picture,
                  const std::string& heading, const PlotStyle& style) {
    ShowChart(plot, DocumentOf(diagnosis, picture, heading, {style.decimal}), style);
    // A diagram begins where points are; here the root of a steep branch counts too.
    plot.xAxis->setRange(picture.vMin, picture.vMax);
    const bool wide = std::log10(picture.vMax / picture.vMin) > mostDecades;
    plot.xAxis->ticker()->setTickCount(wide ? 3 : 5);
    AddLobe(plot, picture.lowerLobe, diagnosis.p, lowerColour, QStringLiteral("A(u)"), style);
    AddLobe(plot, picture.upperLobe, diagnosis.p, upperColour, QStringLiteral("A(o)"), style);
    AddIsobar(plot, diagnosis.p);
    for (std::size_t i = 0; i < diagnosis.lines.size(); ++i)
        if (diagnosis.lines[i].visible)
            AddRoot(plot, diagnosis.lines[i], static_cast<int>(i) + 1, diagnosis.p, style);
    plot.replot();
}

} // namespace orva
