// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/free_format.h"

#include <random>

namespace orva {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FreeFormatItems, AreSeparatedByCommasAndLineEndsOfAnyKind) {
    EXPECT_THAT(FreeFormatItems("1, 2 ,3\r\n4\n5\r6", 10), ElementsAre("1", "2", "3", "4", "5", "6"));
}

TEST(FreeFormatItems, KeepACommaAndBlanksInsideOfQuotes) {
    EXPECT_THAT(FreeFormatItems("\"7732-18-5   \",\"a, b\", 3", 10),
                ElementsAre("7732-18-5   ", "a, b", "3"));
}

TEST(FreeFormatItems, OfAnEmptyFieldAreEmptyAndOfAnEmptyLineNone) {
    EXPECT_THAT(FreeFormatItems("1,,2\r\n\r\n  \r\n3,\r\n4", 10), ElementsAre("1", "", "2", "3", "4"));
    EXPECT_THAT(FreeFormatItems("", 10), IsEmpty());
    EXPECT_THAT(FreeFormatItems("\r\n\n", 10), IsEmpty());
}

TEST(FreeFormatItems, EndAtALineEndEvenIfAQuoteIsLeftOpen) {
    EXPECT_THAT(FreeFormatItems("\"open, 1\r\n2", 10), ElementsAre("\"open, 1", "2"));
}

TEST(FreeFormatItems, StopAtTheLimit) {
    EXPECT_THAT(FreeFormatItems("1,2,3", 2), ElementsAre("1", "2"));
    EXPECT_THAT(FreeFormatItems("1,2,3", 0), IsEmpty());
}

TEST(FreeFormatItems, OfAnyBytesLieWithinTheText) {
    std::mt19937 random(5);
    for (int run = 0; run < 500; ++run) {
        std::string bytes(random() % 60, '\0');
        for (char& c : bytes)
            c = random() % 3 == 0 ? "\",\r\n \0"[random() % 6] : static_cast<char>(random());
        for (const std::string_view item : FreeFormatItems(bytes, 100)) {
            if (item.empty())
                continue;
            EXPECT_GE(item.data(), bytes.data());
            EXPECT_LE(item.data() + item.size(), bytes.data() + bytes.size());
        }
    }
}

} // namespace
} // namespace orva
