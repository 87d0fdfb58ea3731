// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "state/substance_data.h"

namespace orva {

// One value of the record: where it stands in the value table and where it goes. Loader, build tool, editor
// and command line read this one table.
struct RecordField {
    std::string_view name; // "Tc", "wagner.w1", "rhoLiquid.Tlo": the field of SubstanceData
    int position;          // 0 to 123
    bool isLimit;          // a whole number of kelvins
    double (*get)(const SubstanceData&);
    void (*set)(SubstanceData&, float value); // as stored; limits are truncated
};

// True if the whole part of a stored limit fits the 16 bits that it has in the program. The setter of a limit
// stores 0 for one that does not.
bool FitsLimit(float value);

// Every value that has a place in SubstanceData, in the order of positions.
std::span<const RecordField> RecordFields();

// Values that only the loader looks at.
inline constexpr int positionTmelt = 93;       // fallback of the triple-point temperature
inline constexpr int positionHVapSecond = 107; // second point of the enthalpy of vaporisation
inline constexpr int positionTVapSecond = 108;

// Position of a field by its name, -1 for none.
int RecordPosition(std::string_view name);

} // namespace orva
