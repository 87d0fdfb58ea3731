// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/elements.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace orva {
namespace {

struct Element {
    std::string_view symbol;
    double weight;
    double entropy; // per kmol of atoms, 0: not known here
};

constexpr Element elements[] = {
    {"H", 1.008, 130.680 / 2},  {"D", 2.014101778, 144.960 / 2},
    {"He", 4.002602, 126.153},  {"Li", 6.94, 29.12},
    {"Be", 9.0121831, 9.50},    {"B", 10.81, 5.90},
    {"C", 12.011, 5.74},        {"N", 14.007, 191.609 / 2},
    {"O", 15.999, 205.152 / 2}, {"F", 18.998403162, 202.791 / 2},
    {"Ne", 20.1797, 146.328},   {"Na", 22.98976928, 51.30},
    {"Mg", 24.305, 32.67},      {"Al", 26.9815384, 28.30},
    {"Si", 28.085, 18.81},      {"P", 30.973761998, 41.09},
    {"S", 32.06, 32.054},       {"Cl", 35.45, 223.081 / 2},
    {"Ar", 39.95, 154.846},     {"K", 39.0983, 64.68},
    {"Ca", 40.078, 41.59},      {"Ti", 47.867, 30.72},
    {"Zn", 65.38, 41.63},       {"Ge", 72.630, 31.09},
    {"As", 74.921595, 0},       {"Se", 78.971, 0},
    {"Br", 79.904, 152.21 / 2}, {"Kr", 83.798, 164.085},
    {"Sn", 118.710, 51.18},     {"I", 126.90447, 116.14 / 2},
    {"Xe", 131.293, 169.685},   {"W", 183.84, 32.64},
    {"Hg", 200.592, 75.90},     {"Pb", 207.2, 64.80},
    {"U", 238.02891, 50.20},
};

const Element* Find(std::string_view symbol) {
    const auto* const found = std::find_if(std::begin(elements), std::end(elements),
                                           [&](const Element& e) { return e.symbol == symbol; });
    return found == std::end(elements) ? nullptr : found;
}

bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}

bool IsLower(char c) {
    return c >= 'a' && c <= 'z';
}

} // namespace

std::optional<std::map<std::string, int>> AtomsOfFormula(std::string_view formula) {
    std::map<std::string, int> atoms;
    while (!formula.empty()) {
        if (!IsUpper(formula.front()))
            return std::nullopt;
        const std::size_t length = formula.size() > 1 && IsLower(formula[1]) ? 2 : 1;
        const std::string symbol(formula.substr(0, length));
        formula.remove_prefix(length);
        int count = 1;
        const char* const end = formula.data() + formula.size();
        const auto [stop, error] = std::from_chars(formula.data(), end, count);
        if (error == std::errc::result_out_of_range || count < 1)
            return std::nullopt;
        formula.remove_prefix(static_cast<std::size_t>(stop - formula.data()));
        atoms[symbol] += count;
    }
    return atoms;
}

std::optional<double> AtomicWeight(std::string_view symbol) {
    const Element* const element = Find(symbol);
    return element ? std::optional(element->weight) : std::nullopt;
}

std::optional<double> EntropyOfElement(std::string_view symbol) {
    const Element* const element = Find(symbol);
    return element && element->entropy > 0 ? std::optional(element->entropy) : std::nullopt;
}

} // namespace orva
