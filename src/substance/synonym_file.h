// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "state/dialogs.h"

namespace orva {

// What SYNOM.TXT knows of a name. The file (code page 850) is a row of groups, each closed by an empty line:
// CAS number, a line for substances that no database holds, and one synonym a line in the spelling of
// SearchKey.
struct SynonymResult {
    std::string cas = "END"; // "END" when the file does not know the name
    std::string secondLine;  // second line of the group
    bool failed = false;     // the file could not be read; the user has been told
};

// Looks a name or a CAS number up in SYNOM.TXT of the installation folder.
SynonymResult LookUpSynonym(std::string_view text, const std::filesystem::path& installationFolder,
                            Dialogs& dialogs);

// The second line of a group in its parts: a leading character, then fields that are joined by "_".
struct SynonymDescription {
    std::string name;      // first field
    std::string middle;    // all fields between, the first three "_" as blanks
    std::string lastField; // empty if there is but one field
};
SynonymDescription DescribeSynonym(std::string_view secondLine);

} // namespace orva
