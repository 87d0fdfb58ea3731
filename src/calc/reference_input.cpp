// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/reference_input.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "calc/point_input.h"
#include "state/constants.h"
#include "text/columns.h"
#include "text/number_format.h"
#include "text/number_input.h"
#include "thermo/ideal_gas_functions.h"

namespace orva {

namespace {

constexpr std::int16_t kindOfOption[] = {1, 2, 10};
constexpr double smallestAmbientTemperature = 1e-6; // K, stands for a 0

// A kind that no option stands for counts like the first.
int OptionOf(std::int16_t kind) {
    const auto found = std::find(std::begin(kindOfOption), std::end(kindOfOption), kind);
    return found == std::end(kindOfOption) ? 0 : static_cast<int>(found - std::begin(kindOfOption));
}

// The reference point as the functions take it: with the standard state of its kind.
ReferencePoint InForce(ReferencePoint reference, const SubstanceData& substance) {
    ReferenceGasState(substance, reference, 0);
    return reference;
}

std::string Given(const char* symbol, double value, const char* unit, bool known) {
    if (!known)
        return std::string(symbol) + " nicht verfügbar";
    return std::string(symbol) + " = " + General(static_cast<float>(value)) + " " + unit;
}

bool FitsSingle(double x) {
    return std::isfinite(static_cast<float>(x));
}

bool IsSingleField(int field) {
    return field == refT0 || field == refP0;
}

} // namespace

ReferenceInput::ReferenceInput(ReferencePoint& record, const SubstanceData& data)
    : opt_HNull(OptionOf(record.kind)), reference(record), substance(data) {
    const ReferencePoint shown = InForce(reference, substance);
    T = {FieldText(shown.T0),   FieldText(shown.p0), FieldText(shown.Tenv),
         FieldText(shown.penv), FieldText(shown.h0), FieldText(shown.s0)};
    ownT0 = T[refT0];
}

void ReferenceInput::TakeOption(int option) {
    if (option == opt_HNull || option < 0 || option >= static_cast<int>(std::size(kindOfOption)))
        return;
    if (opt_HNull == 0)
        ownT0 = T[refT0];
    opt_HNull = option;
    if (option != 0) {
        ShowStandardState();
        return;
    }
    T[refT0] = ownT0;
    T[refP0] = FieldText(static_cast<float>(normalPressure));
}

void ReferenceInput::ShowStandardState() {
    const ReferencePoint standard = InForce({.kind = kindOfOption[opt_HNull]}, substance);
    T[refT0] = FieldText(standard.T0);
    T[refP0] = FieldText(standard.p0);
}

bool ReferenceInput::Editable(int field) const {
    return opt_HNull == 0 || !IsSingleField(field);
}

std::string ReferenceInput::Explanation() const {
    if (opt_HNull == 0)
        return "h = h0, s = s0 im Idealgas-Zustand bei T0, p0";
    ReferencePoint reading{.kind = kindOfOption[opt_HNull]};
    const ReferenceGas gas = ReferenceGasState(substance, reading, 0);
    // A true zero is no zero in the record of a substance.
    const bool enthalpy = substance.hFormation != 0;
    const bool conventional = opt_HNull == 1;
    const bool entropy = conventional ? substance.sConventional != 0 : enthalpy && substance.gFormation != 0;
    return Given("h(f)", gas.h, "kJ/kmol", enthalpy) + ", "
           + Given(conventional ? "s(konv)" : "s(f)", gas.s, "kJ/(kmol K)", entropy)
           + "; h0, s0 werden addiert";
}

// An empty line of h0 or s0 is a zero, as in every input of numbers; there is no temperature of zero.
std::optional<double> ReferenceInput::Usable(int field) const {
    const std::string& text = T[static_cast<std::size_t>(field)];
    const bool offset = field == refH0 || field == refS0;
    if (offset)
        return Trim(text).empty() ? 0.0 : ReadNumber(text);
    const std::optional<double> value = ReadNumber(text);
    if (!value || (IsSingleField(field) && !FitsSingle(*value)))
        return std::nullopt;
    if (field == refTenv) {
        if (*value == 0)
            return smallestAmbientTemperature;
        return *value > 0 ? value : std::nullopt;
    }
    return *value > missingValue ? value : std::nullopt;
}

std::optional<ReferenceInput::Refusal> ReferenceInput::OK() {
    std::array<double, refFieldCount> values{};
    for (int field = 0; field < refFieldCount; ++field) {
        const std::optional<double> value = Usable(field);
        if (!value)
            return Refusal{InvalidInputMessage(), field};
        values[static_cast<std::size_t>(field)] = *value;
    }
    const ReferencePoint before = InForce(reference, substance);
    reference.kind = kindOfOption[opt_HNull];
    reference.T0 = static_cast<float>(values[refT0]);
    reference.p0 = static_cast<float>(values[refP0]);
    reference.Tenv = values[refTenv];
    reference.penv = values[refPenv];
    reference.h0 = values[refH0];
    reference.s0 = values[refS0];
    changed = !(reference == before);
    return std::nullopt;
}

} // namespace orva
