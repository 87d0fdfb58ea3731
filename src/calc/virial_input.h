// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "state/dialogs.h"

namespace orva {

// State and rules of `frmBParInput`, which takes b0, b1, b2 of the second virial coefficient
// B/m^3/kmol = b0 - b1/T^b2.
class VirialInput {
public:
    explicit VirialInput(const std::array<double, 3>& constants);

    std::array<std::string, 3> par; // texts, all digits of the constants

    struct Refusal {
        Message message;
        int field;
    };
    // Takes the three numbers. A field without a finite number is refused, and nothing is changed.
    std::optional<Refusal> cmdParameter_OK();

    const std::array<double, 3>& Constants() const { return constants; }

private:
    std::array<double, 3> constants;
};

} // namespace orva
