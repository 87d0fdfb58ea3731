// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "shell/session.h"

namespace orva {

// Finds the substance that a text names: "#index", CAS number, German or English name, with or without what
// stands behind its first ";", and last the free search of the substance window with its synonyms.
class SubstanceLookup {
public:
    explicit SubstanceLookup(Session& theSession) : session(theSession) {}

    // List index, 0 for none. The boxes of the free search go to the dialogs of the session.
    int Find(std::string_view text);
    // Before that, a text of digits is the serial number of a substance.
    int FindNameOrNumber(std::string_view text);

private:
    void BuildNames();

    Session& session;
    std::map<std::string, int, std::less<>> names; // built on first use; the first of equal names counts
};

} // namespace orva
