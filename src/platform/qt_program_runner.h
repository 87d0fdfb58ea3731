// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/program_runner.h"

namespace orva {

// Helper programs through QProcess. Needs no application object.
class QtProgramRunner : public ProgramRunner {
public:
    void Run(const std::filesystem::path& program, const std::filesystem::path& folder, int seconds) override;
};

} // namespace orva
