// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "substance/record.h"
#include "substance/record_fields.h"
#include "text/text_file.h"

namespace orva::test {

using FieldValue = std::pair<std::string_view, float>;

inline DatabaseRecord SampleRecord(std::string formula, std::string name, std::string cas,
                                   std::int16_t number, const std::vector<FieldValue>& fields) {
    DatabaseRecord record;
    record.formula = std::move(formula);
    record.nameEnglish = record.nameGerman = std::move(name);
    record.cas = std::move(cas);
    record.number = number;
    for (const auto& [field, value] : fields)
        record.values.at(static_cast<std::size_t>(RecordPosition(field))) = value;
    return record;
}

// Three substances: n-butane with Wagner and liquid-density blocks (constants after Buecker, Wagner 2006,
// rounded; Wagner coefficients after Reid, Prausnitz, Poling 1987), one without acentric factor, one without
// critical data.
inline std::vector<DatabaseRecord> SampleRecords() {
    return {
        SampleRecord("C4H10", "n-Butan; Butan", "106-97-8", 1,
                     {{"molarMass", 58.1222F},
                      {"Tc", 425.125F},
                      {"pc", 3796},
                      {"rhoc", 228},
                      {"omega", 0.2F},
                      {"Tb", 272.66F},
                      {"Ttrip", 134.895F},
                      {"ptrip", 0.00066566F},
                      {"wagner.w1", -6.88709F},
                      {"wagner.w2", 1.15157F},
                      {"wagner.w3", -1.99873F},
                      {"wagner.w4", 3},
                      {"wagner.w5", -3.13003F},
                      {"wagner.w6", 6},
                      {"wagner.w9", 425.2F},
                      {"wagner.w10", 3800},
                      {"wagner.Tlo", 170},
                      {"wagner.Thi", 425}}),
        SampleRecord("Ar", "Argon ohne Omega", "7440-37-1", 2,
                     {{"molarMass", 39.948F}, {"Tc", 150.687F}, {"pc", 4863}, {"Tb", 87.302F}}),
        SampleRecord("X", "Stoff ohne kritische Daten", "50-00-0", 3, {{"molarMass", 30}, {"Tb", 254}}),
    };
}

inline std::string DatabaseBytes(const std::vector<DatabaseRecord>& records) {
    DatabaseRecord header;
    header.formula = "2026-11-21";
    header.number = static_cast<std::int16_t>(records.size());
    std::string bytes = EncodeRecord(header);
    for (const DatabaseRecord& record : records)
        bytes += EncodeRecord(record);
    return bytes;
}

// Writes the sample database as "ORVA.Q05" into `folder`.
inline std::filesystem::path WriteSampleDatabase(const std::filesystem::path& folder) {
    const std::filesystem::path path = folder / "ORVA.Q05";
    WriteFile(path, DatabaseBytes(SampleRecords()));
    return path;
}

} // namespace orva::test
