// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "database/cell_values.h"

#include <bit>
#include <cstdint>

namespace orva {
namespace {

using testing::ElementsAre;

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    return quoted.append(text).append("\"");
}

float Number(std::string_view cell, ColumnKind kind = ColumnKind::coefficient) {
    const CellNumber number = ReadNumber(cell, kind);
    EXPECT_EQ(number.fault, std::nullopt) << cell;
    return number.value;
}

std::string NumberFault(std::string_view cell, ColumnKind kind = ColumnKind::coefficient) {
    return ReadNumber(cell, kind).fault.value_or("");
}

TEST(ReadNumber, KeepsATrueZeroOfAValueApartFromAMissingOne) {
    EXPECT_EQ(Number("", ColumnKind::value), 0.0F);
    for (const char* zero : {"0", "0.0", "-0", "0e5"})
        EXPECT_EQ(Number(zero, ColumnKind::value), 1E-37F) << zero;
    EXPECT_EQ(Number("0", ColumnKind::coefficient), 0.0F);
    EXPECT_EQ(Number("", ColumnKind::coefficient), 0.0F);
    EXPECT_EQ(Number("0", ColumnKind::limit), 0.0F);
}

// 1 + 2^-24 + 2^-60 lies above the middle of two singles; by way of a double it would be the tie, which
// rounds down.
TEST(ReadNumber, RoundsOnceToTheNearestSingle) {
    const std::string cell = "1.00000005960464477626";
    EXPECT_EQ(static_cast<float>(std::stod(cell)), 1.0F);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(Number(cell)), 0x3F800001U);
}

TEST(ReadNumber, TakesEveryWrittenForm) {
    EXPECT_EQ(Number("-1.5E-3"), -0.0015F);
    EXPECT_EQ(Number("2.4507532e-21"), 2.4507532e-21F);
    EXPECT_EQ(Number("3.4028235e38"), 3.4028235e38F);
}

TEST(ReadNumber, RefusesWhatIsNoNumber) {
    for (const char* cell : {"1,5", "1.2.3", "+1", "abc", "1 ", "0x10", "-", "1e"})
        EXPECT_EQ(NumberFault(cell), Quoted(cell) + " is not a number");
}

TEST(ReadNumber, RefusesWhatASingleCannotHold) {
    for (const char* cell : {"inf", "-inf", "nan", "infinity"})
        EXPECT_EQ(NumberFault(cell), Quoted(cell) + " is not finite");
    for (const char* cell : {"1e39", "-1e400", "1e-60"})
        EXPECT_EQ(NumberFault(cell), Quoted(cell) + " is beyond the range of a single");
}

TEST(ReadNumber, WantsWholeKelvinsOf16BitsForLimits) {
    EXPECT_EQ(Number("273", ColumnKind::limit), 273.0F);
    EXPECT_EQ(Number("32767", ColumnKind::limit), 32767.0F);
    for (const char* cell : {"273.15", "32768", "-32769"})
        EXPECT_EQ(NumberFault(cell, ColumnKind::limit),
                  std::string(cell) + " is not a whole number of kelvins in 16 bits");
}

TEST(ReadBibliography, TakesTheKeysUnderItsHeadingOnly) {
    const Bibliography keys =
        ReadBibliography("| A | before |\n## Bibliography\n\n| key | source |\n|---|---|\n"
                         "| AW | weights |\r\n|CRC|handbook|\n## Next\n| B | behind |\n");
    EXPECT_THAT(keys, ElementsAre("AW", "CRC"));
}

TEST(ReadBibliography, SurvivesAnyBytes) {
    EXPECT_THAT(ReadBibliography(""), ElementsAre());
    EXPECT_THAT(ReadBibliography("## Bibliography\n|\n||\n|\xFF"), ElementsAre("\xFF"));
}

TEST(SourceFault, LooksBehindTheMarksOfFitsAndEstimates) {
    const Bibliography keys{"LB"};
    for (const char* source : {"LB", "FIT:LB", "EST:LB"})
        EXPECT_EQ(SourceFault(source, keys), std::nullopt) << source;
    EXPECT_EQ(SourceFault("", keys), "source key is missing");
    for (const char* source : {"XX", "FIT:XX", "EST:", "FIX:LB", "FIT:EST:LB"})
        EXPECT_EQ(SourceFault(source, keys), "source key " + Quoted(source) + " is not in the bibliography");
}

TEST(CasFault, TestsFormAndCheckDigit) {
    for (const char* cas : {"64-19-7", "7732-18-5", "102687-65-0"})
        EXPECT_EQ(CasFault(cas), std::nullopt) << cas;
    EXPECT_EQ(CasFault("7732-18-4"), "check digit of the CAS number is 5, not 4");
    for (const char* cas :
         {"", "-", "1-18-5", "7732185", "77321-8-5", "7732-18-x", "77a2-18-5", "12345678901-18-5"})
        EXPECT_EQ(CasFault(cas), Quoted(cas) + " is not a CAS number");
}

TEST(TextFault, CountsBytesOfWindows1252) {
    EXPECT_EQ(TextFault("Säure", 5), std::nullopt);
    EXPECT_EQ(TextFault("Säuren", 5), "\"Säuren\" has 6 bytes, the field 5");
    EXPECT_EQ(TextFault("α-Pinen", 40), "\"α-Pinen\" cannot be written in Windows-1252");
    EXPECT_EQ(TextFault("", 40), "is missing");
}

} // namespace
} // namespace orva
