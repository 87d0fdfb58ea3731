// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/main_output.h"

#include <cstdio>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "cli/answer.h"

namespace orva {

void PrintErrorLine(std::string_view text) {
    std::cerr << "orva-cli: " << OneLine(text) << std::endl;
}

int OutputFailure() {
    PrintErrorLine("standard output cannot be written");
    return exitDataError;
}

bool IsErrorTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

} // namespace orva
