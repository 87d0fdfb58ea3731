// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/code_page.h"

#include "text/columns.h"

#include <algorithm>
#include <filesystem>

namespace orva {
namespace {

using namespace std::string_view_literals;

struct Row {
    std::string bytes;
    const char* text;
};

// Assignments from the tables of the Unicode Consortium, CP1252.TXT.
const std::vector<Row> windowsRows = {
    {"Wasser", "Wasser"},
    {"\xC4\xD6\xDC\xE4\xF6\xFC\xDF", "ÄÖÜäöüß"},
    {"\xB0", "°"},
    {"m\xB3/kg", "m³/kg"},
    {"\x80", "€"},
    {"\x96 \x97", "– —"},
    {"\x84x\x93", "„x“"},
    {"\xB5m", "µm"},
    {"\x8A\x9F", "ŠŸ"},
    {"\xA0", "\u00A0"},
    {"", ""},
};

// CP850.TXT, the same source.
const std::vector<Row> oemRows = {
    {"Ethanol", "Ethanol"},
    {"\x8E\x99\x9A\x84\x94\x81\xE1", "ÄÖÜäöüß"},
    {"\xF8", "°"},
    {"\xFC", "³"},
    {"\xD5", "ı"},
    {"\xC4\xB3\xDB", "─│█"},
    {"\xFF", "\u00A0"},
    {"\x80", "Ç"},
    {"", ""},
};

bool IsUnassigned(int byte) {
    return byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

TEST(Windows1252, ConvertsBothWays) {
    for (const Row& row : windowsRows) {
        EXPECT_EQ(Utf8FromWindows1252(row.bytes), row.text);
        EXPECT_EQ(Windows1252FromUtf8(row.text), row.bytes);
        EXPECT_TRUE(FitsWindows1252(row.text)) << row.text;
    }
}

TEST(Oem, ConvertsBothWays) {
    for (const Row& row : oemRows) {
        EXPECT_EQ(Utf8FromOem(row.bytes), row.text);
        EXPECT_EQ(OemFromUtf8(row.text), row.bytes);
        EXPECT_TRUE(FitsOem(row.text)) << row.text;
    }
}

TEST(Windows1252, BringsBackEveryAssignedByte) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        const std::string text = Utf8FromWindows1252(bytes);
        EXPECT_EQ(CharacterCount(text), 1u) << byte;
        if (IsUnassigned(byte)) {
            EXPECT_EQ(text, "\uFFFD") << byte;
            EXPECT_EQ(Windows1252FromUtf8(text), "?") << byte;
        } else {
            EXPECT_NE(text, "\uFFFD") << byte;
            EXPECT_EQ(Windows1252FromUtf8(text), bytes) << byte;
        }
    }
}

TEST(Oem, BringsBackEveryByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        const std::string text = Utf8FromOem(bytes);
        EXPECT_EQ(CharacterCount(text), 1u) << byte;
        EXPECT_NE(text, "\uFFFD") << byte;
        EXPECT_EQ(OemFromUtf8(text), bytes) << byte;
        all += bytes;
    }
    EXPECT_EQ(OemFromUtf8(Utf8FromOem(all)), all);
}

TEST(CodePages, KeepAsciiWithZeroBytes) {
    constexpr std::string_view text = "a\0b\x7F"sv;
    EXPECT_EQ(Utf8FromWindows1252(text), text);
    EXPECT_EQ(Windows1252FromUtf8(text), text);
    EXPECT_EQ(Utf8FromOem(text), text);
    EXPECT_EQ(OemFromUtf8(text), text);
    EXPECT_EQ(Windows1252FromUtf8("\0ä"sv), "\0\xE4"sv);
}

TEST(CodePages, WriteAQuestionMarkForEachCharacterOutside) {
    EXPECT_EQ(Windows1252FromUtf8("Δh = ∞"), "?h = ?");
    EXPECT_EQ(Windows1252FromUtf8("\U0001D6E5ä"), "?\xE4");
    EXPECT_EQ(OemFromUtf8("5 €"), "5 ?");
    EXPECT_EQ(OemFromUtf8("ρ(L)"), "?(L)");
    EXPECT_EQ(Windows1252FromUtf8("\uFFFD"), "?");
}

TEST(CodePages, WriteAQuestionMarkForEachBrokenCharacter) {
    EXPECT_EQ(Windows1252FromUtf8("a\xFF"
                                  "b"),
              "a?b");
    EXPECT_EQ(Windows1252FromUtf8("a\xE2\x82"), "a?");
    EXPECT_EQ(OemFromUtf8("\xE4\xF6"), "??");
    EXPECT_EQ(OemFromUtf8("\xC3ä"), "?\x84");
}

TEST(CodePages, TellWhetherATextFits) {
    EXPECT_TRUE(FitsWindows1252("Größe in m³, 5 €"));
    EXPECT_FALSE(FitsWindows1252("Δh"));
    EXPECT_FALSE(FitsWindows1252("\xE4"));
    EXPECT_FALSE(FitsWindows1252("\uFFFD"));
    EXPECT_FALSE(FitsWindows1252("\u0081"));
    EXPECT_TRUE(FitsOem("Größe in m³"));
    EXPECT_FALSE(FitsOem("5 €"));
    EXPECT_TRUE(FitsOem(""));
}

TEST(CodePages, ReachTheOtherPageThroughUtf8) {
    EXPECT_EQ(Windows1252FromUtf8(Utf8FromOem("Methans\x84ure")), "Methans\xE4ure");
}

#ifdef __linux__
TEST(CodePages, LeaveNoDescriptorOpen) {
    const auto openDescriptors = [] {
        const std::filesystem::directory_iterator folder("/proc/self/fd");
        return std::distance(begin(folder), end(folder));
    };
    const auto before = openDescriptors();
    for (int i = 0; i < 2000; ++i)
        ASSERT_EQ(OemFromUtf8(Utf8FromWindows1252("\xE4")), "\x84");
    EXPECT_EQ(openDescriptors(), before);
}
#endif

} // namespace
} // namespace orva
