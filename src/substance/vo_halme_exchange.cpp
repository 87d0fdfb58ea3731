// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/vo_halme_exchange.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <system_error>

#include "text/columns.h"
#include "text/free_format.h"
#include "text/number_format.h"
#include "text/number_input.h"
#include "text/text_file.h"
#include "thermo/eos_constants.h"
#include "thermo/vo_halme_constants.h"

namespace orva {

namespace {

constexpr std::string_view requestName = "vopar.tmp";
constexpr std::string_view programName = "dvopar.exe";
constexpr int patience = 100; // s

constexpr std::string_view numberMask = ".00000000E+00";
constexpr std::string_view unused = "0.00000000E+00";
constexpr std::string_view separator = ", ";
constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t casWidth = 12;

constexpr std::size_t parameterCount = 12; // of a vapour-pressure equation
constexpr std::size_t lastParameter = 9;   // P10; behind it come the limits
constexpr std::size_t commonItems = 2;     // of the result, before its numbers

constexpr std::string_view refused = "Ausführung nicht möglich";

// The separator is a point on every machine.
std::string Number(double x) {
    return Format(x, numberMask);
}

std::string Joined(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items)
        text.append(text.empty() ? "" : separator).append(item);
    return text;
}

std::string NumberLine(std::initializer_list<double> values) {
    std::vector<std::string> items;
    for (const double value : values)
        items.push_back(Number(value));
    return Joined(items);
}

// f1 tells the natural logarithm, f2 the form of the equation.
struct EquationFlags {
    int f1 = 0, f2 = 0;
};

EquationFlags FlagsOf(std::string_view code) {
    if (code == "ALP" || code == "THO" || code == "AHP")
        return {0, 1};
    if (code == "AUG")
        return {1, 1};
    if (code == "FRO" || code == "KFW" || code == "KFR")
        return {0, 2};
    if (code == "WAG")
        return {1, 3};
    return {};
}

// P1 to P12: the leading parameters, unused ones, the limits.
struct EquationLine {
    std::vector<double> parameters;
    double low = 0, high = 0;
    bool tightEnd = false; // other joints before the last two values

    std::string Text() const {
        std::vector<std::string> items;
        for (const double value : parameters)
            items.push_back(Number(value));
        items.resize(lastParameter + 1, std::string(unused));
        const std::string begin = Joined(items);
        if (tightEnd)
            return begin + "," + Number(low) + " ," + Number(high);
        return Joined({begin, Number(low), Number(high)});
    }
};

EquationLine AntoineLine(const AntoineBlock& b) {
    return {{b.A, b.B, b.C}, static_cast<double>(b.Tlo), static_cast<double>(b.Thi)};
}

EquationLine FrostKalkwarfLine(const FrostKalkwarfBlock& b, double offset, double low, double high) {
    return {{b.c1, b.c2, b.c3 + offset, b.c4, b.c5, b.c6, b.c7, b.c8, b.c9}, low, high, true};
}

EquationLine WagnerLine(const WagnerBlock& b) {
    return {{b.w1, b.w2, b.w3, b.w4, b.w5, b.w6, b.w7, b.w8, b.w9, b.w10},
            static_cast<double>(b.Tlo),
            static_cast<double>(b.Thi)};
}

std::string EquationText(const SubstanceData& s, std::string_view code) {
    if (code == "ALP")
        return AntoineLine(s.antoineLow).Text();
    if (code == "AHP")
        return AntoineLine(s.antoineHigh).Text();
    if (code == "THO")
        return AntoineLine(s.thompson).Text();
    if (code == "AUG")
        return EquationLine{{s.august.A, s.august.B, 0}, s.Tb, s.Tc}.Text();
    if (code == "FRO")
        return FrostKalkwarfLine(s.frostKalkwarf, 0, s.frostKalkwarf.Tlo, s.frostKalkwarf.Thi).Text();
    // The C of a correlated block is carried over to the Celsius scale of the stored ones.
    if (code == "KFW")
        return FrostKalkwarfLine(s.kfw, 273.15, s.Ttrip, s.Tc).Text();
    if (code == "KFR")
        return FrostKalkwarfLine(s.kfr, 273.15, s.Ttrip, s.Tc).Text();
    if (code == "WAG")
        return WagnerLine(s.wagner).Text();
    return Joined(std::vector<std::string>(parameterCount, std::string(unused)));
}

bool IsVoHalme(int eosType) {
    return eosType == eosVoHalme1 || eosType == eosVoHalme2;
}

EosDetermination NoResultFile() {
    return {true, {{std::string(refused), "Kein Parameterfile erzeugt.", MessageIcon::Stop}}};
}

} // namespace

std::string VoHalmeRequestText(const SubstanceModel& model, int eosType) {
    const SubstanceData& s = model.substance;
    const std::string_view code = model.selection.vaporPressureCode;
    const EquationFlags flags = FlagsOf(code);
    const LiquidDensityBlock& r = s.rhoLiquid;
    std::string text = eosType == eosVoHalme2 ? "11" : "10";
    const auto line = [&text](std::string_view next) { text.append(lineEnd).append(next); };
    line(std::string("\"").append(FixedField(s.cas, casWidth)).append("\""));
    line(Joined({std::to_string(flags.f1), "1", std::to_string(flags.f2)}));
    line(NumberLine({s.molarMass, s.Tb, s.Tc, s.pc, s.rhoc, static_cast<float>(s.omega)}));
    line(NumberLine(
        {r.r1, r.r2, r.r3, r.r4, r.r5, r.r6, r.r7, static_cast<double>(r.Tlo), static_cast<double>(r.Thi)}));
    line(EquationText(s, code));
    return text.append(lineEnd);
}

std::string_view VoHalmeResultName(int eosType) {
    return eosType == eosVoHalme2 ? "PARA_VO2.DAT" : "PARAM_VO.DAT";
}

std::optional<VoHalmeResult> ReadVoHalmeResult(std::string_view text, int eosType) {
    VoHalmeResult result;
    std::vector<double*> targets = {&result.m1, &result.m2, &result.m3, &result.zeta};
    if (eosType == eosVoHalme2)
        targets.push_back(&result.k);
    const std::size_t count = commonItems + targets.size();
    const std::vector<std::string_view> items = FreeFormatItems(text, count);
    if (items.size() < count)
        return std::nullopt;
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (!IsNumber(items[commonItems + i]))
            return std::nullopt;
        *targets[i] = ParseNumber(items[commonItems + i]);
    }
    return result;
}

EosDetermination RunVoHalmeSolver(SubstanceModel& model, int eosType, const Machine& machine,
                                  ProgramRunner& runner) {
    const std::filesystem::path folder = machine.WritableFolder();
    const std::filesystem::path resultPath = folder / VoHalmeResultName(eosType);
    if (!WriteFile(folder / requestName, VoHalmeRequestText(model, eosType)))
        return NoResultFile();
    std::error_code error;
    std::filesystem::remove(resultPath, error);
    if (error)
        return NoResultFile();
    runner.Run(machine.InstallationFolder() / programName, folder, patience);
    const std::optional<std::string> text = ReadFile(resultPath);
    if (!text)
        return NoResultFile();
    const std::optional<VoHalmeResult> result = ReadVoHalmeResult(*text, eosType);
    if (!result)
        return {true, {}};
    VoHalmeParameters& vh = model.voHalme;
    vh.m1 = result->m1;
    vh.m2 = result->m2;
    vh.m3 = result->m3;
    vh.zeta = result->zeta;
    if (eosType == eosVoHalme2)
        vh.k = result->k;
    return {};
}

Message EosConstantsFailedMessage() {
    return {std::string(refused), "Fehler bei der EOS-Parameterberechnung", MessageIcon::Stop};
}

EosDetermination DetermineEosConstants(SubstanceModel& model, int eosType, const Machine& machine,
                                       ProgramRunner& runner) {
    if (!IsVoHalme(eosType)) {
        if (DetermineEosParameters(model, eosType))
            return {};
        return {true, {EosConstantsFailedMessage()}};
    }
    model.eos.AlphaForm = 1;
    model.eos.vCritCalc = model.eos.rhoCritCalc = 0;
    ClearEosParameters(model.eos);
    EosDetermination determination = RunVoHalmeSolver(model, eosType, machine, runner);
    if (!determination.failed)
        determination.failed = !SetVoHalmeConstants(model);
    if (determination.failed)
        determination.messages.push_back(EosConstantsFailedMessage());
    return determination;
}

} // namespace orva
