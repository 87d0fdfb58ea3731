// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/capitals.h"

namespace orva {

std::string InCapitals(std::string_view text) {
    std::string capitals(text);
    for (char& c : capitals)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return capitals;
}

} // namespace orva
