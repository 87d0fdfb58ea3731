// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orva {

// The database file: records of 684 bytes without framing, little-endian, texts in Windows-1252,
// blank-padded. Record 1 is a header, whose number is the count of substances; records 2 and up are
// substances.
inline constexpr std::size_t recordSize = 684;
inline constexpr std::size_t recordValueCount = 124;

struct DatabaseRecord {
    std::string formula;     // 12 characters, UTF-8 with its padding; a header holds the file date here
    std::string nameEnglish; // 40 characters, synonyms behind ";"
    std::string nameGerman;  // 40 characters
    std::string cas;         // 12 characters
    std::string reserved1 = std::string(41, ' '); // bytes as they stand
    std::string reserved2 = std::string(41, ' ');
    std::int16_t number = 0;
    std::array<float, recordValueCount> values{};
};

// `bytes` must hold recordSize bytes. Any bytes give a record.
DatabaseRecord DecodeRecord(std::string_view bytes);

// recordSize bytes. Texts are cut or padded to their width.
std::string EncodeRecord(const DatabaseRecord& record);

} // namespace orva
