// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/request_json.h"
#include "cli_process.h"

namespace orva::test {
namespace {

using testing::HasSubstr;

struct CliVessel : testing::Test {
    CliProcess process;

    ProcessResult Vessel(const std::string& arguments) const {
        return process.Run("vessel --substance n-Butan --volume 0.1 " + arguments);
    }
    ProcessResult Inverse(const std::string& arguments) const {
        return process.Run("inverse --substance n-Butan " + arguments);
    }
};

TEST_F(CliVessel, GivesPressureFillingAndTheLabelsOfThePicture) {
    const ProcessResult result = Vessel("--T 300 --mass 20");
    ASSERT_EQ(result.exitStatus, 0) << result.error;
    const Json vessel = result.Answer();
    std::vector<std::string> keys;
    for (const auto& [key, value] : vessel.items())
        keys.push_back(key);
    EXPECT_EQ(keys, (std::vector<std::string>{"kind", "failed", "note", "hasL", "hasV", "T", "p",
                                              "liquidPercent", "fillPercent", "levelHeight", "labels",
                                              "results", "report", "messages"}));
    EXPECT_EQ(vessel["kind"], 9);
    EXPECT_EQ(vessel["fillPercent"], vessel["liquidPercent"]);
    EXPECT_EQ(vessel["labels"]["caption"], "Behälter-Berechnung (Global-Methode)");
    EXPECT_EQ(vessel["labels"]["title"], "zylinderförmiger Behälter");
    EXPECT_EQ(vessel["labels"]["pressure"], "256.654 kPa");
    EXPECT_EQ(vessel["labels"]["level"], "Füllstand 32.64 % (Vol.-anteil)");
    EXPECT_EQ(vessel["labels"]["phase"], "");
    // A segment of 36.2 % of the diameter has 32.6 % of the area.
    EXPECT_NEAR(vessel["levelHeight"].get<double>(), 36.19, 0.02);
    const Json point =
        process.Run("point --substance n-Butan --kind 9 --T 300 --mass 20 --volume 0.1").Answer();
    EXPECT_EQ(vessel["report"], point["report"]);
    EXPECT_EQ(vessel["results"], point["results"]);
}

TEST_F(CliVessel, TakesTheMethodOfTheToolbarUnlessOneIsGiven) {
    EXPECT_EQ(Vessel("--T 300 --mass 20 --eos-priority off").Answer()["kind"], 10);
    EXPECT_EQ(Vessel("--T 300 --mass 20 --eos-priority off --method global").Answer()["kind"], 9);
    EXPECT_EQ(Vessel("--T 300 --mass 20 --eos 16").Answer()["kind"], 10);
    EXPECT_EQ(Vessel("--T 300 --mass 20 --method partial").Answer()["labels"]["caption"],
              "Behälter-Berechnung (Partial-Methode)");
}

TEST_F(CliVessel, TakesTheLiquidDensityOfThePartialMethod) {
    const Json database = Vessel("--T 300 --mass 20 --method partial --liquid-density database").Answer();
    const Json benson = Vessel("--T 300 --mass 20 --method partial --liquid-density benson "
                               "--reference-density 272.66,101.325,601.4,2.7")
                            .Answer();
    // The saturated liquid has 570.7 kg/m^3 at 300 K (Buecker, Wagner 2006).
    EXPECT_NEAR(20 / 570.7 / 0.1 * 100, database["fillPercent"].get<double>(), 1);
    EXPECT_NEAR(20 / 570.7 / 0.1 * 100, benson["fillPercent"].get<double>(), 1.5);
    EXPECT_NE(database["fillPercent"], benson["fillPercent"]);
    EXPECT_EQ(Vessel("--T 300 --mass 20 --method global --liquid-density benson").error,
              "orva-cli: options liquid-density and reference-density belong to the partial method\n");
}

TEST_F(CliVessel, SaysThatTooMuchIsInIt) {
    const ProcessResult global = Vessel("--T 300 --mass 90");
    EXPECT_EQ(global.exitStatus, 1);
    EXPECT_TRUE(global.HasOneErrorLine());
    EXPECT_EQ(global.Answer()["note"], "ERROR1");
    EXPECT_EQ(global.Answer()["labels"]["pressure"], " Error: v < b");
    EXPECT_EQ(global.Answer()["fillPercent"], 100.0);
    const Json partial = Vessel("--T 300 --mass 90 --method partial").Answer();
    EXPECT_EQ(partial["note"], "ERROR2");
    EXPECT_EQ(partial["labels"]["pressure"], "Error");
    EXPECT_EQ(partial["labels"]["note"], "s. Hilfe 'Behälter'");
    EXPECT_EQ(partial["levelHeight"], 100.0);
}

TEST_F(CliVessel, HasNoEquilibriumAboveTheCriticalTemperature) {
    EXPECT_EQ(Vessel("--T 450 --mass 5").Answer()["labels"]["level"], "  überkritisch");
    const ProcessResult partial = Vessel("--T 450 --mass 5 --method partial");
    EXPECT_EQ(partial.exitStatus, 1);
    EXPECT_EQ(partial.Answer()["note"], "EXIT");
    EXPECT_EQ(partial.Answer()["messages"][0]["title"], "Ausführung nicht möglich");
    EXPECT_THAT(partial.error, HasSubstr("also für T < T(cr) - sinnvoll (T(cr)/K = 425.125)"));
}

TEST_F(CliVessel, RefusesInputThatTheWindowRefuses) {
    EXPECT_EQ(Vessel("--T 0 --mass 20").error, "orva-cli: option T: the value must be above 0\n");
    EXPECT_EQ(Vessel("--T 300 --mass -1").error, "orva-cli: option mass: the value must be above 0\n");
    EXPECT_EQ(Vessel("--T 300 --mass 1e39").exitStatus, 2);
    EXPECT_EQ(RequestFromJson(R"({"command":"vessel","substance":"#1","T":300,"mass":1})").error,
              "the key volume is missing");
    EXPECT_EQ(
        RequestFromJson(R"({"command":"vessel","substance":"#1","T":300,"mass":1,"volume":1,"p":1})").error,
        "unknown key \"p\" for command vessel");
}

TEST_F(CliVessel, InverseFindsTheTemperatureOfEachFunction) {
    const Json point = process.Run("point --substance n-Butan --kind 8 --T 360 --p 150").Answer();
    const char* const functions[] = {"v", "h", "s", "g", "u", "a"};
    for (std::size_t i = 0; i < std::size(functions); ++i) {
        const ProcessResult result =
            Inverse(std::string("--function ") + functions[i] + " --value=" + point["results"][9 + i].dump()
                    + " --solve-for T --phase V --T 375 --p 150");
        ASSERT_EQ(result.exitStatus, 0) << functions[i] << result.error;
        const Json found = result.Answer();
        EXPECT_NEAR(found["x"].get<double>(), 360, 360e-5) << functions[i];
        EXPECT_EQ(found["function"], functions[i]);
        EXPECT_EQ(found["x"], found["T"]);
        EXPECT_EQ(found["results"][0], found["x"]);
        EXPECT_EQ(found["p"], 150.0);
        EXPECT_THAT(found["text"].get<std::string>(), testing::StartsWith("T/K = 3"));
    }
}

TEST_F(CliVessel, InverseFindsThePressureOfALiquid) {
    const Json point = process.Run("point --substance n-Butan --kind 8 --T 300 --p 3000").Answer();
    const Json found = Inverse("--function v --value " + point["results"][19].dump()
                               + " --solve-for p --phase L --T 300 --p 1000")
                           .Answer();
    EXPECT_NEAR(found["x"].get<double>(), 3000, 0.05);
    EXPECT_EQ(found["phase"], "L");
    EXPECT_EQ(found["solveFor"], "p");
    EXPECT_EQ(found["T"], 300.0);
}

TEST_F(CliVessel, InverseSaysThatThereIsNoSolution) {
    const ProcessResult result = Inverse("--function v --value -5 --solve-for T --phase V --T 400 --p 150");
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.error, "orva-cli: keine Lösung\n");
    EXPECT_EQ(result.Answer()["failed"], true);
    EXPECT_EQ(result.Answer()["x"], 0.0);
    EXPECT_EQ(result.Answer()["T"], 400.0);
    EXPECT_EQ(result.Answer()["text"], "keine Lösung");
}

TEST_F(CliVessel, AnswersRequestsAsSingleCalls) {
    process.Write(
        "requests.jsonl",
        R"({"command":"vessel","substance":"n-Butan","T":300,"mass":20,"volume":0.1,"method":"partial"})"
        "\n"
        R"({"command":"inverse","substance":"n-Butan","function":"s","value":20,"solve-for":"T","phase":"V","T":400,"p":150})"
        "\n");
    const ProcessResult run = process.Run("run requests.jsonl");
    EXPECT_EQ(run.exitStatus, 0) << run.error;
    EXPECT_EQ(run.output,
              Vessel("--T 300 --mass 20 --method partial").output
                  + Inverse("--function s --value 20 --solve-for T --phase V --T 400 --p 150").output);
}

} // namespace
} // namespace orva::test
