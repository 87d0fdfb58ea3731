// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/machine.h"

namespace orva {

// The machine as Qt sees it. Needs a running application object.
class QtMachine : public Machine {
public:
    std::filesystem::path InstallationFolder() const override;
    std::filesystem::path WritableFolder() const override;
    bool DecimalComma() const override;
    std::chrono::year_month_day Today() const override;
    std::string ShortDate() const override;
};

} // namespace orva
