// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "state/machine.h"

namespace orva::test {

// A machine with an installation folder of its own, which goes away with it.
class TestMachine : public Machine {
public:
    explicit TestMachine(bool comma = false) : decimalComma(comma) {
        std::random_device random;
        folder = std::filesystem::temp_directory_path() / ("orva-test-" + std::to_string(random()));
        std::filesystem::create_directories(folder);
    }
    ~TestMachine() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    std::filesystem::path InstallationFolder() const override { return folder; }
    std::filesystem::path WritableFolder() const override { return folder; }
    bool DecimalComma() const override { return decimalComma; }
    std::chrono::year_month_day Today() const override { return today; }
    std::string ShortDate() const override { return "21.11.2026"; }

    std::chrono::year_month_day today{std::chrono::year(2026), std::chrono::November, std::chrono::day(21)};

private:
    std::filesystem::path folder;
    bool decimalComma;
};

} // namespace orva::test
