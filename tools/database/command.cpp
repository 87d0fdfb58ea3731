// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/command.h"

#include <ostream>

#include "database/database_build.h"
#include "text/text_file.h"

namespace orva {

int RunBuildCommand(const std::vector<std::filesystem::path>& arguments, std::ostream& output,
                    std::ostream& errors) {
    if (arguments.size() != 2) {
        errors << "usage: orva-build-database TABLES_DIR OUTPUT_DIR\n";
        return 2;
    }
    const std::filesystem::path& folder = arguments[1];
    const DatabaseBuild build = BuildDatabase(ReadSourceFiles(arguments[0]));
    for (const Refusal& refusal : build.refusals)
        errors << RefusalText(refusal) << "\n";
    if (!build.refusals.empty()) {
        errors << build.refusals.size() << " refused, nothing written\n";
        return 1;
    }
    std::error_code ignored; // a folder that is not there shows when the files are written
    std::filesystem::create_directories(folder, ignored);
    if (!WriteFile(folder / "ORVA.Q05", build.database)
        || !WriteFile(folder / "SYNOM.TXT", build.synonymFile)) {
        errors << "cannot write into " << folder.string() << "\n";
        return 3;
    }
    output << build.substances << " substances, " << build.names << " groups of names\n";
    return 0;
}

} // namespace orva
