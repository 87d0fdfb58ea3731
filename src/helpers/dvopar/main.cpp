// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <iostream>

#include "helpers/dvopar/request.h"
#include "helpers/dvopar/result_text.h"
#include "helpers/dvopar/vo_halme_fit.h"
#include "text/text_file.h"

namespace {

enum ExitStatus { good = 0, noFit = 1, wrongUsage = 2, fileError = 3 };

int Fail(ExitStatus status, const std::string& why) {
    std::cerr << "dvopar: " << why << '\n';
    return status;
}

} // namespace

// dvopar.exe [FOLDER]: fits the constants of the Vo / Halme equation of state to the request vopar.tmp of the
// folder (the working folder without an argument) and writes PARAM_VO.DAT or PARA_VO2.DAT there.
int main(int argc, char** argv) {
    using namespace orva;
    if (argc > 2)
        return Fail(wrongUsage, "one folder at most");
    const std::filesystem::path folder = argc > 1 ? std::filesystem::path(argv[1]) : std::filesystem::path();
    const std::optional<std::string> text = ReadFile(folder / "vopar.tmp");
    if (!text)
        return Fail(fileError, "vopar.tmp cannot be read");
    const dvopar::ParsedRequest parsed = dvopar::ParseRequest(*text);
    if (!parsed.request)
        return Fail(fileError, parsed.error);
    const dvopar::VoHalmeFit fit = dvopar::FitVoHalme(*parsed.request);
    if (!fit.parameters)
        return Fail(noFit, fit.error);
    const std::string name = dvopar::ResultFileName(parsed.request->row);
    if (!WriteFile(folder / name, dvopar::ResultText(*parsed.request, *fit.parameters)))
        return Fail(fileError, name + " cannot be written");
    return good;
}
