// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/chart_plot.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <qcustomplot.h>

#include "plot/curve_labels.h"
#include "plot/plot_elements.h"

namespace orva {

namespace {

constexpr double logDecades = 1e-3;       // of the upper limit: where an empty logarithmic axis begins
constexpr double logMargin = 0.8;         // of the smallest value, for a logarithmic axis with curves
constexpr double nearlyZero = 1e-3;       // of the upper limit: an axis that begins here is drawn from 0
constexpr int mostFullLabels = 12;        // with more curves the labels hold their number only
const QColor inkColour(0x22, 0x22, 0x22); // text and frame
const QColor gridColour(0xE2, 0xE5, 0xE9);
const QColor subGridColour(0xF1, 0xF3, 0xF5);
const QColor markColour(0x66, 0x6C, 0x74);
const char* const headingName = "heading";
const char* const subHeadingName = "subHeading";

QColor ColourOf(const ChartColour& colour) {
    return {colour.red, colour.green, colour.blue};
}

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

QFont FontOf(const PlotStyle& style, double scale = 1, bool bold = false) {
    QFont font;
    font.setPointSizeF(style.fontSize * scale);
    font.setBold(bold);
    return font;
}

QPen PenOf(const ChartSeries& series, const PlotStyle& style) {
    QPen pen(ColourOf(series.colour), series.width * style.lineScale);
    pen.setJoinStyle(Qt::RoundJoin);
    switch (series.style) {
    case LineStyle::PointsOnly:
        pen.setStyle(Qt::NoPen);
        break;
    case LineStyle::Dotted:
        pen.setDashPattern({1, 2.5});
        break;
    case LineStyle::Dashed:
        pen.setDashPattern({5, 3});
        break;
    case LineStyle::DashDotted:
        pen.setDashPattern({6, 2.5, 1.2, 2.5});
        break;
    case LineStyle::Solid:
        break;
    }
    return pen;
}

void PrepareAxis(QCPAxis& axis, const PlotStyle& style) {
    axis.setTickLabelFont(FontOf(style));
    axis.setLabelFont(FontOf(style, 1.15));
    axis.setLabelColor(inkColour);
    axis.setTickLabelColor(inkColour);
    axis.setBasePen(QPen(inkColour, 1));
    axis.setTickPen(QPen(inkColour, 1));
    axis.setSubTickPen(QPen(inkColour, 1));
    axis.setTickLengthIn(5);
    axis.setTickLengthOut(0);
    axis.setSubTickLengthIn(3);
    axis.setSubTickLengthOut(0);
    axis.setTickLabelPadding(6);
    axis.setLabelPadding(8);
    axis.setNumberFormat("gbc");
    axis.grid()->setPen(QPen(gridColour, 1));
    axis.grid()->setSubGridPen(QPen(subGridColour, 1));
    axis.grid()->setZeroLinePen(Qt::NoPen);
}

// Two lines across the sheet: the substance, and below it the type of the diagram with the model. Returns the
// part of the layout below them.
QCPLayoutGrid& PrepareHeading(QCustomPlot& plot, const PlotStyle& style) {
    auto* heading = new HeadingElement(&plot, QString(), FontOf(style, 1.45, true));
    heading->setObjectName(headingName);
    heading->setTextColor(inkColour);
    heading->setMargins(QMargins(0, 8, 0, 0));
    auto* subHeading = new HeadingElement(&plot, QString(), FontOf(style, 1.05));
    subHeading->setObjectName(subHeadingName);
    subHeading->setTextColor(QColor(0x55, 0x55, 0x55));
    subHeading->setMargins(QMargins(0, 0, 0, 6));
    QCPAxisRect* frame = plot.axisRect();
    plot.plotLayout()->take(frame);
    plot.plotLayout()->simplify();
    auto* sheet = new QCPLayoutGrid;
    plot.plotLayout()->addElement(0, 0, heading);
    plot.plotLayout()->addElement(1, 0, subHeading);
    plot.plotLayout()->addElement(2, 0, sheet);
    plot.plotLayout()->setRowSpacing(0);
    sheet->addElement(0, 0, frame);
    return *sheet;
}

// The legend has a column of its own beside the frame, so that it hides no curve.
void PrepareLegend(QCustomPlot& plot, QCPLayoutGrid& sheet, const PlotStyle& style) {
    auto* column = new QCPLayoutGrid;
    sheet.addElement(0, 1, column);
    column->addElement(0, 0, plot.legend);
    auto* rest = new QCPLayoutElement(&plot); // takes the height that the entries leave
    column->addElement(1, 0, rest);
    column->setRowStretchFactor(0, 0.001);
    sheet.setColumnStretchFactor(1, 0.001);
    plot.legend->setFont(FontOf(style));
    plot.legend->setTextColor(inkColour);
    plot.legend->setBorderPen(QPen(gridColour, 1));
    plot.legend->setBrush(Qt::white);
    plot.legend->setIconSize(30, 14);
    plot.legend->setRowSpacing(3);
}

// A legend that is not shown leaves its column to the frame.
void ShowLegend(QCustomPlot& plot, bool shown) {
    plot.legend->setVisible(shown);
    plot.legend->setMargins(shown ? QMargins(10, 6, 12, 6) : QMargins());
    plot.legend->layout()->setMargins(shown ? QMargins(4, 0, 12, 0) : QMargins());
}

// A point that is no number interrupts the line.
QVector<QCPCurveData> PointsOf(const ChartSeries& series) {
    QVector<QCPCurveData> points;
    points.reserve(series.Count() + static_cast<int>(series.gaps.size()));
    for (int i = 0; i < series.Count(); ++i) {
        const double x = series.x[static_cast<std::size_t>(i)];
        if (std::find(series.gaps.begin(), series.gaps.end(), i + 1) != series.gaps.end())
            points.append(QCPCurveData(i - 0.5, x, std::nan("")));
        points.append(QCPCurveData(i, x, series.y[static_cast<std::size_t>(i)]));
    }
    return points;
}

QCPCurve& AddCurve(QCustomPlot& plot, const ChartSeries& series, const PlotStyle& style) {
    auto* curve = new QCPCurve(plot.xAxis, plot.yAxis);
    curve->setPen(PenOf(series, style));
    if (series.style == LineStyle::PointsOnly) {
        curve->setLineStyle(QCPCurve::lsNone);
        curve->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, ColourOf(series.colour), 5));
    }
    curve->data()->set(PointsOf(series), true);
    curve->setName(Text(series.legend).trimmed());
    if (series.legend.empty() || !series.visible)
        curve->removeFromLegend();
    curve->setVisible(series.visible);
    return *curve;
}

void AddLabel(const QCPCurve& curve, const ChartDocument& chart, const ChartSeries& series,
              const PlotStyle& style) {
    if (series.label.empty() || series.labelPoint < 1 || series.labelPoint > series.Count())
        return;
    const QString text = Text(series.label).trimmed();
    AddCurveLabel(curve, chart.curveCount > mostFullLabels ? text.section(' ', 0, 0) : text,
                  series.labelPoint, FontOf(style, 0.9, true), ColourOf(series.colour));
}

void AddMarkText(QCustomPlot& plot, const ChartMark& mark, double x, double y, Qt::Alignment alignment,
                 QCPItemPosition::PositionType typeX, QCPItemPosition::PositionType typeY,
                 const PlotStyle& style) {
    auto* text = new QCPItemText(&plot);
    text->position->setTypeX(typeX);
    text->position->setTypeY(typeY);
    text->setPositionAlignment(alignment);
    text->position->setCoords(x, y);
    text->setText(Text(mark.text).trimmed());
    text->setFont(FontOf(style, 0.9));
    text->setColor(markColour);
    if (mark.kind != ChartMark::Kind::Point) // it would hide the point itself
        text->setBrush(QColor(255, 255, 255, 225));
    text->setPadding(QMargins(6, 1, 6, 3));
    text->setClipToAxisRect(true);
}

void AddPointMark(QCustomPlot& plot, const ChartMark& mark, const PlotStyle& style) {
    auto* point = new QCPCurve(plot.xAxis, plot.yAxis);
    point->addData(0, mark.x, mark.y);
    point->setLineStyle(QCPCurve::lsNone);
    point->setScatterStyle(
        QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(inkColour, 1.6 * style.lineScale), Qt::white, 9));
    point->removeFromLegend();
    AddMarkText(plot, mark, mark.x, mark.y, Qt::AlignLeft | Qt::AlignBottom, QCPItemPosition::ptPlotCoords,
                QCPItemPosition::ptPlotCoords, style);
}

void AddMark(QCustomPlot& plot, const ChartMark& mark, const PlotStyle& style) {
    if (mark.kind == ChartMark::Kind::Point) {
        AddPointMark(plot, mark, style);
        return;
    }
    auto* line = new QCPItemStraightLine(&plot);
    QPen pen(markColour, 1.2 * style.lineScale);
    pen.setDashPattern({4, 4});
    line->setPen(pen);
    const bool vertical = mark.kind == ChartMark::Kind::VerticalLine;
    line->point1->setCoords(mark.x, mark.y);
    line->point2->setCoords(mark.x + (vertical ? 0 : 1), mark.y + (vertical ? 1 : 0));
    if (vertical)
        AddMarkText(plot, mark, mark.x, 0.97, Qt::AlignLeft | Qt::AlignBottom, QCPItemPosition::ptPlotCoords,
                    QCPItemPosition::ptAxisRectRatio, style);
    else
        AddMarkText(plot, mark, 0.99, mark.y, Qt::AlignRight | Qt::AlignBottom,
                    QCPItemPosition::ptAxisRectRatio, QCPItemPosition::ptPlotCoords, style);
}

void SetAxis(QCPAxis& axis, const std::string& title, bool logarithmic, bool grid) {
    axis.setLabel(Text(title).replace("^3", "³"));
    const auto scale = logarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear;
    if (axis.scaleType() != scale) {
        axis.setScaleType(scale);
        if (logarithmic)
            axis.setTicker(QSharedPointer<DecadeTicker>::create());
        else
            axis.setTicker(QSharedPointer<RoomyTicker>::create(axis));
    }
    axis.grid()->setVisible(grid);
    axis.grid()->setSubGridVisible(grid && logarithmic);
}

void SetHeading(QCustomPlot& plot, const ChartDocument& chart) {
    QStringList lines;
    for (const std::string& line : chart.headingLines)
        lines.append(Text(line));
    if (auto* heading = static_cast<HeadingElement*>(plot.findChild<QCPTextElement*>(headingName)))
        heading->SetParts(lines.mid(0, 1));
    if (auto* subHeading = static_cast<HeadingElement*>(plot.findChild<QCPTextElement*>(subHeadingName)))
        subHeading->SetParts(lines.mid(1));
}

// The smallest positive value of a coordinate among the points in view; 0 if there is none.
double SmallestInView(const ChartDocument& chart, bool ofX) {
    const ChartWindow& view = chart.view;
    double smallest = 0;
    for (int slot = 1; slot <= largestCurveCount; ++slot) {
        const ChartSeries& series = chart.Series(slot);
        for (std::size_t i = 0; i < series.x.size(); ++i) {
            const double x = series.x[i];
            const double y = series.y[i];
            const double value = ofX ? x : y;
            const bool inView = x >= view.xMin && x <= view.xMax && y >= view.yMin && y <= view.yMax;
            if (inView && value > 0 && (smallest == 0 || value < smallest))
                smallest = value;
        }
    }
    return smallest;
}

void ShowRange(QCPAxis& axis, double low, double high, const ChartDocument& chart) {
    if (axis.scaleType() == QCPAxis::stLogarithmic) {
        if (low <= high * logDecades) {
            const double smallest = SmallestInView(chart, axis.orientation() == Qt::Horizontal);
            low = std::max(low, smallest > 0 ? logMargin * smallest : logDecades * high);
        }
    } else if (low > 0 && low < high * nearlyZero) {
        low = 0;
    }
    axis.setRange(low, high);
}

} // namespace

void PreparePlot(QCustomPlot& plot, const PlotStyle& style) {
    plot.setBackground(Qt::white);
    plot.setPlottingHint(QCP::phCacheLabels, true);
    plot.setNoAntialiasingOnDrag(true);
    QLocale locale = style.decimal == ',' ? QLocale(QLocale::German, QLocale::Germany) : QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    plot.setLocale(locale);
    plot.axisRect()->setupFullAxesBox(false);
    for (QCPAxis* axis : {plot.xAxis, plot.yAxis, plot.xAxis2, plot.yAxis2})
        PrepareAxis(*axis, style);
    for (QCPAxis* axis : {plot.xAxis, plot.yAxis})
        axis->setTicker(QSharedPointer<RoomyTicker>::create(*axis));
    for (QCPAxis* axis : {plot.xAxis2, plot.yAxis2}) {
        axis->setTicks(false);
        axis->setTickLabels(false);
    }
    plot.axisRect()->setMinimumMargins(QMargins(12, 6, 20, 10));
    PrepareLegend(plot, PrepareHeading(plot, style), style);
    ShowLegend(plot, false);
    QObject::connect(&plot, &QCustomPlot::afterLayout, &plot, [&plot] { PlaceCurveLabels(plot); });
}

void ShowView(QCustomPlot& plot, const ChartDocument& chart) {
    ShowRange(*plot.xAxis, chart.view.xMin, chart.view.xMax, chart);
    ShowRange(*plot.yAxis, chart.view.yMin, chart.view.yMax, chart);
}

void ShowChart(QCustomPlot& plot, const ChartDocument& chart, const PlotStyle& style) {
    plot.clearItems();
    plot.clearPlottables();
    SetHeading(plot, chart);
    SetAxis(*plot.xAxis, chart.xTitle, chart.logX, chart.showGrid);
    SetAxis(*plot.yAxis, chart.yTitle, chart.logY, chart.showGrid);
    ShowView(plot, chart);
    std::array<const QCPCurve*, largestCurveCount + 1> curves{};
    for (int slot = 1; slot <= largestCurveCount; ++slot)
        if (chart.IsTaken(slot))
            curves[static_cast<std::size_t>(slot)] = &AddCurve(plot, chart.Series(slot), style);
    for (const ChartMark& mark : chart.marks)
        AddMark(plot, mark, style);
    for (int slot = 1; slot <= largestCurveCount; ++slot)
        if (chart.showLabels && chart.IsTaken(slot) && chart.Series(slot).visible)
            AddLabel(*curves[static_cast<std::size_t>(slot)], chart, chart.Series(slot), style);
    ShowLegend(plot, chart.showLegend && plot.legend->itemCount() > 0);
}

} // namespace orva
