// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace orva {

// Row numbers of the equation of state in ModelSelection.eos.
enum EosRow : std::int16_t {
    eosNotChosen = -1,
    eosIdealGas = 0,
    eosVanDerWaals = 2,
    eosBerthelot = 3,
    eosRedlichKwong = 4,
    eosSoaveRedlichKwong = 5,
    eosPengRobinson = 6,
    eosVoHalme1 = 7,
    eosVoHalme2 = 8,
    virialByHand = 10,
    virialVanDerWaals = 11,
    virialBerthelot = 12,
    virialRedlichKwong = 13,
    virialSoaveRedlichKwong = 14,
    virialPengRobinson = 15,
    virialPitzerCurl = 16
};

// Index of the vapour-pressure equation; its three-letter code is the text behind it.
enum VaporPressureIndex : std::int16_t {
    vpNone = 0,
    vpAntoineLow = 1,
    vpAntoineHigh = 2,
    vpFrostKalkwarf = 3,
    vpWagner = 4,
    vpAugust = 5,
    vpFrostKalkwarfVdW = 6,
    vpFrostKalkwarfRK = 7,
    vpThompson = 8
};

// The models in force for the current substance.
struct ModelSelection {
    std::int16_t eos = eosNotChosen;
    std::int16_t vaporPressure = vpNone;
    std::string vaporPressureCode = "0"; // three letters, "000" for none; the start text is a plain zero
    std::int16_t vaporization = 0;       // 0 none chosen, 1 to 7
    std::int16_t cpModel = 0;            // 0 none, 1 polynomial, 2 sinh/cosh
    float watsonExponent = 0;
    bool eosPriority = true; // phase equilibrium from the equation of state, else from the vapour pressure
    bool nonCubic = false;   // ideal gas or virial: no equilibrium from the equation of state
};

} // namespace orva
