// SPDX-License-Identifier: MIT
// The settings that outlive a session and the station's personal data, as texts by index.
#pragma once

#include <string>

#include "base/table.h"

using Settings = Table<std::string, 0, 55>;
using Personal = Table<std::string, 0, 20>;

/// Indices into `ControlValues`.
namespace setting {
constexpr int BackupPath = 1, OtherPortAddress = 2, LogView = 3, BandsToWork = 4, Offsets = 5,
              OtherPortId = 6, SixDigit = 7, AcceptMode = 8, ActivityDisplay = 9, DistanceUnit = 10,
              OtherPort = 11, RoverPrompts = 12, UtcOffset = 13, LogFontSize = 14, LogFontBold = 15,
              EncoderStart = 16, Printer = 17, Cw = 18, CwPort = 19, Dvk = 20, WaveF9 = 21, WaveF10 = 22,
              WaveF11 = 23, DvkPtt = 24, WaveF12 = 25, DvkRepeat = 26, DvkRepeatTime = 27, CwRepeatTime = 28,
              SwapLines = 29, PrintLine1 = 30, PrintLine2 = 31, SendCall = 32, Recip = 33, LoadLastCall = 34,
              BandEncoder = 35, LptAddress = 36, CwOnLpt = 37, CwCalibration = 38, RigBlaster = 39,
              MasterLookup = 40, LastRoverGrid = 41, MapFont = 42, PttOnLpt = 43, LastMap = 44,
              UsMapFont = 45, YourBands = 46, MasterFile = 47, HelpKind = 48, ClockDisplay = 49;
}  // namespace setting

/// Indices into `PersonalData`.
namespace personal {
constexpr int Call = 1, Name = 2, Address = 3, City = 4, Grid = 5, Club = 6, Section = 7,
              OperatorCategory = 8, Operators = 9, MoreOperators = 10, Power = 11, StationCategory = 12,
              Transmitter = 13, BandCategory = 14;
constexpr int kFirst = 1, kLast = 14;
}  // namespace personal
