// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "shell/project.h"
#include "shell/project_file.h"
#include "shell/road.h"
#include "support/sample_database.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "text/paths.h"

namespace orva::test {

// A session with the sample database in the installation folder, and room for project files.
struct ProjectFixture : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    Session session{machine, dialogs};

    void SetUp() override { WriteSampleDatabase(machine.InstallationFolder()); }

    std::string Path(const std::string& name) const { return PathText(machine.InstallationFolder() / name); }

    // A second database, with argon as its only substance.
    void WriteArgonDatabase() const {
        const std::vector<DatabaseRecord> records{SampleRecords()[1]};
        ASSERT_TRUE(WriteFile(machine.InstallationFolder() / "ARGON.Q05", DatabaseBytes(records)));
    }

    static ProjectFile ButaneProject() {
        ProjectFile project;
        project.date = "1.2.2025";
        project.comment = "Füllung";
        project.database = "ORVA.Q05";
        project.cas = "106-97-8";
        project.vaporPressure = 4;
        project.eos = 4;
        project.vaporization = 2;
        project.eosPriority = false;
        project.curvePoints = 450;
        return project;
    }
    std::string Write(const std::string& name, const ProjectFile& project) const {
        EXPECT_TRUE(WriteFile(PathOf(Path(name)), WriteProject(project)));
        return Path(name);
    }

    // As the models were confirmed.
    void AcceptButane() {
        ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
        ASSERT_TRUE(AcceptSubstance(session, 1));
        ModelChoice choice = MakeModelChoice(session);
        choice.Open();
        ASSERT_TRUE(choice.OKModell(dialogs));
        AcceptModels(session, choice.Panels());
    }

    bool Allowed(const char* command) const { return session.commands.Allowed(FindCommand(command)); }
    bool LoadChosen(const std::string& name) {
        OpenWithPreview choice = LoadProjectDialog(session);
        choice.TypeFile(name);
        EXPECT_TRUE(choice.cmdOpenOK());
        return LoadChosenProject(session, choice);
    }
};

} // namespace orva::test
