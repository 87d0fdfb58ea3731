// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

namespace orva::test {

// Colours of a dark desktop.
inline QPalette DarkPalette() {
    QPalette dark(QColor(53, 55, 58), QColor(43, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::AlternateBase, QColor(38, 40, 43));
    dark.setColor(QPalette::Text, QColor(225, 227, 230));
    dark.setColor(QPalette::WindowText, QColor(225, 227, 230));
    dark.setColor(QPalette::ButtonText, QColor(225, 227, 230));
    dark.setColor(QPalette::ToolTipBase, QColor(60, 63, 66));
    dark.setColor(QPalette::ToolTipText, QColor(225, 227, 230));
    dark.setColor(QPalette::Highlight, QColor(64, 126, 201));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(125, 128, 132));
    return dark;
}

} // namespace orva::test
