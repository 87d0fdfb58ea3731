// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/project_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <limits>
#include <variant>

#include "state/constants.h"
#include "text/code_page.h"
#include "text/columns.h"
#include "text/lines.h"
#include "text/number_format.h"
#include "text/number_input.h"
#include "text/text_file.h"

namespace orva {

namespace {

constexpr std::size_t casWidth = 12;
constexpr std::size_t longestFileStart = 65536; // bytes
constexpr std::string_view lineEnd = "\r\n";

struct Reserved {};
using Field = std::variant<Reserved, double ProjectFile::*, float ProjectFile::*, std::int16_t ProjectFile::*,
                           bool ProjectFile::*, char ProjectFile::*>;

bool IsFinite(double x) {
    return std::isfinite(x);
}
bool IsPositive(double x) {
    return x > missingValue;
}
bool IsAtLeastZero(double x) {
    return x >= 0;
}
bool IsReferenceKind(double x) {
    return x == 1 || x == 2 || x == 10;
}
template<int lowest, int highest> bool IsWithin(double x) {
    return lowest <= x && x <= highest;
}
constexpr auto isPointCount = IsWithin<1, std::numeric_limits<std::int16_t>::max()>;
constexpr auto isShort =
    IsWithin<std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()>;

// A line with one value: the field it belongs to, and what the field may hold.
struct ValueLine {
    Field field;
    bool (*holds)(double);
};

constexpr ValueLine valueLines[] = {
    {&ProjectFile::curveT, IsPositive},
    {&ProjectFile::curveP, IsAtLeastZero},
    {&ProjectFile::curveV, IsAtLeastZero},
    {&ProjectFile::energyFactor, [](double x) { return x > 0; }},
    {&ProjectFile::volumeBasis, IsWithin<0, 2>},
    {&ProjectFile::unitBasis, IsWithin<0, 3>},
    {&ProjectFile::curveTpRestricted, isShort},
    {&ProjectFile::curvePoints, isPointCount},
    {&ProjectFile::listSeparator, nullptr},
    {&ProjectFile::vaporPressure, IsWithin<0, 8>},
    {&ProjectFile::eos, IsWithin<-1, 16>},
    {&ProjectFile::cpModel, IsWithin<0, 2>},
    {&ProjectFile::vaporization, IsWithin<0, 7>},
    {&ProjectFile::watsonExponent, IsFinite},
    {&ProjectFile::eosPriority, isShort},
    {&ProjectFile::referenceKind, IsReferenceKind},
    {&ProjectFile::h0, IsFinite},
    {&ProjectFile::s0, IsFinite},
    {&ProjectFile::T0, IsPositive},
    {&ProjectFile::p0, IsAtLeastZero},
    {&ProjectFile::Tenv, IsAtLeastZero},
    {&ProjectFile::penv, IsAtLeastZero},
    {&ProjectFile::processLineMode, isShort},
    {Reserved(), IsFinite},
    {Reserved(), IsFinite},
    {Reserved(), IsFinite},
    {Reserved(), IsFinite},
    {Reserved(), IsFinite},
};
static_assert(std::size(valueLines) + projectCasLine == projectLineCount);

std::string PlainText(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

std::string Written(const ProjectFile& project, const Field& field) {
    struct Writer {
        const ProjectFile& project;
        std::string operator()(Reserved) const { return "0"; }
        std::string operator()(double ProjectFile::*at) const { return FieldText(project.*at); }
        std::string operator()(float ProjectFile::*at) const { return FieldText(project.*at); }
        std::string operator()(std::int16_t ProjectFile::*at) const { return std::to_string(project.*at); }
        std::string operator()(bool ProjectFile::*at) const { return project.*at ? "-1" : "0"; }
        std::string operator()(char ProjectFile::*at) const { return {'"', project.*at, '"'}; }
    };
    return std::visit(Writer{project}, field);
}

// One character of a fixed text: the first one between the quotes, or a blank where there is none.
std::optional<char> ReadCharacter(std::string_view line) {
    constexpr char lastAscii = '~';
    if (const std::size_t quote = line.find('"'); quote != line.npos) {
        line.remove_prefix(quote + 1);
        line = line.substr(0, line.find('"'));
    }
    if (line.empty())
        return ' ';
    const char first = line.front();
    return first == '\t' || (first >= ' ' && first <= lastAscii) ? std::optional(first) : std::nullopt;
}

bool TakeNumber(std::string_view line, const ValueLine& row, ProjectFile& project) {
    const std::optional<double> number = IsNumber(line) ? ReadNumber(line) : std::nullopt;
    if (!number)
        return false;
    struct Taker {
        ProjectFile& project;
        double value;
        bool (*holds)(double);
        bool operator()(Reserved) const { return holds(value); }
        bool operator()(double ProjectFile::*at) const {
            if (holds(value))
                project.*at = value;
            return holds(value);
        }
        bool operator()(float ProjectFile::*at) const {
            const bool single = std::abs(value) <= std::numeric_limits<float>::max() && holds(value);
            if (single)
                project.*at = static_cast<float>(value);
            return single;
        }
        bool operator()(std::int16_t ProjectFile::*at) const {
            const double whole = std::nearbyint(value);
            if (holds(whole))
                project.*at = static_cast<std::int16_t>(whole);
            return holds(whole);
        }
        bool operator()(bool ProjectFile::*at) const {
            const double whole = std::nearbyint(value);
            if (holds(whole))
                project.*at = whole != 0;
            return holds(whole);
        }
        bool operator()(char ProjectFile::*) const { return false; }
    };
    return std::visit(Taker{project, *number, row.holds}, row.field);
}

bool TakeValue(std::string_view line, const ValueLine& row, ProjectFile& project) {
    const auto* character = std::get_if<char ProjectFile::*>(&row.field);
    if (character == nullptr)
        return TakeNumber(line, row, project);
    const std::optional<char> read = ReadCharacter(line);
    if (read)
        project.** character = *read;
    return read.has_value();
}

} // namespace

std::string WriteProject(const ProjectFile& project) {
    std::string text;
    const auto add = [&text](std::string_view line) { text.append(line).append(lineEnd); };
    add(PlainText(project.date));
    add(PlainText(project.comment));
    add(PlainText(project.database));
    add(FixedField(PlainText(project.cas), casWidth));
    for (const ValueLine& row : valueLines)
        add(Written(project, row.field));
    return Windows1252FromUtf8(text);
}

int ReadProject(std::string_view bytes, ProjectFile& project) {
    LineReader lines(bytes);
    int count = 0;
    for (std::string ProjectFile::*text :
         {&ProjectFile::date, &ProjectFile::comment, &ProjectFile::database, &ProjectFile::cas}) {
        const std::optional<std::string_view> line = lines.Next();
        if (!line)
            return count;
        project.*text = Utf8FromWindows1252(*line);
        ++count;
    }
    for (const ValueLine& row : valueLines) {
        const std::optional<std::string_view> line = lines.Next();
        if (!line || !TakeValue(*line, row, project))
            return count;
        ++count;
    }
    return count;
}

std::optional<std::string> ReadFileStart(const std::filesystem::path& path) {
    if (!FileExists(path))
        return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        return std::nullopt;
    std::string bytes(longestFileStart, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream.bad())
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

} // namespace orva
