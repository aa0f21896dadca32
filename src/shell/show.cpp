// SPDX-License-Identifier: MIT
#include "shell/show.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/number.h"

namespace {

using Indices = std::span<const int>;
using Value = std::optional<std::string>;

std::string shown(const std::string& value) { return quotedText(value); }
std::string shown(bool value) { return value ? "yes" : "no"; }
std::string shown(float value) { return number::toText(value); }
template <typename Width>
std::string shown(const Checked<Width>& value) {
    return number::toText(static_cast<std::int64_t>(static_cast<Width>(value)));
}

template <typename Plain>
Value at(const Plain& value, Indices indices) {
    return indices.empty() ? Value(shown(value)) : std::nullopt;
}

/// A table wants an index, and each of its elements those that are left.
template <typename Element, int first, int last>
Value at(const Table<Element, first, last>& table, Indices indices) {
    if (indices.empty() || indices[0] < first || indices[0] > last) return std::nullopt;
    return at(table(indices[0]), indices.subspan(1));
}

struct Field {
    std::string_view name;
    Value (*value)(const Station&, Indices);
};

template <auto member>
constexpr Field ofStation(std::string_view name) {
    return {name, [](const Station& station, Indices indices) { return at(station.*member, indices); }};
}

template <auto member>
constexpr Field ofSession(std::string_view name) {
    return {name,
            [](const Station& station, Indices indices) { return at(station.session.*member, indices); }};
}

constexpr std::array kFields = {
    ofStation<&Station::ControlValues>("ControlValues"),
    ofStation<&Station::PersonalData>("PersonalData"),
    ofSession<&Session::LogLines>("LogLines"),
    ofSession<&Session::LogLineCount>("LogLineCount"),
    ofSession<&Session::LogFileName>("LogFileName"),
    ofSession<&Session::LogOpenMode>("LogOpenMode"),
    ofSession<&Session::LogIsEmpty>("LogIsEmpty"),
    ofSession<&Session::ContestNumber>("ContestNumber"),
    ofSession<&Session::ContestName>("ContestName"),
    ofSession<&Session::StartDate>("StartDate"),
    ofSession<&Session::CurrentBand>("CurrentBand"),
    ofSession<&Session::GridTotal>("GridTotal"),
    ofSession<&Session::DupeCount>("DupeCount"),
    ofSession<&Session::TotalScore>("TotalScore"),
    ofSession<&Session::TotalQSOPoints>("TotalQSOPoints"),
    ofSession<&Session::AppPath>("AppPath"),
    ofSession<&Session::ProgramVersion>("ProgramVersion"),
    ofSession<&Session::SetupLoaded>("SetupLoaded"),
    ofSession<&Session::BandName>("BandName"),
    ofSession<&Session::BandQSOs>("BandQSOs"),
    ofSession<&Session::BandGrids>("BandGrids"),
    ofSession<&Session::BandPoints>("BandPoints"),
    ofSession<&Session::BandQSOPoints>("BandQSOPoints"),
    ofSession<&Session::BandScore>("BandScore"),
    ofSession<&Session::BandWorked>("BandWorked"),
    ofSession<&Session::CurrentCall>("CurrentCall"),
    ofSession<&Session::QSOPoints>("QSOPoints"),
    ofSession<&Session::NewGridMark>("NewGridMark"),
    ofSession<&Session::UTCTime>("UTCTime"),
    ofSession<&Session::UTCDate>("UTCDate"),
    ofSession<&Session::DupeAccepted>("DupeAccepted"),
    ofSession<&Session::DupeCheckDone>("DupeCheckDone"),
    ofSession<&Session::LookupHit>("LookupHit"),
    ofSession<&Session::CallOK>("CallOK"),
    ofSession<&Session::GridEntered>("GridEntered"),
    ofSession<&Session::LastCall>("LastCall"),
    ofSession<&Session::LastGrid>("LastGrid"),
    ofSession<&Session::MatchCount>("MatchCount"),
    ofSession<&Session::MatchBand>("MatchBand"),
    ofSession<&Session::MatchList>("MatchList"),
    ofSession<&Session::MatchSorted>("MatchSorted"),
    ofSession<&Session::NeededBand>("NeededBand"),
    ofSession<&Session::UtcOffsetHours>("UtcOffsetHours"),
    ofSession<&Session::UtcOffsetHalf>("UtcOffsetHalf"),
    ofSession<&Session::AlarmTime>("AlarmTime"),
    ofSession<&Session::RefreshRequest>("RefreshRequest"),
    ofSession<&Session::UtcCheckDone>("UtcCheckDone"),
    ofSession<&Session::ActivityHours>("ActivityHours"),
    ofSession<&Session::ActivityCount>("ActivityCount"),
    ofSession<&Session::LetterTable>("LetterTable"),
    ofSession<&Session::SyllableList>("SyllableList"),
    ofSession<&Session::SixDigitTable>("SixDigitTable"),
    ofSession<&Session::SixDigitCount>("SixDigitCount"),
    ofSession<&Session::RecipGrid>("RecipGrid"),
    ofSession<&Session::IFOffsetDummy>("IFOffsetDummy"),
    ofSession<&Session::PageTotal>("PageTotal"),
    ofSession<&Session::SelectedMap>("SelectedMap"),
    ofSession<&Session::PopUpTopic>("PopUpTopic"),
    ofSession<&Session::CWSpeed>("CWSpeed"),
    ofSession<&Session::CWWeight>("CWWeight"),
    ofSession<&Session::CWLoopConstant>("CWLoopConstant"),
    ofSession<&Session::CWCalibration>("CWCalibration"),
    ofSession<&Session::CWBuffer>("CWBuffer"),
    ofSession<&Session::CWMessageKey>("CWMessageKey"),
    ofSession<&Session::CWCancel>("CWCancel"),
    ofSession<&Session::TXActive>("TXActive"),
    ofSession<&Session::MorseTable>("MorseTable"),
    ofSession<&Session::CWConfigFile>("CWConfigFile"),
    ofSession<&Session::F1Message>("F1Message"),
    ofSession<&Session::F3Message>("F3Message"),
    ofSession<&Session::F4Message>("F4Message"),
    ofSession<&Session::F6Message>("F6Message"),
    ofSession<&Session::F7Message>("F7Message"),
    ofSession<&Session::F1CallKeyboard>("F1CallKeyboard"),
    ofSession<&Session::F1CallNormal>("F1CallNormal"),
    ofSession<&Session::KeyTimingReady>("KeyTimingReady"),
    ofSession<&Session::KeyDrainRunning>("KeyDrainRunning"),
    ofSession<&Session::PortByte>("PortByte"),
    ofSession<&Session::KeyDownByte>("KeyDownByte"),
    ofSession<&Session::KeyUpByte>("KeyUpByte"),
    ofSession<&Session::PTTByte>("PTTByte"),
    ofSession<&Session::PortAddress>("PortAddress"),
    ofSession<&Session::LPTAddress>("LPTAddress"),
    ofSession<&Session::COMPortIndex>("COMPortIndex"),
    ofSession<&Session::PTTEnabled>("PTTEnabled"),
};

bool isPlain(unsigned char byte) { return byte >= 32 && byte <= 126; }

std::string escaped(char character) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(character);
    switch (character) {
        case '"':
            return "\\\"";
        case '\\':
            return "\\\\";
        case '\r':
            return "\\r";
        case '\n':
            return "\\n";
        case '\t':
            return "\\t";
        default:
            break;
    }
    if (isPlain(byte)) return std::string(1, character);
    return {'\\', 'x', kDigits[byte / 16u], kDigits[byte % 16u]};
}

}  // namespace

std::optional<std::string> fieldValue(const Station& station, std::string_view name,
                                      const std::vector<int>& indices) {
    const auto field =
        std::find_if(kFields.begin(), kFields.end(), [&](const Field& f) { return f.name == name; });
    return field == kFields.end() ? std::nullopt : field->value(station, indices);
}

std::string quotedText(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) result += escaped(character);
    return result + "\"";
}
