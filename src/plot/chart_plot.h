// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/chart_document.h"

class QCustomPlot;

namespace orva {

// How the sheet looks, whatever is drawn on it. The sheet stays white on a dark desktop.
struct PlotStyle {
    char decimal = '.';   // separator of the axis numbers
    int fontSize = 11;    // points; headings and labels follow it
    double lineScale = 1; // of all line widths
};

// Sets the plot up for chart documents: fonts, axes, the places of heading and legend. To be called once.
void PreparePlot(QCustomPlot& plot, const PlotStyle& style);

// Draws the document on a prepared plot, in place of what was there.
void ShowChart(QCustomPlot& plot, const ChartDocument& chart, const PlotStyle& style);

// Moves the axes to the view of the document and leaves the curves as they are.
void ShowView(QCustomPlot& plot, const ChartDocument& chart);

} // namespace orva
