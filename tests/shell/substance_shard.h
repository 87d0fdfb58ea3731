// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <set>

#include "fit_in_process.h"
#include "master_database.h"

namespace orva::test {

// Sweeps over the master database are cut into parts of about equal work, which ctest runs side by side.
inline constexpr int shards = 8;

// One part of the substances, with the rows of the equation of state that a program fits among the others.
struct SubstanceShard : testing::TestWithParam<int> {
    BuiltMachine machine{OwnFolder()};
    ScriptedDialogs dialogs;
    FitInProcess runner;
    Session session{machine, dialogs, &runner};
    int substancesSeen = 0;

    void SetUp() override {
        std::filesystem::create_directories(machine.WritableFolder());
        ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    }
    void TearDown() override { std::filesystem::remove_all(machine.WritableFolder()); }

    // Calls `check` for each `step`th substance of this part, with `rowsEach` of the rows that its data
    // allow. The rows take turns from substance to substance.
    template<class Check> void ForRotatingModels(int step, int rowsEach, Check check) {
        int turn = GetParam();
        ForEachSubstance(step, [&](ModelChoice& choice) {
            const int rows = static_cast<int>(choice.EOSKombi.rows.size());
            for (int i = 0; i < std::min(rowsEach, rows) && !HasFatalFailure(); ++i)
                WithRow(choice, turn++ % rows, check);
        });
    }

    // The same with the rows of these numbers, as far as the data of the substance allow them.
    template<class Check> void ForModels(int step, const std::set<int>& numbers, Check check) {
        ForEachSubstance(step, [&](ModelChoice& choice) {
            for (const int number : numbers)
                if (const int row = choice.EOSKombi.RowOf(number); row >= 0 && !HasFatalFailure())
                    WithRow(choice, row, check);
        });
    }

    std::string ModelName() const {
        return session.model.substance.name + " row " + std::to_string(session.model.selection.eos);
    }

private:
    template<class Visit> void ForEachSubstance(int step, Visit visit) {
        for (int index = 1 + GetParam() * step; index <= session.state.substanceCount;
             index += shards * step) {
            if (!AcceptSubstance(session, index))
                continue;
            ++substancesSeen;
            ModelChoice choice = MakeModelChoice(session);
            choice.Open();
            visit(choice);
            if (HasFatalFailure())
                return;
        }
    }

    template<class Check> void WithRow(ModelChoice& choice, int row, Check check) {
        choice.SelectEos(row);
        ASSERT_TRUE(choice.OKModell(dialogs)) << session.model.substance.name;
        if (session.model.selection.eos == virialByHand) {
            session.model.eos.b0 = 0.1;
            session.model.eos.nB = 1e4;
            session.model.eos.nF = 1.5;
        }
        check(session.model);
    }

    static std::string OwnFolder() {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string(test.test_suite_name()) + '_' + test.name();
        std::ranges::replace(name, '/', '_');
        return testing::TempDir() + "orva_" + name;
    }
};

} // namespace orva::test
