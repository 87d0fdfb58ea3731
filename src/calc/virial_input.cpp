// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/virial_input.h"

#include "calc/point_input.h"
#include "text/number_format.h"
#include "text/number_input.h"

namespace orva {

VirialInput::VirialInput(const std::array<double, 3>& shown) : constants(shown) {
    for (std::size_t i = 0; i < par.size(); ++i)
        par[i] = FieldText(constants[i]);
}

std::optional<VirialInput::Refusal> VirialInput::cmdParameter_OK() {
    std::array<double, 3> taken{};
    for (std::size_t i = 0; i < par.size(); ++i) {
        const std::optional<double> value = ReadNumber(par[i]);
        if (!value)
            return Refusal{InvalidInputMessage(), static_cast<int>(i)};
        taken[i] = *value;
    }
    constants = taken;
    return std::nullopt;
}

} // namespace orva
