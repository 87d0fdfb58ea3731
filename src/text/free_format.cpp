// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/free_format.h"

#include "text/columns.h"

namespace orva {

namespace {

std::string_view WithoutQuotes(std::string_view item) {
    const bool quoted = item.size() >= 2 && item.front() == '"' && item.back() == '"';
    return quoted ? item.substr(1, item.size() - 2) : item;
}

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

} // namespace

std::vector<std::string_view> FreeFormatItems(std::string_view text, std::size_t limit) {
    std::vector<std::string_view> items;
    while (!text.empty() && items.size() < limit) {
        bool quoted = false;
        std::size_t length = 0;
        for (; length < text.size() && !IsLineEnd(text[length]); ++length) {
            if (text[length] == '"')
                quoted = !quoted;
            else if (text[length] == ',' && !quoted)
                break;
        }
        const std::string_view item = Trim(text.substr(0, length));
        const bool comma = length < text.size() && text[length] == ',';
        if (comma || !item.empty())
            items.push_back(WithoutQuotes(item));
        text.remove_prefix(length < text.size() ? length + 1 : length);
    }
    return items;
}

} // namespace orva
