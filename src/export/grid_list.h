// SPDX-License-Identifier: MIT
// The grids worked, band by band, as a pure function from the log lines to lines of text.
// Leans on base, qso_line and contest_table; the routine `mWritegrids_Click` writes what comes of it.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "core/session.h"

namespace exporting {

/// A grid, and the station that gave it first. Both are cut out of a log line, which must outlive it.
struct GridWorked {
    std::string_view grid, call;
};

/// The grids of one band in the order in which they were worked, each once, for contests whose lines carry no
/// marks of new grids.
class BandGridList {
public:
    /// Counts one QSO of the band. A 401st grid raises "Subscript out of range".
    void add(std::string_view line);
    int qsos() const { return qsos_; }
    int grids() const { return grids_; }
    /// The entry of a number from 1 on.
    const GridWorked& entry(int number) const { return entries_(number); }

private:
    Table<GridWorked, 1, 400> entries_;
    std::unordered_set<std::string_view> seen_;
    int qsos_ = 0, grids_ = 0;
};

/// Appends the whole list to `file`, each line with its end. Where it raises a fault, what came before stands
/// in `file`.
void addGridList(std::string& file, const Session& session, std::string_view ownCall);

}  // namespace exporting
