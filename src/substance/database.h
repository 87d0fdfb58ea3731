// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <optional>

#include "state/substance_list.h"
#include "substance/record.h"

namespace orva {

struct DatabaseLoadResult {
    bool notFound = false;  // missing or empty file, or a header that counts no substance
    bool readError = false; // the file ends before the last record that the header promises
    bool Good() const { return !notFound && !readError; }
};

// The open database file with its list of substances. The file stays open, so that the choice of a substance
// costs one seek and one read; the list holds four short fields a substance.
class Database {
public:
    // Opens a file and builds the list from it. A path without a folder is taken relative to the installation
    // folder. When the load fails in any way, the database that was open before stays open with its list.
    DatabaseLoadResult LoadDatabase(const std::filesystem::path& path,
                                    const std::filesystem::path& installationFolder, bool englishText);

    // Closes the file; the list stays.
    void Close();
    bool IsOpen() const;
    const SubstanceList& List() const;

    // Record of list index 1 to count; nothing if it cannot be read.
    std::optional<DatabaseRecord> ReadRecord(int listIndex);

private:
    std::ifstream file;
    SubstanceList list;
};

} // namespace orva
