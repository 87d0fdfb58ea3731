// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/synonym_file.h"

#include <map>
#include <set>

#include "database/table_layout.h"
#include "substance/name_search.h"
#include "text/code_page.h"

namespace orva {
namespace {

std::string KeyOf(std::string_view name) {
    return SearchKey(NormaliseName(name));
}

std::vector<std::string> SplitSynonyms(std::string_view text) {
    std::vector<std::string> synonyms;
    while (!text.empty()) {
        const auto end = text.find('|');
        synonyms.emplace_back(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
    }
    return synonyms;
}

// The search turns SAEURE into SÄURE by itself; a key with the letters written out would never be found.
std::string WithoutUmlauts(std::string key) {
    constexpr std::pair<std::string_view, std::string_view> letters[] = {
        {"Ä", "AE"}, {"Ö", "OE"}, {"Ü", "UE"}, {"ß", "SS"}};
    for (const auto& [from, to] : letters) {
        for (auto at = key.find(from); at != key.npos; at = key.find(from, at + to.size()))
            key.replace(at, from.size(), to);
    }
    return KeyOf(key);
}

// ETH that is not the end of METH begins with AE in old German.
std::string OldEthyl(const std::string& key) {
    std::string old;
    for (std::size_t i = 0; i < key.size(); ++i) {
        if (key.compare(i, 3, "ETH") == 0 && (i == 0 || key[i - 1] != 'M'))
            old += 'A';
        old += key[i];
    }
    return old;
}

class SynonymCompiler {
public:
    explicit SynonymCompiler(Refusals& list) : refusals(list) {}

    void TakeSubstance(const CompiledSubstance& substance) {
        const DatabaseRecord& record = substance.record;
        byCas.emplace(substance.cas, groups.size());
        groups.push_back({substance.cas, record.formula, substance.nameGerman, substance.nameEnglish, {}});
        const Place place{std::string(identityFile), substance.Line(identityFile)};
        CheckFields(groups.back(), place);
        for (const std::string& name : {record.nameGerman, record.nameEnglish}) {
            for (const std::string& part : NameParts(name))
                AddName(groups.back(), part, place);
        }
        germanNames.push_back({groups.size() - 1, NameParts(record.nameGerman)});
    }

    void TakeRow(const Table& table, const TableRow& row) {
        const std::string cas(table.Cell(row, "cas"));
        const Place place{table.file, row.line};
        if (const auto [first, isNew] = rows.emplace(cas, row.line); !isNew) {
            Refuse(cas, place,
                   "second row of this substance, the first is line " + std::to_string(first->second));
            return;
        }
        const std::string_view flag = table.Cell(row, "in_database");
        const auto found = byCas.find(cas);
        if (flag != "0" && flag != "1")
            Refuse(cas, place, "in_database: \"" + std::string(flag) + "\" is neither 0 nor 1");
        else if ((flag == "1") != (found != byCas.end()))
            Refuse(cas, place,
                   flag == "1" ? "no substance has this CAS number" : "in_database is 0 for a substance");
        else if (flag == "1")
            TakeNames(groups[found->second], table, row, place);
        else
            TakeNamedOnly(cas, table, row, place);
    }

    // What a keyboard without umlauts makes of the keys, and the old spelling of ethyl in German names:
    // "DIAETHYLAETHER". Behind all names, which they never take from another substance.
    void AddSpellings() {
        for (SynonymGroup& group : groups) {
            const std::vector<std::string> keys = group.keys;
            for (const std::string& key : keys)
                AddMadeUp(group, WithoutUmlauts(key));
        }
        for (const auto& [index, names] : germanNames) {
            for (const std::string& name : names)
                AddMadeUp(groups[index], WithoutUmlauts(OldEthyl(KeyOf(name))));
        }
    }

    // Behind all names, which a formula never takes from another substance.
    void AddFormulas(std::size_t databaseCount) {
        std::map<std::string, int> inDatabase, inAll;
        for (std::size_t i = 0; i < groups.size(); ++i) {
            const std::string key = KeyOf(groups[i].formula);
            ++inAll[key];
            inDatabase[key] += i < databaseCount ? 1 : 0;
        }
        for (std::size_t i = 0; i < groups.size(); ++i) {
            const std::string key = KeyOf(groups[i].formula);
            const bool alone = (i < databaseCount ? inDatabase : inAll)[key] == 1;
            if (alone && !owners.contains(key)) {
                owners.emplace(key, groups[i].cas);
                groups[i].keys.push_back(key);
            }
        }
    }

    std::vector<SynonymGroup> groups;

private:
    struct Place {
        std::string file;
        int line;
    };

    void TakeNamedOnly(const std::string& cas, const Table& table, const TableRow& row, const Place& place) {
        if (const auto fault = CasFault(cas))
            Refuse(cas, place, *fault);
        groups.push_back({cas,
                          std::string(table.Cell(row, "formula")),
                          std::string(table.Cell(row, "name_de")),
                          std::string(table.Cell(row, "name_en")),
                          {}});
        CheckFields(groups.back(), place);
        AddName(groups.back(), groups.back().nameGerman, place);
        germanNames.push_back({groups.size() - 1, {groups.back().nameGerman}});
        AddName(groups.back(), groups.back().nameEnglish, place);
        AddSynonyms(groups.back(), table, row, place);
    }

    // Names and formula stand in both tables and must agree.
    void TakeNames(SynonymGroup& group, const Table& table, const TableRow& row, const Place& place) {
        const std::pair<std::string_view, const std::string&> fields[] = {
            {"formula", group.formula}, {"name_en", group.nameEnglish}, {"name_de", group.nameGerman}};
        for (const auto& [column, expected] : fields) {
            if (table.Cell(row, column) != expected)
                Refuse(group.cas, place,
                       std::string(column) + ": \"" + std::string(table.Cell(row, column)) + "\" is not \""
                           + expected + "\"");
        }
        AddSynonyms(group, table, row, place);
    }

    void AddSynonyms(SynonymGroup& group, const Table& table, const TableRow& row, const Place& place) {
        for (const std::string& synonym : SplitSynonyms(table.Cell(row, "synonyms")))
            AddName(group, synonym, place);
    }

    // A key that is made up gives way to one that a table names.
    void AddMadeUp(SynonymGroup& group, const std::string& key) {
        if (owners.emplace(key, group.cas).second)
            group.keys.push_back(key);
    }

    // The fields of the second line.
    void CheckFields(const SynonymGroup& group, const Place& place) {
        for (const std::string& field : {group.nameGerman, group.formula, group.nameEnglish}) {
            if (field.empty())
                Refuse(group.cas, place, "a name or the formula is missing");
            else if (!FitsOem(field))
                Refuse(group.cas, place, "\"" + field + "\" cannot be written in code page 850");
            else if (field.find('_') != field.npos)
                Refuse(group.cas, place, "\"" + field + "\" holds a \"_\", which separates fields");
        }
    }

    void AddName(SynonymGroup& group, const std::string& name, const Place& place) {
        const std::string key = KeyOf(name);
        if (key.empty()) {
            Refuse(group.cas, place, "synonym \"" + name + "\" has an empty search key");
            return;
        }
        if (!FitsOem(key)) {
            Refuse(group.cas, place, "synonym \"" + name + "\" cannot be written in code page 850");
            return;
        }
        const auto [owner, isNew] = owners.emplace(key, group.cas);
        if (isNew)
            group.keys.push_back(key);
        else if (owner->second != group.cas)
            Refuse(group.cas, place, "synonym \"" + name + "\" belongs to " + owner->second + " already");
    }

    void Refuse(const std::string& cas, const Place& place, std::string reason) {
        refusals.push_back({place.file, place.line, cas, std::move(reason)});
    }

    Refusals& refusals;
    std::map<std::string, std::size_t> byCas;
    std::vector<std::pair<std::size_t, std::vector<std::string>>> germanNames; // of each group
    std::map<std::string, int> rows;                                           // CAS number -> line
    std::map<std::string, std::string> owners;                                 // search key -> CAS number
};

} // namespace

std::vector<SynonymGroup> CompileSynonyms(const std::vector<CompiledSubstance>& substances,
                                          const Table& synonyms, Refusals& refusals) {
    SynonymCompiler compiler(refusals);
    for (const CompiledSubstance& substance : substances)
        compiler.TakeSubstance(substance);
    for (const TableRow& row : synonyms.rows)
        compiler.TakeRow(synonyms, row);
    compiler.AddSpellings();
    compiler.AddFormulas(substances.size());
    return std::move(compiler.groups);
}

std::string EncodeSynonyms(const std::vector<SynonymGroup>& groups) {
    constexpr std::string_view lineEnd = "\r\n";
    std::string text;
    for (const SynonymGroup& group : groups) {
        text.append(group.cas).append(lineEnd);
        text.append(" ").append(group.nameGerman).append("_").append(group.formula);
        text.append("_").append(group.nameEnglish).append(lineEnd);
        for (const std::string& key : group.keys)
            text.append(key).append(lineEnd);
        text.append(lineEnd);
    }
    return OemFromUtf8(text);
}

} // namespace orva
