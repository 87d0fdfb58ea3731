// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/command.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <string_view>

#include "database/coverage.h"
#include "database/database_build.h"
#include "text/text_file.h"

namespace orva {

namespace {

constexpr std::string_view usage =
    "usage: orva-build-database TABLES_DIR OUTPUT_DIR             compiles the database and the synonyms\n"
    "       orva-build-database --check TABLES_DIR                a table of all checks\n"
    "       orva-build-database --list TABLES_DIR [CHECK]         every deviation, of one check or of all\n"
    "       orva-build-database --incomplete TABLES_DIR           common fluids that lack something\n"
    "       orva-build-database --coverage TABLES_DIR DOCUMENT    brings the coverage in a document up to "
    "date\n";

int ReportRefusals(const DatabaseBuild& build, std::ostream& errors) {
    for (const Refusal& refusal : build.refusals)
        errors << RefusalText(refusal) << "\n";
    if (build.refusals.empty())
        return 0;
    errors << build.refusals.size() << " refused, nothing written\n";
    return 1;
}

int Build(const std::filesystem::path& tables, const std::filesystem::path& folder, std::ostream& output,
          std::ostream& errors) {
    const DatabaseBuild build = BuildDatabase(ReadSourceFiles(tables));
    if (const int status = ReportRefusals(build, errors); status != 0)
        return status;
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

int UpdateCoverage(const std::filesystem::path& tables, const std::filesystem::path& document,
                   std::ostream& errors) {
    const DatabaseBuild build = BuildDatabase(ReadSourceFiles(tables));
    if (const int status = ReportRefusals(build, errors); status != 0)
        return status;
    const std::optional<std::string> updated = WithCoverage(ReadFile(document).value_or(""), build.coverage);
    if (updated && WriteFile(document, *updated))
        return 0;
    errors << (updated ? "cannot write " : "no coverage marks in ") << document.string() << "\n";
    return 3;
}

bool IsCheck(std::string_view name) {
    const auto checks = ValueChecks();
    return std::any_of(checks.begin(), checks.end(), [&](const ValueCheck& c) { return c.name == name; });
}

} // namespace

int RunBuildCommand(const std::vector<std::filesystem::path>& arguments, std::ostream& output,
                    std::ostream& errors) {
    const std::size_t count = arguments.size();
    const std::string first = count > 0 ? arguments[0].string() : "";
    const std::string check = count == 3 ? arguments[2].string() : "";
    if (first == "--check" && count == 2) {
        const DatabaseBuild build = BuildDatabase(ReadSourceFiles(arguments[1]));
        output << CheckTable(build.checks);
        return ReportRefusals(build, errors);
    }
    if (first == "--list" && (count == 2 || (count == 3 && IsCheck(check)))) {
        const DatabaseBuild build = BuildDatabase(ReadSourceFiles(arguments[1]));
        output << DeviationList(build.checks, check);
        return ReportRefusals(build, errors);
    }
    if (first == "--incomplete" && count == 2) {
        const DatabaseBuild build = BuildDatabase(ReadSourceFiles(arguments[1]));
        output << build.incomplete;
        return ReportRefusals(build, errors);
    }
    if (first == "--coverage" && count == 3)
        return UpdateCoverage(arguments[1], arguments[2], errors);
    if (count == 2 && !first.starts_with("--"))
        return Build(arguments[0], arguments[1], output, errors);
    errors << usage;
    return 2;
}

} // namespace orva
