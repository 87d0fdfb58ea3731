// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/option_table.h"

#include <limits>

#include "diagrams/chart_document.h"

namespace orva {

namespace {

constexpr unsigned list = CommandBit(Command::List);
constexpr unsigned find = CommandBit(Command::Find);
constexpr unsigned show = CommandBit(Command::Show);
constexpr unsigned models = CommandBit(Command::Models);
constexpr unsigned point = CommandBit(Command::Point);
constexpr unsigned vessel = CommandBit(Command::Vessel);
constexpr unsigned inverse = CommandBit(Command::Inverse);
constexpr unsigned curve = CommandBit(Command::Curve);
constexpr unsigned atlas = CommandBit(Command::Atlas);
constexpr unsigned run = CommandBit(Command::Run);
constexpr unsigned calculations = point | vessel | inverse | curve | atlas;

constexpr double anyNumber = std::numeric_limits<double>::max();
constexpr double anySingle = std::numeric_limits<float>::max();
constexpr int largestPointCount = std::numeric_limits<std::int16_t>::max();

using V = const OptionValue&;

template<std::size_t n> std::array<double, n> Numbers(V value) {
    std::array<double, n> numbers{};
    std::copy_n(value.numbers.begin(), n, numbers.begin());
    return numbers;
}

int Whole(V value) {
    return static_cast<int>(value.numbers.front());
}
double First(V value) {
    return value.numbers.front();
}

// In the order of their slots among the results.
constexpr std::string_view functionNames = "v|h|s|g|u|a|eH|eU";

int ChoiceIndex(std::string_view choices, std::string_view word) {
    int index = 0;
    for (; !choices.empty(); ++index) {
        const std::size_t bar = choices.find('|');
        if (choices.substr(0, bar) == word)
            break;
        choices.remove_prefix(bar == choices.npos ? choices.size() : bar + 1);
    }
    return index;
}

// Shorthands for the rows below.
constexpr OptionRow Integer(std::string_view name, unsigned commands, int low, int high,
                            std::string_view help, void (*put)(Request&, V)) {
    return {name,  commands, ValueKind::Integer, double(low), double(high), 1, "", help, false, "",
            false, put};
}
constexpr OptionRow Number(std::string_view name, unsigned commands, std::string_view help,
                           void (*put)(Request&, V), double limit = anyNumber) {
    return {name, commands, ValueKind::Number, -limit, limit, 1, "", help, false, "", false, put};
}
constexpr OptionRow Numbers(ValueKind kind, std::string_view name, unsigned commands, std::size_t count,
                            std::string_view help, void (*put)(Request&, V), double limit = anyNumber,
                            std::string_view choices = "") {
    return {name, commands, kind, -limit, limit, count, choices, help, false, "", false, put};
}
constexpr OptionRow Word(ValueKind kind, std::string_view name, unsigned commands, std::string_view choices,
                         std::string_view help, void (*put)(Request&, V)) {
    return {name, commands, kind, 0, 0, 0, choices, help, false, "", false, put};
}
constexpr OptionRow Required(OptionRow row) {
    row.required = true;
    return row;
}
constexpr OptionRow Positional(OptionRow row, std::string_view argument) {
    row.required = true;
    row.argument = argument;
    return row;
}
constexpr OptionRow LineOnly(OptionRow row) {
    row.lineOnly = true;
    return row;
}

constexpr OptionRow rows[] = {
    Word(ValueKind::Text, "database", list | find | show | models | calculations | run, "",
         "database file; ORVA.Q05 of the installation folder if it is not given",
         [](Request& r, V v) { r.database = v.text; }),
    Positional(Word(ValueKind::Text, "text", find, "", "name, CAS number, #index or serial number",
                    [](Request& r, V v) { r.text = v.text; }),
               "TEXT"),
    Positional(Word(ValueKind::Text, "substance", show | models, "", "CAS number, name, synonym or #index",
                    [](Request& r, V v) { r.context.substance = v.text; }),
               "SUBSTANCE"),
    Required(Word(ValueKind::Text, "substance", calculations, "", "CAS number, name, synonym or #index",
                  [](Request& r, V v) { r.context.substance = v.text; })),
    LineOnly(Positional(Word(ValueKind::Text, "requests", run, "",
                             "file with one request a line, - for standard input",
                             [](Request& r, V v) { r.requestsFile = v.text; }),
                        "FILE")),

    Required(Integer("kind", point, 1, 24, "number of the calculation: 1 to 11, 13 to 22, 24; 3: T, p => rho",
                     [](Request& r, V v) { r.point.kind = Whole(v); })),
    Number("T", point, "temperature, K", [](Request& r, V v) { r.point.T = First(v); }),
    Number("p", point, "pressure, kPa", [](Request& r, V v) { r.point.p = First(v); }),
    Number(
        "rho", point, "density, kg/m^3", [](Request& r, V v) { r.point.rho = First(v); }, anySingle),
    Number(
        "rho-liquid", point, "density of the liquid, kg/m^3",
        [](Request& r, V v) { r.point.rhoLiquid = First(v); }, anySingle),
    Number("mass", point, "mass in the vessel, kg", [](Request& r, V v) { r.point.mass = First(v); }),
    Number("volume", point, "volume of the vessel, m^3", [](Request& r, V v) { r.point.volume = First(v); }),
    Required(Number(
        "T", vessel, "temperature, K", [](Request& r, V v) { r.point.T = First(v); }, anySingle)),
    Required(Number(
        "mass", vessel, "mass in the vessel, kg", [](Request& r, V v) { r.point.mass = First(v); },
        anySingle)),
    Required(Number(
        "volume", vessel, "volume of the vessel, m^3", [](Request& r, V v) { r.point.volume = First(v); },
        anySingle)),
    Word(ValueKind::Choice, "method", point | vessel, "global|partial", "where equilibrium and densities come from",
         [](Request& r, V v) { r.point.method = v.text; }),
    Word(ValueKind::Choice, "liquid-density", point | vessel, "database|benson",
         "liquid density of the partial method", [](Request& r, V v) { r.point.liquidDensity = v.text; }),
    Numbers(
        ValueKind::WordOrList, "reference-density", point | vessel, 4, "T,p,rhoL,rhoV of the second reference point",
        [](Request& r, V v) {
            r.point.referenceDensityProposal = !v.text.empty();
            if (v.text.empty())
                r.point.referenceDensity = Numbers<4>(v);
        },
        anySingle, "proposal"),
    Word(ValueKind::Flag, "assume-equilibrium", point, "", "T and p describe vapour-liquid equilibrium",
         [](Request& r, V v) { r.point.assumeEquilibrium = v.on; }),
    LineOnly(Word(ValueKind::Choice, "format", point | vessel | inverse, "json|text",
                  "text prints the report as the window shows it",
                  [](Request& r, V v) { r.textFormat = v.text == "text"; })),

    Required(Word(ValueKind::Choice, "function", inverse, functionNames, "function that takes the value",
                  [](Request& r, V v) {
                      r.inverse.functionName = v.text;
                      r.inverse.function = ChoiceIndex(functionNames, v.text);
                  })),
    Required(Number("value", inverse, "the value, in display units",
                    [](Request& r, V v) { r.inverse.value = First(v); })),
    Required(Word(ValueKind::Choice, "solve-for", inverse, "T|p", "the unknown; the other one is given",
                  [](Request& r, V v) { r.inverse.solveForT = v.text == "T"; })),
    Required(Word(ValueKind::Choice, "phase", inverse, "V|L", "phase whose function takes the value",
                  [](Request& r, V v) { r.inverse.phase = v.text == "V" ? 0 : 1; })),
    Required(Number("T", inverse, "temperature, K; the start of the search if it is the unknown",
                    [](Request& r, V v) { r.point.T = First(v); })),
    Required(Number("p", inverse, "pressure, kPa; the start of the search if it is the unknown",
                    [](Request& r, V v) { r.point.p = First(v); })),

    Required(Integer("type", curve, 1, std::numeric_limits<std::int16_t>::max(), "number of the diagram type",
                     [](Request& r, V v) { r.curve.type = Whole(v); })),
    Numbers(ValueKind::OneOrMore, "T", curve, largestCurveCount, "temperatures, K; one curve each",
            [](Request& r, V v) { r.curve.T = v.numbers; }),
    Number("p", curve, "pressure of the curve, kPa", [](Request& r, V v) { r.curve.p = First(v); }),
    Number("v", curve, "molar volume of the curve, m^3/kmol", [](Request& r, V v) { r.curve.v = First(v); }),
    Numbers(
        ValueKind::NumberList, "window", curve, 4, "xMin,xMax,yMin,yMax in display units",
        [](Request& r, V v) { r.curve.window = Numbers<4>(v); }, anySingle),
    Integer("points", curve | atlas, 1, largestPointCount, "points of a curve",
            [](Request& r, V v) { r.curve.points = Whole(v); }),
    Word(ValueKind::Choice, "mode", curve, "curve|tie-line|s-curve|coexistence|inversion",
         "the curve, or what a command of the diagram window adds", [](Request& r, V v) { r.curve.mode = v.text; }),
    Number("vapour-fraction", curve, "line of the coexistence mode, 0 liquid to 1 vapour; both if not given",
           [](Request& r, V v) { r.curve.vapourFraction = First(v); }),
    Numbers(
        ValueKind::NumberList, "limits", curve, 2, "low,high of p or T, of a diagram of two functions",
        [](Request& r, V v) { r.curve.limits = Numbers<2>(v); }, anySingle),
    Word(ValueKind::Switch, "curve-tp-restricted", curve | atlas, "", "draw only above the triple point",
         [](Request& r, V v) { r.curve.tpRestricted = v.on; }),
    Word(ValueKind::Switch, "s-curve-without-tie-line", curve | atlas, "", "draw the whole loop of a cubic equation",
         [](Request& r, V v) { r.curve.sCurveWithoutTieLine = v.on; }),
    Word(ValueKind::Switch, "partial-curve-gas-only", curve | atlas, "", "virial equations: the gas only",
         [](Request& r, V v) { r.curve.partialGasOnly = v.on; }),
    Required(Word(ValueKind::Text, "out", atlas, "", "folder of the atlas; it is made if there is none",
                  [](Request& r, V v) { r.outFolder = v.text; })),
    Word(ValueKind::Text, "svg", curve, "", "write the diagram as SVG",
         [](Request& r, V v) { r.curve.svgFile = v.text; }),
    Word(ValueKind::Text, "png", curve, "", "write the diagram as PNG",
         [](Request& r, V v) { r.curve.pngFile = v.text; }),
    Word(ValueKind::Text, "pdf", curve, "", "write the diagram as PDF",
         [](Request& r, V v) { r.curve.pdfFile = v.text; }),

    Integer("eos", calculations, 0, 16, "equation of state",
            [](Request& r, V v) { r.context.models.eos = Whole(v); }),
    Word(ValueKind::Choice, "vapour-pressure", calculations, "000|ALP|AHP|FRO|WAG|AUG|KFW|KFR|THO",
         "vapour-pressure equation", [](Request& r, V v) { r.context.models.vaporPressureCode = v.text; }),
    Integer("vaporization", calculations, 1, 7, "model of the enthalpy of vaporisation",
            [](Request& r, V v) { r.context.models.vaporization = Whole(v); }),
    Integer("cp", calculations, 0, 2, "form of the ideal-gas heat capacity",
            [](Request& r, V v) { r.context.models.cp = Whole(v); }),
    Number(
        "watson-exponent", calculations, "exponent of the Watson correlation",
        [](Request& r, V v) { r.context.models.watsonExponent = First(v); }, anySingle),
    Word(ValueKind::Switch, "eos-priority", calculations, "",
         "on: equilibrium from the equation of state; off: from the vapour-pressure equation",
         [](Request& r, V v) { r.context.models.eosPriority = v.on; }),
    Numbers(ValueKind::NumberList, "virial", calculations, 3, "b0,b1,b2 of equation of state 10",
            [](Request& r, V v) { r.context.models.virial = Numbers<3>(v); }),

    Word(ValueKind::Choice, "reference-kind", calculations, "1|2|10", "normalisation of h and s",
         [](Request& r, V v) { r.context.reference.kind = v.text == "10" ? 10 : v.text.front() - '0'; }),
    Numbers(
        ValueKind::NumberList, "reference-state", calculations, 2, "T0,p0 in K and kPa",
        [](Request& r, V v) { r.context.reference.state = Numbers<2>(v); }, anySingle),
    Numbers(ValueKind::NumberList, "reference-values", calculations, 2, "h0,s0 in kJ/kmol and kJ/(kmol K)",
            [](Request& r, V v) { r.context.reference.values = Numbers<2>(v); }),
    Numbers(ValueKind::NumberList, "environment", calculations, 2, "Tenv,penv of the exergies in K and kPa",
            [](Request& r, V v) { r.context.reference.environment = Numbers<2>(v); }),

    Integer("unit-basis", calculations, 0, 3, "energies: 0 molar, 1 by R, 2 by R T, 3 specific",
            [](Request& r, V v) { r.context.display.unitBasis = Whole(v); }),
    Integer("volume-basis", calculations, 0, 2, "volumes: 0 molar, 1 specific, 2 reduced",
            [](Request& r, V v) { r.context.display.volumeBasis = Whole(v); }),
    Integer("extended", point, 1, 4, "1 none, 2 coefficients, 3 derivatives, 4 both",
            [](Request& r, V v) { r.context.display.extended = Whole(v); }),
    Word(ValueKind::Flag, "function-list", point, "", "list of thermodynamic functions",
         [](Request& r, V v) { r.context.display.functionList = v.on; }),
};

constexpr CliCommandRow commands[] = {
    {Command::List, "list", "the substances of the database"},
    {Command::Find, "find", "looks for a substance as the substance window does"},
    {Command::Show, "show", "all data of a substance"},
    {Command::Models, "models", "the models that a substance allows, and the preset choice"},
    {Command::Point, "point", "one state point"},
    {Command::Vessel, "vessel", "pressure and filling of a closed vessel"},
    {Command::Inverse, "inverse", "the T or p at which a thermodynamic function takes a value"},
    {Command::Curve, "curve", "the points of a curve, and the diagram as an image"},
    {Command::Atlas, "atlas", "every diagram of a substance as SVG, PNG and CSV, with an index page"},
    {Command::Run, "run", "answers a file of requests, one a line"},
};

} // namespace

std::span<const OptionRow> OptionTable() {
    return rows;
}
std::span<const CliCommandRow> CliCommands() {
    return commands;
}

const CliCommandRow* FindCliCommand(std::string_view name) {
    for (const CliCommandRow& row : commands)
        if (row.name == name)
            return &row;
    return nullptr;
}

const OptionRow* FindOption(Command command, std::string_view name) {
    for (const OptionRow& row : rows)
        if (row.name == name && (row.commands & CommandBit(command)) != 0)
            return &row;
    return nullptr;
}

} // namespace orva
