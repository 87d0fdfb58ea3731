// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "diagrams/catalogue.h"
#include "diagrams/curve_points.h"

namespace orva {

// The sheet of a diagram with all that is drawn on it, independent of who draws it.

inline constexpr int largestCurveCount = 24;
inline constexpr int keptZValues = 1200; // points beyond keep no z

enum class LineStyle : std::uint8_t { PointsOnly, Solid, Dotted, Dashed, DashDotted };

struct ChartColour {
    std::uint8_t red = 0, green = 0, blue = 0;

    bool operator==(const ChartColour&) const = default;
};

struct ChartSeries {
    std::vector<float> x, y; // display units
    std::vector<float> z;    // z[0] is the zKind of the header, z[i] belongs to point i
    LineStyle style = LineStyle::Solid;
    ChartColour colour;
    double width = 2; // of the line, in points of the screen
    bool visible = true;
    std::string legend;    // "(1) 300.0 K "; empty: no entry in the legend
    std::string label;     // text attached to the curve
    int labelPoint = 0;    // number of the point that carries it, from 1
    std::vector<int> gaps; // numbers of the points, from 1, that no line joins to the point before

    int Count() const { return static_cast<int>(x.size()); }
    int ZKind() const { return z.empty() ? 0 : static_cast<int>(z[0]); }
    // z of point i (from 1), if it was kept.
    std::optional<float> Z(int i) const;
};

struct ChartMark {
    enum class Kind : std::uint8_t { VerticalLine, HorizontalLine, Point };
    Kind kind = Kind::Point;
    double x = 0, y = 0; // display units; a line uses one of them
    std::string text;
    std::string command; // name of the command that set it
};

struct ChartWindow {
    double xMin = 0, xMax = 1, yMin = 0, yMax = 1;

    bool operator==(const ChartWindow&) const = default;
};

struct ChartDocument {
    int curveCount = 0;
    int currentSlot = 0;                               // slot of the curve drawn last, from 1
    std::array<bool, largestCurveCount> slotFree{};    // of slot i + 1
    std::array<ChartSeries, largestCurveCount> series; // of slot i + 1
    std::optional<ChartColour> curveColour; // preset for the next curve, else the colour of its slot
    std::vector<ChartMark> marks;

    std::vector<std::string> headingLines; // read on as one text
    std::string xTitle, yTitle;
    Quantity xQuantity = Quantity::None, yQuantity = Quantity::None;
    ChartWindow window; // of the diagram
    ChartWindow view;   // what is shown of it
    bool logX = false, logY = false;
    bool showLegend = true, showLabels = true, showGrid = true;

    ChartDocument() { slotFree.fill(true); }

    bool IsTaken(int slot) const;
    const ChartSeries& Series(int slot) const { return series[static_cast<std::size_t>(slot) - 1]; }
    ChartSeries& Series(int slot) { return series[static_cast<std::size_t>(slot) - 1]; }

    // Takes the lowest free slot, with its colour and line style; 0 if all are taken.
    int TakeSlot();
    // Empties a slot. Nothing happens to a free one.
    void FreeSlot(int slot);
    void FreeAllSlots();
};

// Writes the points into the series: x and y of all, z of the first 1200.
void StorePoints(const CurvePoints& curve, ChartSeries& series);

// Interrupts the line where the temperature in z jumps: from one branch of the curve to another.
void InterruptAtJumps(ChartSeries& series);

// Colour and line style of a slot: eight colours that colour-blind eyes tell apart, in three line styles.
ChartColour SlotColour(int slot);
LineStyle SlotLineStyle(int slot);

// Number of the point that carries the label of a curve: behind the middle of the part left of xMax, and
// further left with each slot, so that the labels of successive curves do not lie on one another. 0 without
// points.
int LabelPoint(const CurvePoints& curve, float xMax, int slot);

} // namespace orva
