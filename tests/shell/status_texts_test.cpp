// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/road.h"
#include "shell/status_texts.h"
#include "support/sample_database.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "thermo/eos_constants.h"

namespace orva::test {
namespace {

struct StatusTexts : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    Session session{machine, dialogs};

    // The text between its head and the closing line.
    std::string Series() const {
        const std::string text = StatusMessage(session).text;
        const std::size_t begin =
            text.find("... exper.") == text.npos ? text.find("... Stapeldatei") : text.find("... exper.");
        return text.substr(begin, text.find("\n(weitere") - begin);
    }
};

TEST_F(StatusTexts, SayThatNothingIsLoaded) {
    const Message message = StatusMessage(session);
    EXPECT_EQ(message.title, " geladen sind jetzt ... ");
    EXPECT_EQ(message.text, "... noch keine Datenbank\n"
                            " ... noch kein Stoff\n"
                            "... exper. T-p-rho-HLV-cp-Daten: keine\n"
                            "\n(weitere geladene Projekt-Parameter s. unter \"Optionen\")");
}

TEST_F(StatusTexts, NameDatabaseAndSubstance) {
    const std::string path = WriteSampleDatabase(machine.InstallationFolder()).string();
    ASSERT_TRUE(OpenDatabase(session, path));
    ASSERT_TRUE(AcceptSubstance(session, 1));
    EXPECT_EQ(StatusMessage(session).text, "... Datenbank " + path
                                               + "\n    mit 3 Stoff(en)\n\n"
                                                 "... Stoff: C4H10, 106-97-8, n-Butan (#1)\n"
                                                 "... exper. T-p-rho-HLV-cp-Daten: keine\n"
                                                 "\n(weitere geladene Projekt-Parameter s. unter "
                                                 "\"Optionen\")");
}

TEST_F(StatusTexts, CountADataSeriesThatHasNoFile) {
    session.state.batchRowCount = 1;
    EXPECT_EQ(Series(), "... exper. T-p-rho-HLV-cp-Daten: 1 Datensatz verfügbar,\nnoch nicht gespeichert.\n");
    session.state.batchRowCount = 2;
    EXPECT_EQ(Series(),
              "... exper. T-p-rho-HLV-cp-Daten: 2 Datensätze verfügbar,\nnoch nicht gespeichert.\n");
}

TEST_F(StatusTexts, NameTheFileOfADataSeriesWithWhatIsKnownOfIt) {
    ASSERT_TRUE(OpenDatabase(session, WriteSampleDatabase(machine.InstallationFolder())));
    session.state.batchRowCount = 3;
    session.state.batchFile = "butan.BAQ";
    session.state.batchDate = "  ";
    session.state.batchComment = "Messung";
    EXPECT_EQ(Series(), "... Stapeldatei butan.BAQ\n    mit 3 Datensätzen\n    Dateikommentar:Messung\n");
    session.state.batchDate = "1.2.2003";
    session.state.batchCas = "106-97-8    ";
    EXPECT_EQ(Series(), "... Stapeldatei butan.BAQ\n    vom 1.2.2003\n    mit 3 Datensätzen\n"
                        "    Stoff: n-Butan; Butan\n    Dateikommentar:Messung\n");
}

TEST_F(StatusTexts, TellTheConstantsOfTheEquation) {
    EXPECT_EQ(EosParametersMessage(session).text, "Idealgasgleichung eingestellt"); // not chosen yet
    session.model.selection.eos = eosIdealGas;
    EXPECT_EQ(EosParametersMessage(session).text, "Idealgasgleichung eingestellt");
    session.model.selection.eos = virialPitzerCurl;
    EXPECT_EQ(EosParametersMessage(session).text,
              "Parameter der PITZER/CURL-Gleichung\n\nsiehe Hilfe im Fenster \"Berechnungsmodelle\"");
    session.model.substance = {};
    session.model.substance.name = "n-Butan";
    session.model.substance.molarMass = 58.1222F;
    session.model.substance.Tc = 425.125;
    session.model.substance.pc = 3796;
    session.model.selection.eos = eosVanDerWaals;
    ASSERT_TRUE(DetermineEosParameters(session.model, eosVanDerWaals));
    // a = 27/64 R^2 Tc^2/pc = 1388.5585, b = R Tc/(8 pc) = 0.1163957, vc = 3/8 R Tc/pc = 0.3491873
    const Message message = EosParametersMessage(session);
    EXPECT_EQ(message.title, " Parameter der generalisierten Zustandsgleichung ");
    EXPECT_EQ(message.text, "Parameter CEOS van der Waals\nfür n-Butan"
                            "\na0 = 1388.559\na1 = 0\nb0 = 0.1163957\nb1 = 0"
                            "\nc0 = 0\nc1 = 0\nd0 = 0\nd1 = 0"
                            "\nkrit. Volumen aus T(cr) und p(cr) berechnet:"
                            "\n         v(cr)/m^3/kmol = 0.3491873"
                            "\n(entspr. rho(cr)/kg/m^3 = 166.45)");
}

} // namespace
} // namespace orva::test
