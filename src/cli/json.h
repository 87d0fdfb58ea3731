// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "state/dialogs.h"

namespace orva {

// Objects keep the order in which their keys were written.
using Json = nlohmann::ordered_json;

// One line of UTF-8 without a line end. Doubles have as many digits, at most 17, as reading them back needs;
// a single stands as the double of the same value. Bytes that are not UTF-8 become U+FFFD.
std::string JsonText(const Json& json);

// [{"title", "text"}, ...]
Json MessagesJson(const std::vector<Message>& messages);

// An array of numbers, of arrays of numbers and so on.
template<typename Values> Json NumbersJson(const Values& values) {
    Json::array_t array;
    array.reserve(values.size());
    for (const auto& value : values) {
        if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(value)>>)
            array.emplace_back(static_cast<double>(value));
        else
            array.push_back(NumbersJson(value));
    }
    return Json(std::move(array));
}

} // namespace orva
