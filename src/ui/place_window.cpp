// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/place_window.h"

#include <algorithm>

#include <QScreen>

namespace orva {

namespace {

constexpr int gap = 12;

} // namespace

int WidthForTitle(const QWidget& window) {
    constexpr int besideTitle = 130; // icon, buttons and the room between them
    QFont bold = window.font();
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + besideTitle;
}

void BringToFront(QWidget& window) {
    if (window.isMinimized())
        window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
}

void PlaceBeside(QWidget& window, const QWidget& other) {
    const QRect area = other.screen()->availableGeometry();
    const QRect neighbour = other.frameGeometry();
    const int left = std::min(neighbour.right() + gap, area.right() - window.width() - gap);
    window.move(std::max(left, area.left()), std::max(neighbour.top(), area.top()));
}

} // namespace orva
