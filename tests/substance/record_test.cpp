// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "text/columns.h"

namespace orva {
namespace {

// A record put together byte by byte, without the encoder.
std::string HandMadeBytes() {
    std::string bytes(684, ' ');
    const auto put = [&bytes](std::size_t offset, std::string_view text) {
        bytes.replace(offset, text.size(), text);
    };
    put(0, "C2H6O");
    put(12, "Ethanol; ethyl alcohol");
    put(52, "\xC4thanol; Weingeist"); // "Ä" in Windows-1252
    put(92, "64-17-5");
    put(104, std::string(41, '\x01'));
    put(145, std::string("\x80\x81\xFF", 3));
    put(186, std::string("\x34\x12", 2)); // 0x1234, low byte first
    put(188, std::string(496, '\0'));
    put(188, std::string("\x00\x00\x80\x3F", 4));           // 1
    put(188 + 4 * 6, std::string("\x00\x00\x20\xC0", 4));   // -2.5
    put(188 + 4 * 123, std::string("\x00\x80\xBB\x43", 4)); // 375
    return bytes;
}

TEST(Record, TakesEveryPartFromItsOffset) {
    const DatabaseRecord record = DecodeRecord(HandMadeBytes());
    EXPECT_EQ(record.formula, "C2H6O       ");
    EXPECT_EQ(record.nameEnglish, FixedField("Ethanol; ethyl alcohol", 40));
    EXPECT_EQ(record.nameGerman, FixedField("Äthanol; Weingeist", 40));
    EXPECT_EQ(record.cas, "64-17-5     ");
    EXPECT_EQ(record.reserved1, std::string(41, '\x01'));
    EXPECT_EQ(record.reserved2, std::string("\x80\x81\xFF", 3) + std::string(38, ' '));
    EXPECT_EQ(record.number, 0x1234);
    EXPECT_EQ(record.values[0], 1.0F);
    EXPECT_EQ(record.values[6], -2.5F);
    EXPECT_EQ(record.values[123], 375.0F);
    EXPECT_EQ(record.values[7], 0.0F);
}

TEST(Record, EncodesToTheSameBytes) {
    EXPECT_EQ(EncodeRecord(DecodeRecord(HandMadeBytes())), HandMadeBytes());
}

TEST(Record, ReadsANegativeNumber) {
    std::string bytes = HandMadeBytes();
    bytes[186] = '\xFE';
    bytes[187] = '\xFF';
    EXPECT_EQ(DecodeRecord(bytes).number, -2);
}

TEST(Record, CutsAndPadsTextsByCharacters) {
    DatabaseRecord record;
    record.formula = "C123456789012345";
    record.nameGerman = std::string("ÄÖÜäöüß");
    const std::string bytes = EncodeRecord(record);
    ASSERT_EQ(bytes.size(), recordSize);
    EXPECT_EQ(bytes.substr(0, 12), "C12345678901");
    EXPECT_EQ(bytes.substr(52, 40), "\xC4\xD6\xDC\xE4\xF6\xFC\xDF" + std::string(33, ' '));
    EXPECT_EQ(CharacterCount(DecodeRecord(bytes).nameGerman), 40U);
}

TEST(Record, KeepsReservedBytesAlsoWhenTheyAreShort) {
    DatabaseRecord record;
    record.reserved1 = "ab";
    EXPECT_EQ(DecodeRecord(EncodeRecord(record)).reserved1, "ab" + std::string(39, ' '));
}

TEST(Record, SurvivesARoundTripOfExtremeNumbers) {
    DatabaseRecord record;
    record.number = -32768;
    record.values = {1e-37F, -3.4e38F, 1e-45F, -0.0F, INFINITY};
    const DatabaseRecord again = DecodeRecord(EncodeRecord(record));
    EXPECT_EQ(again.number, -32768);
    EXPECT_EQ(again.values, record.values);
    EXPECT_TRUE(std::signbit(again.values[3]));
}

TEST(Record, AnyBytesGiveARecord) {
    for (int byte = 0; byte < 256; ++byte) {
        const DatabaseRecord record = DecodeRecord(std::string(recordSize, static_cast<char>(byte)));
        EXPECT_EQ(CharacterCount(record.nameGerman), 40U) << byte;
        EXPECT_EQ(EncodeRecord(record).size(), recordSize) << byte;
    }
}

} // namespace
} // namespace orva
