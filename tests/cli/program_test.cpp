// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_process.h"

namespace orva::test {
namespace {

using testing::HasSubstr;

struct CliProgram : testing::Test {
    CliProcess process;

    std::vector<std::string> Keys(const Json& object) const {
        std::vector<std::string> keys;
        for (const auto& [key, value] : object.items())
            keys.push_back(key);
        return keys;
    }
    void UseSample() const { WriteSampleDatabase(process.Folder()); }
};

TEST_F(CliProgram, ListsTheDatabaseOfItsInstallationFolder) {
    const ProcessResult result = process.Run("list");
    ASSERT_EQ(result.exitStatus, 0) << result.error;
    const Json list = result.Answer();
    ASSERT_GT(list.size(), 100U);
    EXPECT_EQ(Keys(list[0]), (std::vector<std::string>{"index", "number", "formula", "name", "cas"}));
    for (std::size_t i = 0; i < list.size(); ++i)
        EXPECT_EQ(list[i]["index"], i + 1);
    EXPECT_EQ(result.error, "");
}

TEST_F(CliProgram, TakesADatabaseOfTheWorkingDirectory) {
    UseSample();
    const Json list = process.Run("list --database ORVA.Q05").Answer();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[0]["name"], "n-Butan; Butan");
    EXPECT_EQ(list[2]["cas"], "50-00-0");
}

TEST_F(CliProgram, RefusesADatabaseThatIsMissingEmptyTruncatedOrForeign) {
    process.Write("leer.Q05", "");
    process.Write("halb.Q05", DatabaseBytes(SampleRecords()).substr(0, 1000));
    process.Write("fremd.Q05", std::string(5000, 'x'));
    for (const std::string name : {"nichts.Q05", "leer.Q05", "halb.Q05", "fremd.Q05"}) {
        const ProcessResult result = process.Run("list --database " + name);
        EXPECT_EQ(result.exitStatus, 3) << name;
        EXPECT_TRUE(result.HasOneErrorLine()) << result.error;
        EXPECT_THAT(result.error, HasSubstr("Datenbank " + name + " nicht gefunden bzw. leer"));
        EXPECT_EQ(result.Answer()["messages"][0]["title"], "Ausführung nicht möglich");
        EXPECT_EQ(result.Answer()["messages"][0]["text"], "Datenbank " + name + " nicht gefunden bzw. leer");
    }
}

TEST_F(CliProgram, FindsASubstanceByAllItsNames) {
    Json butane;
    for (const Json& entry : process.Run("list").Answer())
        if (entry["cas"] == "106-97-8")
            butane = entry;
    const std::string index = butane["index"].dump();
    const std::string number = butane["number"].dump();
    const std::string wholeName = butane["name"];
    for (const std::string& text : {std::string("106-97-8"), std::string("n-Butan"), std::string("Butane"),
                                    "#" + index, number, wholeName, " " + wholeName + " "}) {
        const ProcessResult result = process.Run("find '" + text + "'");
        EXPECT_EQ(result.exitStatus, 0) << text;
        EXPECT_EQ(result.Answer()["index"], butane["index"]) << text;
        EXPECT_EQ(result.Answer()["cas"], "106-97-8") << text;
        EXPECT_EQ(result.Answer()["name"], wholeName) << text;
    }
    EXPECT_EQ(process.Run("find Kohlendioxyd").Answer()["cas"], "124-38-9");
}

TEST_F(CliProgram, SaysThatNothingWasFound) {
    const ProcessResult result = process.Run("find Nirgendwostoff");
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_TRUE(result.HasOneErrorLine());
    EXPECT_EQ(result.Answer()["found"], false);
    EXPECT_EQ(result.Answer()["messages"][0]["text"], "Unter dieser Bezeichnung nichts gefunden.");
    EXPECT_EQ(process.Run("show Nirgendwostoff").exitStatus, 3);
    EXPECT_EQ(process.Run("show '#99999'").exitStatus, 3);
}

TEST_F(CliProgram, ShowsTheFieldsOfASubstanceWithItsBlocks) {
    UseSample();
    const Json data = process.Run("show n-Butan --database ORVA.Q05").Answer();
    EXPECT_EQ(Keys(data).front(), "name");
    EXPECT_EQ(data["Tc"], 425.125);
    EXPECT_EQ(data["molarMass"], static_cast<double>(58.1222F));
    EXPECT_EQ(data["wagner"]["w1"], static_cast<double>(-6.88709F));
    EXPECT_EQ(data["wagner"]["Tlo"], 170);
    EXPECT_NEAR(data["august"]["A"].get<double>() + data["august"]["B"].get<double>() / 425.125,
                std::log(3796), 1e-5);
    EXPECT_EQ(data["cpPolynomialValid"], false);
    EXPECT_EQ(data["kfw"].size(), 12U);
}

TEST_F(CliProgram, ShowsASubstanceWithoutCriticalDataAndRefusesToCalculateWithIt) {
    UseSample();
    const ProcessResult shown = process.Run("show '#3' --database ORVA.Q05");
    EXPECT_EQ(shown.exitStatus, 0);
    EXPECT_EQ(shown.Answer()["Tb"], 254.0);
    EXPECT_EQ(shown.Answer()["messages"][0]["title"], "WARNUNG");
    const ProcessResult point =
        process.Run("point --substance '#3' --kind 3 --T 300 --p 1 --database ORVA.Q05");
    EXPECT_EQ(point.exitStatus, 3);
    EXPECT_TRUE(point.HasOneErrorLine());
    EXPECT_THAT(point.error, HasSubstr("sind keine Berechnungen möglich!"));
}

TEST_F(CliProgram, OffersTheModelsOfTheWindow) {
    UseSample();
    const Json models = process.Run("models '#2' --database ORVA.Q05").Answer();
    EXPECT_EQ(models["preset"]["eos"], 4); // without acentric factor
    for (const Json& row : models["eos"])
        EXPECT_NE(row["number"], 6);
    const ProcessResult refused =
        process.Run("point --substance '#2' --kind 3 --T 300 --p 1 --eos 6 --database ORVA.Q05");
    EXPECT_EQ(refused.exitStatus, 2);
    EXPECT_THAT(refused.error, HasSubstr("option eos: the model window does not offer 6"));
}

TEST_F(CliProgram, GivesAPointWithAllItsFields) {
    const ProcessResult result = process.Run("point --substance n-Butan --kind 3 --T 300 --p 100");
    ASSERT_EQ(result.exitStatus, 0) << result.error;
    const Json point = result.Answer();
    EXPECT_EQ(Keys(point), (std::vector<std::string>{"kind", "failed", "note", "hasL", "hasV", "rootIndex",
                                                     "phaseVerdict", "liquidPercent", "p", "T", "results",
                                                     "record", "roots", "labels", "report", "messages"}));
    EXPECT_EQ(point["results"].size(), 42U);
    EXPECT_EQ(point["hasV"], true);
    EXPECT_EQ(point["hasL"], false);
    EXPECT_EQ(point["labels"]["par1"], "T = 300.000 K");
    // Second virial coefficient of n-butane at 300 K: -0.72 m^3/kmol within 4 % (Dymond, Smith 1980).
    EXPECT_NEAR(point["roots"][2].get<double>(), 8.31451 * 300 / 100 - 0.72, 0.06);
}

TEST_F(CliProgram, PrintsTheReportAsTheWindowShowsIt) {
    const Json point = process.Run("point --substance n-Butan --kind 3 --T 300 --p 100").Answer();
    const std::string text =
        process.Run("point --substance n-Butan --kind 3 --T 300 --p 100 --format text").output;
    std::string report = point["report"];
    EXPECT_THAT(report, HasSubstr("\r\n"));
    std::erase(report, '\r');
    const Json& labels = point["labels"];
    EXPECT_EQ(text, labels["par1"].get<std::string>() + "\n" + labels["par2"].get<std::string>() + "\n"
                        + labels["co1"].get<std::string>() + "\n" + labels["co2"].get<std::string>() + "\n"
                        + report);
}

TEST_F(CliProgram, ListsTheBoxesOfTheWindow) {
    const Json point = process.Run("point --substance n-Butan --kind 3 --T 130 --p 100").Answer();
    ASSERT_EQ(point["messages"].size(), 1U);
    EXPECT_EQ(point["messages"][0]["title"], "Hinweis");
    EXPECT_EQ(point["messages"][0]["text"], "T ist kleiner als Tripelpunkt-Temperatur");
}

TEST_F(CliProgram, AFailedPointHasExitStatusOneAndItsAnswer) {
    const ProcessResult result = process.Run("point --substance n-Butan --kind 3 --T 0 --p 100");
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_TRUE(result.HasOneErrorLine());
    EXPECT_THAT(result.error, HasSubstr("kein T in diesem Datensatz"));
    EXPECT_EQ(result.Answer()["failed"], true);
}

TEST_F(CliProgram, APointThatEndsWithABoxNamesItsText) {
    const ProcessResult result = process.Run("point --substance n-Butan --kind 20 --T 500 --format json");
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.error, HasSubstr("the calculation failed: Berechnungsfehler aufgetreten"));
    EXPECT_EQ(result.Answer()["messages"].size(), 2U);
    EXPECT_THAT(process.Run("point --substance n-Butan --kind 13 --p 100 --rho 900").error,
                HasSubstr("the calculation failed: Fehler"));
}

TEST_F(CliProgram, RefusesWrongUsageInOneLine) {
    for (const char* arguments :
         {"",
          "frobnicate",
          "point",
          "point --substance n-Butan --kind 3 --T 300",
          "list --nonsense",
          "point --substance n-Butan --kind 12 --T 300 --p 1",
          "curve --substance n-Butan --type 32000",
          "point --substance n-Butan --kind 3 --T 300 --p 1 --T 310",
          "point --substance n-Butan --kind 3 --T x --p 1",
          "curve --substance n-Butan --type 1 --window 1,0,0,1",
          "curve --substance n-Butan --type 1 --mode sideways",
          "point --substance n-Butan --kind 3 --T 300 --p 1 --virial 1,2,3",
          "point --substance n-Butan --kind 3 --T 300 --p 1 --eos 10",
          "point --substance n-Butan --kind 3 --T 300 --p 1 --eos 9 --format text",
          "point --substance n-Butan --kind 3 --T 300 --p 1 --eos 9 --format json",
          "point --substance n-Butan --kind 6 --T 300 --extended 2",
          "point --substance n-Butan --kind 8 --T 300 --p 1 --function-list",
          "curve --substance n-Butan --type 1 --extended 2",
          "vessel --substance n-Butan --T 300 --mass 20",
          "vessel --substance n-Butan --T 300 --mass 20 --volume 0",
          "inverse --substance n-Butan --function w --value 1 --solve-for T --phase V "
          "--T 300 --p 1",
          "inverse --substance n-Butan --function v --value 1 --solve-for T --T 300 --p 1",
          "show",
          "run"}) {
        const ProcessResult result = process.Run(arguments);
        EXPECT_EQ(result.exitStatus, 2) << arguments;
        EXPECT_EQ(result.output, "") << arguments;
        EXPECT_TRUE(result.HasOneErrorLine()) << arguments << ": " << result.error;
    }
}

TEST_F(CliProgram, AsksForAMissingArgumentByItsNameInTheUsage) {
    const std::pair<const char*, const char*> missing[] = {
        {"run", "FILE"}, {"find", "TEXT"}, {"show", "SUBSTANCE"}, {"models", "SUBSTANCE"}};
    for (const auto& [command, argument] : missing) {
        EXPECT_EQ(process.Run(command).error,
                  "orva-cli: the argument " + std::string(argument) + " is missing\n");
        EXPECT_THAT(process.Run(std::string(command) + " --help").output, HasSubstr(argument));
    }
    EXPECT_EQ(process.Run("find --text Butane").output, process.Run("find Butane").output);
    EXPECT_EQ(process.Run("point --kind 3").error, "orva-cli: --substance is required\n");
}

TEST_F(CliProgram, PrintsNoJsonInTheTextFormat) {
    const ProcessResult unknown =
        process.Run("point --substance Nirgendwostoff --kind 3 --T 300 --p 1 --format text");
    EXPECT_EQ(unknown.exitStatus, 3);
    EXPECT_EQ(unknown.output, "");
    EXPECT_THAT(unknown.error, HasSubstr("substance \"Nirgendwostoff\" not found"));
    const ProcessResult failed =
        process.Run("point --substance n-Butan --kind 3 --T 0 --p 100 --format text");
    EXPECT_EQ(failed.exitStatus, 1);
    EXPECT_THAT(failed.output, testing::Not(HasSubstr("{")));
}

TEST_F(CliProgram, SaysThatStandardOutputCannotBeWritten) {
    process.Write("requests.jsonl", "{\"command\":\"find\",\"text\":\"Butane\"}\nnonsense\n");
    for (const char* arguments : {"list", "run requests.jsonl", "run - < requests.jsonl", "--help"}) {
        const ProcessResult result = process.Run(std::string(arguments) + " > /dev/full");
        EXPECT_EQ(result.exitStatus, 3) << arguments;
        EXPECT_EQ(result.error, "orva-cli: standard output cannot be written\n") << arguments;
    }
}

TEST_F(CliProgram, AppliesTheModelsAndTheDisplay) {
    const std::string point = "point --substance n-Butan --kind 3 --T 300 --p 100 ";
    const Json ideal = process.Run(point + "--eos 0").Answer();
    EXPECT_NEAR(ideal["record"]["rhoV"].get<double>(), 100 * 58.124 / (8.31451 * 300), 1e-4);
    const Json byHand = process.Run(point + "--eos 10 --virial=-0.7,0,0").Answer();
    EXPECT_NEAR(byHand["results"][9].get<double>(), 8.31451 * 300 / 100 - 0.7, 1e-9);
    const Json molar = process.Run(point).Answer();
    const Json specific = process.Run(point + "--volume-basis 1").Answer();
    EXPECT_NEAR(specific["results"][9].get<double>() * 58.124, molar["results"][9].get<double>(), 1e-4);
    EXPECT_NE(process
                  .Run(point
                       + "--vapour-pressure KFW --cp 1 --vaporization 2 --reference-kind 2 "
                         "--reference-state 273.15,100 --environment 280,100 --extended 1")
                  .exitStatus,
              2);
}

TEST_F(CliProgram, GivesACurveAndDrawsIt) {
    const ProcessResult result =
        process.Run("curve --substance n-Butan --type 1 --T 380 --svg c.svg --png c.png --pdf c.pdf");
    ASSERT_EQ(result.exitStatus, 0) << result.error;
    EXPECT_EQ(result.error, "");
    const Json curve = result.Answer();
    EXPECT_EQ(Keys(curve), (std::vector<std::string>{"type", "status", "resultText", "zKind", "tieLine",
                                                     "window", "titles", "points", "messages"}));
    EXPECT_EQ(curve["status"], 0);
    EXPECT_EQ(curve["zKind"], -1);
    // Of the 301 grid points those below b and those of the two-phase region are left out.
    EXPECT_GT(curve["points"].size(), 100U);
    EXPECT_LT(curve["points"].size(), 303U);
    // The tie line lies at the vapour pressure: 1746.8 kPa by the Wagner constants of Reid, Prausnitz, Poling
    // (1987).
    EXPECT_NEAR(curve["tieLine"][1].get<double>(), 1746.8, 0.01 * 1746.8);
    EXPECT_EQ(curve["tieLine"][1], curve["tieLine"][3]);
    for (std::size_t i = 1; i < curve["points"].size(); ++i)
        EXPECT_LE(curve["points"][i - 1][0].get<double>(), curve["points"][i][0].get<double>());
    EXPECT_THAT(ReadFile(process.Folder() / "c.svg").value_or(""), HasSubstr("<svg"));
    EXPECT_THAT(ReadFile(process.Folder() / "c.png").value_or(""), testing::StartsWith("\x89PNG"));
    EXPECT_THAT(ReadFile(process.Folder() / "c.pdf").value_or(""), testing::StartsWith("%PDF"));
}

TEST_F(CliProgram, DrawsSeveralTemperaturesInOneAnswer) {
    const Json several = process.Run("curve --substance n-Butan --type 1 --T 380,450 --points 20").Answer();
    ASSERT_EQ(several["curves"].size(), 2U);
    for (const double T : {380.0, 450.0}) {
        const Json one =
            process.Run("curve --substance n-Butan --type 1 --points 20 --T " + std::to_string(T)).Answer();
        EXPECT_EQ(several["curves"][T == 380 ? 0 : 1]["points"], one["points"]);
    }
    EXPECT_FALSE(several.contains("points"));
}

TEST_F(CliProgram, StartsACurveWithTheValuesOfTheProgram) {
    const Json preset = process.Run("curve --substance n-Butan --type 1").Answer();
    const Json critical = process.Run("curve --substance n-Butan --type 1 --T 425.125").Answer();
    EXPECT_EQ(preset, critical);
}

TEST_F(CliProgram, RefusesATieLineAboveTheCriticalPointAsTheWindowDoes) {
    for (const char* mode : {"tie-line", "s-curve"}) {
        const ProcessResult result =
            process.Run(std::string("curve --substance n-Butan --type 1 --T 500 --svg c.svg --mode ") + mode);
        EXPECT_EQ(result.exitStatus, 1);
        EXPECT_EQ(result.Answer()["status"], 4);
        EXPECT_TRUE(result.Answer()["points"].empty());
        EXPECT_THAT(result.error, HasSubstr("nur im V-L-Existenzgebiet möglich (T < T(cr))"));
        EXPECT_FALSE(FileExists(process.Folder() / "c.svg"));
    }
    EXPECT_EQ(
        process.Run("curve --substance n-Butan --type 1 --T 380 --mode tie-line").Answer()["points"].size(),
        51U);
}

TEST_F(CliProgram, CoexistenceGivesBothBoundariesOrOneLine) {
    const Json both = process.Run("curve --substance n-Butan --type 1 --mode coexistence").Answer();
    ASSERT_EQ(both["curves"].size(), 2U);
    EXPECT_EQ(both["curves"][0]["vapourFraction"], 0);
    EXPECT_EQ(both["curves"][1]["vapourFraction"], 1);
    const Json one =
        process.Run("curve --substance n-Butan --type 1 --mode coexistence --vapour-fraction 1").Answer();
    EXPECT_EQ(one["points"], both["curves"][1]["points"]);
    EXPECT_EQ(one["zKind"], -1);
    EXPECT_EQ(process.Run("curve --substance n-Butan --type 1 --vapour-fraction 1").exitStatus, 2);
    EXPECT_EQ(
        process.Run("curve --substance n-Butan --type 1 --mode coexistence --vapour-fraction 2").exitStatus,
        2);
    const ProcessResult refused =
        process.Run("curve --substance n-Butan --type 1 --eos 15 --mode coexistence");
    EXPECT_EQ(refused.exitStatus, 1);
    EXPECT_THAT(refused.error, HasSubstr("VL-Koexistenzkurve nur für kubische EOS möglich."));
}

TEST_F(CliProgram, DiagramsHaveTheConditionsOfTheMenu) {
    for (const char* type : {"6", "9", "90", "106"}) {
        const ProcessResult refused =
            process.Run(std::string("curve --substance n-Butan --eos 15 --type ") + type);
        EXPECT_EQ(refused.exitStatus, 1) << type;
        EXPECT_THAT(refused.error, HasSubstr("Phasengleichgewichts-Berechnungen sind nur mit einer kubischen "
                                             "Zustandsgleichung möglich"));
    }
    const ProcessResult slope = process.Run("curve --substance n-Butan --type 11");
    EXPECT_EQ(slope.exitStatus, 0);
    EXPECT_EQ(slope.Answer()["messages"][0]["title"], "HINWEIS");
}

TEST_F(CliProgram, InversionWithoutAStartIsNoTieLine) {
    const ProcessResult result = process.Run("curve --substance n-Butan --eos 2 --type 2 --mode inversion");
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.Answer()["status"], 0);
    EXPECT_TRUE(result.Answer()["points"].empty());
    EXPECT_TRUE(result.Answer()["messages"].empty());
}

TEST_F(CliProgram, LimitsBelongToTheDiagramsOfTwoFunctions) {
    const Json pair =
        process.Run("curve --substance n-Butan --type 107 --T 350 --limits 100,900 --points 10").Answer();
    ASSERT_GE(pair["points"].size(), 10U);
    EXPECT_EQ(pair["points"][0][2], 100);
    EXPECT_EQ(process.Run("curve --substance n-Butan --type 1 --limits 100,900").exitStatus, 2);
    EXPECT_EQ(process.Run("curve --substance n-Butan --type 107 --limits=-1,900").exitStatus, 2);
}

TEST_F(CliProgram, InversionCurveHasItsZeros) {
    const Json curve =
        process.Run("curve --substance n-Butan --type 9 --mode inversion --window 250,2000,0,60000").Answer();
    EXPECT_EQ(curve["status"], 0);
    EXPECT_EQ(curve["zKind"], -3);
    EXPECT_GT(curve["points"].size(), 50U);
}

TEST_F(CliProgram, AtlasHoldsEveryDiagramInThreeFormsBehindAnIndex) {
    const ProcessResult result = process.Run("atlas --substance n-Butan --points 50 --out atlas");
    ASSERT_EQ(result.exitStatus, 0) << result.error;
    const Json answer = result.Answer();
    EXPECT_GT(answer["diagrams"].size(), 80U);
    const std::filesystem::path folder = process.Folder() / "atlas";
    const std::string index = ReadFile(folder / "index.html").value_or("");
    for (const Json& page : answer["diagrams"]) {
        EXPECT_GT(page["curves"], 0);
        for (const Json& file : page["files"]) {
            EXPECT_TRUE(FileExists(folder / file.get<std::string>())) << file;
            EXPECT_THAT(index, HasSubstr(file.get<std::string>()));
        }
    }
    const std::string csv = ReadFile(folder / "type-001.csv").value_or("");
    EXPECT_THAT(csv, HasSubstr("v / (m^3/kmol);p / kPa;T / K"));
}

TEST_F(CliProgram, AnAtlasNeedsAFolderThatCanBeMade) {
    process.Write("file", "");
    const ProcessResult result = process.Run("atlas --substance n-Butan --out file/atlas");
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.error, "orva-cli: the folder file/atlas cannot be made\n");
}

TEST_F(CliProgram, SaysThatAnImageCannotBeWritten) {
    const ProcessResult result = process.Run("curve --substance n-Butan --type 1 --svg nowhere/c.svg");
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.error, "orva-cli: the file nowhere/c.svg cannot be written\n");
}

} // namespace
} // namespace orva::test
