// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/machine.h"

namespace orva {

// The machine of a program without windows. Qt is asked once, by an application object that lives no longer
// than the constructor, so that another one may follow when something is to be drawn.
class ProgramMachine : public Machine {
public:
    ProgramMachine(int argc, char** argv);

    std::filesystem::path InstallationFolder() const override { return installationFolder; }
    std::filesystem::path WritableFolder() const override { return writableFolder; }
    bool DecimalComma() const override { return decimalComma; }

private:
    std::filesystem::path installationFolder, writableFolder;
    bool decimalComma = false;
};

} // namespace orva
