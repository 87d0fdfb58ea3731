// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/record_fields.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

namespace orva {

namespace {

using S = SubstanceData;
using RhoL = LiquidDensityBlock;
using Frost = FrostKalkwarfBlock;
using Antoine = AntoineBlock;
using Wagner = WagnerBlock;
using Cp = HeatCapacityPolynomial;
using SinhCosh = SinhCoshHeatCapacity;
using HVap = VaporisationBlock;
using RhoS = SolidDensityBlock;

// A path leads from the substance to one number of it, through a block or straight.
template<auto... path> using Target = std::remove_reference_t<decltype((std::declval<S&>().*....*path))>;

template<auto... path> double Get(const SubstanceData& substance) {
    return (substance.*....*path);
}

template<auto... path> void Set(SubstanceData& substance, float value) {
    if constexpr (std::is_same_v<Target<path...>, std::int16_t>)
        (substance.*....*path) =
            FitsLimit(value) ? static_cast<std::int16_t>(std::trunc(value)) : std::int16_t{0};
    else
        (substance.*....*path) = value;
}

template<auto... path> constexpr RecordField Field(std::string_view name, int position) {
    return {name, position, std::is_same_v<Target<path...>, std::int16_t>, &Get<path...>, &Set<path...>};
}

constexpr RecordField fields[] = {
    Field<&S::molarMass>("molarMass", 0),
    Field<&S::Tc>("Tc", 6),
    Field<&S::pc>("pc", 7),
    Field<&S::rhoc>("rhoc", 8),
    Field<&S::omega>("omega", 9),
    Field<&S::Tb>("Tb", 10),
    Field<&S::extra1>("extra1", 11),
    Field<&S::rhoLb>("rhoLb", 12),
    Field<&S::rhoLiquid, &RhoL::r1>("rhoLiquid.r1", 13),
    Field<&S::rhoLiquid, &RhoL::r2>("rhoLiquid.r2", 14),
    Field<&S::rhoLiquid, &RhoL::r3>("rhoLiquid.r3", 15),
    Field<&S::rhoLiquid, &RhoL::r4>("rhoLiquid.r4", 16),
    Field<&S::rhoLiquid, &RhoL::r5>("rhoLiquid.r5", 17),
    Field<&S::rhoLiquid, &RhoL::r6>("rhoLiquid.r6", 18),
    Field<&S::rhoLiquid, &RhoL::r7>("rhoLiquid.r7", 19),
    Field<&S::rhoLiquid, &RhoL::Tcr>("rhoLiquid.Tcr", 20),
    Field<&S::rhoLiquid, &RhoL::Tlo>("rhoLiquid.Tlo", 21),
    Field<&S::rhoLiquid, &RhoL::Thi>("rhoLiquid.Thi", 22),
    Field<&S::frostKalkwarf, &Frost::cExtra>("frostKalkwarf.cExtra", 23),
    Field<&S::frostKalkwarf, &Frost::c1>("frostKalkwarf.c1", 24),
    Field<&S::frostKalkwarf, &Frost::c2>("frostKalkwarf.c2", 25),
    Field<&S::frostKalkwarf, &Frost::c3>("frostKalkwarf.c3", 26),
    Field<&S::frostKalkwarf, &Frost::c4>("frostKalkwarf.c4", 27),
    Field<&S::frostKalkwarf, &Frost::c5>("frostKalkwarf.c5", 28),
    Field<&S::frostKalkwarf, &Frost::c6>("frostKalkwarf.c6", 29),
    Field<&S::frostKalkwarf, &Frost::c7>("frostKalkwarf.c7", 30),
    Field<&S::frostKalkwarf, &Frost::c8>("frostKalkwarf.c8", 31),
    Field<&S::frostKalkwarf, &Frost::c9>("frostKalkwarf.c9", 32),
    Field<&S::frostKalkwarf, &Frost::Tlo>("frostKalkwarf.Tlo", 33),
    Field<&S::frostKalkwarf, &Frost::Thi>("frostKalkwarf.Thi", 34),
    Field<&S::antoineLow, &Antoine::A>("antoineLow.A", 36),
    Field<&S::antoineLow, &Antoine::B>("antoineLow.B", 37),
    Field<&S::antoineLow, &Antoine::C>("antoineLow.C", 38),
    Field<&S::antoineLow, &Antoine::Tlo>("antoineLow.Tlo", 39),
    Field<&S::antoineLow, &Antoine::Thi>("antoineLow.Thi", 40),
    Field<&S::antoineHigh, &Antoine::A>("antoineHigh.A", 42),
    Field<&S::antoineHigh, &Antoine::B>("antoineHigh.B", 43),
    Field<&S::antoineHigh, &Antoine::C>("antoineHigh.C", 44),
    Field<&S::antoineHigh, &Antoine::Tlo>("antoineHigh.Tlo", 45),
    Field<&S::antoineHigh, &Antoine::Thi>("antoineHigh.Thi", 46),
    Field<&S::wagner, &Wagner::wExtra>("wagner.wExtra", 47),
    Field<&S::wagner, &Wagner::w1>("wagner.w1", 48),
    Field<&S::wagner, &Wagner::w2>("wagner.w2", 49),
    Field<&S::wagner, &Wagner::w3>("wagner.w3", 50),
    Field<&S::wagner, &Wagner::w4>("wagner.w4", 51),
    Field<&S::wagner, &Wagner::w5>("wagner.w5", 52),
    Field<&S::wagner, &Wagner::w6>("wagner.w6", 53),
    Field<&S::wagner, &Wagner::w7>("wagner.w7", 54),
    Field<&S::wagner, &Wagner::w8>("wagner.w8", 55),
    Field<&S::wagner, &Wagner::w9>("wagner.w9", 56),
    Field<&S::wagner, &Wagner::w10>("wagner.w10", 57),
    Field<&S::wagner, &Wagner::Tlo>("wagner.Tlo", 58),
    Field<&S::wagner, &Wagner::Thi>("wagner.Thi", 59),
    Field<&S::cpPolynomial, &Cp::C0>("cpPolynomial.C0", 61),
    Field<&S::cpPolynomial, &Cp::C1>("cpPolynomial.C1", 62),
    Field<&S::cpPolynomial, &Cp::C2>("cpPolynomial.C2", 63),
    Field<&S::cpPolynomial, &Cp::C3>("cpPolynomial.C3", 64),
    Field<&S::cpPolynomial, &Cp::C4>("cpPolynomial.C4", 65),
    Field<&S::cpPolynomial, &Cp::Tlo>("cpPolynomial.Tlo", 66),
    Field<&S::cpPolynomial, &Cp::Thi>("cpPolynomial.Thi", 67),
    Field<&S::cpSinhCosh, &SinhCosh::q0>("cpSinhCosh.q0", 69),
    Field<&S::cpSinhCosh, &SinhCosh::q1>("cpSinhCosh.q1", 70),
    Field<&S::cpSinhCosh, &SinhCosh::q2>("cpSinhCosh.q2", 71),
    Field<&S::cpSinhCosh, &SinhCosh::q3>("cpSinhCosh.q3", 72),
    Field<&S::cpSinhCosh, &SinhCosh::q4>("cpSinhCosh.q4", 73),
    Field<&S::cpSinhCosh, &SinhCosh::Tlo>("cpSinhCosh.Tlo", 74),
    Field<&S::cpSinhCosh, &SinhCosh::Thi>("cpSinhCosh.Thi", 75),
    Field<&S::cpLiquid, &Cp::C0>("cpLiquid.C0", 77),
    Field<&S::cpLiquid, &Cp::C1>("cpLiquid.C1", 78),
    Field<&S::cpLiquid, &Cp::C2>("cpLiquid.C2", 79),
    Field<&S::cpLiquid, &Cp::C3>("cpLiquid.C3", 80),
    Field<&S::cpLiquid, &Cp::C4>("cpLiquid.C4", 81),
    Field<&S::cpLiquid, &Cp::Tlo>("cpLiquid.Tlo", 82),
    Field<&S::cpLiquid, &Cp::Thi>("cpLiquid.Thi", 83),
    Field<&S::hFormation>("hFormation", 85),
    Field<&S::gFormation>("gFormation", 87),
    Field<&S::gFormationAlt>("gFormationAlt", 88),
    Field<&S::sConventional>("sConventional", 89),
    Field<&S::Ttrip>("Ttrip", 91),
    Field<&S::ptrip>("ptrip", 92),
    Field<&S::extra2>("extra2", 94),
    Field<&S::hVapFunction, &HVap::A>("hVapFunction.A", 96),
    Field<&S::hVapFunction, &HVap::B>("hVapFunction.B", 97),
    Field<&S::hVapFunction, &HVap::C>("hVapFunction.C", 98),
    Field<&S::hVapFunction, &HVap::D>("hVapFunction.D", 99),
    Field<&S::hVapFunction, &HVap::E>("hVapFunction.E", 100),
    Field<&S::hVapFunction, &HVap::F>("hVapFunction.F", 101),
    Field<&S::hVapFunction, &HVap::Tcr>("hVapFunction.Tcr", 102),
    Field<&S::hVapFunction, &HVap::Tlo>("hVapFunction.Tlo", 103),
    Field<&S::hVapFunction, &HVap::Thi>("hVapFunction.Thi", 104),
    Field<&S::hVapRef>("hVapRef", 105),
    Field<&S::TVapRef>("TVapRef", 106),
    Field<&S::cpSolid, &Cp::C0>("cpSolid.C0", 110),
    Field<&S::cpSolid, &Cp::C1>("cpSolid.C1", 111),
    Field<&S::cpSolid, &Cp::C2>("cpSolid.C2", 112),
    Field<&S::cpSolid, &Cp::C3>("cpSolid.C3", 113),
    Field<&S::cpSolid, &Cp::C4>("cpSolid.C4", 114),
    Field<&S::cpSolid, &Cp::Tlo>("cpSolid.Tlo", 115),
    Field<&S::cpSolid, &Cp::Thi>("cpSolid.Thi", 116),
    Field<&S::rhoSolid, &RhoS::s1>("rhoSolid.s1", 118),
    Field<&S::rhoSolid, &RhoS::s2>("rhoSolid.s2", 119),
    Field<&S::rhoSolid, &RhoS::s3>("rhoSolid.s3", 120),
    Field<&S::rhoSolid, &RhoS::s4>("rhoSolid.s4", 121),
    Field<&S::rhoSolid, &RhoS::Tlo>("rhoSolid.Tlo", 122),
    Field<&S::rhoSolid, &RhoS::Thi>("rhoSolid.Thi", 123),
};

} // namespace

std::span<const RecordField> RecordFields() {
    return fields;
}

bool FitsLimit(float value) {
    const float whole = std::trunc(value);
    return whole >= std::numeric_limits<std::int16_t>::min()
           && whole <= std::numeric_limits<std::int16_t>::max();
}

int RecordPosition(std::string_view name) {
    const auto found = std::ranges::find(fields, name, &RecordField::name);
    return found == std::end(fields) ? -1 : found->position;
}

} // namespace orva
