// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "database/record_compiler.h"

namespace orva {

// One group of the synonym file.
struct SynonymGroup {
    std::string cas;
    std::string formula;
    std::string nameGerman;
    std::string nameEnglish;
    std::vector<std::string> keys; // in the spelling of a search key, each once
};

// The groups: first the substances of the database in record order, then those that are known by name only.
// The keys are the names, the parts of the names behind ";", and the synonyms of the table; a name that
// belongs to another substance already is refused. Then come, where no other substance has them, the names
// with umlauts written out (ae, oe, ue, ss); the German names with AE for the E of old ethyl, and with the
// locant behind ("Buten-1"); older spellings with K and Z ("Oktan", "Merkaptan"); and the formula where it
// names one substance alone: among the substances of the database, or, for others, among all.
std::vector<SynonymGroup> CompileSynonyms(const std::vector<CompiledSubstance>& substances,
                                          const Table& synonyms, Refusals& refusals);

// Bytes of SYNOM.TXT in code page 850: CAS number; " ", German name, formula and English name joined by "_";
// one key a line; an empty line behind each group.
std::string EncodeSynonyms(const std::vector<SynonymGroup>& groups);

} // namespace orva
