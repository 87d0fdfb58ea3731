// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/protocol_text.h"

#include <algorithm>
#include <cmath>

#include "text/lines.h"

namespace orva {

namespace {

constexpr std::string_view lineEnd = "\r\n";

// In the order of the slots. The blank before "eU(V)" is part of the files since ever; kept.
constexpr std::array<std::string_view, resultCount> columnNames{
    "T",        "p",          "rho(global)", "v(global)", "rho(L)",         "cp(S)",          "x",
    "cp(idG)",  "x",          "v(V)",        "h(V)",      "s(V)",           "g(V)",           "u(V)",
    "a(V)",     "eH(V)",      " eU(V)",      "cp(V)",     "cV(V)",          "v(L)",           "h(L)",
    "s(L)",     "g(L)",       "u(L)",        "a(L)",      "eH(L)",          "eU(L)",          "cp(L)",
    "cV(L)",    "delta(LV)h", "delta(LV)s",  "alpha(V)",  "chi(V)",         "beta(V)",        "delta(V)",
    "alpha(L)", "chi(L)",     "beta(L)",     "delta(L)",  "sound speed(L)", "sound speed(V)", "B"};

// The head names each energy unit; the bases by R and R T have no line.
std::string_view FunctionUnits(int unitBasis) {
    if (unitBasis == 0)
        return "molar SI-units for function z: [z] = kJ/kmol or kJ/(kmol K)\r\n";
    if (unitBasis == 3)
        return "specific SI-units for function z: [z] = kJ/kg or kJ/(kg K)\r\n";
    return "";
}

std::string HeadText(const ProtocolHead& head) {
    std::string text = "ORVA-6: p-V-T Calculations of States and Processes - Protocol from ";
    text.append(head.date).append(lineEnd);
    text.append(head.substance).append(lineEnd);
    text.append(head.modelText).append(lineEnd);
    text.append("units: [T] = K   [p] = kPa   [B] = m^3/kmol    ");
    text.append(head.volumeBasis == 0 ? "[v] = m^3/kmol " : "[v] = m^3/kg").append(lineEnd);
    return text.append(FunctionUnits(head.unitBasis)).append(lineEnd);
}

std::vector<std::size_t> KeptColumns(const std::vector<ProtocolRow>& rows) {
    std::vector<std::size_t> kept;
    for (std::size_t column = 0; column < resultCount; ++column) {
        float sum = 0;
        for (const ProtocolRow& row : rows)
            sum += row[column];
        if (std::abs(sum) > 0)
            kept.push_back(column);
    }
    return kept;
}

} // namespace

ProtocolRow ProtocolRowOf(const std::array<double, resultCount>& results) {
    ProtocolRow row{};
    for (std::size_t column = 0; column < resultCount; ++column) {
        const auto single = static_cast<float>(results[column]);
        row[column] = std::isfinite(single) ? single : 0;
    }
    return row;
}

std::string ProtocolText(const ProtocolHead& head, const std::vector<ProtocolRow>& rows, char listSeparator,
                         NumberStyle style) {
    const std::vector<std::size_t> kept = KeptColumns(rows);
    std::string text = HeadText(head);
    for (const std::size_t column : kept)
        text.append(columnNames[column]) += listSeparator;
    text += lineEnd;
    for (const ProtocolRow& row : rows) {
        for (const std::size_t column : kept)
            text.append(General(row[column], style)) += listSeparator;
        text += lineEnd;
    }
    return text;
}

std::string ProtocolClipboardText(std::string_view protocol, char listSeparator) {
    std::string text;
    LineReader lines(protocol);
    while (const auto line = lines.Next())
        text.append(*line).append(lineEnd);
    std::replace(text.begin(), text.end(), listSeparator, '\t');
    return text;
}

int ListSeparatorIndex(char separator) {
    const auto found = std::find(listSeparators.begin(), listSeparators.end(), separator);
    return found == listSeparators.end() ? 0 : static_cast<int>(found - listSeparators.begin());
}

} // namespace orva
