// SPDX-License-Identifier: MIT
// The figures that are kept beside the log and can be counted anew from its lines.
// Leans on the session and qso_line; loading, refreshing and the accept call it.
#pragma once

#include <string>

#include "core/session.h"

/// Marks each band that has a line in 1 to `LogLineCount`; marks are never taken away.
void markBandsWorked(Session& session);
/// Counts `BandQSOs`, `BandGrids` and `DupeCount` from the lines of the bands that are marked as worked.
void countLines(Session& session);
/// The band index of a label, 0 of none.
int bandIndex(const Session& session, std::string_view label);
void LoadBandNames(Session& session);

/// What an accept changes before its line is on the disk, so that it can be put back when the disk refuses.
struct CountsBefore {
    explicit CountsBefore(const Session& session);
    /// Empties the lines that were begun since, and puts the figures back.
    void putBack(Session& session) const;

private:
    Int16 lineCount_, gridTotal_, dupeCount_;
    PerBand<Int16> qsos_, grids_;
    std::string points_, mark_;
    bool dupeAccepted_, gridEntered_;
};
