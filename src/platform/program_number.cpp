// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_number.h"

#include <QLockFile>
#include <QString>

namespace orva {

namespace {

constexpr int mostPrograms = 99;

std::unique_ptr<QLockFile> LockOf(const std::filesystem::path& folder, int number) {
    const std::filesystem::path path = folder / ("ORVA" + std::to_string(number) + ".LCK");
    auto lock = std::make_unique<QLockFile>(QString::fromStdU16String(path.u16string()));
    lock->setStaleLockTime(0); // the lock of a program that still runs does not grow old
    return lock;
}

} // namespace

ProgramNumber::ProgramNumber(const std::filesystem::path& folder, const std::function<bool(int)>& leftWork) {
    for (int candidate = 1; candidate <= mostPrograms; ++candidate)
        if (leftWork(candidate) && Take(folder, candidate))
            return;
    for (int candidate = 1; candidate <= mostPrograms; ++candidate)
        if (Take(folder, candidate) || lock->error() != QLockFile::LockFailedError)
            return;
}

bool ProgramNumber::Take(const std::filesystem::path& folder, int candidate) {
    lock = LockOf(folder, candidate);
    if (!lock->tryLock(0))
        return false;
    number = candidate;
    return true;
}

ProgramNumber::~ProgramNumber() = default;

} // namespace orva
