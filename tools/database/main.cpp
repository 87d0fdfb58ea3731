// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>

#include "database/command.h"

int main(int argc, char** argv) {
    return orva::RunBuildCommand({argv + 1, argv + argc}, std::cout, std::cerr);
}
