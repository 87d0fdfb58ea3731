// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace orva {

inline constexpr int projectLineCount = 32;
// The lines that must be readable before a project can be looked for at all.
inline constexpr int projectDatabaseLine = 3;
inline constexpr int projectCasLine = 4;

// A project file `.QCF`, line by line: where a session stood. It names the substance and holds none of its
// data. Lines 28 to 32 are reserved.
struct ProjectFile {
    std::string date;        // 1: any text
    std::string comment;     // 2
    std::string database;    // 3: file name without a folder
    std::string cas;         // 4: filled up to 12 characters when it is written
    double curveT = 298.15;  // 5: K
    double curveP = 0;       // 6: kPa
    double curveV = 0;       // 7: m^3/kmol
    double energyFactor = 1; // 8
    std::int16_t volumeBasis = 0;
    std::int16_t unitBasis = 0; // 10
    bool curveTpRestricted = true;
    std::int16_t curvePoints = 300;
    char listSeparator = ';';
    std::int16_t vaporPressure = 0;
    std::int16_t eos = -1; // 15: -1 not yet chosen
    std::int16_t cpModel = 0;
    std::int16_t vaporization = 0;
    float watsonExponent = 0;
    bool eosPriority = true;
    std::int16_t referenceKind = 1;   // 20
    double h0 = 0;                    // kJ/kmol
    double s0 = 0;                    // kJ/(kmol K)
    float T0 = 298.15F;               // K
    float p0 = 101.325F;              // kPa
    double Tenv = 298.15;             // 25: K
    double penv = 101.325;            // kPa
    std::int16_t processLineMode = 1; // 27

    bool operator==(const ProjectFile&) const = default;
};

// The bytes of the file: Windows-1252, line ends CR LF, four lines of plain text, then one value a line with
// a point as decimal sign, the separator in quotes, -1 for true. Line breaks within the texts become blanks.
// Numbers carry as many digits as it takes to read the same number again.
std::string WriteProject(const ProjectFile& project);

// Reads line after line into `project` and gives the number of lines read. Reading stops at the first line
// that is missing, holds no value of its kind, or one that its record cannot hold; that field and all behind
// it stay as they were. Lines behind the last one are not looked at.
int ReadProject(std::string_view bytes, ProjectFile& project);

// The beginning of a file, at most as much as the head of any project or data series fills. Nothing if it
// cannot be read.
std::optional<std::string> ReadFileStart(const std::filesystem::path& path);

} // namespace orva
