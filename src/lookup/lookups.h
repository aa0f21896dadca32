// SPDX-License-Identifier: MIT
// The small files that tell the operator about a station, as the dupe check asks them.
// Leans on the session and the platform's files; start-up, the refresh and the dupe check call it.
#pragma once

#include <optional>
#include <string>

#include "core/station.h"

/// Creates every lookup file that is missing, fills the band names and loads what is kept in memory.
void InitialFiles(Station& s);
/// The bands that the station is known to have.
void LogSort(Station& s);
void CkList(Station& s);
/// The grid of a call in the six-digit list, empty where the list has none for it; nothing where it isn't
/// listed.
std::optional<std::string> sixDigitGridOf(const Session& session, const std::string& call);
/// Reads "sixdigit.dat" at the start; more than 500 stations raise a fault.
void loadSixDigit(Station& s);
/// Reads "sixdigit.dat" anew, to at most 500 stations.
void rereadSixDigit(Station& s);
