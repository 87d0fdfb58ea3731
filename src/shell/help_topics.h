// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orva {

enum class HelpLanguage : std::uint8_t { German, English };

// The parts of the table of contents, in its order.
enum class HelpChapter : std::uint8_t {
    Start,
    Substances,
    Equations,
    Correlations,
    Equilibrium,
    Caloric,
    Calculations,
    Diagrams,
    Automation,
    Reference
};

// One place of the help. A row without an anchor is a page; the rows with an anchor behind it are its
// sections. A new page is a row here and one file for each language.
struct HelpTopic {
    int number;
    HelpChapter chapter;
    std::string_view page;   // file in the folder of each language
    std::string_view anchor; // id of a heading of the page, empty for its top
    std::string_view titleGerman;
    std::string_view titleEnglish;
    // Names of windows, controls and menu commands that open the topic, with blanks between them. A name that
    // several windows use has its window in front: "frmStoffWahl.Hilfe".
    std::string_view openers;
};

// All topics in the order of the table of contents.
std::span<const HelpTopic> HelpTopics();

// The page that the help opens with.
const HelpTopic& HelpIndexTopic();

// The topic with this number, null if there is none.
const HelpTopic* FindHelpTopic(int number);

// The topic of a page and an anchor of it; the page itself if the anchor has no row, null for unknown pages.
const HelpTopic* FindHelpTopic(std::string_view page, std::string_view anchor);

// The topic that a control opens: its name within the window, then its name alone, each with and without an
// index ("PriorOpt(0)"). Null if there is none. With an empty control the topic of the window itself.
const HelpTopic* HelpTopicOf(std::string_view window, std::string_view control);

std::string_view TitleOf(const HelpTopic& topic, HelpLanguage language);
std::string_view TitleOf(HelpChapter chapter, HelpLanguage language);

// "de" or "en": the folder of the pages.
std::string_view HelpFolderOf(HelpLanguage language);

} // namespace orva
