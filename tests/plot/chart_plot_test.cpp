// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/chart_plot.h"

#include <cmath>

#include <gtest/gtest.h>
#include <qcustomplot.h>

#include "diagrams/butane_diagram.h"
#include "diagrams/diagram_fixture.h"
#include "diagrams/diagram_window.h"

namespace orva {
namespace {

// A plot of 800 by 600 points with isotherms of methane.
struct Sheet {
    test::MethaneDiagram d;
    DiagramWindow window;
    QCustomPlot plot;
    PlotStyle style;

    explicit Sheet(std::initializer_list<double> temperatures, char decimal = '.')
        : window(d.Records(), d.dialogs) {
        style.decimal = decimal;
        window.Open(FindDiagram(1));
        for (const double T : temperatures) {
            d.request.curveT = T;
            window.cmdDraw();
        }
        PreparePlot(plot, style);
        plot.resize(800, 600);
        Show();
    }
    void Show() {
        ShowChart(plot, window.Chart(), style);
        plot.replot(QCustomPlot::rpImmediateRefresh);
    }
    QImage Image() { return plot.toPixmap(800, 600).toImage(); }
    QPoint At(double v, double p) {
        return {static_cast<int>(std::lround(plot.xAxis->coordToPixel(v))),
                static_cast<int>(std::lround(plot.yAxis->coordToPixel(p)))};
    }
};

bool IsNear(const QColor& a, const QColor& b, int tolerance = 60) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue())
           <= tolerance;
}

// True if a pixel of the colour lies within two pixels of the place.
bool HasColourAt(const QImage& image, QPoint at, const QColor& colour) {
    for (int dx = -2; dx <= 2; ++dx)
        for (int dy = -2; dy <= 2; ++dy)
            if (image.rect().contains(at + QPoint(dx, dy))
                && IsNear(image.pixelColor(at + QPoint(dx, dy)), colour))
                return true;
    return false;
}

QColor ColourOfSlot(int slot) {
    const ChartColour c = SlotColour(slot);
    return {c.red, c.green, c.blue};
}

TEST(ChartPlot, CurveIsDrawnWhereItsPointsAre) {
    Sheet sheet({250});
    sheet.window.mnuMarkV(); // any change draws it anew
    sheet.Show();
    const QImage image = sheet.Image();
    const ChartSeries& series = sheet.window.Chart().Series(1);
    int seen = 0;
    int asked = 0;
    for (int i = 100; i < 200; i += 10, ++asked)
        seen += HasColourAt(image, sheet.At(series.x[i], series.y[i]), ColourOfSlot(1)) ? 1 : 0;
    EXPECT_EQ(seen, asked);
    // Nothing of that colour below the curve.
    EXPECT_FALSE(HasColourAt(image, sheet.At(0.2, 500), ColourOfSlot(1)));
}

TEST(ChartPlot, TieLineIsDrawnHorizontal) {
    Sheet sheet({175});
    const QImage image = sheet.Image();
    const TieLine tie = sheet.window.LastOutcome().tie;
    for (double part = 0.1; part < 0.95; part += 0.1) {
        const double v = tie.x1 + part * (tie.x2 - tie.x1);
        EXPECT_TRUE(HasColourAt(image, sheet.At(v, tie.y1), ColourOfSlot(1))) << v;
    }
    EXPECT_FALSE(HasColourAt(image, sheet.At((tie.x1 + tie.x2) / 2, tie.y1 * 1.15), ColourOfSlot(1)));
    EXPECT_FALSE(HasColourAt(image, sheet.At((tie.x1 + tie.x2) / 2, tie.y1 * 0.85), ColourOfSlot(1)));
}

TEST(ChartPlot, SheetIsWhiteAndTheFrameDark) {
    Sheet sheet({});
    const QImage image = sheet.Image();
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
    const QPoint corner = sheet.At(0, 0);
    EXPECT_TRUE(HasColourAt(image, corner + QPoint(40, 0), QColor(0x22, 0x22, 0x22)));
}

TEST(ChartPlot, LegendHasAnEntryForEachCurveAndHidesWithoutCurves) {
    Sheet sheet({150, 175, 250});
    EXPECT_TRUE(sheet.plot.legend->visible());
    ASSERT_EQ(sheet.plot.legend->itemCount(), 3);
    EXPECT_EQ(qobject_cast<QCPPlottableLegendItem*>(sheet.plot.legend->item(1))->plottable()->name(),
              "(2) 175.0 K");
    sheet.window.mnuDelTotal();
    sheet.Show();
    EXPECT_FALSE(sheet.plot.legend->visible());
    EXPECT_EQ(sheet.plot.plottableCount(), 0);
}

TEST(ChartPlot, CurvesCarryTheirLabels) {
    Sheet sheet({150, 250});
    QStringList texts;
    for (int i = 0; i < sheet.plot.itemCount(); ++i)
        if (const auto* text = qobject_cast<QCPItemText*>(sheet.plot.item(i)))
            texts << text->text();
    EXPECT_EQ(texts, QStringList({"(1) 150.0 K", "(2) 250.0 K"}));
}

TEST(ChartPlot, TitlesAndHeadingComeFromTheDocument) {
    Sheet sheet({});
    EXPECT_EQ(sheet.plot.xAxis->label(), "v / (m³/kmol)");
    EXPECT_EQ(sheet.plot.yAxis->label(), "p / kPa");
    EXPECT_EQ(sheet.plot.findChild<QCPTextElement*>("heading")->text(), "Methan (CH4)");
    EXPECT_EQ(sheet.plot.findChild<QCPTextElement*>("subHeading")->text(),
              "Diagrammtyp:  isothermer Schnitt p - v, CEOS Peng / Robinson");
}

TEST(ChartPlot, AxisNumbersHaveTheDecimalSeparatorOfTheSystem) {
    Sheet comma({}, ',');
    EXPECT_TRUE(comma.plot.xAxis->tickVectorLabels().contains("0,2"));
    EXPECT_TRUE(comma.plot.yAxis->tickVectorLabels().contains("4000")); // no separator of thousands
    Sheet point({}, '.');
    EXPECT_TRUE(point.plot.xAxis->tickVectorLabels().contains("0.2"));
}

TEST(ChartPlot, AxesShowTheViewAndBeginAtZero) {
    Sheet sheet({});
    EXPECT_EQ(sheet.plot.yAxis->range().lower, 0);
    EXPECT_FLOAT_EQ(static_cast<float>(sheet.plot.yAxis->range().upper), sheet.window.Spec().yMax);
    sheet.window.SetView({0.1, 0.2, 1000, 2000});
    ShowView(sheet.plot, sheet.window.Chart());
    EXPECT_EQ(sheet.plot.xAxis->range(), QCPRange(0.1, 0.2));
    EXPECT_EQ(sheet.plot.yAxis->range(), QCPRange(1000, 2000));
}

TEST(ChartPlot, LogarithmicAxisBeginsBelowTheSmallestValueInView) {
    Sheet sheet({250});
    sheet.window.cmdXLog();
    sheet.window.cmdYLog();
    sheet.Show();
    EXPECT_EQ(sheet.plot.xAxis->scaleType(), QCPAxis::stLogarithmic);
    EXPECT_GT(sheet.plot.xAxis->range().lower, 0.01);
    EXPECT_LT(sheet.plot.xAxis->range().lower, 0.25);
    EXPECT_GT(sheet.plot.yAxis->range().lower, 100);
    sheet.window.cmdXLog();
    sheet.Show();
    EXPECT_EQ(sheet.plot.xAxis->scaleType(), QCPAxis::stLinear);
}

TEST(ChartPlot, ShortLogarithmicAxisCountsOneTwoFive) {
    Sheet sheet({250});
    sheet.window.cmdXLog();
    sheet.window.SetView({0.08, 0.7, 0, 7000});
    sheet.Show();
    const QVector<QString> labels = sheet.plot.xAxis->tickVectorLabels();
    for (const char* label : {"0.1", "0.2", "0.5"})
        EXPECT_TRUE(labels.contains(label)) << label;
    EXPECT_FALSE(labels.contains("0.3"));
}

TEST(ChartPlot, NarrowAxisHasFewNumbers) {
    Sheet sheet({250});
    sheet.window.SetView({0, 35302, 0, 7000});
    for (const int width : {420, 600, 1000}) {
        sheet.plot.setViewport({0, 0, width, 500});
        sheet.Show();
        sheet.Show(); // the ticks follow the width that the layout gave
        const QFontMetrics metrics(sheet.plot.xAxis->tickLabelFont());
        const QVector<double> ticks = sheet.plot.xAxis->tickVector();
        ASSERT_GE(ticks.size(), 2);
        const double step =
            sheet.plot.xAxis->coordToPixel(ticks[1]) - sheet.plot.xAxis->coordToPixel(ticks[0]);
        EXPECT_GT(step, 1.2 * metrics.horizontalAdvance("35000")) << width;
    }
}

TEST(ChartPlot, LongHeadingIsBrokenNotCut) {
    Sheet sheet({});
    sheet.window.Open(FindDiagram(19));
    sheet.plot.setViewport({0, 0, 1200, 600});
    sheet.Show();
    auto* subHeading = sheet.plot.findChild<QCPTextElement*>("subHeading");
    EXPECT_FALSE(subHeading->text().contains('\n'));
    const int low = subHeading->outerRect().height();
    sheet.plot.setViewport({0, 0, 500, 600});
    sheet.Show();
    EXPECT_TRUE(subHeading->text().endsWith("\nCEOS Peng / Robinson")) << subHeading->text().toStdString();
    EXPECT_GE(subHeading->outerRect().height(), 2 * low - 8);
    EXPECT_LE(subHeading->outerRect().width(), 500);
}

TEST(ChartPlot, BranchesOfTheInversionCurveAreNotJoined) {
    test::ButaneDiagram d;
    DiagramWindow window(d.Records(), d.dialogs);
    window.Open(FindDiagram(2));
    ASSERT_TRUE(window.mnuMarkInversion());
    QCustomPlot plot;
    PreparePlot(plot, {});
    ShowChart(plot, window.Chart(), {});
    const ChartSeries& series = window.Chart().Series(1);
    ASSERT_FALSE(series.gaps.empty());
    const auto data = qobject_cast<QCPCurve*>(plot.plottable(0))->data();
    EXPECT_EQ(data->size(), series.Count() + static_cast<int>(series.gaps.size()));
    int interrupted = 0;
    for (const QCPCurveData& point : *data)
        interrupted += std::isnan(point.value) ? 1 : 0;
    EXPECT_EQ(interrupted, static_cast<int>(series.gaps.size()));
}

// The boxes of all texts that can be seen.
std::vector<QRectF> Boxes(QCustomPlot& plot) {
    std::vector<QRectF> boxes;
    for (int i = 0; i < plot.itemCount(); ++i)
        if (const auto* text = qobject_cast<QCPItemText*>(plot.item(i)); text != nullptr && text->visible()) {
            const QRectF box(text->topLeft->pixelPosition(), text->bottomRight->pixelPosition());
            if (box.intersects(plot.axisRect()->rect()))
                boxes.push_back(box);
        }
    return boxes;
}

TEST(ChartPlot, LabelsMeetNeitherEachOtherNorTheFrameAlsoAfterZooming) {
    Sheet sheet({150, 160, 170, 180, 185, 190, 191, 192, 200, 250});
    sheet.window.mnuMarkCritPointCalc();
    sheet.Show();
    for (const ChartWindow& view : {sheet.window.Chart().window, ChartWindow{0.04, 0.2, 2000, 5000},
                                    ChartWindow{0.3, 0.6, 500, 6000}}) {
        sheet.window.SetView(view);
        sheet.Show();
        const std::vector<QRectF> boxes = Boxes(sheet.plot);
        EXPECT_GE(boxes.size(), 5U);
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            EXPECT_TRUE(QRectF(sheet.plot.axisRect()->rect()).contains(boxes[i])) << i;
            for (std::size_t k = i + 1; k < boxes.size(); ++k)
                EXPECT_FALSE(boxes[i].intersects(boxes[k])) << i << " " << k;
        }
    }
}

TEST(ChartPlot, MarksAreLinesAndPoints) {
    Sheet sheet({});
    sheet.window.mnuMarkV();
    sheet.window.mnuMarkCritPointCalc();
    sheet.Show();
    int lines = 0;
    for (int i = 0; i < sheet.plot.itemCount(); ++i)
        lines += qobject_cast<QCPItemStraightLine*>(sheet.plot.item(i)) != nullptr ? 1 : 0;
    EXPECT_EQ(lines, 1);
    ASSERT_EQ(sheet.plot.plottableCount(), 1);
    EXPECT_FALSE(sheet.plot.legend->visible()); // a mark has no entry
    const QImage image = sheet.Image();
    EXPECT_TRUE(HasColourAt(image, sheet.At(sheet.d.model.eos.vCritCalc, 4599.2) + QPoint(4, 0),
                            QColor(0x22, 0x22, 0x22)));
}

} // namespace
} // namespace orva
