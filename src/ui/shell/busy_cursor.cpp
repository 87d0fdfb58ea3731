// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/busy_cursor.h"

#include <QGuiApplication>

namespace orva {

BusyCursor::~BusyCursor() {
    if (depth > 0)
        QGuiApplication::restoreOverrideCursor();
}

void BusyCursor::BeginBusy() {
    ++depth;
    if (depth == 1)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void BusyCursor::EndBusy() {
    if (depth == 0)
        return;
    --depth;
    if (depth == 0)
        QGuiApplication::restoreOverrideCursor();
}

} // namespace orva
