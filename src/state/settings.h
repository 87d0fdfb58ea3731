// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace orva {

// The settings store of the program: numbers that outlast the session, by section and key.
class Settings {
public:
    virtual ~Settings() = default;
    // Nothing if the key is missing or holds no number.
    virtual std::optional<int> Number(std::string_view section, std::string_view key) const = 0;
    virtual void SetNumber(std::string_view section, std::string_view key, int value) = 0;
};

// Settings that end with the program, for a session without a store.
class SessionSettings : public Settings {
public:
    std::optional<int> Number(std::string_view section, std::string_view key) const override {
        const auto found = numbers.find({std::string(section), std::string(key)});
        return found == numbers.end() ? std::nullopt : std::optional(found->second);
    }
    void SetNumber(std::string_view section, std::string_view key, int value) override {
        numbers[{std::string(section), std::string(key)}] = value;
    }

private:
    std::map<std::pair<std::string, std::string>, int> numbers;
};

} // namespace orva
