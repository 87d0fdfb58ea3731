// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/result_text.h"

#include <array>
#include <charconv>

#include "state/model_selection.h"

namespace orva::dvopar {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr int fractionDigits = 16; // behind the first one: 17 digits bring every double back

std::string Line(double x) {
    std::array<char, 40> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), x,
                                            std::chars_format::scientific, fractionDigits);
    return std::string(text.data(), end).append(lineEnd);
}

} // namespace

std::string ResultFileName(int row) {
    return row == eosVoHalme2 ? "PARA_VO2.DAT" : "PARAM_VO.DAT";
}

std::string ResultText(const Request& request, const VoHalmeParameters& parameters) {
    std::string text = request.row == eosVoHalme2 ? "11" : "10";
    text.append(lineEnd).append("\"").append(request.substance.cas).append("\"").append(lineEnd);
    for (const double value : {parameters.m1, parameters.m2, parameters.m3, parameters.zeta})
        text += Line(value);
    if (request.row == eosVoHalme2)
        text += Line(parameters.k);
    return text;
}

} // namespace orva::dvopar
