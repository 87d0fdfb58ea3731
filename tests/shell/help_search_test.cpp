// SPDX-License-Identifier: GPL-3.0-or-later
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/help_page.h"
#include "shell/help_search.h"

namespace orva::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view samplePage = R"(<!DOCTYPE html>
<html lang="de"><head><title>Wärme &amp; Kälte</title><link rel="stylesheet" href="../help.css"></head>
<body><h1>Wärme &amp; Kälte</h1>
<p>Ein <b>An</b>fang mit <a href="other.html#x">Verweis</a>.<!-- never shown <p> --></p>
<h2 id="one">Erster Teil</h2><p>p<sub>LV</sub> &lt; p<sub>cr</sub></p><p>neue
   Zeile</p>
<img src="../pictures/a.png" alt="Bild">
<h2 id="two">Zweiter Teil</h2><table><tr><td>Zelle</td><td>Nachbar</td></tr></table></body></html>)";

TEST(HelpPage, IsReadIntoSectionsOfPlainText) {
    const HelpPage page = ReadHelpPage(samplePage);
    EXPECT_EQ(page.title, "Wärme & Kälte");
    ASSERT_EQ(page.sections.size(), 3U);
    EXPECT_EQ(page.sections[0].anchor, "");
    EXPECT_EQ(page.sections[0].heading, "Wärme & Kälte");
    EXPECT_EQ(page.sections[0].text, "Ein Anfang mit Verweis.");
    EXPECT_EQ(page.sections[1].anchor, "one");
    EXPECT_EQ(page.sections[1].heading, "Erster Teil");
    EXPECT_EQ(page.sections[1].text, "pLV < pcr neue Zeile");
    EXPECT_EQ(page.sections[2].text, "Zelle Nachbar");
    EXPECT_THAT(page.anchors, ElementsAre("one", "two"));
    EXPECT_THAT(page.links, ElementsAre("other.html#x"));
    EXPECT_THAT(page.images, ElementsAre("../pictures/a.png"));
}

TEST(HelpPage, SurvivesAnyBytes) {
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(samplePage);
        for (int i = 0; i < 20; ++i)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        bytes.resize(random() % bytes.size());
        const HelpPage page = ReadHelpPage(bytes);
        EXPECT_FALSE(page.sections.empty());
        HelpIndex index;
        index.Add("a.html", page);
        (void)index.Search("teil");
        (void)ResolveStyleSheet(bytes, true);
    }
}

TEST(HelpPage, StylesheetTakesTheColoursOfTheGround) {
    constexpr std::string_view css =
        ":root { --ink: #111; --rule: #ccc; }\n"
        "@media (prefers-color-scheme: dark) { :root { --ink: #eee; } }\n"
        "p { color: var(--ink); border: 1px solid var( --rule ); top: var(--no); }";
    const std::string light = ResolveStyleSheet(css, false);
    EXPECT_THAT(light, HasSubstr("p { color: #111; border: 1px solid #ccc; top: ; }"));
    EXPECT_THAT(ResolveStyleSheet(css, true), HasSubstr("p { color: #eee; border: 1px solid #ccc; top: ; }"));
    EXPECT_EQ(light.find("--"), std::string::npos);
    EXPECT_EQ(light.find("@media"), std::string::npos);
}

struct SmallHelp : testing::Test {
    HelpIndex index;

    void SetUp() override {
        Add("heat.html", "Wärmekapazität",
            "<p>Grundlage der Enthalpie.</p><h2 id=\"poly\">Polynom</h2><p>Ein Polynom.</p>");
        Add("gas.html", "Ideales Gas", "<p>Die Wärmekapazität des idealen Gases. Wärmekapazität.</p>");
        Add("list.html", "Liste",
            "<h2 id=\"cp\">Wärmekapazität wählen</h2><p>Straße, Größe, neue Steuer.</p>");
        Add("eos.html", "Peng/Robinson", "<p>Eine Gleichung.</p>");
    }
    void Add(const std::string& name, const std::string& title, const std::string& body) {
        index.Add(name, ReadHelpPage("<html><head><title>" + title + "</title></head><body><h1>" + title
                                     + "</h1>" + body + "</body></html>"));
    }
    std::vector<std::string> Places(std::string_view query) const {
        std::vector<std::string> places;
        for (const HelpHit& hit : index.Search(query))
            places.push_back(hit.page + "#" + hit.anchor);
        return places;
    }
};

TEST_F(SmallHelp, FindsWordsHoweverUmlautsAndCapitalsAreWritten) {
    for (const char* query : {"Wärmekapazität", "waermekapazitaet", "WARMEKAPAZITAT", "  wärmeKAPAZITAET "})
        EXPECT_THAT(Places(query), ElementsAre("heat.html#", "list.html#cp", "gas.html#")) << query;
    EXPECT_THAT(Places("strasse"), ElementsAre("list.html#cp"));
    EXPECT_THAT(Places("groesse"), ElementsAre("list.html#cp"));
    EXPECT_THAT(Places("neue steuer"), ElementsAre("list.html#cp"));
    EXPECT_THAT(Places("steu"), ElementsAre("list.html#cp"));
}

TEST_F(SmallHelp, FindsAllWordsInAnyOrderAndPartsOfThem) {
    EXPECT_THAT(Places("gases ideal"), ElementsAre("gas.html#"));
    EXPECT_THAT(Places("kapaz"), ElementsAre("heat.html#", "list.html#cp", "gas.html#"));
    EXPECT_THAT(Places("Polynom Wärmekapazität"), ElementsAre("heat.html#poly"));
    EXPECT_THAT(Places("peng-robinson"), ElementsAre("eos.html#"));
    EXPECT_THAT(Places("Peng Robinson"), ElementsAre("eos.html#"));
    EXPECT_THAT(Places("gases nirgends"), IsEmpty());
    EXPECT_THAT(Places("   "), IsEmpty());
    EXPECT_THAT(Places(""), IsEmpty());
}

TEST_F(SmallHelp, TellsTitleHeadingAndSurroundings) {
    const HelpHit hit = index.Search("polynom").front();
    EXPECT_EQ(hit.title, "Wärmekapazität");
    EXPECT_EQ(hit.heading, "Polynom");
    EXPECT_EQ(hit.snippet, "Ein Polynom.");
    EXPECT_EQ(index.Search("enthalpie").front().heading, "");
}

TEST_F(SmallHelp, CutsLongTextsBetweenWordsAroundTheHit) {
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "Füllwort ";
    Add("long.html", "Lang", "<p>" + text + "Nadel " + text + "</p>");
    const std::string snippet = index.Search("nadel").front().snippet;
    EXPECT_THAT(snippet, testing::StartsWith("… Füllwort "));
    EXPECT_THAT(snippet, testing::EndsWith(" …"));
    EXPECT_THAT(snippet, HasSubstr(" Nadel "));
    EXPECT_LT(snippet.size(), 220U);
}

TEST_F(SmallHelp, EndsAtFiftyHits) {
    for (int i = 0; i < 60; ++i)
        Add("many" + std::to_string(i) + ".html", "Seite", "<p>Heuhaufen</p>");
    EXPECT_EQ(index.Search("heuhaufen").size(), 50U);
}

TEST(HelpWords, AreMarkedWhereTheyStand) {
    EXPECT_THAT(FindWords(U"Wärme und waerme", "warme"), ElementsAre(TextRange{0, 5}, TextRange{10, 16}));
    EXPECT_THAT(FindWords(U"Größe", "groesse"), ElementsAre(TextRange{0, 5}));
    EXPECT_THAT(FindWords(U"aaa ab", "a aa"), ElementsAre(TextRange{0, 3}, TextRange{4, 5}));
    EXPECT_THAT(FindWords(U"T³", "t3"), ElementsAre(TextRange{0, 2}));
    EXPECT_THAT(FindWords(U"nichts", "anderes"), IsEmpty());
    EXPECT_THAT(FindWords(U"nichts", ""), IsEmpty());
}

} // namespace
} // namespace orva::test
