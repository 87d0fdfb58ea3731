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

// An object of keys and values in turn, built in place: JsonObject("T", 300.0, "p", 100.0). The plain braces
// of the library make an array of each pair first, which a file of many requests notices.
template<typename... KeysAndValues> Json JsonObject(KeysAndValues&&... keysAndValues) {
    static_assert(sizeof...(keysAndValues) % 2 == 0);
    Json::object_t object;
    object.reserve(sizeof...(keysAndValues) / 2);
    const auto add = [&object](auto&& self, const char* key, auto&& value, auto&&... others) -> void {
        object.Container::emplace_back(key, std::forward<decltype(value)>(value));
        if constexpr (sizeof...(others) > 0)
            self(self, std::forward<decltype(others)>(others)...);
    };
    if constexpr (sizeof...(keysAndValues) > 0)
        add(add, std::forward<KeysAndValues>(keysAndValues)...);
    return Json(std::move(object));
}

} // namespace orva
