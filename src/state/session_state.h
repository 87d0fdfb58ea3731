// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace orva {

// Where the session stands: files, folders, the chosen substance, and flags that several windows read.
struct SessionState {
    std::string databaseFile; // empty when none
    bool databaseLoaded = false;
    std::int16_t substanceCount = 0;
    std::int16_t substanceIndex = 0;        // 1-based, 0 none
    std::int16_t substanceIndexPending = 0; // picked, not yet accepted
    std::string lastSessionFile;
    std::string projectFile, projectComment;
    std::string batchFile, batchComment, batchDate, batchCas;
    std::int16_t batchRowCount = 0;
    std::string dirBatch, dirDiagram2D, dirDiagram3D, dirXY, dirProject;
    bool rangesStale = false; // the next diagram set-up must recompute its ranges
    bool englishText = false;
    bool decimalComma = false;
    bool vesselGlobal = true;
    bool batchFileFlag = false;
};

} // namespace orva
