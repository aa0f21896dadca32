// SPDX-License-Identifier: MIT
#include "lookup/lookups.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "core/say.h"
#include "core/tally.h"

namespace {

constexpr std::array<const char*, 14> kFiles{
    "TQN_DEFA.ULT", "XTALX.DAT",    "CKLIST.DAT",       "CK2LIST.DAT", "LOGSORT.DAT",
    "tqn4k.adi",    "SIXDIGIT.DAT", "EASTGRID.MAP",     "NTHAMER.MAP", "MIDGRID.MAP",
    "WESTGRID.MAP", "Beacon.dat",   "StationBands.txt", "syllabls.ini"};
constexpr const char* kEquipmentFile = "EQUIP.DAT";
constexpr std::size_t kMostSyllables = 100;

void loadSyllables(Station& s) {
    std::vector<std::string> items = text::items(s.platform.files.read("syllabls.ini"));
    const std::size_t count = std::min(items.size(), kMostSyllables);
    for (std::size_t item = 0; item < count; ++item) {
        s.session.SyllableList(static_cast<int>(item) + 1) = text::upper(items[item]);
    }
}

}  // namespace

void InitialFiles(Station& s) {
    LoadBandNames(s.session);
    // In a folder that takes no files the first one tells of them all.
    bool told = false;
    const auto attempt = [&s, &told](const auto& step) {
        try {
            step();
        } catch (const FileError& error) {
            if (!told)
                tellFileFault(s, "Error. Lookup files can't be opened. The first of them:", error,
                              "The program goes on without them.");
            told = true;
        }
    };
    for (const char* const file : kFiles) attempt([&] { touch(s.platform.files, file); });
    attempt([&] { touch(s.platform.files, kEquipmentFile); });
    const std::string& master = s.ControlValues(setting::MasterFile);
    if (!text::trim(master).empty()) attempt([&] { touch(s.platform.files, master); });
    attempt([&] { loadSyllables(s); });
    attempt([&] { loadSixDigit(s); });
}

void loadSixDigit(Station& s) {
    rereadSixDigit(s);
    // At the start a list that doesn't fit is a fault; a refresh passes over what is beyond the table.
    const std::size_t items = text::items(s.platform.files.read("sixdigit.dat")).size();
    if (items / 2 > static_cast<std::size_t>(s.session.SixDigitTable.kLast)) throw subscriptError();
}

void LogSort(Station& s) {
    if (s.session.LogLineCount == 0) s.session.LogIsEmpty = true;
}

void CkList(Station&) {}

std::optional<std::string> sixDigitGridOf(const Session& session, const std::string& call) {
    for (int entry = 1; entry <= session.SixDigitCount; ++entry) {
        if (session.SixDigitTable(entry)(0) == call) return session.SixDigitTable(entry)(1);
    }
    return std::nullopt;
}

void rereadSixDigit(Station& s) {
    Session& session = s.session;
    session.SixDigitCount = 0;
    const std::vector<std::string> items = text::items(s.platform.files.read("sixdigit.dat"));
    for (std::size_t item = 0; item + 1 < items.size(); item += 2) {
        if (session.SixDigitCount == session.SixDigitTable.kLast) return;
        ++session.SixDigitCount;
        session.SixDigitTable(session.SixDigitCount)(0) = items[item];
        session.SixDigitTable(session.SixDigitCount)(1) = items[item + 1];
    }
}
