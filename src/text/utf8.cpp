// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/utf8.h"

#include <algorithm>

namespace orva {

namespace {

// Lead bytes with the number of bytes behind them and the limits of the second byte.
struct LeadRange {
    unsigned char first;
    unsigned char last;
    std::size_t following;
    unsigned char secondLow;
    unsigned char secondHigh;
};

constexpr LeadRange leadRanges[] = {
    {0xC2, 0xDF, 1, 0x80, 0xBF}, {0xE0, 0xE0, 2, 0xA0, 0xBF}, {0xE1, 0xEC, 2, 0x80, 0xBF},
    {0xED, 0xED, 2, 0x80, 0x9F}, {0xEE, 0xEF, 2, 0x80, 0xBF}, {0xF0, 0xF0, 3, 0x90, 0xBF},
    {0xF1, 0xF3, 3, 0x80, 0xBF}, {0xF4, 0xF4, 3, 0x80, 0x8F},
};

constexpr char32_t replacementCharacter = 0xFFFD;

} // namespace

Utf8Step FirstCharacter(std::string_view text) {
    if (text.empty())
        return {};
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const auto range = std::find_if(std::begin(leadRanges), std::end(leadRanges),
                                    [lead](const LeadRange& r) { return lead >= r.first && lead <= r.last; });
    if (range == std::end(leadRanges))
        return {std::nullopt, 1};
    char32_t character = lead & (0x3Fu >> range->following);
    for (std::size_t i = 1; i <= range->following; ++i) {
        const unsigned char low = i == 1 ? range->secondLow : 0x80;
        const unsigned char high = i == 1 ? range->secondHigh : 0xBF;
        if (i >= text.size() || static_cast<unsigned char>(text[i]) < low
            || static_cast<unsigned char>(text[i]) > high)
            return {std::nullopt, i};
        character = (character << 6) | (static_cast<unsigned char>(text[i]) & 0x3Fu);
    }
    return {character, range->following + 1};
}

void AppendUtf8(std::string& text, char32_t character) {
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
        character = replacementCharacter;
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += tail(6);
        text += tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        text += tail(12);
        text += tail(6);
        text += tail(0);
    }
}

std::u32string CodePoints(std::string_view text) {
    std::u32string points;
    while (!text.empty()) {
        const Utf8Step step = FirstCharacter(text);
        points += step.character.value_or(U'\uFFFD');
        text.remove_prefix(step.length);
    }
    return points;
}

std::string Utf8(std::u32string_view characters) {
    std::string text;
    for (const char32_t character : characters)
        AppendUtf8(text, character);
    return text;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const Utf8Step step = FirstCharacter(text);
        if (!step.character)
            return false;
        text.remove_prefix(step.length);
    }
    return true;
}

} // namespace orva
