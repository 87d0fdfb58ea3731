// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QDialog>
#include <QHBoxLayout>

namespace orva {

// The buttons at the foot of a window that takes input: the default one calls `take`, the other one cancels.
QHBoxLayout* TakeOrCancel(QDialog& window, const char* takeName, const char* cancelName,
                          std::function<void()> take);

} // namespace orva
