// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/command_table.h"
#include "shell/help_topics.h"

namespace orva::test {
namespace {

std::string PlaceOf(std::string_view window, std::string_view control) {
    const HelpTopic* topic = HelpTopicOf(window, control);
    return topic == nullptr ? "" : std::string(topic->page) + "#" + std::string(topic->anchor);
}

TEST(HelpTopics, HaveNumbersAndPlacesOfTheirOwn) {
    std::set<int> numbers;
    std::set<std::pair<std::string_view, std::string_view>> places;
    for (const HelpTopic& topic : HelpTopics()) {
        EXPECT_TRUE(numbers.insert(topic.number).second) << topic.number;
        EXPECT_TRUE(places.emplace(topic.page, topic.anchor).second) << topic.page << "#" << topic.anchor;
        EXPECT_FALSE(topic.titleGerman.empty()) << topic.number;
        EXPECT_FALSE(topic.titleEnglish.empty()) << topic.number;
    }
    EXPECT_EQ(HelpIndexTopic().page, "index.html");
}

TEST(HelpTopics, ListEachPageBeforeItsSectionsWithinOneChapter) {
    std::string_view page;
    HelpChapter chapter = HelpChapter::Start;
    for (const HelpTopic& topic : HelpTopics()) {
        EXPECT_GE(topic.chapter, chapter) << topic.number;
        if (topic.anchor.empty())
            page = topic.page;
        else
            EXPECT_TRUE(topic.page == page && topic.chapter == chapter) << topic.number;
        chapter = topic.chapter;
    }
}

TEST(HelpTopics, AreOpenedByEachNameOnce) {
    std::set<std::string> names;
    for (const HelpTopic& topic : HelpTopics()) {
        std::istringstream openers{std::string(topic.openers)};
        for (std::string name; openers >> name;)
            EXPECT_TRUE(names.insert(name).second) << name;
    }
}

TEST(HelpTopics, AnswerEveryHelpControlOfTheDialogs) {
    EXPECT_EQ(PlaceOf("frmQModell", "EOSHilfe"), "model-window.html#eos");
    EXPECT_EQ(PlaceOf("frmQModell", "pHilfe"), "model-window.html#vapour-pressure");
    EXPECT_EQ(PlaceOf("frmQModell", "HLVHilfe"), "model-window.html#vaporisation");
    EXPECT_EQ(PlaceOf("frmQModell", "cpHilfe"), "model-window.html#heat-capacity");
    EXPECT_EQ(PlaceOf("frmQModell", "RhoLHilfe"), "model-window.html#liquid-density");
    EXPECT_EQ(PlaceOf("frmQModell", "PriorHilfe"), "model-window.html#priority");
    EXPECT_EQ(PlaceOf("frmStoffWahl", "Hilfe"), "substance-window.html#");
    EXPECT_EQ(PlaceOf("frmCalcIn", "GlobHilfe"), "global-partial.html#");
    EXPECT_EQ(PlaceOf("frmCalcIn", "BENSON_HELP"), "benson.html#");
    EXPECT_EQ(PlaceOf("frmReferenz", "cmdRefHelp"), "reference.html#");
    EXPECT_EQ(PlaceOf("frmOptions", "cmdReferenzHelp"), "reference.html#");
    EXPECT_EQ(PlaceOf("frmOptions", "cmdRealBreichHelp"), "options.html#real-range");
    EXPECT_EQ(PlaceOf("frmIsoCalc", "cmdIsoHelp"), "inversion.html#");
}

TEST(HelpTopics, AnswerEveryWindow) {
    for (const auto& [window, page] : {std::pair{"mdiORVA", "main-window.html"},
                                       {"frmPhantom", "main-window.html"},
                                       {"frmTip", "main-window.html"},
                                       {"frmCmnDlg", "projects.html"},
                                       {"frmStoffWahl", "substance-window.html"},
                                       {"frmQModell", "model-window.html"},
                                       {"frmBParInput", "virial-input.html"},
                                       {"frmParinput", "point-input.html"},
                                       {"frmCalcOut", "result-window.html"},
                                       {"frmCalcIn", "global-partial.html"},
                                       {"frmReferenz", "reference.html"},
                                       {"frmOptions", "options.html"},
                                       {"frmKessel", "vessel.html"},
                                       {"frmIsoCalc", "inversion.html"},
                                       {"frmCEOSDiagnose", "diagnosis.html"},
                                       {"frmGraph2D", "diagram-window.html"},
                                       {"frmTpVSInputBox", "value-input.html"},
                                       {"frmCoord", "diagram-window.html"},
                                       {"messageBox", "messages.html"},
                                       {"helpWindow", "help-window.html"}}) {
        const HelpTopic* topic = HelpTopicOf(window, "");
        ASSERT_NE(topic, nullptr) << window;
        EXPECT_EQ(topic->page, page);
    }
}

TEST(HelpTopics, FindControlsOfArraysByTheirNameAndLeaveUnknownNamesAlone) {
    EXPECT_EQ(PlaceOf("frmQModell", "PriorOpt(1)"), "model-window.html#priority");
    EXPECT_EQ(PlaceOf("frmCalcOut", "ResPlus(2)"), "result-window.html#extended");
    EXPECT_EQ(PlaceOf("", "mnuCalc(2)"), "calculations.html#states");
    EXPECT_EQ(PlaceOf("", "mnuCalc(5)"), "calculations.html#equilibrium");
    EXPECT_EQ(PlaceOf("", "mnuCalc(16)"), "vessel.html#");
    EXPECT_EQ(PlaceOf("", "mnuCalc_sub_sub_database(1)"), "calculations.html#database");
    EXPECT_EQ(PlaceOf("", "mnuGraf_sub_cut(1)"), "diagrams.html#isotherm");
    EXPECT_EQ(PlaceOf("", "mnuGraf_sub_cut(5)"), "diagrams.html#sections");
    EXPECT_EQ(PlaceOf("", "mnuGraf_sub_HS(1)"), "diagrams.html#pairs");
    EXPECT_EQ(PlaceOf("frmOther", "Hilfe"), "") << "the name belongs to another window";
    EXPECT_EQ(HelpTopicOf("frmQModell", "nothing"), nullptr);
    EXPECT_EQ(HelpTopicOf("", ""), nullptr);
    EXPECT_EQ(HelpTopicOf("frmQMod", ""), nullptr) << "a part of a name is no name";
}

TEST(HelpTopics, AreFoundByNumberAndPlace) {
    ASSERT_NE(FindHelpTopic(213), nullptr);
    EXPECT_EQ(FindHelpTopic(213)->anchor, "priority");
    EXPECT_EQ(FindHelpTopic(0), nullptr);
    EXPECT_EQ(FindHelpTopic("model-window.html", "priority"), FindHelpTopic(213));
    EXPECT_EQ(FindHelpTopic("model-window.html", "unknown"), FindHelpTopic(210));
    EXPECT_EQ(FindHelpTopic("unknown.html", ""), nullptr);
}

TEST(HelpTopics, MenuCommandsInTheTableExist) {
    for (const HelpTopic& topic : HelpTopics()) {
        std::istringstream openers{std::string(topic.openers)};
        for (std::string name; openers >> name;) {
            if (!name.starts_with("mnu"))
                continue;
            const auto rows = CommandTable();
            EXPECT_TRUE(std::ranges::any_of(rows, [&](const CommandRow& row) {
                return row.name == name || CommandKey(row.name, row.index) == name;
            })) << name;
        }
    }
}

// Every entry of the calculation menu that does something leads to a page of its own subject.
TEST(HelpTopics, ExplainEveryCalculation) {
    for (const CommandRow& row : CommandTable()) {
        if (row.action != CommandAction::Calculate)
            continue;
        const std::string place = PlaceOf("", CommandKey(row.name, row.index));
        EXPECT_TRUE(place.starts_with("calculations.html#") || place == "vessel.html#") << row.text;
        EXPECT_NE(place, "calculations.html#") << row.text;
    }
}

TEST(HelpTopics, SpeakBothLanguages) {
    EXPECT_EQ(TitleOf(HelpIndexTopic(), HelpLanguage::German), "Willkommen");
    EXPECT_EQ(TitleOf(HelpIndexTopic(), HelpLanguage::English), "Welcome");
    EXPECT_EQ(TitleOf(HelpChapter::Reference, HelpLanguage::German), "Nachschlagen");
    EXPECT_EQ(TitleOf(HelpChapter::Reference, HelpLanguage::English), "Reference");
    EXPECT_EQ(HelpFolderOf(HelpLanguage::German), "de");
    EXPECT_EQ(HelpFolderOf(HelpLanguage::English), "en");
}

} // namespace
} // namespace orva::test
