// SPDX-License-Identifier: GPL-3.0-or-later
// fuzz_database [count] [seed]: loads mutated and random database files, and every record of those that load.
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "substance/substance_loading.h"
#include "support/sample_database.h"
#include "support/test_machine.h"

namespace {

using namespace orva;

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) {
    return limit == 0 ? 0 : random() % limit;
}

std::string RandomBytes(Random& random, std::size_t size) {
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random() & 0xFF);
    return bytes;
}

// Overwrites one value of one record with a bit pattern that readers stumble over.
void PlantFloat(Random& random, std::string& bytes) {
    static const std::string patterns[] = {
        std::string("\x00\x00\xC0\x7F", 4), // not a number
        std::string("\x00\x00\x80\xFF", 4), // negative infinity
        std::string("\xFF\xFF\x7F\x7F", 4), // largest single
        std::string("\x01\x00\x00\x00", 4), // smallest single
        std::string("\x00\x00\x00\x47", 4), // 32768
        std::string("\x00\x00\x80\xBF", 4), // -1
        std::string("\x00\x00\x00\x00", 4),
    };
    const std::size_t at =
        recordSize * Below(random, bytes.size() / recordSize + 1) + 188 + 4 * Below(random, recordValueCount);
    if (at + 4 <= bytes.size())
        bytes.replace(at, 4, patterns[Below(random, std::size(patterns))]);
}

std::string Mutated(Random& random, std::string bytes) {
    for (std::size_t step = 1 + Below(random, 8); step > 0 && !bytes.empty(); --step) {
        const std::size_t at = Below(random, bytes.size());
        switch (Below(random, 6)) {
        case 0:
            bytes[at] = static_cast<char>(random() & 0xFF);
            break;
        case 1:
            bytes.resize(at);
            break;
        case 2:
            bytes.insert(at, RandomBytes(random, Below(random, 2 * recordSize)));
            break;
        case 3:
            bytes.erase(at, Below(random, recordSize));
            break;
        case 4:
            if (bytes.size() > 187)
                bytes.replace(186, 2, RandomBytes(random, 2)); // the count
            break;
        default:
            PlantFloat(random, bytes);
        }
    }
    return bytes;
}

std::string NextFile(Random& random, const std::string& valid) {
    if (Below(random, 8) == 0)
        return RandomBytes(random, Below(random, 5 * recordSize));
    return Mutated(random, valid);
}

bool AllFinite(const SubstanceData& s) {
    for (const RecordField& field : RecordFields()) {
        if (!std::isfinite(field.get(s)))
            return false;
    }
    return std::isfinite(s.vcDatabase) && std::isfinite(s.sFormation) && std::isfinite(s.august.A)
           && std::isfinite(s.august.B);
}

// A broken rule in words, empty when all hold.
std::string CheckRecord(Database& database, int index) {
    SubstanceData before;
    before.name = "vorher";
    SubstanceData substance = before;
    const SubstanceLoadResult result = LoadSubstanceRecord(database, index, false, substance);
    if (result.readError)
        return result.criticalDataMissing || substance.name != "vorher" ? "a refused record left traces" : "";
    const auto record = database.ReadRecord(index);
    if (!record)
        return "a record was loaded that cannot be read";
    if (!AllFinite(substance))
        return "a loaded number is not finite";
    const bool given = record->values[6] > 1e-6 && record->values[7] > 1e-6;
    if (result.criticalDataMissing == given)
        return "the flag of the critical data is wrong";
    if (substance.cpSinhCosh.q2 < 0 || (substance.cpSinhCoshValid && substance.cpSinhCosh.q2 == 0))
        return "the third sinh/cosh coefficient is not positive";
    if (substance.cpLiquidValid && (substance.cpLiquid.Tlo <= 0 || substance.cpLiquid.Thi <= 0))
        return "a heat capacity without limits is valid";
    if (substance.name.find(';') != std::string::npos)
        return "a name holds a synonym";
    return "";
}

// Loads `bytes` over the sample database and checks all that must hold afterwards.
std::string CheckFile(const std::filesystem::path& folder, const std::string& bytes) {
    Database database;
    if (!database.LoadDatabase("ORVA.Q05", folder, false).Good())
        return "the sample database does not load";
    if (!WriteFile(folder / "FUZZ.Q05", bytes))
        return "the file cannot be written";
    const DatabaseLoadResult result = database.LoadDatabase("FUZZ.Q05", folder, false);
    const std::size_t count = database.List().entries.size();
    if (result.notFound && result.readError)
        return "both failures at once";
    if (!result.Good()
        && (count != 3 || database.List().At(1).cas != "106-97-8    " || !database.ReadRecord(3)))
        return "a failed load changed the database in use";
    if (result.Good() && (count < 1 || bytes.size() < (count + 1) * recordSize))
        return "a list that the file cannot hold";
    for (std::size_t index = 1; index <= count + 1; ++index) {
        if (const std::string fault = CheckRecord(database, static_cast<int>(index)); !fault.empty())
            return fault;
    }
    return "";
}

} // namespace

int main(int argc, char** argv) {
    const long count = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 2000;
    const auto seed = static_cast<Random::result_type>(argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1);
    Random random(seed);
    const test::TestMachine machine;
    const std::filesystem::path folder = machine.InstallationFolder();
    test::WriteSampleDatabase(folder);
    const std::string valid = test::DatabaseBytes(test::SampleRecords());
    for (long i = 0; i < count; ++i) {
        if (const std::string fault = CheckFile(folder, NextFile(random, valid)); !fault.empty()) {
            std::cerr << "case " << i << " of seed " << seed << ": " << fault << "\n";
            return EXIT_FAILURE;
        }
    }
    std::cout << count << " files, seed " << seed << ": all rules hold\n";
    return EXIT_SUCCESS;
}
