// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orva {

// The hourglass of long calculations; calls nest.
class BusyCursor {
public:
    ~BusyCursor();
    void BeginBusy();
    void EndBusy();
    bool IsBusy() const { return depth > 0; }

private:
    int depth = 0;
};

// Busy as long as it lives.
class BusyScope {
public:
    explicit BusyScope(BusyCursor& cursor) : busy(cursor) { busy.BeginBusy(); }
    ~BusyScope() { busy.EndBusy(); }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

private:
    BusyCursor& busy;
};

} // namespace orva
