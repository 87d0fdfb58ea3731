// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

namespace orva {

// What the rooms need to know of the machine they run on.
class Machine {
public:
    virtual ~Machine() = default;
    // Folder of the programs, the database, the synonym and tip files.
    virtual std::filesystem::path InstallationFolder() const = 0;
    // Folder for what the program writes: the installation folder if it is writable, else one of the user's.
    virtual std::filesystem::path WritableFolder() const = 0;
    // True if the system writes 3/4 as "0,75".
    virtual bool DecimalComma() const = 0;
    // The date on the user's calendar.
    virtual std::chrono::year_month_day Today() const = 0;
    // The same in the short form of the system, as lists and files name it.
    virtual std::string ShortDate() const = 0;
};

} // namespace orva
