// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

#include "thermo/caloric_state.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
#include "thermo/fluids.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"

namespace {

// Counts every allocation of this program; the tests look at the difference over a call.
std::size_t allocations = 0;

void* Counted(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) {
    return Counted(size);
}
void* operator new[](std::size_t size) {
    return Counted(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace orva {
namespace {

template<class Call> std::size_t AllocationsOf(const Call& call) {
    const std::size_t before = allocations;
    call();
    return allocations - before;
}

TEST(TheCounter, CountsAnAllocation) {
    EXPECT_EQ(AllocationsOf([] { delete new std::string(100, 'x'); }), 2u);
}

TEST(ThePropertyModels, AllocateNothing) {
    for (int row = 0; row <= 16; ++row) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), row, vpWagner);
        PhaseVolumes state;
        EXPECT_EQ(AllocationsOf([&] { DetermineEosParameters(model, row); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { EosPhaseVolumes(model, 350, 900, state); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { EosPressure(model, 350, 3); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { EosSaturationPressure(model, 350); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { EosSaturationTemperature(model, 900); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { EosSaturationTemperature(model, 20); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { EosTemperature(model, 900, 100, false); }), 0u) << row;
        AmbientState ambient;
        EXPECT_EQ(AllocationsOf([&] { ambient = EvaluateAmbientState(model); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { CaloricState(model, 350, 900, 3, ambient); }), 0u) << row;
        EXPECT_EQ(AllocationsOf([&] { SaturationCaloric(model, 350, ambient); }), 0u) << row;
    }
}

TEST(TheVapourPressureEquations, AllocateNothing) {
    SubstanceData substance = fluids::NButane();
    for (int equation = 0; equation <= 8; ++equation) {
        EXPECT_EQ(AllocationsOf([&] { VapourPressure(substance, 350, equation); }), 0u) << equation;
        EXPECT_EQ(AllocationsOf([&] { VapourPressureTemperature(substance, 900, equation); }), 0u)
            << equation;
        EXPECT_EQ(AllocationsOf([&] { VapourPressureSlope(substance, 350, equation); }), 0u) << equation;
        EXPECT_EQ(AllocationsOf([&] { CorrelateVapourPressure(substance, equation); }), 0u) << equation;
    }
}

} // namespace
} // namespace orva
