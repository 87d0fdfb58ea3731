// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

class QLockFile;

namespace orva {

// Which of the programs that run side by side and write into the same folder this one is: the lowest number
// from 1 on that no other holds, first of all one that left work behind when it broke off. The number is free
// again when the program ends, however it ends. Where the folder takes no file it is 1.
class ProgramNumber {
public:
    ProgramNumber(const std::filesystem::path& folder, const std::function<bool(int)>& leftWork);
    ~ProgramNumber();
    ProgramNumber(const ProgramNumber&) = delete;
    ProgramNumber& operator=(const ProgramNumber&) = delete;

    int Number() const { return number; }

private:
    bool Take(const std::filesystem::path& folder, int candidate);

    int number = 1;
    std::unique_ptr<QLockFile> lock;
};

} // namespace orva
