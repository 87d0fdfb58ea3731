// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace orva {

// Shows a window over the others with the keyboard in it.
void BringToFront(QWidget& window);

// Moves a window to the right of the other one, as far as the screen reaches.
void PlaceBeside(QWidget& window, const QWidget& other);

// Width that a small window needs to show its whole title between its icon and its buttons.
int WidthForTitle(const QWidget& window);

} // namespace orva
