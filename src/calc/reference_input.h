// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "state/dialogs.h"
#include "state/reference_point.h"
#include "state/substance_data.h"

namespace orva {

// The number fields of `frmReferenz`, in their order: K, kPa, K, kPa, kJ/kmol, kJ/(kmol K).
enum ReferenceField : int { refT0, refP0, refTenv, refPenv, refH0, refS0, refFieldCount };

// State and rules of `frmReferenz`, which takes the normalisation of enthalpy and entropy and the ambient
// state of the exergies. The record changes with OK alone.
class ReferenceInput {
public:
    ReferenceInput(ReferencePoint& reference, const SubstanceData& substance);

    // 0: zero at the user's (T0, p0), 1: from the enthalpy of formation and the conventional entropy, 2: from
    // the enthalpy and the free enthalpy of formation. They stand for kinds 1, 2 and 10.
    int opt_HNull = 0;
    // Texts of the fields. All digits of the record, so that taking them again changes nothing.
    std::array<std::string, refFieldCount> T;

    // Takes another option. The first one sets p0 to normal pressure; the others bring the standard state,
    // which cannot be edited, and leave the T0 typed before for a return.
    void TakeOption(int option);

    // Data of formation hold for the standard state alone; what is added to them is open under every kind.
    bool Editable(int field) const;

    // What h and s are at the reference point, in words.
    std::string Explanation() const;

    struct Refusal {
        Message message;
        int field;
    };
    // Writes the record. A field without a usable number (a temperature or pressure must be positive and
    // finite, h0 and s0 finite) is refused, and nothing is changed. An ambient temperature of 0 becomes 1e-6.
    std::optional<Refusal> OK();

    // True if OK changed what the functions count from.
    bool Changed() const { return changed; }

private:
    std::optional<double> Usable(int field) const;
    void ShowStandardState();

    ReferencePoint& reference;
    const SubstanceData& substance;
    std::string ownT0; // T0 of the first option while another one is taken
    bool changed = false;
};

} // namespace orva
