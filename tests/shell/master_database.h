// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "shell/road.h"
#include "support/scripted_dialogs.h"

namespace orva::test {

// The folder that the build made.
class BuiltMachine : public Machine {
public:
    explicit BuiltMachine(std::filesystem::path ownFolder = ORVA_INSTALLATION_FOLDER)
        : writable(std::move(ownFolder)) {}
    std::filesystem::path InstallationFolder() const override { return ORVA_INSTALLATION_FOLDER; }
    std::filesystem::path WritableFolder() const override { return writable; }
    bool DecimalComma() const override { return false; }
    std::chrono::year_month_day Today() const override { return std::chrono::sys_days(); }
    std::string ShortDate() const override { return "01.01.1970"; }

private:
    std::filesystem::path writable;
};

struct MasterDatabase : testing::Test {
    BuiltMachine machine;
    ScriptedDialogs dialogs;
    Session session{machine, dialogs};

    void SetUp() override { ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05")); }

    // Calls `check` for every substance and every row that its data allow, with the constants determined; the
    // Vo / Halme rows, whose constants a program fits, aside.
    template<class Check> void ForEveryModel(Check check) { ForEveryModel(1, check); }

    // The same for each `step`th substance.
    template<class Check> void ForEveryModel(int step, Check check) {
        for (int index = 1; index <= session.state.substanceCount; index += step) {
            if (!AcceptSubstance(session, index))
                continue;
            ModelChoice choice = MakeModelChoice(session);
            choice.Open();
            for (std::size_t row = 0; row < choice.EOSKombi.rows.size(); ++row) {
                choice.SelectEos(static_cast<int>(row));
                ASSERT_TRUE(choice.OKModell(dialogs));
                if (session.model.selection.eos == virialByHand) {
                    session.model.eos.b0 = 0.1;
                    session.model.eos.nB = 1e4;
                    session.model.eos.nF = 1.5;
                }
                check(session.model);
            }
        }
    }
};

} // namespace orva::test
