// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "state/machine.h"

class QTemporaryDir;

namespace orva {

// The machine of a program without windows. Qt is asked once, by an application object that lives no longer
// than the constructor, so that another one may follow when something is to be drawn. What such a program
// writes for itself goes to a folder of its own, which ends with it: several may run side by side.
class ProgramMachine : public Machine {
public:
    ProgramMachine(int argc, char** argv);
    ~ProgramMachine() override;

    std::filesystem::path InstallationFolder() const override { return installationFolder; }
    std::filesystem::path WritableFolder() const override;
    bool DecimalComma() const override { return decimalComma; }
    std::chrono::year_month_day Today() const override;
    std::string ShortDate() const override;

private:
    std::filesystem::path installationFolder;
    std::unique_ptr<QTemporaryDir> ownFolder;
    bool decimalComma = false;
};

} // namespace orva
