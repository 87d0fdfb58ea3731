// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>

#include "cli/json.h"

namespace orva {

// Writers of JSON straight into a text, to the byte as JsonText would write the same value. The answers that
// a run gives by the hundred thousand go this way; all others are trees.

void AppendJson(std::string& text, double number);
void AppendJson(std::string& text, int number);
void AppendJson(std::string& text, std::string_view value);

template<std::same_as<bool> Bool> void AppendJson(std::string& text, Bool value) {
    text += value ? "true" : "false";
}

// A single stands as the double of the same value.
template<std::same_as<float> Single> void AppendJson(std::string& text, Single value) {
    AppendJson(text, static_cast<double>(value));
}

// An array of numbers, of arrays of numbers and so on.
template<typename Values>
requires(!std::convertible_to<Values, std::string_view>) && requires(const Values& v) {
    v.size();
}
void AppendJson(std::string& text, const Values& values) {
    text += '[';
    bool first = true;
    for (const auto& value : values) {
        if (!first)
            text += ',';
        first = false;
        AppendJson(text, value);
    }
    text += ']';
}

// A value that writes itself.
template<std::invocable<std::string&> Writer> void AppendJson(std::string& text, const Writer& writer) {
    writer(text);
}

// An object of keys and values in turn: AppendObject(text, "T", 300.0, "p", 100.0). The keys stand as they
// are, so they hold nothing that JSON escapes.
template<typename... KeysAndValues>
void AppendObject(std::string& text, const KeysAndValues&... keysAndValues) {
    static_assert(sizeof...(keysAndValues) % 2 == 0);
    const auto add = [&text](auto&& self, std::string_view key, const auto& value,
                             const auto&... others) -> void {
        text += '"';
        text += key;
        text += "\":";
        AppendJson(text, value);
        if constexpr (sizeof...(others) > 0) {
            text += ',';
            self(self, others...);
        }
    };
    text += '{';
    if constexpr (sizeof...(keysAndValues) > 0)
        add(add, keysAndValues...);
    text += '}';
}

} // namespace orva
