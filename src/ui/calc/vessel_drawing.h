// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>

#include "calc/vessel_picture.h"

namespace orva {

// The colour of a part of the vessel on light or on dark ground.
QColor ColourOf(VesselColour colour, const QPalette& palette);

// Draws the section with its filling, its saddle and the mark of the level into a square; the mark reaches
// beyond it to the right.
void PaintVessel(QPainter& painter, const QRectF& square, const VesselPicture& picture,
                 const QPalette& palette);

} // namespace orva
