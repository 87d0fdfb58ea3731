// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/name_search.h"

#include <algorithm>
#include <cstdint>

#include "text/utf8.h"

namespace orva {
namespace {

struct SpellingRule {
    std::u32string_view from, to;
};

constexpr SpellingRule letterRules[] = {
    {U"ÄTH", U"ETH"},     {U"GLYKO", U"GLYCO"}, {U"KARBO", U"CARBO"},   {U"SULPH", U"SULF"},
    {U"AZET", U"ACET"},   {U"SEK", U"SEC"},     {U"ZYKLO", U"CYCLO"},   {U"ZYCLO", U"CYCLO"},
    {U"CYKLO", U"CYCLO"}, {U"DEKAN", U"DECAN"}, {U"KRESOL", U"CRESOL"},
};

constexpr SpellingRule groupRules[] = {
    {U"ME-", U"METHYL"},
    {U"ET-", U"ETHYL"},
    {U"SAEURE", U"SÄURE"},
};

// Capitals of the letters of Windows-1252; "ß" has none there and stays.
char32_t Capital(char32_t letter) {
    if ((letter >= U'a' && letter <= U'z') || (letter >= 0xE0 && letter <= 0xFE && letter != 0xF7))
        return letter - 0x20;
    switch (letter) {
    case 0x161: // š
    case 0x17E: // ž
    case 0x153: // œ
        return letter - 1;
    case 0xFF: // ÿ
        return 0x178;
    default:
        return letter;
    }
}

void ReplaceAll(std::u32string& text, const SpellingRule& rule) {
    for (auto at = text.find(rule.from); at != text.npos; at = text.find(rule.from, at + rule.to.size()))
        text.replace(at, rule.from.size(), rule.to);
}

// Position of the first occurrence counted from 1, 0 for none.
std::int64_t PositionIn(const std::u32string& text, std::u32string_view part) {
    const auto at = text.find(part);
    return at == text.npos ? 0 : static_cast<std::int64_t>(at) + 1;
}

// OXYD becomes OXID, unless the first OXYD is the beginning of the first OXYDI. The two positions are
// combined bitwise, so that some pairs of different positions end the replacing as well; that is kept.
void ReplaceOxyd(std::u32string& text) {
    while ((PositionIn(text, U"OXYD") & ~PositionIn(text, U"OXYDI")) != 0)
        text[text.find(U"OXYD") + 2] = U'I';
}

} // namespace

std::string NormaliseName(std::string_view text) {
    std::u32string name = CodePoints(text);
    std::transform(name.begin(), name.end(), name.begin(), Capital);
    std::erase(name, U' ');
    for (const SpellingRule& rule : letterRules)
        ReplaceAll(name, rule);
    ReplaceOxyd(name);
    for (const SpellingRule& rule : groupRules)
        ReplaceAll(name, rule);
    return Utf8(name);
}

std::string SearchKey(std::string_view normalisedName) {
    std::string key;
    for (const char c : normalisedName) {
        if (std::string_view("-()[].").find(c) == std::string_view::npos)
            key += c;
    }
    return key;
}

} // namespace orva
