// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/vo_halme_exchange.h"

#include <filesystem>

#include "support/test_machine.h"
#include "text/text_file.h"
#include "thermo/fluids.h"

namespace orva {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Message noResult{"Ausführung nicht möglich", "Kein Parameterfile erzeugt.", MessageIcon::Stop};
const Message failedMessage{"Ausführung nicht möglich", "Fehler bei der EOS-Parameterberechnung",
                            MessageIcon::Stop};

SubstanceData Sample() {
    SubstanceData s;
    s.cas = "106-97-8    ";
    s.molarMass = 58.125F;
    s.Tb = 272.5F;
    s.Tc = 425.125;
    s.pc = 3796;
    s.rhoc = 228.5;
    s.omega = 0.2;
    s.Ttrip = 134.5F;
    s.rhoLiquid = {0, 62.5F, -0.25F, 0.0078125F, 1024, 0, -3.5F, 425.125F, 135, 420};
    s.antoineLow = {5.9375F, 935.75F, 238.5F, 201, 292};
    s.antoineHigh = {6.25F, 1175.5F, 271, 273, 425};
    s.august = {12.5F, -2560.5F};
    s.frostKalkwarf = {25.8125F, -1894.5F, 273.125F, -7, 0, 0.5F, 0, 0.00390625F, 2, 136, 424, 0};
    s.wagner = {-7.125F, 1.5F, -2.25F, 2.5F, -5, 6, 3.5F, 7.5F, 425.125F, 3796, 158, 425, 0};
    s.kfw = {20.5F, -1800.25F, 0, -5.5F, 8.75F, 2, 0, 0, 0, 0, 0, 0};
    s.kfr = {21.5F, -1900.25F, 0, -5.75F, 9.75F, 2.5F, 0, 0, 0, 0, 0, 0};
    s.thompson = {6.125F, 1000.5F, 239.5F, 0, 0};
    return s;
}

SubstanceModel ModelWithCode(const char* code) {
    SubstanceModel model;
    model.substance = Sample();
    model.selection.vaporPressureCode = code;
    return model;
}

constexpr const char* constantLines =
    ".58125000E+02, .27250000E+03, .42512500E+03, .37960000E+04, .22850000E+03, .20000000E+00\r\n"
    ".00000000E+00, .62500000E+02, -.25000000E+00, .78125000E-02, .10240000E+04, .00000000E+00, "
    "-.35000000E+01, .13500000E+03, .42000000E+03\r\n";

struct CodeCase {
    const char* code;
    const char* flags;
    const char* lastLine;
};

class VoHalmeRequest : public ::testing::TestWithParam<CodeCase> {};

TEST_P(VoHalmeRequest, HasSixLinesToTheBlankForEachVapourPressureCode) {
    const CodeCase& c = GetParam();
    const std::string tail =
        std::string("\"106-97-8    \"\r\n") + c.flags + "\r\n" + constantLines + c.lastLine + "\r\n";
    EXPECT_EQ(VoHalmeRequestText(ModelWithCode(c.code), eosVoHalme1), "10\r\n" + tail);
    EXPECT_EQ(VoHalmeRequestText(ModelWithCode(c.code), eosVoHalme2), "11\r\n" + tail);
}

#define ORVA_UNUSED "0.00000000E+00"
#define ORVA_UNUSED7                                                                                         \
    ORVA_UNUSED ", " ORVA_UNUSED ", " ORVA_UNUSED ", " ORVA_UNUSED ", " ORVA_UNUSED ", " ORVA_UNUSED         \
                ", " ORVA_UNUSED

INSTANTIATE_TEST_SUITE_P(
    Codes, VoHalmeRequest,
    ::testing::Values(
        CodeCase{"ALP", "0, 1, 1",
                 ".59375000E+01, .93575000E+03, .23850000E+03, " ORVA_UNUSED7
                 ", .20100000E+03, .29200000E+03"},
        CodeCase{"AHP", "0, 1, 1",
                 ".62500000E+01, .11755000E+04, .27100000E+03, " ORVA_UNUSED7
                 ", .27300000E+03, .42500000E+03"},
        CodeCase{"THO", "0, 1, 1",
                 ".61250000E+01, .10005000E+04, .23950000E+03, " ORVA_UNUSED7
                 ", .00000000E+00, .00000000E+00"},
        CodeCase{"AUG", "1, 1, 1",
                 ".12500000E+02, -.25605000E+04, .00000000E+00, " ORVA_UNUSED7
                 ", .27250000E+03, .42512500E+03"},
        CodeCase{
            "FRO", "0, 1, 2",
            ".25812500E+02, -.18945000E+04, .27312500E+03, -.70000000E+01, .00000000E+00, .50000000E+00, "
            ".00000000E+00, .39062500E-02, .20000000E+01, " ORVA_UNUSED ",.13600000E+03 ,.42400000E+03"},
        CodeCase{
            "KFW", "0, 1, 2",
            ".20500000E+02, -.18002500E+04, .27315000E+03, -.55000000E+01, .87500000E+01, .20000000E+01, "
            ".00000000E+00, .00000000E+00, .00000000E+00, " ORVA_UNUSED ",.13450000E+03 ,.42512500E+03"},
        CodeCase{
            "KFR", "0, 1, 2",
            ".21500000E+02, -.19002500E+04, .27315000E+03, -.57500000E+01, .97500000E+01, .25000000E+01, "
            ".00000000E+00, .00000000E+00, .00000000E+00, " ORVA_UNUSED ",.13450000E+03 ,.42512500E+03"},
        CodeCase{
            "WAG", "1, 1, 3",
            "-.71250000E+01, .15000000E+01, -.22500000E+01, .25000000E+01, -.50000000E+01, .60000000E+01, "
            ".35000000E+01, .75000000E+01, .42512500E+03, .37960000E+04, .15800000E+03, .42500000E+03"},
        CodeCase{"000", "0, 1, 0",
                 ORVA_UNUSED7 ", " ORVA_UNUSED ", " ORVA_UNUSED ", " ORVA_UNUSED ", " ORVA_UNUSED
                              ", " ORVA_UNUSED}),
    [](const auto& instance) { return instance.param.code[0] == '0' ? "None" : instance.param.code; });

#undef ORVA_UNUSED
#undef ORVA_UNUSED7

TEST(VoHalmeRequestText, RoundsTheAcentricFactorToASingle) {
    SubstanceModel model = ModelWithCode("000");
    model.substance.omega = 0.123456787; // as a single 0.12345678359
    EXPECT_THAT(VoHalmeRequestText(model, eosVoHalme1), ::testing::HasSubstr(", .12345678E+00\r\n"));
}

TEST(VoHalmeRequestText, FillsTheCasNumberUpToTwelveCharacters) {
    SubstanceModel model = ModelWithCode("000");
    model.substance.cas = "74-82-8";
    EXPECT_THAT(VoHalmeRequestText(model, eosVoHalme1), ::testing::HasSubstr("\"74-82-8     \"\r\n"));
}

TEST(VoHalmeResult, HasFiveItemsBehindTheIntegerForTheFirstRowAndSixForTheSecond) {
    const std::optional<VoHalmeResult> first =
        ReadVoHalmeResult("10, text, .3, -.25E+00, 1.5, .29", eosVoHalme1);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->m1, 0.3);
    EXPECT_EQ(first->m2, -0.25);
    EXPECT_EQ(first->m3, 1.5);
    EXPECT_EQ(first->zeta, 0.29);
    EXPECT_FALSE(ReadVoHalmeResult("10, text, .3, -.25E+00, 1.5, .29", eosVoHalme2));
    const std::optional<VoHalmeResult> second =
        ReadVoHalmeResult("11\r\n\"a, b\"\r\n.3\r\n.2\n1.5,.29\r\n.125\r\n", eosVoHalme2);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->zeta, 0.29);
    EXPECT_EQ(second->k, 0.125);
}

TEST(VoHalmeResult, IsAReadFailureWithFewerOrUnreadableValues) {
    for (const char* text : {"", "10", "10\r\n\"x\"\r\n.3\r\n.2\r\n.1\r\n", "10,x,.3,.2,.1,",
                             "10,x,.3,abc,.1,.29", "10,x,.3,NaN,.1,.29", "10,x,.3,.2,.1,inf"})
        EXPECT_FALSE(ReadVoHalmeResult(text, eosVoHalme1)) << text;
}

// A program that leaves a text of its own, or nothing.
class ScriptedRunner : public ProgramRunner {
public:
    std::filesystem::path program, folder;
    int seconds = 0;
    int runs = 0;
    bool oldResultSeen = false;
    std::string name, result;

    void Run(const std::filesystem::path& path, const std::filesystem::path& where, int limit) override {
        program = path;
        folder = where;
        seconds = limit;
        ++runs;
        oldResultSeen = std::filesystem::exists(where / "PARAM_VO.DAT");
        if (!name.empty())
            WriteFile(where / name, result);
    }
};

// The installation folder cannot be written to.
class SplitMachine : public test::TestMachine {
public:
    std::filesystem::path InstallationFolder() const override { return "/nowhere"; }
};

TEST(RunVoHalmeSolver, WritesTheRequestRunsTheProgramAndTakesTheConstants) {
    const SplitMachine machine;
    ScriptedRunner runner;
    runner.name = "PARAM_VO.DAT";
    runner.result = "10,x,.3,.2,.1,.29,.5";
    SubstanceModel model = ModelWithCode("WAG");
    model.voHalme.k = 7;
    const EosDetermination result = RunVoHalmeSolver(model, eosVoHalme1, machine, runner);
    EXPECT_FALSE(result.failed);
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_EQ(runner.program, std::filesystem::path("/nowhere") / "dvopar.exe");
    EXPECT_EQ(runner.folder, machine.WritableFolder());
    EXPECT_EQ(runner.seconds, 100);
    EXPECT_EQ(ReadFile(machine.WritableFolder() / "vopar.tmp"), VoHalmeRequestText(model, eosVoHalme1));
    EXPECT_EQ(model.voHalme.m1, 0.3);
    EXPECT_EQ(model.voHalme.m2, 0.2);
    EXPECT_EQ(model.voHalme.m3, 0.1);
    EXPECT_EQ(model.voHalme.zeta, 0.29);
    EXPECT_EQ(model.voHalme.k, 7) << "the first row has no k and leaves it";
}

TEST(RunVoHalmeSolver, ReadsTheFileOfItsRow) {
    const SplitMachine machine;
    ScriptedRunner runner;
    runner.name = "PARA_VO2.DAT";
    runner.result = "11,x,.3,.2,.1,.29,.0625";
    SubstanceModel model = ModelWithCode("WAG");
    EXPECT_FALSE(RunVoHalmeSolver(model, eosVoHalme2, machine, runner).failed);
    EXPECT_EQ(model.voHalme.k, 0.0625);
    EXPECT_THAT(RunVoHalmeSolver(model, eosVoHalme1, machine, runner).messages, ElementsAre(noResult));
}

TEST(RunVoHalmeSolver, DeletesTheOldResultBeforeTheProgramRuns) {
    const SplitMachine machine;
    ASSERT_TRUE(WriteFile(machine.WritableFolder() / "PARAM_VO.DAT", "10,x,.3,.2,.1,.29"));
    ScriptedRunner runner;
    SubstanceModel model = ModelWithCode("WAG");
    const EosDetermination result = RunVoHalmeSolver(model, eosVoHalme1, machine, runner);
    EXPECT_FALSE(runner.oldResultSeen);
    EXPECT_TRUE(result.failed);
    EXPECT_THAT(result.messages, ElementsAre(noResult));
    EXPECT_EQ(model.voHalme.zeta, 0);
}

TEST(RunVoHalmeSolver, DoesNotRunTheProgramOnAnOldRequest) {
    const SplitMachine machine;
    std::filesystem::create_directory(machine.WritableFolder() / "vopar.tmp"); // cannot be replaced by a file
    ScriptedRunner runner;
    SubstanceModel model = ModelWithCode("WAG");
    EXPECT_THAT(RunVoHalmeSolver(model, eosVoHalme1, machine, runner).messages, ElementsAre(noResult));
    EXPECT_EQ(runner.runs, 0);
}

TEST(DetermineEosConstants, CompletesTheConstantsOfAVoHalmeRow) {
    const SplitMachine machine;
    ScriptedRunner runner;
    runner.name = "PARAM_VO.DAT";
    runner.result = "10,x,.3,.2,.1,.375";
    SubstanceModel model = ModelWithCode("WAG");
    model.eos.a0 = model.eos.nA = 5;
    model.eos.AlphaForm = 2;
    EXPECT_FALSE(DetermineEosConstants(model, eosVoHalme1, machine, runner).failed);
    EXPECT_NEAR(model.voHalme.OmegaB, 0.125, 1e-14);
    EXPECT_NEAR(model.voHalme.OmegaA, 27.0 / 64, 1e-14);
    EXPECT_DOUBLE_EQ(model.eos.vCritCalc, 0.375 * 8.31451 * 425.125 / 3796);
    EXPECT_DOUBLE_EQ(model.eos.rhoCritCalc, 58.125 / model.eos.vCritCalc);
    EXPECT_EQ(model.eos.a0, 0);
    EXPECT_EQ(model.eos.nA, 0);
    EXPECT_EQ(model.eos.AlphaForm, 1);
}

TEST(DetermineEosConstants, ReportsEachFailureInItsWords) {
    const SplitMachine machine;
    ScriptedRunner runner;
    SubstanceModel model = ModelWithCode("WAG");
    model.eos.rhoCritCalc = model.eos.vCritCalc = 5;
    const EosDetermination missing = DetermineEosConstants(model, eosVoHalme1, machine, runner);
    EXPECT_TRUE(missing.failed);
    EXPECT_THAT(missing.messages, ElementsAre(noResult, failedMessage));
    EXPECT_EQ(model.eos.vCritCalc, 0);
    EXPECT_EQ(model.eos.rhoCritCalc, 0);

    runner.name = "PARAM_VO.DAT";
    runner.result = "10,x,.3";
    EXPECT_THAT(DetermineEosConstants(model, eosVoHalme1, machine, runner).messages,
                ElementsAre(failedMessage));
    runner.result = "10,x,.3,.2,.1,0";
    const EosDetermination useless = DetermineEosConstants(model, eosVoHalme1, machine, runner);
    EXPECT_TRUE(useless.failed);
    EXPECT_THAT(useless.messages, ElementsAre(failedMessage));
}

TEST(DetermineEosConstants, NeedsNoProgramForTheOtherRows) {
    const SplitMachine machine;
    ScriptedRunner runner;
    for (const int eos : {eosVanDerWaals, eosSoaveRedlichKwong, eosPengRobinson}) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), eos);
        const EosParameters expected = model.eos;
        model.eos = {};
        EXPECT_FALSE(DetermineEosConstants(model, eos, machine, runner).failed);
        EXPECT_EQ(model.eos.a0, expected.a0);
        EXPECT_EQ(model.eos.vCritCalc, expected.vCritCalc);
    }
    EXPECT_EQ(runner.runs, 0);
}

} // namespace
} // namespace orva
