// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/database_build.h"

#include <cstdint>
#include <limits>

#include "database/accepted_deviations.h"
#include "database/common_fluids.h"
#include "database/coverage.h"
#include "database/record_checks.h"
#include "database/record_compiler.h"
#include "database/synonym_file.h"
#include "database/table_layout.h"
#include "text/text_file.h"

namespace orva {
namespace {

constexpr std::string_view databaseTitle = "ORVA substance data";

// The date of the last change of the data, "2026-11-21", so that equal tables give equal bytes.
std::string ReadVersion(std::string_view bytes, Refusals& refusals) {
    std::string date(bytes.substr(0, bytes.find_first_of("\r\n")));
    const std::string_view rest = bytes.substr(date.size());
    bool good = date.size() == 10 && (rest.empty() || rest == "\n" || rest == "\r\n");
    for (std::size_t i = 0; good && i < date.size(); ++i)
        good = i == 4 || i == 7 ? date[i] == '-' : date[i] >= '0' && date[i] <= '9';
    if (!good)
        refusals.push_back(
            {std::string(versionFile), 1, "", "one line with a date like 2026-11-21 is expected"});
    return date;
}

// Bytes of a file; a missing one is refused.
std::string_view FileBytes(const SourceFiles& files, std::string_view name, Refusals& refusals) {
    const auto found = files.find(name);
    if (found != files.end())
        return found->second;
    refusals.push_back({std::string(name), 0, "", "the file is missing or cannot be read"});
    return {};
}

Table TableOf(const SourceFiles& files, std::string_view name, const std::vector<std::string>& columns,
              Refusals& refusals) {
    const std::size_t before = refusals.size();
    const std::string_view bytes = FileBytes(files, name, refusals);
    return refusals.size() > before ? Table{} : ReadTable(name, bytes, columns, refusals);
}

std::string EncodeDatabase(const std::vector<CompiledSubstance>& substances, const std::string& date) {
    DatabaseRecord header;
    header.formula = date;
    header.nameEnglish = databaseTitle;
    header.number = static_cast<std::int16_t>(substances.size());
    std::string bytes = EncodeRecord(header);
    for (const CompiledSubstance& substance : substances)
        bytes += EncodeRecord(substance.record);
    return bytes;
}

} // namespace

DatabaseBuild BuildDatabase(const SourceFiles& files) {
    DatabaseBuild build;
    Refusals& refusals = build.refusals;
    const std::string date = ReadVersion(FileBytes(files, versionFile, refusals), refusals);
    const Bibliography bibliography = ReadBibliography(FileBytes(files, sourcesFile, refusals));
    if (bibliography.empty())
        refusals.push_back({std::string(sourcesFile), 0, "", "no keys under \"## Bibliography\""});
    std::vector<Table> tables;
    for (const TableLayout& layout : TableLayouts())
        tables.push_back(TableOf(files, layout.file, Columns(layout), refusals));
    const Table acceptedTable = TableOf(files, acceptedFile, AcceptedColumns(), refusals);
    const Table synonyms = TableOf(files, synonymsFile, SynonymColumns(), refusals);
    // A table that cannot be read would only draw refusals of all the others.
    if (!refusals.empty())
        return build;

    std::vector<CompiledSubstance> substances = CompileRecords(tables, bibliography, refusals);
    if (substances.empty() || substances.size() > std::numeric_limits<std::int16_t>::max())
        refusals.push_back({std::string(identityFile), 0, "", "1 to 32767 substances are possible"});
    build.checks =
        CheckRecords(substances, AcceptedDeviations(acceptedTable, substances, refusals), refusals);
    const std::vector<SynonymGroup> groups = CompileSynonyms(substances, synonyms, refusals);
    if (!refusals.empty())
        return build;
    build.database = EncodeDatabase(substances, date);
    build.synonymFile = EncodeSynonyms(groups);
    build.substances = static_cast<int>(substances.size());
    build.names = static_cast<int>(groups.size());
    build.coverage = CoverageText(substances, tables, build.names - build.substances);
    build.incomplete = IncompleteFluids(substances);
    return build;
}

SourceFiles ReadSourceFiles(const std::filesystem::path& folder) {
    std::vector<std::string> names{std::string(versionFile), std::string(sourcesFile),
                                   std::string(acceptedFile), std::string(synonymsFile)};
    for (const TableLayout& layout : TableLayouts())
        names.emplace_back(layout.file);
    SourceFiles files;
    for (const std::string& name : names) {
        if (auto bytes = ReadFile(folder / name))
            files.emplace(name, std::move(*bytes));
    }
    return files;
}

} // namespace orva
