// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orva {

// A text at a column of its line. Columns count characters from 0.
struct ListPiece {
    std::size_t column = 0;
    std::string text;

    bool operator==(const ListPiece&) const = default;
};

enum class ListLineKind : std::uint8_t {
    Text,
    DoubleRule, // "=" in a file
    SingleRule, // "-" in a file
    Underline,  // character 196 in a file, the line of the old text screens
    LineFeed    // a line feed alone in a file, an empty line on paper
};

// One line of a list, for a file or for paper.
struct ListLine {
    ListLineKind kind = ListLineKind::Text;
    std::vector<ListPiece> pieces; // of a text, from left to right
    std::size_t width = 0;         // of a rule, in characters

    bool operator==(const ListLine&) const = default;
};

// A list written from left to right and from top to bottom, with tab stops.
class ListPage {
public:
    // The text at this column; in a new line if the line in hand is beyond it.
    ListPage& At(std::size_t column, std::string_view text);
    // The text where the line in hand ends.
    ListPage& Put(std::string_view text);
    ListPage& EndLine();

    void TextLine(std::size_t column, std::string_view text) { At(column, text).EndLine(); }
    void EmptyLine() { EndLine(); }
    void Rule(ListLineKind kind, std::size_t width);
    void LineFeeds(int count);

    const std::vector<ListLine>& Lines() const { return lines; }

private:
    std::vector<ListLine> lines;
    std::vector<ListPiece> pieces; // of the line in hand
    std::size_t position = 0;      // characters in the line in hand
};

// The list as a text file, in UTF-8. Lines end with "\r\n", but for a line feed, which stands alone.
std::string ListFileText(const std::vector<ListLine>& lines);

} // namespace orva
