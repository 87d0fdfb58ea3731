// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QPrinter>

#include "calc/list_page.h"
#include "state/dialogs.h"

class QWidget;

namespace orva {

// Draws a list on paper in the Courier typeface, as many lines a page as it takes. False if the printer does
// not take it.
bool DrawResultList(const std::vector<ListLine>& lines, QPrinter& printer);

// Lets the user pick the printer, or a PDF file, and prints. True when that is done, also where the printer
// failed, which is said in a box; false when the user cancels.
bool PrintResultList(const std::vector<ListLine>& lines, Dialogs& dialogs, QWidget* parent);

} // namespace orva
