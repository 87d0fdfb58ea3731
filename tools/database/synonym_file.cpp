// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/synonym_file.h"

#include <map>
#include <set>
#include <span>

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

struct Letters {
    std::string_view from, to;
};

constexpr Letters umlauts[] = {{"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"Ä", "Ae"},
                               {"Ö", "Oe"}, {"Ü", "Ue"}, {"ß", "ss"}};

// Where older German writes K or Z, beyond what NormaliseName knows.
constexpr Letters olderLetters[] = {
    {"OCT", "OKT"},       {"MERCAPT", "MERKAPT"}, {"ACRYL", "AKRYL"},     {"ACROLEIN", "AKROLEIN"},
    {"CAPR", "KAPR"},     {"CATECH", "KATECH"},   {"DECAL", "DEKAL"},     {"GLYCER", "GLYZER"},
    {"SILICI", "SILIZI"}, {"SALICYL", "SALIZYL"}, {"ACENAPH", "AZENAPH"}, {"CYAN", "ZYAN"},
};

std::string Replaced(std::string text, std::span<const Letters> table) {
    for (const auto& [from, to] : table) {
        for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
            text.replace(at, from.size(), to);
    }
    return text;
}

// A name on -e that is no acid ("-säure"), or one with "acid".
bool LooksEnglish(std::string_view key) {
    return (key.ends_with("E") && !key.ends_with("SÄURE")) || key.find("ACID") != key.npos;
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

// "BUTEN1" of "1-Buten", "CISBUTEN2" of "cis-2-Buten"; empty for other names.
std::string LocantBehind(std::string_view name) {
    std::string prefix;
    for (const std::string_view start : {"cis-", "trans-"}) {
        if (name.starts_with(start)) {
            prefix = start;
            name.remove_prefix(start.size());
        }
    }
    if (name.size() < 3 || name[0] < '1' || name[0] > '9' || name[1] != '-'
        || name.find_first_of("0123456789-,", 2) != name.npos)
        return {};
    return KeyOf(prefix + std::string(name.substr(2)) + name[0]);
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
        for (const std::string& part : NameParts(record.nameGerman))
            germanNames.emplace_back(groups.size() - 1, part);
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

    // Other spellings of the names, behind all names, from which they never take a key: what a keyboard
    // without umlauts makes of them; of German names the old "DIAETHYLAETHER" and "BUTEN1"; K and Z for C.
    void AddSpellings() {
        for (const auto& [index, name] : names)
            AddMadeUp(groups[index], KeyOf(Replaced(name, umlauts)));
        for (const auto& [index, name] : germanNames) {
            AddMadeUp(groups[index], KeyOf(Replaced(OldEthyl(KeyOf(name)), umlauts)));
            AddMadeUp(groups[index], LocantBehind(name));
        }
        for (SynonymGroup& group : groups) {
            const std::vector<std::string> keys = group.keys;
            for (const std::string& key : keys) {
                if (!LooksEnglish(key))
                    AddMadeUp(group, Replaced(key, olderLetters));
            }
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
        germanNames.emplace_back(groups.size() - 1, groups.back().nameGerman);
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
        if (!key.empty() && owners.emplace(key, group.cas).second)
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
        names.emplace_back(static_cast<std::size_t>(&group - groups.data()), name);
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
    std::vector<std::pair<std::size_t, std::string>> names, germanNames; // index of the group, name
    std::map<std::string, int> rows;                                     // CAS number -> line
    std::map<std::string, std::string> owners;                           // search key -> CAS number
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
