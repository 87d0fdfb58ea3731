// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <iosfwd>
#include <vector>

namespace orva {

// orva-build-database TABLES_DIR OUTPUT_DIR: compiles the tables into ORVA.Q05 and SYNOM.TXT. All refusals go
// to `errors`, and then nothing is written. With --check, --list, --incomplete or --coverage it reports on
// the tables instead; the usage tells how. Exit status: 0 good, 1 refused rows, 2 wrong usage, 3 the output
// cannot be written.
int RunBuildCommand(const std::vector<std::filesystem::path>& arguments, std::ostream& output,
                    std::ostream& errors);

} // namespace orva
