// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/help_page.h"

#include <algorithm>
#include <map>

#include "text/columns.h"
#include "text/utf8.h"

namespace orva {

namespace {

using std::string_view_literals::operator""sv;

// Tags within a line, which separate no words.
constexpr std::string_view inlineTags[] = {"a",   "b",   "i",    "em",   "strong",
                                           "sub", "sup", "code", "span", "kbd"};

struct Entity {
    std::string_view name, text;
};

constexpr Entity entities[] = {{"amp", "&"},   {"lt", "<"},   {"gt", ">"},
                               {"quot", "\""}, {"nbsp", " "}, {"shy", ""}};

// The value of an attribute in a tag: name="value".
std::string AttributeOf(std::string_view tag, std::string_view name) {
    const std::string key = " " + std::string(name) + "=\"";
    const std::size_t at = tag.find(key);
    if (at == std::string_view::npos)
        return {};
    const std::size_t begin = at + key.size();
    const std::size_t end = tag.find('"', begin);
    return end == std::string_view::npos ? std::string() : std::string(tag.substr(begin, end - begin));
}

std::string NameOf(std::string_view tag) {
    std::string name(tag.substr(0, tag.find_first_of(" \t\r\n/", 1)));
    std::ranges::transform(name, name.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return name;
}

bool IsInline(std::string_view name) {
    if (name.starts_with('/'))
        name.remove_prefix(1);
    return std::ranges::find(inlineTags, name) != std::end(inlineTags);
}

bool IsHeading(std::string_view name) {
    return name.size() == 2 && name[0] == 'h' && name[1] >= '1' && name[1] <= '6';
}

class PageReader {
public:
    HelpPage Read(std::string_view html) {
        page.sections.emplace_back();
        while (!html.empty()) {
            if (html.starts_with("<!--"sv))
                html.remove_prefix(std::min(html.find("-->"), html.size() - 3) + 3);
            else if (const std::size_t end = html.find('>');
                     html.front() == '<' && end != std::string_view::npos) {
                TakeTag(html.substr(1, end - 1));
                html.remove_prefix(end + 1);
            } else
                TakeText(html);
        }
        for (HelpSection& section : page.sections) {
            section.heading = Trim(section.heading);
            section.text = Trim(section.text);
        }
        page.title = Trim(page.title);
        return std::move(page);
    }

private:
    void TakeTag(std::string_view tag) {
        const std::string name = NameOf(tag);
        const std::string id = AttributeOf(tag, "id");
        if (!id.empty())
            page.anchors.push_back(id);
        if (name == "a")
            Note(page.links, AttributeOf(tag, "href"));
        else if (name == "img")
            Note(page.images, AttributeOf(tag, "src"));
        else if (name == "title" || name == "/title")
            inTitle = name == "title";
        else if (name == "head" || name == "/head")
            inHead = name == "head";
        else if (IsHeading(name)) {
            if (!id.empty())
                page.sections.push_back({id, {}, {}});
            inHeading = id.empty() ? page.sections.back().heading.empty() : true;
        } else if (name.starts_with('/') && IsHeading(name.substr(1)))
            inHeading = false;
        if (!IsInline(name))
            Append(" ");
    }

    static void Note(std::vector<std::string>& list, std::string value) {
        if (!value.empty())
            list.push_back(std::move(value));
    }

    void TakeText(std::string_view& html) {
        if (html.front() == '&')
            for (const Entity& entity : entities)
                if (html.substr(1).starts_with(entity.name)
                    && html.substr(entity.name.size() + 1).starts_with(';')) {
                    Append(entity.text);
                    html.remove_prefix(entity.name.size() + 2);
                    return;
                }
        const std::size_t end = std::min(html.find_first_of("<&", 1), html.size());
        Append(html.substr(0, end));
        html.remove_prefix(end);
    }

    // Runs of blanks and line ends count as one blank.
    void Append(std::string_view text) {
        if (inHead && !inTitle)
            return;
        std::string& target = inTitle     ? page.title
                              : inHeading ? page.sections.back().heading
                                          : page.sections.back().text;
        for (const char c : text) {
            const bool blank = " \t\r\n"sv.find(c) != std::string_view::npos;
            if (!blank)
                target += c;
            else if (!target.empty() && target.back() != ' ')
                target += ' ';
        }
    }

    HelpPage page;
    bool inHead = false;
    bool inTitle = false;
    bool inHeading = false;
};

using Variables = std::map<std::string, std::string, std::less<>>;

void TakeDeclarations(std::string_view block, Variables& variables) {
    while (true) {
        const std::size_t at = block.find("--");
        if (at == std::string_view::npos)
            return;
        block.remove_prefix(at);
        const std::size_t colon = std::min(block.find(':'), block.size());
        const std::size_t end = std::min(block.find(';'), block.size());
        if (colon >= end)
            return;
        variables[std::string(Trim(block.substr(0, colon)))] = Trim(block.substr(colon + 1, end - colon - 1));
        block.remove_prefix(end);
    }
}

// Cuts the rule that begins at `at`, up to the bracket that closes it.
std::string CutRule(std::string& css, std::size_t at) {
    std::size_t end = css.find('{', at);
    int depth = 0;
    while (end < css.size()) {
        depth += css[end] == '{' ? 1 : css[end] == '}' ? -1 : 0;
        ++end;
        if (depth == 0)
            break;
    }
    end = std::min(end, css.size());
    const std::string rule = css.substr(at, end - at);
    css.erase(at, end - at);
    return rule;
}

} // namespace

HelpPage ReadHelpPage(std::string_view html) {
    return PageReader().Read(html);
}

std::string ResolveStyleSheet(std::string_view text, bool dark) {
    std::string css(text);
    std::string darkRules;
    if (const std::size_t query = css.find("@media"); query != std::string::npos)
        darkRules = CutRule(css, query);
    Variables variables;
    if (const std::size_t root = css.find(":root"); root != std::string::npos)
        TakeDeclarations(CutRule(css, root), variables);
    if (dark)
        TakeDeclarations(darkRules, variables);
    std::string resolved;
    for (std::size_t at = 0; at < css.size();) {
        const std::size_t use = css.find("var(", at);
        resolved.append(css, at, use - at);
        if (use == std::string::npos)
            break;
        const std::size_t end = std::min(css.find(')', use), css.size());
        const auto found = variables.find(Trim(std::string_view(css).substr(use + 4, end - use - 4)));
        if (found != variables.end())
            resolved += found->second;
        at = std::min(end + 1, css.size());
    }
    return resolved;
}

} // namespace orva
