// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace orva {

// "orva-cli: text" on standard error.
void PrintErrorLine(std::string_view text);

// Says that standard output cannot be written; the exit status for it.
int OutputFailure();

// True if standard error is a terminal.
bool IsErrorTerminal();

} // namespace orva
