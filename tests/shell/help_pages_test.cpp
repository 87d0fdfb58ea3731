// SPDX-License-Identifier: GPL-3.0-or-later
// The pages that ship: complete, connected and the same in both languages.
#include <algorithm>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/help_library.h"
#include "support/test_machine.h"
#include "text/text_file.h"

namespace orva::test {
namespace {

using testing::HasSubstr;

const std::filesystem::path helpFolder = std::filesystem::path(ORVA_INSTALLATION_FOLDER) / "help";
constexpr std::uintmax_t largestPicture = 100000; // bytes

std::set<std::string> PageNames() {
    std::set<std::string> names;
    for (const HelpTopic& topic : HelpTopics())
        names.emplace(topic.page);
    return names;
}

bool Holds(const std::vector<std::string>& list, std::string_view text) {
    return std::ranges::find(list, text) != list.end();
}

struct HelpPages : testing::TestWithParam<HelpLanguage> {
    static HelpPage Read(HelpLanguage language, std::string_view name) {
        const auto html = ReadFile(HelpLibrary(helpFolder).PagePath(language, name));
        EXPECT_TRUE(html.has_value()) << name;
        return ReadHelpPage(html.value_or(""));
    }
    static HelpPage Read(std::string_view name) { return Read(GetParam(), name); }
};

TEST_P(HelpPages, HoldEveryTopicUnderItsTitle) {
    for (const HelpTopic& topic : HelpTopics()) {
        const HelpPage page = Read(topic.page);
        if (topic.anchor.empty()) {
            EXPECT_EQ(page.title, TitleOf(topic, GetParam()));
            EXPECT_EQ(page.sections.front().heading, page.title);
            continue;
        }
        EXPECT_TRUE(Holds(page.anchors, topic.anchor)) << topic.page << "#" << topic.anchor;
    }
}

TEST_P(HelpPages, HoldNoFileWithoutATopic) {
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(helpFolder / HelpFolderOf(GetParam())))
        files.insert(entry.path().filename().string());
    EXPECT_EQ(files, PageNames());
}

TEST_P(HelpPages, LeadToPlacesThatExist) {
    for (const std::string& name : PageNames())
        for (const std::string& link : Read(name).links) {
            const std::size_t hash = std::min(link.find('#'), link.size());
            const std::string target = hash == 0 ? name : link.substr(0, hash);
            const std::string anchor = link.substr(std::min(hash + 1, link.size()));
            ASSERT_TRUE(PageNames().contains(target)) << name << ": " << link;
            EXPECT_TRUE(anchor.empty() || Holds(Read(target).anchors, anchor)) << name << ": " << link;
        }
}

TEST_P(HelpPages, AreAllReachedByLinksFromTheFirst) {
    std::set<std::string> reached{"index.html"};
    std::vector<std::string> ahead{"index.html"};
    while (!ahead.empty()) {
        const HelpPage page = Read(ahead.back());
        ahead.pop_back();
        for (const std::string& link : page.links) {
            const std::string target = link.substr(0, link.find('#'));
            if (!target.empty() && reached.insert(target).second)
                ahead.push_back(target);
        }
    }
    for (const std::string& name : PageNames())
        EXPECT_TRUE(reached.contains(name)) << name;
}

TEST_P(HelpPages, ShowPicturesThatExistAndAreSmall) {
    std::size_t count = 0;
    for (const std::string& name : PageNames())
        for (const std::string& image : Read(name).images) {
            const std::filesystem::path file = helpFolder / HelpFolderOf(GetParam()) / image;
            ASSERT_TRUE(FileExists(file)) << name << ": " << image;
            EXPECT_LT(std::filesystem::file_size(file), largestPicture) << image;
            EXPECT_TRUE(ReadFile(file)->starts_with("\x89PNG")) << image;
            ++count;
        }
    EXPECT_GE(count, 10U);
}

TEST_P(HelpPages, UseOneStylesheetAndSayTheirLanguage) {
    const std::string language = "<html lang=\"" + std::string(HelpFolderOf(GetParam())) + "\">";
    for (const std::string& name : PageNames()) {
        const std::string html = HelpLibrary(helpFolder).Page(GetParam(), name);
        EXPECT_THAT(html, HasSubstr(language)) << name;
        EXPECT_THAT(html, HasSubstr("<meta charset=\"utf-8\">")) << name;
        EXPECT_THAT(html, HasSubstr("<link rel=\"stylesheet\" type=\"text/css\" href=\"../help.css\">"))
            << name;
    }
}

TEST_P(HelpPages, AreFoundByTheirTitles) {
    HelpLibrary library(helpFolder);
    for (const HelpTopic& topic : HelpTopics()) {
        if (!topic.anchor.empty())
            continue;
        const std::vector<HelpHit> hits = library.Search(GetParam(), TitleOf(topic, GetParam()));
        EXPECT_TRUE(std::ranges::any_of(hits, [&](const HelpHit& hit) { return hit.page == topic.page; }))
            << topic.page;
    }
}

INSTANTIATE_TEST_SUITE_P(Language, HelpPages, testing::Values(HelpLanguage::German, HelpLanguage::English),
                         [](const auto& chosen) { return std::string(HelpFolderOf(chosen.param)); });

TEST(HelpTranslation, HasTheSameSectionsLinksAndPictures) {
    for (const std::string& name : PageNames()) {
        const HelpPage german = HelpPages::Read(HelpLanguage::German, name);
        const HelpPage english = HelpPages::Read(HelpLanguage::English, name);
        EXPECT_EQ(german.anchors, english.anchors) << name;
        EXPECT_EQ(german.images, english.images) << name;
        EXPECT_EQ(std::multiset<std::string>(german.links.begin(), german.links.end()),
                  std::multiset<std::string>(english.links.begin(), english.links.end()))
            << name;
        for (std::size_t i = 0; i < std::min(german.sections.size(), english.sections.size()); ++i)
            EXPECT_EQ(german.sections[i].text.empty(), english.sections[i].text.empty())
                << name << " " << german.sections[i].heading;
    }
}

TEST(HelpSearchOfThePages, PutsThePageOfTheSubjectFirst) {
    HelpLibrary library(helpFolder);
    for (const auto& [query, page] : {std::pair{"Waermekapazitaet", "heat-capacity.html"},
                                      {"peng robinson", "eos-peng-robinson.html"},
                                      {"exergie", "exergy.html"},
                                      {"normierung", "reference.html"},
                                      {"stoffwahl", "substance-window.html"},
                                      {"behälter", "vessel.html"},
                                      {"iso-rechner", "inversion.html"},
                                      {"diagnose", "diagnosis.html"},
                                      {"protokoll", "protocol.html"},
                                      {"berechnungsarten", "calculations.html"},
                                      {"dampfdruck", "vapour-pressure.html"}}) {
        const std::vector<HelpHit> hits = library.Search(HelpLanguage::German, query);
        ASSERT_FALSE(hits.empty()) << query;
        EXPECT_EQ(hits.front().page, page) << query;
    }
    EXPECT_EQ(library.Search(HelpLanguage::English, "heat capacity").front().page, "heat-capacity.html");
    EXPECT_TRUE(library.Search(HelpLanguage::German, "gibtesnichtwort").empty());
}

TEST(HelpLibraryWithoutPages, SaysWhatIsMissingAndWhatToDo) {
    const TestMachine machine;
    HelpLibrary library(machine.InstallationFolder() / "help");
    const std::string html = library.Page(HelpLanguage::German, "eos-soave.html");
    EXPECT_THAT(html, HasSubstr("<h1>Hilfeseite nicht gefunden</h1>"));
    EXPECT_THAT(html, HasSubstr("Die Seite „Soave/Redlich/Kwong“ fehlt."));
    EXPECT_THAT(html, HasSubstr("eos-soave.html</b>"));
    EXPECT_THAT(html, HasSubstr("kopieren Sie ihn aus der Installation dorthin."));
    EXPECT_THAT(library.Page(HelpLanguage::English, "eos-soave.html"), HasSubstr("Help page not found"));
    EXPECT_THAT(library.Page(HelpLanguage::German, "<x>.html"), HasSubstr("&lt;x&gt;.html"));
    EXPECT_EQ(library.StyleSheet(false), "");
    EXPECT_TRUE(library.Search(HelpLanguage::German, "soave").empty());
}

} // namespace
} // namespace orva::test
