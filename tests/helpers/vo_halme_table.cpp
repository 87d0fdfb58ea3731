// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the deviations of four equations of state for ten substances as a Markdown table.
#include <chrono>
#include <cstdio>
#include <iostream>

#include "helpers/deviations.h"

namespace {

using namespace orva;

constexpr std::array<int, 4> rows = {eosSoaveRedlichKwong, eosPengRobinson, eosVoHalme1, eosVoHalme2};

std::string Cell(const test::Deviation& deviation) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), " %.2f / %.2f |", deviation.mean, deviation.max);
    return text.data();
}

void PrintConstants(const SubstanceModel& model, double milliseconds) {
    const VoHalmeParameters& vh = model.voHalme;
    std::printf(" %.5f | %.5f | %.5f | %.5f | %.5f | %.0f |", vh.zeta, vh.m1, vh.m2, vh.m3, vh.k,
                milliseconds);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: vo_halme_table DATABASE\n";
        return 2;
    }
    std::string pressures, densities;
    const std::string rule = "|---|---|---|---|---|\n";
    const std::string heads =
        "| substance | Soave/Redlich/Kwong | Peng/Robinson | Vo/Halme I | Vo/Halme II |\n" + rule;
    std::puts("| substance | row | zeta | m1 | m2 | m3 | k | time/ms |\n|---|---|---|---|---|---|---|---|");
    for (const test::NamedSubstance& named : test::tenSubstances) {
        const std::optional<SubstanceData> substance = test::FromDatabase(argv[1], named.cas);
        if (!substance) {
            std::cerr << named.name << " is not in the database\n";
            return 1;
        }
        pressures.append("| ").append(named.name).append(" |");
        densities.append("| ").append(named.name).append(" |");
        for (const int row : rows) {
            SubstanceModel model = test::ModelWith(*substance, row, vpWagner);
            const auto begin = std::chrono::steady_clock::now();
            const bool good = test::Determine(model);
            const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
            if (row == eosVoHalme1 || row == eosVoHalme2) {
                std::printf("| %s | %s |", named.name.data(), row == eosVoHalme1 ? "I" : "II");
                PrintConstants(model, time.count());
                std::puts(good ? "" : " failed");
            }
            const test::Deviations deviations = test::DeviationsOf(model);
            pressures += Cell(deviations.pressure);
            densities += Cell(deviations.density);
        }
        pressures += '\n';
        densities += '\n';
    }
    std::cout << "\nVapour pressure, mean / largest deviation in per cent:\n\n"
              << heads << pressures
              << "\nDensity of the saturated liquid, mean / largest deviation in per cent:\n\n"
              << heads << densities;
    return 0;
}
