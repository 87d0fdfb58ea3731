// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/result_list.h"

#include <algorithm>
#include <cmath>

#include "calc/result_list_functions.h"
#include "text/code_page.h"
#include "text/columns.h"
#include "text/paths.h"
#include "text/text_file.h"

namespace orva {

namespace {

constexpr std::size_t valueColumns = 5; // T, p, rho(V), rho(L), delta(LV)h
constexpr std::size_t enthalpyColumn = 4;
using Stops = std::array<std::size_t, valueColumns>;

enum Caption : std::size_t { Substance, CalculationName, Model, VapourPressure, RowCount, BatchFile };

// Wording and tab stops, the two things in which file and paper differ.
struct Layout {
    std::string_view heading;
    std::size_t headingStop;
    std::array<std::string_view, 6> captions; // by Caption
    std::size_t colonStop;                    // 0: the caption brings its colon
    std::string_view vaporisationNote;
    std::size_t vaporisationStop;
    std::string_view numberHead, phaseHead;
    std::size_t phaseHeadStop;
    Stops heads, values, units;
    std::string_view meanHeading;
    std::size_t ruleWidth;
};

constexpr std::size_t dateStop = 59;
constexpr std::size_t captionStop = 3;
constexpr std::size_t methodStop = 26;
constexpr std::size_t phaseStop = 4;
constexpr std::size_t functionStop = 9;

constexpr Layout fileLayout{
    "ORVA Results of Calculation",
    20,
    {"Substance            : ", "Calculation          : ", "model                : ",
     "Vapour Pressure Equation: ", "Number of Data Sets  : ", "Name of Batchfile    : "},
    0,
    "Enthalpy of Vaporization (using EOS)",
    26,
    "#",
    "phase",
    3,
    {9, 20, 32, 46, 59},
    {9, 20, 32, 46, 60},
    {11, 21, 35, 49, 61},
    "arithmet. mean of ABS(%-deviations):",
    70};

constexpr Layout paperLayout{
    "ORVA: Results of Calculation",
    22,
    {"Substance", "Calculation", "Model", "Vapour Press. Equation", "Number of Data Sets", "Name Batchfile"},
    29,
    "Enthalpy of Vaporization del(LV)h calc. using EOS",
    32,
    "No.",
    "Phase",
    2,
    {9, 20, 32, 48, 60},
    {9, 20, 32, 48, 60},
    {11, 21, 35, 51, 62},
    "arithmetic mean of ABS(%-deviations):",
    90};

using Names = std::array<std::string_view, valueColumns>;
constexpr Names givenNames{"T(exp)", "p(exp)", "rhoV(exp)", "rhoL(exp)", "delta(LV)h(exp)"};
constexpr Names calculatedNames{"T(calc)", "p(calc)", "rhoV(calc)", "rhoL(calc)", "delta(LV)h(calc)"};
constexpr Names differenceNames{"delta T", "delta p", "delta rhoV", "delta rhoL", "delta(LV)h"};
constexpr Names unitNames{"K", "kPa", "kg/m^3", "kg/m^3", "kJ/kmol"};

constexpr std::string_view largeDeviation = "(Abw.>500 %!)";
constexpr double largestDeviation = 500; // per cent
constexpr double missingBelow = 1e-6;
constexpr float missingBelowSingle = 1e-6F;
constexpr std::size_t emptyMeanWidth = 13;

bool IsSaturation(int kind) {
    return kind == kindSaturationPressure || kind == kindSaturationTemperature;
}

// Deviations in per cent of all data sets.
struct Deviations {
    std::array<double, valueColumns> sums{};
    std::array<int, valueColumns> counts{};
};

class ListWriter {
public:
    ListWriter(const ResultList& ownList, const Layout& ownLayout) : list(ownList), layout(ownLayout) {}

    std::vector<ListLine> Write();

private:
    void CaptionLine(Caption caption, std::string_view text);
    void Head();
    void HeadRow(const Stops& stops, const Names& names);
    void ColumnHeads();
    void DataSet(int number);
    void FunctionValues(const ResultRecord& record);
    void CalculatedValues(const std::array<float, valueColumns>& calculated);
    void Compare(const std::array<double, valueColumns>& given,
                 const std::array<float, valueColumns>& calculated);
    void DeviationLine(const std::array<double, valueColumns>& deviations);
    void Means();

    std::string Long(float x) const;
    std::string Value(std::size_t column, float x) const;
    void DoubleRule() { page.Rule(ListLineKind::DoubleRule, layout.ruleWidth); }
    void SingleRule() { page.Rule(ListLineKind::SingleRule, layout.ruleWidth); }

    const ResultList& list;
    const Layout& layout;
    ListPage page;
    Deviations deviations;
};

std::vector<ListLine> ListWriter::Write() {
    Head();
    ColumnHeads();
    for (int number = 1; number <= ResultListRowCount(list); ++number)
        if (HasResult(list, number))
            DataSet(number);
    if (list.kind == kindFunctions)
        return page.Lines();
    Means();
    if (list.printFunctions)
        WriteDerivatives(list, page);
    return page.Lines();
}

void ListWriter::CaptionLine(Caption caption, std::string_view text) {
    page.At(captionStop, layout.captions[caption]);
    if (layout.colonStop > 0)
        page.At(layout.colonStop, ": ");
    page.Put(text).EndLine();
}

void ListWriter::Head() {
    page.TextLine(dateStop, list.date);
    page.TextLine(layout.headingStop, layout.heading);
    page.EmptyLine();
    CaptionLine(Substance, list.substance);
    CaptionLine(CalculationName, list.title);
    if (IsSaturation(list.kind)) {
        if (list.useGlobal)
            page.TextLine(layout.vaporisationStop, layout.vaporisationNote);
        else
            page.TextLine(methodStop, "(BENSON-Methode)");
    }
    if (list.eos != -1)
        CaptionLine(Model, list.modelText);
    if (!list.useGlobal || list.eos == -1)
        CaptionLine(VapourPressure, list.vaporPressureName);
    CaptionLine(RowCount, std::to_string(ResultListRowCount(list)));
    if (!list.batchFile.empty())
        CaptionLine(BatchFile, list.batchFile);
}

void ListWriter::HeadRow(const Stops& stops, const Names& names) {
    for (std::size_t column = 0; column < valueColumns; ++column)
        page.At(stops[column], names[column]);
    page.EndLine();
}

void ListWriter::ColumnHeads() {
    DoubleRule();
    page.At(0, layout.numberHead);
    HeadRow(layout.heads, givenNames);
    page.At(layout.phaseHeadStop, layout.phaseHead);
    HeadRow(layout.heads, calculatedNames);
    HeadRow(layout.heads, differenceNames);
    SingleRule();
    HeadRow(layout.units, unitNames);
    DoubleRule();
}

void ListWriter::DataSet(int number) {
    const BatchRow& row = list.batch.rows[static_cast<std::size_t>(number)];
    const ResultRecord& record = list.results[static_cast<std::size_t>(number)];
    const NumberStyle style = list.style;
    page.At(0, Str(number) + " ");
    page.At(layout.values[0], ListNumber(row.T, style)).At(layout.values[1], ListNumber(row.p, style));
    page.At(layout.values[2], ListNumber(row.rhoV, style)).At(layout.values[3], ListNumber(row.rhoL, style));
    page.At(layout.values[enthalpyColumn], ListNumber(row.hLV, style)).EndLine();
    page.At(phaseStop, record.phase);
    if (list.kind == kindFunctions) {
        FunctionValues(record);
        return;
    }
    const std::array<float, valueColumns> calculated{record.Tcalc, record.pcalc, record.rhoV, record.rhoL,
                                                     record.hLV};
    CalculatedValues(calculated);
    Compare({row.T, row.p, row.rhoV, row.rhoL, row.hLV}, calculated);
    if (number < ResultListRowCount(list))
        SingleRule();
}

void ListWriter::FunctionValues(const ResultRecord& record) {
    const struct {
        std::string_view label;
        float value;
    } rows[] = {{" Enthalpy        h/kJ/kmol     =", record.h},
                {" Entropy         s/kJ/(kmol*K) =", record.s},
                {" Gibbs Enthalpy  g/kJ/kmol     =", record.g},
                {" Exergy of H     e/kJ/kmol     =", record.eH},
                {" Exergy of U     e/kJ/kmol     =", record.eU}};
    page.EndLine();
    page.EmptyLine();
    for (const auto& row : rows)
        page.At(functionStop, row.label).Put(ListNumber(row.value, list.style)).EndLine();
}

// A long integer is rounded half to even. What it cannot hold keeps the digits of a single.
std::string ListWriter::Long(float x) const {
    constexpr float limit = 2147483648.0F;
    if (std::abs(x) >= limit)
        return ListNumber(x, list.style);
    return Str(static_cast<int>(std::lrint(x))) + " ";
}

std::string ListWriter::Value(std::size_t column, float x) const {
    return column == enthalpyColumn ? Long(x) : ListNumber(x, list.style);
}

void ListWriter::CalculatedValues(const std::array<float, valueColumns>& calculated) {
    for (std::size_t column = 0; column < valueColumns; ++column)
        if (std::abs(calculated[column]) > missingBelowSingle)
            page.At(layout.values[column], Value(column, calculated[column]));
    page.EndLine();
}

void ListWriter::Compare(const std::array<double, valueColumns>& given,
                         const std::array<float, valueColumns>& calculated) {
    std::array<double, valueColumns> found{};
    for (std::size_t column = 0; column < valueColumns; ++column) {
        const double calc = calculated[column];
        if (!(calc > missingBelow && given[column] > missingBelow))
            continue;
        page.At(layout.values[column], Value(column, static_cast<float>(calc - given[column])));
        found[column] = (calc / given[column] - 1) * 100;
        deviations.sums[column] += std::abs(found[column]);
        ++deviations.counts[column];
    }
    page.EndLine();
    DeviationLine(found);
}

// The sign counts: a deviation far below zero is still shown as a number; kept.
void ListWriter::DeviationLine(const std::array<double, valueColumns>& found) {
    for (std::size_t column = 0; column < valueColumns; ++column) {
        const double deviation = found[column];
        if (std::abs(deviation) > missingBelow)
            page.At(layout.values[column], deviation < largestDeviation
                                               ? "(" + Format(deviation, "####.##", list.style) + " %)"
                                               : std::string(largeDeviation));
    }
    page.EndLine();
}

// A column without a mean is filled with blanks from where the line stands, not from its tab stop; kept.
void ListWriter::Means() {
    DoubleRule();
    page.TextLine(0, layout.meanHeading);
    for (std::size_t column = 0; column < valueColumns; ++column) {
        const int count = deviations.counts[column];
        const double mean = count > 0 ? deviations.sums[column] / count : 0;
        if (!(mean > missingBelow))
            page.Put(Spaces(emptyMeanWidth));
        else if (mean < largestDeviation)
            page.At(layout.values[column], General(std::floor(100 * mean + 0.5) / 100, list.style) + "%");
        else
            page.At(layout.values[column], largeDeviation);
    }
    page.EndLine();
    page.LineFeeds(2);
}

} // namespace

ResultList MakeResultList(const CalculationContext& context, const std::vector<ResultRecord>& results) {
    const ModelSelection& selection = context.model.selection;
    const auto vaporPressure = static_cast<std::size_t>(selection.vaporPressure);
    ResultList list{context.batch, results, context.names.DerivativeLabels, context.style};
    list.kind = context.calculation.CalcKind;
    list.useGlobal = context.calculation.GlobalMethod;
    list.eos = selection.eos;
    list.substance = context.model.substance.name;
    list.modelText = context.calculation.CurrentModelText;
    list.vaporPressureName = Trim(context.names.VaporPressureNames.at(vaporPressure));
    return list;
}

std::vector<ListLine> ResultListForFile(const ResultList& list) {
    return ListWriter(list, fileLayout).Write();
}

std::vector<ListLine> ResultListForPaper(const ResultList& list) {
    return ListWriter(list, paperLayout).Write();
}

std::filesystem::path ResultListPath(const std::string& file, const Machine& machine) {
    constexpr std::size_t shortName = 9; // characters
    std::string name = file;
    if (!name.starts_with("LPT") && name.find('.') == std::string::npos && CharacterCount(name) < shortName)
        name += ".LST";
    const bool hasFolder = name.find_first_of("\\/") != std::string::npos;
    return hasFolder ? PathOf(name) : machine.WritableFolder() / PathOf(name);
}

bool WriteResultList(const std::string& file, const ResultList& list, const Machine& machine,
                     Dialogs& dialogs) {
    const std::string text = ListFileText(ResultListForFile(list));
    const std::error_code error = TryWriteFile(ResultListPath(file, machine), Windows1252FromUtf8(text));
    if (error)
        dialogs.Show({"Ausgabe-Fehler", error.message(), MessageIcon::Exclamation});
    return !error;
}

} // namespace orva
