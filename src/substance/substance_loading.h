// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "state/dialogs.h"
#include "state/substance_data.h"
#include "substance/database.h"

namespace orva {

struct SubstanceLoadResult {
    bool criticalDataMissing = false; // loaded, but T(cr) or p(cr) is not given
    bool readError = false;           // nothing was changed
};

// Reads one record into `substance` and applies the rules of loading: rounding of M, T(cr) and p(cr), the
// second source of the triple-point temperature, the August equation, a computed normal boiling temperature,
// the validity of the heat capacities, the choice of the reference point of the enthalpy of vaporisation. The
// correlated vapour-pressure blocks keep what they hold. A list index of 0 changes nothing. A record whose
// numbers are not finite, or whose limits do not fit 16 bits, is a read error.
SubstanceLoadResult LoadSubstanceRecord(Database& database, int listIndex, bool englishText,
                                        SubstanceData& substance);

// The same rules for a record in memory; false, with nothing changed, for a record that cannot be used.
bool FillFromRecord(const DatabaseRecord& record, bool englishText, SubstanceData& substance,
                    SubstanceLoadResult& result);

// The formula without any blank, as titles show it.
std::string CompactFormula(std::string_view text);

// The box for a substance without critical data, and the one for a record that cannot be read.
Message CriticalDataMissingMessage(const SubstanceData& substance);
Message RecordUnreadableMessage(int listIndex);

} // namespace orva
