// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "cli/option_table.h"
#include "cli/request_json.h"

namespace orva::test {
namespace {

std::string TakeText(Command command, std::string_view name, std::string_view text, Request& request) {
    const OptionRow* row = FindOption(command, name);
    return row == nullptr ? "no such option" : TakeOptionText(*row, text, request);
}

TEST(OptionTable, NamesEachOptionOfACommandOnce) {
    for (const CliCommandRow& command : CliCommands()) {
        std::set<std::string_view> names;
        for (const OptionRow& row : OptionTable())
            if ((row.commands & CommandBit(command.command)) != 0) {
                EXPECT_TRUE(names.insert(row.name).second) << command.name << " " << row.name;
            }
        EXPECT_FALSE(names.empty()) << command.name;
    }
}

TEST(OptionTable, PutsTheSameRequestTogetherFromTextAndFromJson) {
    const std::pair<const char*, const char*> options[] = {{"substance", "n-Butan"},
                                                           {"kind", "3"},
                                                           {"T", "300.25"},
                                                           {"p", "1e2"},
                                                           {"eos", "5"},
                                                           {"vapour-pressure", "WAG"},
                                                           {"vaporization", "7"},
                                                           {"cp", "2"},
                                                           {"watson-exponent", "0.38"},
                                                           {"eos-priority", "off"},
                                                           {"virial", "-0.7,0,1e-3"},
                                                           {"reference-kind", "10"},
                                                           {"reference-state", "273,100"},
                                                           {"reference-values", "1,-2"},
                                                           {"environment", "280,99"},
                                                           {"unit-basis", "3"},
                                                           {"volume-basis", "1"},
                                                           {"extended", "1"},
                                                           {"function-list", "false"}};
    Request fromText;
    fromText.command = Command::Point;
    Json json{{"command", "point"}};
    for (const auto& [name, text] : options) {
        EXPECT_EQ(TakeText(Command::Point, name, text, fromText), "") << name;
        const Json number = Json::parse(std::string("[").append(text).append("]"), nullptr, false);
        if (number.is_discarded())
            json[name] = text;
        else
            json[name] = number.size() == 1 ? number[0] : number;
    }
    const ReadRequest fromJson = RequestFromJson(json.dump());
    EXPECT_EQ(fromJson.error, "");
    EXPECT_TRUE(fromText.context == fromJson.request.context);
    EXPECT_EQ(fromJson.request.context.models.eosPriority, false);
    EXPECT_EQ(fromJson.request.context.models.virial, (std::array<double, 3>{-0.7, 0, 1e-3}));
    EXPECT_EQ(fromJson.request.context.reference.kind, 10);
    EXPECT_FALSE(fromJson.request.context.display.functionList);
    EXPECT_EQ(fromJson.request.point.T, 300.25);
    EXPECT_EQ(fromText.point.p, 100.0);
}

TEST(OptionTable, RefusesValuesOfTheWrongKindWithTheWordsOfTheOption) {
    Request request;
    EXPECT_EQ(TakeText(Command::Point, "T", "1e", request), "option T takes a number, not \"1e\"");
    EXPECT_EQ(TakeText(Command::Point, "T", "nan", request), "option T takes a number, not \"nan\"");
    EXPECT_EQ(TakeText(Command::Point, "T", "1e999", request), "option T takes a number, not \"1e999\"");
    EXPECT_EQ(TakeText(Command::Point, "eos", "17", request),
              "option eos takes a whole number from 0 to 16, not \"17\"");
    EXPECT_EQ(TakeText(Command::Point, "eos", "6.5", request),
              "option eos takes a whole number from 0 to 16, not \"6.5\"");
    EXPECT_EQ(TakeText(Command::Curve, "window", "0,1,2", request),
              "option window takes 4 numbers, not \"0,1,2\"");
    EXPECT_EQ(TakeText(Command::Point, "eos-priority", "yes", request),
              "option eos-priority takes on or off, not \"yes\"");
    EXPECT_EQ(TakeText(Command::Point, "reference-kind", "3", request),
              "option reference-kind takes one of 1|2|10, not \"3\"");
    EXPECT_EQ(TakeText(Command::Curve, "T", "300,,310", request),
              "option T takes 1 to 24 numbers, not \"300,,310\"");
    EXPECT_EQ(RequestFromJson(R"({"command":"point","T":"300"})").error,
              "option T takes a number, not \"300\"");
    EXPECT_EQ(RequestFromJson(R"({"command":"point","T":[300]})").error,
              "option T takes a number, not [300]");
    EXPECT_EQ(RequestFromJson(R"({"command":"point","substance":5})").error,
              "option substance takes a text, not 5");
}

TEST(OptionTable, TakesSeveralTemperaturesForCurvesOnly) {
    Request request;
    EXPECT_EQ(TakeText(Command::Curve, "T", "300,310.5", request), "");
    EXPECT_EQ(request.curve.T, (std::vector<double>{300, 310.5}));
    EXPECT_NE(TakeText(Command::Point, "T", "300,310.5", request), "");
}

TEST(Requests, AreRefusedWithAReasonForAnyBrokenLine) {
    const auto error = [](std::string_view line) { return RequestFromJson(line).error; };
    EXPECT_THAT(error("{"), testing::StartsWith("not JSON: "));
    EXPECT_THAT(error(""), testing::StartsWith("not JSON: "));
    EXPECT_THAT(error("\xFF\xFE"), testing::StartsWith("not JSON: "));
    EXPECT_THAT(error("nonsense"), testing::StartsWith("not JSON: column 2: syntax error"));
    EXPECT_EQ(error("[]"), "a request is an object in braces");
    EXPECT_EQ(error("{}"), "the key command is missing or not a text");
    EXPECT_EQ(error(R"({"command":"run"})"), "unknown command \"run\"");
    EXPECT_EQ(error(R"({"command":"point","kind":3,"T":1,"p":1})"), "the key substance is missing");
    EXPECT_EQ(error(R"({"command":"list","T":1})"), "unknown key \"T\" for command list");
    EXPECT_EQ(error(R"({"command":"point","format":"text"})"), "unknown key \"format\" for command point");
    EXPECT_EQ(error(R"({"command":"list"})"), "");
}

TEST(Requests, AreCheckedForWhatTheirKindTakes) {
    const auto error = [](const std::string& keys) {
        return RequestFromJson(R"({"command":"point","substance":"#1",)" + keys + "}").error;
    };
    EXPECT_EQ(error(R"("kind":3,"T":300)"), "kind 3 needs option p");
    EXPECT_EQ(error(R"("kind":3,"T":300,"p":1,"rho":2)"), "kind 3 does not take option rho");
    EXPECT_EQ(error(R"("kind":12)"), "calculation kind 12 is not available");
    EXPECT_EQ(error(R"("kind":4,"T":300,"p":1)"), "");
    EXPECT_EQ(error(R"("kind":9,"T":300,"mass":1)"), "kind 9 needs option volume");
}

TEST(Requests, AreCheckedForTheMethodOfTheirKind) {
    const auto error = [](const std::string& keys) {
        return RequestFromJson(R"({"command":"point","substance":"#1",)" + keys + "}").error;
    };
    const std::string tp = R"("kind":3,"T":300,"p":1)";
    const std::string vessel = R"("T":300,"mass":1,"volume":1)";
    EXPECT_EQ(error(tp + R"(,"assume-equilibrium":true)"), "");
    EXPECT_EQ(error(R"("kind":4,"T":300,"assume-equilibrium":true)"),
              "option assume-equilibrium is not available for kind 4");
    EXPECT_EQ(error(tp + R"(,"assume-equilibrium":true,"method":"global")"),
              "option method: this calculation is partial");
    EXPECT_EQ(error(R"("kind":9,"method":"partial",)" + vessel),
              "option method: kind 9 is global, kind 10 partial");
    EXPECT_EQ(error(R"("kind":10,"method":"global",)" + vessel),
              "option method: this calculation is partial");
    EXPECT_EQ(error(R"("kind":10,"liquid-density":"database",)" + vessel), "");
    EXPECT_EQ(error(tp + R"(,"reference-density":"proposal")"),
              "options liquid-density and reference-density belong to the partial method, which is not "
              "available for kind 3");
}

TEST(Requests, AreCheckedForWhatTheirReportCanShow) {
    const auto error = [](const std::string& keys) {
        return RequestFromJson(R"({"command":"point","substance":"#1",)" + keys + "}").error;
    };
    const std::string tp = R"("kind":3,"T":300,"p":1)";
    for (const char* level : {"1", "2", "3", "4"})
        EXPECT_EQ(error(tp + R"(,"extended":)" + level), "");
    EXPECT_EQ(error(tp + R"(,"function-list":true)"), "");
    EXPECT_EQ(error(R"("kind":6,"T":300,"extended":2)"), "option extended: only 1 is available for kind 6");
    EXPECT_EQ(error(R"("kind":14,"T":300,"extended":2)"), "option extended: only 1 is available for kind 14");
    EXPECT_EQ(error(R"("kind":8,"T":300,"p":1,"function-list":true)"),
              "option function-list is not available for kind 8");
}

} // namespace
} // namespace orva::test
