// SPDX-License-Identifier: GPL-3.0-or-later
#include <chrono>

#include "helpers/deviations.h"
#include "platform/qt_program_runner.h"
#include "support/test_machine.h"

namespace orva {
namespace {

// The programs lie in the folder of the build, the exchange files in one of the test.
class BuiltMachine : public test::TestMachine {
public:
    std::filesystem::path InstallationFolder() const override {
        return std::filesystem::path(ORVA_DVOPAR).parent_path();
    }
};

TEST(DvoparExchange, BringsTheConstantsOfTheProgramIntoTheModel) {
    const BuiltMachine machine;
    QtProgramRunner runner;
    const std::optional<SubstanceData> butane = test::FromDatabase(ORVA_DATABASE, "106-97-8");
    ASSERT_TRUE(butane);
    for (const int row : {eosVoHalme1, eosVoHalme2}) {
        SubstanceModel model = test::ModelWith(*butane, row, vpWagner);
        const EosDetermination result = DetermineEosConstants(model, row, machine, runner);
        EXPECT_FALSE(result.failed);
        EXPECT_THAT(result.messages, ::testing::IsEmpty());
        SubstanceModel expected = test::ModelWith(*butane, row, vpWagner);
        ASSERT_TRUE(test::Determine(expected));
        EXPECT_EQ(model.voHalme.zeta, expected.voHalme.zeta);
        EXPECT_EQ(model.voHalme.m1, expected.voHalme.m1);
        EXPECT_EQ(model.voHalme.m2, expected.voHalme.m2);
        EXPECT_EQ(model.voHalme.m3, expected.voHalme.m3);
        EXPECT_EQ(model.voHalme.k, expected.voHalme.k);
        EXPECT_EQ(model.eos.vCritCalc, expected.eos.vCritCalc);
    }
}

TEST(DvoparExchange, ReportsASubstanceThatTheProgramRefuses) {
    const BuiltMachine machine;
    QtProgramRunner runner;
    SubstanceModel model = test::ModelWith(SubstanceData{}, eosVoHalme1, vpNone);
    const EosDetermination result = DetermineEosConstants(model, eosVoHalme1, machine, runner);
    EXPECT_TRUE(result.failed);
    ASSERT_EQ(result.messages.size(), 2U);
    EXPECT_EQ(result.messages[0].text, "Kein Parameterfile erzeugt.");
    EXPECT_EQ(result.messages[1].text, "Fehler bei der EOS-Parameterberechnung");
}

TEST(QtProgramRunner, ComesBackFromAProgramThatIsNotThere) {
    const BuiltMachine machine;
    QtProgramRunner().Run(machine.InstallationFolder() / "nothing.exe", machine.WritableFolder(), 100);
    EXPECT_TRUE(std::filesystem::is_empty(machine.WritableFolder()));
}

} // namespace
} // namespace orva
