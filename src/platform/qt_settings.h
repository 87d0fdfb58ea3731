// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/settings.h"

namespace orva {

// The settings store of the user, under the names of organisation and application.
class QtSettings : public Settings {
public:
    std::optional<int> Number(std::string_view section, std::string_view key) const override;
    void SetNumber(std::string_view section, std::string_view key, int value) override;
};

} // namespace orva
