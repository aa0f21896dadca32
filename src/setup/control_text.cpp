// SPDX-License-Identifier: MIT
#include "setup/control_text.h"

#include <array>
#include <optional>

#include "base/text.h"

namespace control {

namespace {

struct Entry {
    std::string_view key;
    int index;
    std::string_view standard;
};

// The order of the file; place 46 must precede place 48, whose reading looks at it.
constexpr std::array<Entry, 49> kEntries{{
    {"[Backup log file path with slash]", setting::BackupPath, "OFF"},
    {"[Log window displayed by Band/Log]", setting::LogView, "Log"},
    {"[Datafile for Bands to Work .dat]", setting::BandsToWork, "LOGSORT"},
    {"[Use/display LO offsets]", setting::Offsets, "Use LO"},
    {"[Use/display the 6-digit lookup file]", setting::SixDigit, "Six-Digit"},
    {"[Manual/Auto QSO accept]", setting::AcceptMode, "<Enter> key"},
    {"[Display Jan SS activity hours]", setting::ActivityDisplay, "Display"},
    {"[6-digit distance mi/kM]", setting::DistanceUnit, "kM."},
    {"[Display /R dupe prompts]", setting::RoverPrompts, "Yes"},
    {"[UTC offset hrs]", setting::UtcOffset, "0"},
    {"[Log window font size]", setting::LogFontSize, "10"},
    {"[Log window font Bold/Normal]", setting::LogFontBold, "Bold"},
    {"[Printer active switch, 0=OFF 1=ON]", setting::Printer, "0"},
    {"[CW selected or not]", setting::Cw, "no CW"},
    {"[CW/PTT Com port index]", setting::CwPort, "1"},
    {"[DVK selected or not]", setting::Dvk, "no DVK"},
    {"[F9 DVK wave file]", setting::WaveF9, "none"},
    {"[F10 DVK wave file]", setting::WaveF10, "none"},
    {"[F11 DVK wave file]", setting::WaveF11, "none"},
    {"[F12 DVK wave file]", setting::WaveF12, "none"},
    {"[Use DVK PTT control]", setting::DvkPtt, "no DVK PTT"},
    {"[Use F12 DVK repeat]", setting::DvkRepeat, "no Repeat DVK"},
    {"[DVK repeat time sec.]", setting::DvkRepeatTime, "5"},
    {"[CW repeat time sec.]", setting::CwRepeatTime, "0"},
    {"[Reverse DTR/RTS at COM port, Swap=reverse]", setting::SwapLines, "no Swap"},
    {"[Print 1st extra space in printout header, 0=No 1=Yes]", setting::PrintLine1, "0"},
    {"[Print 2nd extra space in printout header, 0=No 1=Yes]", setting::PrintLine2, "0"},
    {"[Send callsign in DVK message F9, 0=No 1=Yes]", setting::SendCall, "0"},
    {"[Display 6-digit recip heading]", setting::Recip, "no Recip"},
    {"[Load last call when page Up/Down]", setting::LoadLastCall, "no Last Call"},
    {"[Band encoder start point, 0=50 1=144]", setting::EncoderStart, "1"},
    {"[Use Band encoder on LPT, 0=No 1=Yes]", setting::BandEncoder, "0"},
    {"[Band encoder LPT address]", setting::LptAddress, "&H378"},
    {"[CW on LPT]", setting::CwOnLpt, "no LPT CW"},
    {"[PTT on LPT - Yes No]", setting::PttOnLpt, ""},
    {"[CW calibration constant]", setting::CwCalibration, "500"},
    {"[Using a RIGblaster interface]", setting::RigBlaster, "RIGblaster"},
    {"[Insert rover`s last grid]", setting::LastRoverGrid, ""},
    {"[Grid map font size]", setting::MapFont, ""},
    {"[Last Grid map used]", setting::LastMap, ""},
    {"[NA Grid map font]", setting::UsMapFont, ""},
    {"[Use Master ADIF lookup]", setting::MasterLookup, "Use Master file"},
    {"[Master ADIF lookup file]", setting::MasterFile, ""},
    {"[Select WinHelp32 or HTML (.chm) Help]", setting::HelpKind, ""},
    {"[Use your bands lookup StationBands.txt]", setting::YourBands, "Don`t use your Bands"},
    {"[Use other COM port - Yes No]", setting::OtherPort, "-"},
    {"[Other Com address format: &Hxxx]", setting::OtherPortAddress, "-"},
    {"[Other Com port id]", setting::OtherPortId, "-"},
    {"[Display clock in minutes or seconds]", setting::ClockDisplay, ""},
}};

// Forms of keys that older files hold. The encoder's older key leads to the switch, not to the start point.
constexpr std::array<Entry, 3> kOlderEntries{{
    {"[CW/PTT Com port]", setting::CwPort, ""},
    {"[Band encoder selector, 0=50 1=144]", setting::BandEncoder, ""},
    {"[Other Com address format: &Hxxxx]", setting::OtherPortAddress, ""},
}};

constexpr std::string_view kFirstLine = "//TARQEN32 Control Ini file";
constexpr std::string_view kLastLine = "--- End-of-File ---";

std::optional<int> settingOf(std::string_view line) {
    for (const Entry& entry : kEntries) {
        if (text::same(line, entry.key)) return entry.index;
    }
    for (const Entry& entry : kOlderEntries) {
        if (text::same(line, entry.key)) return entry.index;
    }
    return std::nullopt;
}

}  // namespace

std::string compose(const Settings& values) {
    std::string content;
    const auto print = [&](std::string_view line) { content += std::string(line) + "\r\n"; };
    print(kFirstLine);
    for (const Entry& entry : kEntries) {
        if (entry.index == setting::HelpKind) {
            print("//WinHelp is the default, but may not open");
            print("//in Vista or newer OS - use HTML help format");
        }
        print(entry.key);
        print(values(entry.index));
    }
    print(kLastLine);
    return content;
}

void setDefaults(Settings& values) {
    for (const Entry& entry : kEntries) {
        values(entry.index) = entry.standard;
    }
}

void parse(std::string_view content, Settings& values, const std::function<void(int setting)>& taken) {
    const std::vector<std::string> lines = text::lines(content);
    for (std::size_t at = 0; at + 1 < lines.size(); ++at) {
        const std::optional<int> index = settingOf(lines[at]);
        if (!index) continue;
        values(*index) = lines[++at];
        if (taken) taken(*index);
    }
}

}  // namespace control
