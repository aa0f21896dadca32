// SPDX-License-Identifier: MIT
// The state of one logging session: one contest log held whole in memory, and all that is derived from it.
// Leans on base; every subsystem reads and writes it through the Station.
// The names of the fields are fixed: scripts and the other programs of the station know them.
#pragma once

#include <cstdint>
#include <string>

#include "base/table.h"

/// Lines 1 and 2 are headers, QSO lines start at 3.
constexpr int kFirstQsoLine = 3;
constexpr int kFirstBand = 1;
constexpr int kLastBand = 13;
/// Two headers and 2500 QSOs.
constexpr int kLogLineLimit = 2502;

template <typename T>
using PerBand = Table<T, 0, 14>;

struct Session {
    Table<std::string, 0, 3001> LogLines;
    Int16 LogLineCount;
    std::string LogFileName;
    Int16 LogOpenMode;
    bool LogIsEmpty = false;
    std::string ContestNumber;
    std::string ContestName;
    std::string StartDate;
    Int16 CurrentBand;
    Int16 GridTotal;
    Int16 DupeCount;
    float TotalScore = 0;
    Int32 TotalQSOPoints;
    std::string AppPath;
    std::string ProgramVersion;
    Int16 SetupLoaded;

    PerBand<std::string> BandName;
    PerBand<Int16> BandQSOs;
    PerBand<Int16> BandGrids;
    PerBand<Int16> BandPoints;
    PerBand<Int32> BandQSOPoints;
    PerBand<Int32> BandScore;
    PerBand<bool> BandWorked;

    std::string CurrentCall;
    std::string QSOPoints;
    std::string NewGridMark;
    std::string UTCTime;
    std::string UTCDate;
    bool DupeAccepted = false;
    bool DupeCheckDone = false;
    Int16 LookupHit;
    bool CallOK = false;
    bool GridEntered = false;
    std::string LastCall;
    std::string LastGrid;
    Int16 MatchCount;
    Table<std::string, 0, 30> MatchBand;
    Table<Table<std::string, 0, 2>, 0, 30> MatchList;
    Table<Table<std::string, 0, 2>, 0, 30> MatchSorted;
    /// The bands that a lookup offers for the station in work, by band index; a worked one is blank.
    PerBand<std::string> NeededBand;

    float UtcOffsetHours = 0;
    Int16 UtcOffsetHalf;
    std::string AlarmTime;
    std::string RefreshRequest;
    std::string UtcCheckDone;
    /// The settings in memory are those of a first start, because the file could not be read.
    bool controlFileUnread = false;

    Table<std::string, 1, 40> ActivityHours;
    Int16 ActivityCount;
    Table<std::string, 1, 27> LetterTable;
    Table<std::string, 1, 100> SyllableList;
    Table<Table<std::string, 0, 1>, 1, 500> SixDigitTable;
    Int16 SixDigitCount;
    std::string RecipGrid;
    std::string IFOffsetDummy;
    Int16 PageTotal;
    Int16 SelectedMap;
    std::string PopUpTopic;

    /// Words a minute.
    Int16 CWSpeed = 20;
    float CWWeight = 1.1F;
    Int32 CWLoopConstant = 2000;
    Int32 CWCalibration = 500;
    /// What is still to go; its first character goes next.
    std::string CWBuffer;
    std::string CWMessageKey;
    /// 1 asks the running send to stop at the next character.
    Int16 CWCancel;
    /// -1 while a transmission is in hand.
    Int16 TXActive;
    Table<std::string, 0, 60> MorseTable;
    std::string CWConfigFile;
    std::string F1Message, F3Message, F4Message, F6Message, F7Message;
    /// Exactly one of the two is 1: keyboard or the rest of the message behind a call.
    Int16 F1CallKeyboard = 1;
    Int16 F1CallNormal;
    Int16 KeyTimingReady;
    /// -1 while the keyboard's loop sends: keys that come then only add to the buffer.
    Int16 KeyDrainRunning;

    Int16 PortByte;
    Int16 KeyDownByte;
    Int16 KeyUpByte;
    Int16 PTTByte;
    Int16 PortAddress;
    Int16 LPTAddress;
    /// 1 to 4 for a serial port of the machine, 5 for the other port.
    Int16 COMPortIndex = 1;
    Int16 PTTEnabled;
};
