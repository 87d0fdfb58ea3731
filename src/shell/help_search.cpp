// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/help_search.h"

#include <algorithm>

#include "text/utf8.h"

namespace orva {

namespace {

constexpr std::size_t mostHits = 50;
constexpr std::size_t snippetBefore = 40; // characters in front of the first word
constexpr std::size_t snippetLength = 120;

// A text for comparison, and where its characters come from.
struct FoldedText {
    std::u32string text;
    std::vector<std::size_t> from; // one for each character, and the end
};

struct Folding {
    std::u32string_view letters;
    char32_t plain;
};

constexpr Folding foldings[] = {
    {U"äÄàáâåÀÁÂÅ", U'a'},
    {U"éèêëÉÈÊË", U'e'},
    {U"íìîïÍÌÎÏ", U'i'},
    {U"öÖóòôøÓÒÔØ", U'o'},
    {U"üÜúùûÚÙÛ", U'u'},
    {U"çÇ", U'c'},
    {U"ñÑ", U'n'},
    {U"¹", U'1'},
    {U"²", U'2'},
    {U"³", U'3'},
    {U"-–—−/\u00A0\u2003\t\r\n", U' '},
};

char32_t Plain(char32_t c) {
    if (c >= U'A' && c <= U'Z')
        return c + 32;
    if (c < 0x80 && c != U'-' && c != U'/' && c >= U' ')
        return c;
    if (c >= 0x391 && c <= 0x3A9) // Greek capitals
        return c + 0x20;
    for (const Folding& row : foldings)
        if (row.letters.find(c) != std::u32string_view::npos)
            return row.plain;
    return c;
}

FoldedText Fold(std::u32string_view text) {
    FoldedText folded;
    const auto add = [&folded](char32_t c, std::size_t from) {
        folded.text += c;
        folded.from.push_back(from);
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t c = Plain(text[i]);
        const char32_t last = folded.text.empty() ? U' ' : folded.text.back();
        if (text[i] == U'ß') {
            add(U's', i);
            add(U's', i);
        } else if (c == U'e' && (last == U'a' || last == U'o' || last == U'u'))
            continue; // the other spelling of an umlaut
        else
            add(c, i);
    }
    folded.from.push_back(text.size());
    return folded;
}

std::vector<std::u32string> WordsOf(std::string_view query) {
    std::vector<std::u32string> words;
    const std::u32string folded = Fold(CodePoints(query)).text;
    for (std::size_t at = 0; at < folded.size();) {
        const std::size_t end = std::min(folded.find(U' ', at), folded.size());
        if (end > at)
            words.push_back(folded.substr(at, end - at));
        at = end + 1;
    }
    return words;
}

std::vector<TextRange> FindFolded(const FoldedText& folded, const std::vector<std::u32string>& words) {
    std::vector<TextRange> ranges;
    for (const std::u32string& word : words)
        for (std::size_t at = folded.text.find(word); at != std::u32string::npos;
             at = folded.text.find(word, at + word.size()))
            ranges.push_back({folded.from[at], folded.from[at + word.size()]});
    std::ranges::sort(ranges, {}, &TextRange::begin);
    std::vector<TextRange> apart;
    for (const TextRange& range : ranges)
        if (apart.empty() || range.begin > apart.back().end)
            apart.push_back(range);
        else
            apart.back().end = std::max(apart.back().end, range.end);
    return apart;
}

// Begins and ends between words.
std::string SnippetOf(const std::u32string& text, const std::vector<TextRange>& words) {
    const std::size_t hit = words.empty() ? 0 : words.front().begin;
    std::size_t begin = hit > snippetBefore ? text.find(U' ', hit - snippetBefore) : 0;
    begin = begin >= hit ? hit : begin;
    std::size_t end = std::min(begin + snippetLength, text.size());
    if (end < text.size())
        end = std::max(text.rfind(U' ', end), begin + 1);
    while (begin < end && text[begin] == U' ')
        ++begin;
    std::string snippet = Utf8(std::u32string_view(text).substr(begin, end - begin));
    if (begin > 0)
        snippet = "… " + snippet;
    return end < text.size() ? snippet + " …" : snippet;
}

std::size_t CountOf(const std::u32string& text, const std::u32string& word) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::u32string::npos; at = text.find(word, at + word.size()))
        ++count;
    return count;
}

bool HoldsAll(const std::u32string& text, const std::vector<std::u32string>& words) {
    return std::ranges::all_of(
        words, [&](const std::u32string& word) { return text.find(word) != std::u32string::npos; });
}

} // namespace

std::vector<TextRange> FindWords(std::u32string_view text, std::string_view query) {
    return FindFolded(Fold(text), WordsOf(query));
}

void HelpIndex::Add(std::string_view name, const HelpPage& page) {
    bool first = true;
    for (const HelpSection& section : page.sections) {
        Section entry;
        entry.place = {
            std::string(name), section.anchor, page.title, section.anchor.empty() ? "" : section.heading, {}};
        entry.first = first;
        entry.text = CodePoints(section.text);
        entry.foldedTitle = Fold(CodePoints(page.title)).text;
        entry.foldedHeading = Fold(CodePoints(section.heading)).text;
        entry.foldedText = Fold(entry.text).text;
        sections.push_back(std::move(entry));
        first = false;
    }
}

// 0 where a word is missing, or where the title alone holds the words and the section is not the page's
// first.
double HelpIndex::Score(const Section& section, const std::vector<std::u32string>& words) {
    constexpr double inTitle = 10000, beginsTitle = 5000, inHeading = 1000, mostOccurrences = 99;
    double occurrences = 0;
    bool inSection = section.first;
    for (const std::u32string& word : words) {
        const bool heading = section.foldedHeading.find(word) != std::u32string::npos;
        const std::size_t count = CountOf(section.foldedText, word);
        if (!heading && count == 0 && section.foldedTitle.find(word) == std::u32string::npos)
            return 0;
        inSection = inSection || heading || count > 0;
        occurrences += static_cast<double>(count);
    }
    if (!inSection)
        return 0;
    double score = 1 + std::min(occurrences, mostOccurrences);
    if (section.first && HoldsAll(section.foldedTitle, words))
        score += inTitle + (section.foldedTitle.starts_with(words.front()) ? beginsTitle : 0);
    if (HoldsAll(section.foldedHeading, words))
        score += inHeading;
    return score;
}

std::vector<HelpHit> HelpIndex::Search(std::string_view query) const {
    const std::vector<std::u32string> words = WordsOf(query);
    if (words.empty())
        return {};
    std::vector<std::pair<double, const Section*>> found;
    for (const Section& section : sections)
        if (const double score = Score(section, words); score > 0)
            found.emplace_back(score, &section);
    std::ranges::stable_sort(found, std::ranges::greater(), [](const auto& hit) { return hit.first; });
    std::vector<HelpHit> hits;
    for (const auto& [score, section] : found) {
        if (hits.size() == mostHits)
            break;
        hits.push_back(section->place);
        hits.back().snippet = SnippetOf(section->text, FindFolded(Fold(section->text), words));
    }
    return hits;
}

} // namespace orva
