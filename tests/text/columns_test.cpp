// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/columns.h"

namespace orva {
namespace {

TEST(Columns, CountCharactersNotBytes) {
    EXPECT_EQ(CharacterCount(""), 0u);
    EXPECT_EQ(CharacterCount("Wasser"), 6u);
    EXPECT_EQ(CharacterCount("Größe"), 5u);
    EXPECT_EQ(CharacterCount("m³/kg °C"), 8u);
    EXPECT_EQ(CharacterCount("\U0001D6E5h"), 2u);
}

TEST(Columns, CountABrokenCharacterAsOne) {
    EXPECT_EQ(CharacterCount("a\xFF"
                             "b"),
              3u);
    EXPECT_EQ(CharacterCount("a\xE2\x82"), 2u);
}

TEST(FixedField, CutsOrFills) {
    EXPECT_EQ(FixedField("Dichte", 8), "Dichte  ");
    EXPECT_EQ(FixedField("Dichte", 6), "Dichte");
    EXPECT_EQ(FixedField("Dichte", 3), "Dic");
    EXPECT_EQ(FixedField("Dichte", 0), "");
    EXPECT_EQ(FixedField("", 3), "   ");
    EXPECT_EQ(FixedField("Größe", 4), "Größ");
    EXPECT_EQ(FixedField("Größe", 7), "Größe  ");
    EXPECT_EQ(FixedField(" x", 3), " x ");
}

TEST(FixedField, HasItsWidthForAnyBytes) {
    EXPECT_EQ(CharacterCount(FixedField("\xC3\xC3\xE2\x82\xAC\xFF", 3)), 3u);
    EXPECT_EQ(FixedField("\xE2\x82", 2), "\xE2\x82 ");
}

TEST(Pad, FillsButNeverCuts) {
    EXPECT_EQ(PadRight("°C", 4), "°C  ");
    EXPECT_EQ(PadLeft("°C", 4), "  °C");
    EXPECT_EQ(PadRight("kJ/kmol", 3), "kJ/kmol");
    EXPECT_EQ(PadLeft("kJ/kmol", 3), "kJ/kmol");
    EXPECT_EQ(PadLeft("", 2), "  ");
    EXPECT_EQ(PadRight("", 0), "");
}

TEST(Spaces, AreBlanks) {
    EXPECT_EQ(Spaces(0), "");
    EXPECT_EQ(Spaces(22), "                      ");
}

TEST(Line, RepeatsOneCharacter) {
    EXPECT_EQ(Line("=", 5), "=====");
    EXPECT_EQ(Line("─", 3), "───");
    EXPECT_EQ(Line("-", 0), "");
}

TEST(Trim, RemovesBlanksOnly) {
    EXPECT_EQ(Trim("  Wasser "), "Wasser");
    EXPECT_EQ(TrimLeft("  Wasser "), "Wasser ");
    EXPECT_EQ(TrimRight("  Wasser "), "  Wasser");
    EXPECT_EQ(Trim("\tx\r\n "), "\tx\r\n");
    EXPECT_EQ(Trim("a b"), "a b");
}

TEST(Trim, LeavesNothingOfBlanks) {
    for (const char* text : {"", " ", "    "}) {
        EXPECT_EQ(Trim(text), "");
        EXPECT_EQ(TrimLeft(text), "");
        EXPECT_EQ(TrimRight(text), "");
    }
}

} // namespace
} // namespace orva
