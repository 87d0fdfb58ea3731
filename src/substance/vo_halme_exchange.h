// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/dialogs.h"
#include "state/machine.h"
#include "state/program_runner.h"
#include "state/substance_model.h"

namespace orva {

// The constants of the two Vo / Halme rows (7 and 8 in ModelSelection.eos) come from a program beside the
// workbench: it reads the substance from vopar.tmp and leaves the constants in PARAM_VO.DAT (row 7) or
// PARA_VO2.DAT (row 8). The exchange files lie in the folder for what the program writes.

// Text of the request: code of the row, CAS number, flags of the vapour-pressure equation in force,
// constants, liquid density, parameters of the vapour-pressure equation. Six lines with "\r\n".
std::string VoHalmeRequestText(const SubstanceModel& model, int eosType);

// Name of the result file of a row.
std::string_view VoHalmeResultName(int eosType);

struct VoHalmeResult {
    double m1 = 0, m2 = 0, m3 = 0, zeta = 0;
    double k = 0; // row 8 only
};

// Reads the text of a result file: an integer and a text, which are not evaluated, then m1, m2, m3, zeta and,
// for row 8, k. Nothing if items are missing or are no numbers.
std::optional<VoHalmeResult> ReadVoHalmeResult(std::string_view text, int eosType);

struct EosDetermination {
    bool failed = false;
    std::vector<Message> messages; // boxes, in their order
};

// The box for constants that cannot be determined.
Message EosConstantsFailedMessage();

// Writes the request, runs the program, takes zeta, m1 to m3 and, for row 8, k into model.voHalme. An old
// result is deleted first, so that a program that does not run cannot be mistaken for one that did. Waits up
// to 100 s. The constants read are not checked for plausibility.
EosDetermination RunVoHalmeSolver(SubstanceModel& model, int eosType, const Machine& machine,
                                  ProgramRunner& runner);

// Turns the data of the substance into the constants of any row: the program and the closed formulas for rows
// 7 and 8, the formulas alone for the others. After a failure the constants are not usable.
EosDetermination DetermineEosConstants(SubstanceModel& model, int eosType, const Machine& machine,
                                       ProgramRunner& runner);

} // namespace orva
