// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

#include "calc/eos_diagnosis.h"
#include "plot/chart_plot.h"

namespace orva {

// The colour of a root, as text on this ground. The sheet of a diagram is white whatever the ground of the
// window.
QColor ColourOf(RootStability stability, const QPalette& palette);

// Draws the isotherm with its isobar, the two areas between them and the roots on a prepared plot.
void ShowIsotherm(QCustomPlot& plot, const EosDiagnosis& diagnosis, const IsothermPicture& picture,
                  const std::string& heading, const PlotStyle& style);

} // namespace orva
