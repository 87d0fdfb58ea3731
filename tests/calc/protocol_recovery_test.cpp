// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "calc/protocol_recovery.h"

namespace orva::test {
namespace {

ProtocolRecovery Sample() {
    ProtocolRecovery sample{"26211101.CSV", {"", "n-Butan", "CEOS Peng / Robinson; Wagner", 1, 3}, {}, 0};
    ProtocolRow row{};
    row[slotT] = 1.0F / 3;
    row[slotP] = std::numeric_limits<float>::max();
    row[slotB] = -std::numeric_limits<float>::denorm_min();
    sample.rows = {row, ProtocolRow{}};
    return sample;
}

TEST(ProtocolRecovery, GivesBackEverySingle) {
    const ProtocolRecovery sample = Sample();
    const ProtocolRecovery read = ParseRecovery(RecoveryText(sample));
    EXPECT_EQ(read.protocolFile, sample.protocolFile);
    EXPECT_EQ(read.head.substance, "n-Butan");
    EXPECT_EQ(read.head.modelText, "CEOS Peng / Robinson; Wagner");
    EXPECT_EQ(read.head.volumeBasis, 1);
    EXPECT_EQ(read.head.unitBasis, 3);
    EXPECT_EQ(read.rows, sample.rows);
    EXPECT_EQ(read.damagedRows, 0);
}

TEST(ProtocolRecovery, SignsThatEndAFieldDoNotBreakIt) {
    ProtocolRecovery sample = Sample();
    sample.head.substance = "a\tb\r\nrow";
    const ProtocolRecovery read = ParseRecovery(RecoveryText(sample));
    EXPECT_EQ(read.head.substance, "a b  row");
    EXPECT_EQ(read.rows, sample.rows);
}

TEST(ProtocolRecovery, EveryTruncationGivesOnlyWholeRows) {
    const ProtocolRecovery sample = Sample();
    const std::string text = RecoveryText(sample);
    for (std::size_t length = 0; length < text.size(); ++length) {
        const ProtocolRecovery read = ParseRecovery(text.substr(0, length));
        ASSERT_LE(read.rows.size(), 2U);
        for (std::size_t i = 0; i < read.rows.size(); ++i)
            ASSERT_EQ(read.rows[i], sample.rows[i]) << length;
    }
    const ProtocolRecovery cut = ParseRecovery(text.substr(0, text.size() - 5)); // without "end"
    EXPECT_EQ(cut.rows.size(), 1U);
    EXPECT_EQ(cut.damagedRows, 1);
}

TEST(ProtocolRecovery, RefusesRowsThatAreNoFiniteNumbers) {
    const std::string good = RecoveryText(Sample());
    for (const char* number : {"inf", "nan", "1e999", "abc", "", "0x10"}) {
        std::string text = good;
        const std::size_t at = text.rfind("row\t0") + 4;
        text.replace(at, 1, number);
        const ProtocolRecovery read = ParseRecovery(text);
        EXPECT_EQ(read.rows.size(), 1U) << number;
        EXPECT_EQ(read.damagedRows, 1) << number;
    }
}

TEST(ProtocolRecovery, SurvivesAnyBytes) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> byte(0, 255);
    const std::string good = RecoveryText(Sample());
    for (int run = 0; run < 300; ++run) {
        std::string noise(400, '\0');
        for (char& c : noise)
            c = static_cast<char>(byte(random));
        EXPECT_TRUE(ParseRecovery(noise).rows.empty());
        std::string damaged = good;
        for (int i = 0; i < 20; ++i)
            damaged[static_cast<std::size_t>(random()) % damaged.size()] = static_cast<char>(byte(random));
        for (const ProtocolRow& row : ParseRecovery(damaged).rows)
            for (const float value : row)
                EXPECT_TRUE(std::isfinite(value));
    }
}

} // namespace
} // namespace orva::test
