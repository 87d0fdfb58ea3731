// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gtest/gtest.h>

#include "database/database_build.h"
#include "substance/record.h"
#include "substance/substance_loading.h"
#include "thermo/density_correlations.h"
#include "thermo/heat_capacity.h"
#include "thermo/vaporisation_enthalpy.h"

// Estimated rows against published figures that were not used to make them, unless the comment says so.
namespace orva {
namespace {

SubstanceData Loaded(std::string_view cas) {
    static const std::string bytes = BuildDatabase(ReadSourceFiles(ORVA_SUBSTANCE_TABLES)).database;
    for (std::size_t at = recordSize; at + recordSize <= bytes.size(); at += recordSize) {
        const DatabaseRecord record = DecodeRecord(std::string_view(bytes).substr(at, recordSize));
        SubstanceData data;
        SubstanceLoadResult result;
        if (record.cas.starts_with(cas) && FillFromRecord(record, true, data, result))
            return data;
    }
    ADD_FAILURE() << cas << " cannot be loaded";
    return {};
}

constexpr float roomTemperature = 298.15F;

// 97.8 lb/ft^3 at 70 F: NFPA 12A, Standard on Halon 1301 Fire Extinguishing Systems. Tb and 25 C: the two
// densities behind the row.
TEST(Estimates, LiquidDensityOfR13B1) {
    const SubstanceData data = Loaded("75-63-8");
    EXPECT_NEAR(LiquidDensity(data, 294.26F).rho, 97.8 * 16.01846, 1);
    EXPECT_NEAR(LiquidDensity(data, 215.35F).rho, 1990, 0.1);
    EXPECT_NEAR(LiquidDensity(data, roomTemperature).rho, 1538, 0.1);
    EXPECT_NEAR(LiquidDensity(data, 340.09F).rho, data.rhoc, 0.1 * data.rhoc);
}

// 51.08 Btu/lb at Tb and 0.208 cal/(g K) at 25 C: du Pont B-2.
TEST(Estimates, HeatsOfR13B1) {
    const SubstanceData data = Loaded("75-63-8");
    const VaporisationDbResult h = VaporisationEnthalpyDb(data, 215.35);
    EXPECT_FALSE(h.failed);
    EXPECT_NEAR(h.h / data.molarMass, 51.08 * 2.326, 0.5);
    const double published = 0.208 * 4.184 * data.molarMass;
    EXPECT_NEAR(LiquidCp(data, roomTemperature), published, 0.02 * published);
}

// 1.450 g/cm^3 at 20 C is the density of the handbooks; the row goes through those at 0 and 25 C.
TEST(Estimates, LiquidDensityOfHydrogenPeroxide) {
    const SubstanceData data = Loaded("7722-84-1");
    EXPECT_NEAR(LiquidDensity(data, 293.15F).rho, 1450, 3);
    EXPECT_NEAR(LiquidDensity(data, 273.15F).rho, 1470, 0.1);
    EXPECT_NEAR(LiquidDensity(data, roomTemperature).rho, 1442.5, 0.1);
}

// The row goes through 0.256 cal/(g K) at 25 C.
TEST(Estimates, LiquidHeatCapacityOfR21) {
    const SubstanceData data = Loaded("75-43-4");
    EXPECT_NEAR(LiquidCp(data, roomTemperature), 0.256 * 4.184 * data.molarMass, 0.1);
}

// The minimum lies between the lambda transition and 3 K; 5.2 kJ/(kg K) at Tb is the customary value.
TEST(Estimates, LiquidHeatCapacityOfHelium) {
    const SubstanceData data = Loaded("7440-59-7");
    EXPECT_NEAR(LiquidCp(data, 4.222) / data.molarMass, 5.2, 0.05 * 5.2);
    EXPECT_LT(LiquidCp(data, 2.6), LiquidCp(data, 2.3));
    for (double T = 2.7; T < 5; T += 0.1)
        EXPECT_GT(LiquidCp(data, T + 0.1), LiquidCp(data, T)) << T;
}

TEST(Estimates, CriticalDensityOfMercury) {
    EXPECT_EQ(Loaded("7439-97-6").rhoc, 5800);
}

} // namespace
} // namespace orva
