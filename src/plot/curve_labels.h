// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QCPCurve;
class QColor;
class QCustomPlot;
class QFont;

namespace orva {

// Gives a curve on the plot a label in its colour. `preferredPoint` counts from 1. The label finds its place
// each time the plot is laid out.
void AddCurveLabel(const QCPCurve& curve, const QString& text, int preferredPoint, const QFont& font,
                   const QColor& colour);

// Moves all labels of curves to places where they can be read, for the view as it is. Those without room are
// hidden.
void PlaceCurveLabels(QCustomPlot& plot);

} // namespace orva
