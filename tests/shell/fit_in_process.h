// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helpers/dvopar/result_text.h"
#include "helpers/dvopar/vo_halme_fit.h"
#include "state/program_runner.h"
#include "text/text_file.h"

namespace orva::test {

// Runs the fit of the helper program within the test, without a process for each substance.
class FitInProcess : public ProgramRunner {
public:
    void Run(const std::filesystem::path&, const std::filesystem::path& folder, int) override {
        const dvopar::ParsedRequest parsed =
            dvopar::ParseRequest(ReadFile(folder / "vopar.tmp").value_or(""));
        if (!parsed.request)
            return;
        const dvopar::VoHalmeFit fit = dvopar::FitVoHalme(*parsed.request);
        if (fit.parameters)
            WriteFile(folder / dvopar::ResultFileName(parsed.request->row),
                      dvopar::ResultText(*parsed.request, *fit.parameters));
    }
};

} // namespace orva::test
