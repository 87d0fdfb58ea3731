// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shell/help_page.h"

namespace orva {

// A stretch of a text, in characters.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool operator==(const TextRange&) const = default;
};

// Where the words of a query stand in a text, from front to back and without overlaps. Words are found inside
// of others, whatever their capitals; "ä", "ae" and "a" are the same, and so are the other umlauts and
// accents; a hyphen or a stroke counts as a blank.
std::vector<TextRange> FindWords(std::u32string_view text, std::string_view query);

struct HelpHit {
    std::string page, anchor;
    std::string title;   // of the page
    std::string heading; // of the section, empty at the beginning of a page
    std::string snippet; // the words in what stands around them
};

// Full-text search over help pages.
class HelpIndex {
public:
    // Adds a page under the name of its file.
    void Add(std::string_view name, const HelpPage& page);

    // The sections that hold every word of the query, in the text, in their heading or in the title of their
    // page: hits in titles first, above all those that begin with the
    // query, then in headings, then by number of occurrences; at most 50. Nothing for a
    // query without a word.
    std::vector<HelpHit> Search(std::string_view query) const;

private:
    struct Section {
        HelpHit place; // without a snippet
        bool first;    // of its page
        std::u32string text;
        std::u32string foldedTitle, foldedHeading, foldedText;
    };
    static double Score(const Section& section, const std::vector<std::u32string>& words);

    std::vector<Section> sections;
};

} // namespace orva
