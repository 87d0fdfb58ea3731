// SPDX-License-Identifier: GPL-3.0-or-later
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "database/database_build.h"
#include "substance/name_search.h"
#include "substance/record.h"
#include "text/code_page.h"

namespace orva {
namespace {

const DatabaseBuild& RealBuild() {
    static const DatabaseBuild build = BuildDatabase(ReadSourceFiles(ORVA_SUBSTANCE_TABLES));
    return build;
}

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::string part;
    std::istringstream stream(text + separator);
    while (std::getline(stream, part, separator))
        parts.push_back(part);
    return parts;
}

using Row = std::map<std::string, std::string>;

// A second reader of the tables, as plain as it can be.
std::vector<Row> ReadRows(const std::string& file) {
    std::ifstream stream(std::string(ORVA_SUBSTANCE_TABLES) + "/" + file);
    std::vector<Row> rows;
    std::vector<std::string> columns;
    for (std::string line; std::getline(stream, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        const std::vector<std::string> cells = Split(line, '\t');
        if (columns.empty()) {
            columns = cells;
            continue;
        }
        Row row;
        for (std::size_t i = 0; i < columns.size(); ++i)
            row[columns[i]] = cells.at(i);
        rows.push_back(row);
    }
    return rows;
}

std::map<std::string, DatabaseRecord> RecordsByCas() {
    std::map<std::string, DatabaseRecord> records;
    const std::string& bytes = RealBuild().database;
    for (std::size_t at = recordSize; at + recordSize <= bytes.size(); at += recordSize) {
        const DatabaseRecord record = DecodeRecord(std::string_view(bytes).substr(at, recordSize));
        records[record.cas.substr(0, record.cas.find(' '))] = record;
    }
    return records;
}

// Columns of a table and where they stand in the record, from the layout of the file format.
struct Positions {
    std::string file;
    std::vector<std::pair<std::string, int>> columns;
    bool zeroIsTrue;
};

const std::vector<Positions>& AllPositions() {
    static const std::vector<Positions> positions = {
        {"identity.tsv", {{"molar_mass", 0}}, true},
        {"constants.tsv",
         {{"Tc", 6},
          {"pc", 7},
          {"rhoc", 8},
          {"omega", 9},
          {"Tb", 10},
          {"rho_Tb", 12},
          {"Ttrip", 91},
          {"ptrip", 92},
          {"Tmelt", 93},
          {"hVapRef", 105},
          {"TVapRef", 106},
          {"hVapTb", 107},
          {"TVapTb", 108}},
         true},
        {"rho_liquid.tsv",
         {{"c0", 13},
          {"c1", 14},
          {"c2", 15},
          {"c3", 16},
          {"c4", 17},
          {"c5", 18},
          {"c6", 19},
          {"H", 20},
          {"Tlo", 21},
          {"Thi", 22}},
         false},
        {"frost_kalkwarf.tsv",
         {{"A", 24},
          {"B", 25},
          {"C", 26},
          {"D", 27},
          {"E", 28},
          {"F", 29},
          {"G", 30},
          {"H", 31},
          {"I", 32},
          {"Tlo", 33},
          {"Thi", 34}},
         false},
        {"antoine_low.tsv", {{"A", 36}, {"B", 37}, {"C", 38}, {"Tlo", 39}, {"Thi", 40}}, false},
        {"antoine_high.tsv", {{"A", 42}, {"B", 43}, {"C", 44}, {"Tlo", 45}, {"Thi", 46}}, false},
        {"wagner.tsv",
         {{"a", 48},
          {"b", 49},
          {"c", 50},
          {"d", 51},
          {"e", 52},
          {"f", 53},
          {"g", 54},
          {"h", 55},
          {"Tref", 56},
          {"pref", 57},
          {"Tlo", 58},
          {"Thi", 59}},
         false},
        {"cp_ideal_polynomial.tsv",
         {{"x0", 61}, {"x1", 62}, {"x2", 63}, {"x3", 64}, {"x4", 65}, {"Tlo", 66}, {"Thi", 67}},
         false},
        {"cp_ideal_sinh_cosh.tsv",
         {{"q0", 69}, {"q1", 70}, {"q2", 71}, {"q3", 72}, {"q4", 73}, {"Tlo", 74}, {"Thi", 75}},
         false},
        {"cp_liquid.tsv",
         {{"x0", 77}, {"x1", 78}, {"x2", 79}, {"x3", 80}, {"x4", 81}, {"Tlo", 82}, {"Thi", 83}},
         false},
        {"formation.tsv", {{"hFormation", 85}, {"gFormation", 87}, {"sConventional", 89}}, true},
        {"h_vap.tsv",
         {{"A", 96},
          {"B", 97},
          {"C", 98},
          {"D", 99},
          {"E", 100},
          {"F", 101},
          {"Tv", 102},
          {"Tlo", 103},
          {"Thi", 104}},
         false},
        {"cp_solid.tsv",
         {{"x0", 110}, {"x1", 111}, {"x2", 112}, {"x3", 113}, {"x4", 114}, {"Tlo", 115}, {"Thi", 116}},
         false},
        {"rho_solid.tsv",
         {{"s0", 118}, {"s1", 119}, {"s2", 120}, {"s3", 121}, {"Tlo", 122}, {"Thi", 123}},
         false},
    };
    return positions;
}

TEST(SubstanceTables, HaveNoFault) {
    for (const Refusal& refusal : RealBuild().refusals)
        ADD_FAILURE() << RefusalText(refusal);
}

TEST(SubstanceTables, MakeADatabaseOf814Substances) {
    const std::string& bytes = RealBuild().database;
    ASSERT_EQ(bytes.size(), 815u * 684u);
    const DatabaseRecord header = DecodeRecord(std::string_view(bytes).substr(0, recordSize));
    EXPECT_EQ(header.number, 814);
    EXPECT_EQ(header.formula, "2026-11-21  ");
    for (int i = 1; i <= 814; ++i)
        ASSERT_EQ(
            DecodeRecord(std::string_view(bytes).substr(static_cast<std::size_t>(i) * recordSize, recordSize))
                .number,
            i);
}

// strtof rounds a decimal number to the nearest single; every other value of a record must be 0.
TEST(SubstanceTables, ReachTheDatabaseAsTheNearestSingles) {
    std::map<std::string, std::array<float, recordValueCount>> expected;
    std::size_t numbers = 0;
    for (const Positions& table : AllPositions()) {
        for (const Row& row : ReadRows(table.file)) {
            auto& values = expected[row.at("cas")];
            for (const auto& [column, position] : table.columns) {
                const std::string& cell = row.at(column);
                float value = cell.empty() ? 0.0F : std::strtof(cell.c_str(), nullptr);
                if (table.zeroIsTrue && !cell.empty() && value == 0)
                    value = 1E-37F;
                values.at(static_cast<std::size_t>(position)) = value;
                numbers += cell.empty() ? 0 : 1;
            }
        }
    }
    EXPECT_GT(numbers, 60000u);
    const std::map<std::string, DatabaseRecord> records = RecordsByCas();
    ASSERT_EQ(records.size(), expected.size());
    for (const auto& [cas, values] : expected) {
        for (std::size_t k = 0; k < recordValueCount; ++k)
            ASSERT_EQ(std::bit_cast<std::uint32_t>(records.at(cas).values[k]),
                      std::bit_cast<std::uint32_t>(values[k]))
                << cas << " position " << k;
    }
}

TEST(SubstanceTables, ReachTheDatabaseWithTheirTexts) {
    const std::map<std::string, DatabaseRecord> records = RecordsByCas();
    const auto trimmed = [](const std::string& text) {
        return text.substr(0, text.find_last_not_of(' ') + 1);
    };
    for (const Row& row : ReadRows("identity.tsv")) {
        const DatabaseRecord& record = records.at(row.at("cas"));
        EXPECT_EQ(trimmed(record.formula), row.at("formula"));
        EXPECT_EQ(trimmed(record.nameEnglish), row.at("name_en"));
        EXPECT_EQ(trimmed(record.nameGerman), row.at("name_de"));
        EXPECT_EQ(std::to_string(record.number), row.at("number"));
    }
}

// Critical point and boiling temperature of water: Wagner, Pruss, J. Phys. Chem. Ref. Data 31 (2002) 387.
TEST(SubstanceTables, HoldWater) {
    const DatabaseRecord water = RecordsByCas().at("7732-18-5");
    EXPECT_EQ(water.nameGerman.substr(0, 6), "Wasser");
    EXPECT_NEAR(water.values[0], 18.015, 0.001);
    EXPECT_NEAR(water.values[6], 647.096, 0.001);
    EXPECT_NEAR(water.values[7], 22064, 1);
    EXPECT_NEAR(water.values[8], 322, 0.1);
    EXPECT_NEAR(water.values[10], 373.124, 0.05);
}

struct Group {
    std::string cas, secondLine;
    std::vector<std::string> keys;
};

std::vector<Group> RealGroups() {
    std::vector<Group> groups;
    std::vector<std::string> lines = Split(Utf8FromOem(RealBuild().synonymFile), '\n');
    EXPECT_EQ(lines.back(), ""); // behind the last line end
    lines.pop_back();
    std::size_t inGroup = 0;
    for (std::string& line : lines) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        line.pop_back();
        if (line.empty()) {
            EXPECT_GE(inGroup, 3u);
            inGroup = 0;
            continue;
        }
        if (inGroup == 0)
            groups.push_back({line, "", {}});
        else if (inGroup == 1)
            groups.back().secondLine = line;
        else
            groups.back().keys.push_back(line);
        ++inGroup;
    }
    EXPECT_EQ(inGroup, 0u); // an empty line closes the last group too
    return groups;
}

std::string KeyOf(const std::string& name) {
    return SearchKey(NormaliseName(name));
}

TEST(SynonymFile, BeginsWithTheSubstancesInRecordOrder) {
    const std::vector<Group> groups = RealGroups();
    const std::vector<Row> identities = ReadRows("identity.tsv");
    ASSERT_EQ(groups.size(), ReadRows("synonyms.tsv").size());
    for (std::size_t i = 0; i < identities.size(); ++i)
        ASSERT_EQ(groups[i].cas, identities[i].at("cas"));
}

TEST(SynonymFile, KnowsMoreThan3500Substances) {
    EXPECT_GE(RealGroups().size(), 3514u);
}

TEST(SynonymFile, HasNamesAndFormulaInTheSecondLineOfEachGroup) {
    std::map<std::string, std::string> expected;
    for (const Row& row : ReadRows("synonyms.tsv"))
        expected[row.at("cas")] = " " + row.at("name_de") + "_" + row.at("formula") + "_" + row.at("name_en");
    for (const Group& group : RealGroups())
        EXPECT_EQ(group.secondLine, expected.at(group.cas));
}

TEST(SynonymFile, HasEachKeyOnceInOneGroupOnly) {
    std::map<std::string, std::string> owners;
    for (const Group& group : RealGroups()) {
        for (const std::string& key : group.keys) {
            const auto [owner, isNew] = owners.emplace(key, group.cas);
            EXPECT_TRUE(isNew) << key << ": " << owner->second << " and " << group.cas;
            EXPECT_EQ(key.find_first_of("-()[]. _"), key.npos) << key;
        }
    }
}

TEST(SynonymFile, FindsEveryNameOfTheTablesInItsGroup) {
    std::map<std::string, std::set<std::string>> keys;
    for (const Group& group : RealGroups())
        keys[group.cas].insert(group.keys.begin(), group.keys.end());
    for (const Row& row : ReadRows("synonyms.tsv")) {
        std::vector<std::string> names = Split(row.at("synonyms"), '|');
        names.push_back(row.at("name_de"));
        names.push_back(row.at("name_en"));
        for (const std::string& name : names) {
            if (!name.empty()) { // else a row without synonyms
                EXPECT_TRUE(keys[row.at("cas")].contains(KeyOf(name))) << row.at("cas") << " " << name;
            }
        }
    }
    for (const Row& row : ReadRows("identity.tsv")) {
        for (const char* column : {"name_de", "name_en"}) {
            for (const std::string& part : Split(row.at(column), ';'))
                EXPECT_TRUE(keys[row.at("cas")].contains(KeyOf(part))) << row.at("cas") << " " << part;
        }
    }
}

TEST(SynonymFile, FindsASubstanceBySpellingsOfItsName) {
    std::map<std::string, std::string> owners;
    for (const Group& group : RealGroups()) {
        for (const std::string& key : group.keys)
            owners[key] = group.cas;
    }
    const std::pair<const char*, const char*> searches[] = {
        {"Äthanol", "64-17-5"},      {"Essigsaeure", "64-19-7"}, {"Kohlendioxyd", "124-38-9"},
        {"zyklohexan", "110-82-7"},  {"H2O", "7732-18-5"},       {"R 134a", "811-97-2"},
        {"Diäthyläther", "60-29-7"}, {"n-Dekan", "124-18-5"},    {"schwefeldioxyd", "7446-09-5"},
    };
    for (const auto& [name, cas] : searches)
        EXPECT_EQ(owners[KeyOf(name)], cas) << name;
}

} // namespace
} // namespace orva
