// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/list_page.h"

#include "text/columns.h"

namespace orva {

namespace {

std::string LineText(const std::vector<ListPiece>& pieces) {
    std::string text;
    for (const ListPiece& piece : pieces)
        text = PadRight(text, piece.column) + piece.text;
    return text;
}

std::string FileLine(const ListLine& line) {
    switch (line.kind) {
    case ListLineKind::DoubleRule:
        return Line("=", line.width) + "\r\n";
    case ListLineKind::SingleRule:
        return Line("-", line.width) + "\r\n";
    case ListLineKind::Underline:
        return Line("Ä", line.width) + "\r\n"; // Windows-1252 of code 196
    case ListLineKind::LineFeed:
        return "\n";
    case ListLineKind::Text:
        break;
    }
    return LineText(line.pieces) + "\r\n";
}

} // namespace

ListPage& ListPage::At(std::size_t column, std::string_view text) {
    if (position > column)
        EndLine();
    position = column;
    return Put(text);
}

ListPage& ListPage::Put(std::string_view text) {
    pieces.push_back({position, std::string(text)});
    position += CharacterCount(text);
    return *this;
}

ListPage& ListPage::EndLine() {
    lines.push_back({ListLineKind::Text, std::move(pieces), 0});
    pieces.clear();
    position = 0;
    return *this;
}

void ListPage::Rule(ListLineKind kind, std::size_t width) {
    lines.push_back({kind, {}, width});
}

void ListPage::LineFeeds(int count) {
    lines.insert(lines.end(), static_cast<std::size_t>(count), {ListLineKind::LineFeed, {}, 0});
}

std::string ListFileText(const std::vector<ListLine>& lines) {
    std::string text;
    for (const ListLine& line : lines)
        text += FileLine(line);
    return text;
}

} // namespace orva
