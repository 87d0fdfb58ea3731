// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QToolButton>

#include "calc/point_result.h"

namespace orva {

// True when the window colours are light text on a dark ground.
bool IsDark(const QPalette& palette);

// The colour of a report text, lightened on a dark ground so that it stays readable.
QColor ReportColour(TextColour colour, const QPalette& palette);

// Text of secondary rank: between text and ground.
QColor MutedColour(const QPalette& palette);

// The font of lists and reports, whose columns must stand under each other: that of the desktop, if its
// characters are really of one width.
QFont FixedPitchFont();
bool IsFixedPitch(const QFont& font);

// Shows text, colour and weight. Sizes count from 8 points, the size of ordinary text.
void ShowResultLabel(QLabel& label, const ResultLabel& content);

// A label of secondary rank that follows a change of the colours.
QLabel* MutedLabel(const QString& text, QWidget* parent);

// A help button of a window. It is disabled if the help has no topic under its name.
QToolButton* HelpButton(const QString& name, QWidget* parent);

} // namespace orva
