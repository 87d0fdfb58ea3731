// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/record.h"

#include <bit>

#include "text/code_page.h"

namespace orva {

namespace {

// Byte offsets and widths of the parts of a record.
constexpr std::size_t formulaAt = 0, formulaWidth = 12;
constexpr std::size_t nameEnglishAt = 12, nameWidth = 40;
constexpr std::size_t nameGermanAt = 52;
constexpr std::size_t casAt = 92, casWidth = 12;
constexpr std::size_t reserved1At = 104, reservedWidth = 41;
constexpr std::size_t reserved2At = 145;
constexpr std::size_t numberAt = 186;
constexpr std::size_t valuesAt = 188, valueSize = 4;
static_assert(valuesAt + valueSize * recordValueCount == recordSize);

std::uint32_t LittleEndian(std::string_view bytes) {
    std::uint32_t bits = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        bits = bits << 8 | static_cast<unsigned char>(bytes[i]);
    return bits;
}

void AppendLittleEndian(std::string& bytes, std::uint32_t bits, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(bits >> (8 * i) & 0xFF));
}

// One byte is one character in the file, so the width is applied to the bytes.
void AppendText(std::string& bytes, std::string_view text, std::size_t width) {
    std::string field = Windows1252FromUtf8(text);
    field.resize(width, ' ');
    bytes += field;
}

void AppendBytes(std::string& bytes, std::string field, std::size_t width) {
    field.resize(width, ' ');
    bytes += field;
}

} // namespace

DatabaseRecord DecodeRecord(std::string_view bytes) {
    DatabaseRecord record;
    record.formula = Utf8FromWindows1252(bytes.substr(formulaAt, formulaWidth));
    record.nameEnglish = Utf8FromWindows1252(bytes.substr(nameEnglishAt, nameWidth));
    record.nameGerman = Utf8FromWindows1252(bytes.substr(nameGermanAt, nameWidth));
    record.cas = Utf8FromWindows1252(bytes.substr(casAt, casWidth));
    record.reserved1 = bytes.substr(reserved1At, reservedWidth);
    record.reserved2 = bytes.substr(reserved2At, reservedWidth);
    record.number =
        std::bit_cast<std::int16_t>(static_cast<std::uint16_t>(LittleEndian(bytes.substr(numberAt, 2))));
    for (std::size_t k = 0; k < recordValueCount; ++k)
        record.values[k] =
            std::bit_cast<float>(LittleEndian(bytes.substr(valuesAt + valueSize * k, valueSize)));
    return record;
}

std::string EncodeRecord(const DatabaseRecord& record) {
    std::string bytes;
    bytes.reserve(recordSize);
    AppendText(bytes, record.formula, formulaWidth);
    AppendText(bytes, record.nameEnglish, nameWidth);
    AppendText(bytes, record.nameGerman, nameWidth);
    AppendText(bytes, record.cas, casWidth);
    AppendBytes(bytes, record.reserved1, reservedWidth);
    AppendBytes(bytes, record.reserved2, reservedWidth);
    AppendLittleEndian(bytes, std::bit_cast<std::uint16_t>(record.number), 2);
    for (const float value : record.values)
        AppendLittleEndian(bytes, std::bit_cast<std::uint32_t>(value), valueSize);
    return bytes;
}

} // namespace orva
