// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "database/check_results.h"
#include "database/refusal.h"

namespace orva {

using SourceFiles = std::map<std::string, std::string, std::less<>>; // name -> bytes

struct DatabaseBuild {
    Refusals refusals;       // when there are any, the files are empty
    std::string database;    // bytes of ORVA.Q05
    std::string synonymFile; // bytes of SYNOM.TXT
    int substances = 0;
    int names = 0;          // groups of the synonym file
    CheckResults checks;    // filled as soon as all tables can be read
    std::string coverage;   // CoverageText
    std::string incomplete; // IncompleteFluids
};

// Checks and compiles the tables. Survives any bytes.
DatabaseBuild BuildDatabase(const SourceFiles& files);

// The files of a folder that the build looks at; those that cannot be read are left out.
SourceFiles ReadSourceFiles(const std::filesystem::path& folder);

} // namespace orva
