// SPDX-License-Identifier: MIT
#include "keyer/cw_texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/text.h"

namespace keyer {

namespace {

constexpr std::size_t kLongestConfigName = 12;

std::string callTwice(std::string_view call) {
    return "CQ CQ DE " + std::string(call) + " " + std::string(call);
}

template <std::size_t count>
std::string_view named(const std::array<std::pair<std::string_view, std::string_view>, count>& names,
                       std::string_view name) {
    const auto at =
        std::find_if(names.begin(), names.end(), [&](const auto& entry) { return entry.first == name; });
    return at == names.end() ? std::string_view() : at->second;
}

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> kRunning{{{"F1", "mem F1"},
                                                                                 {"F3", "mem F3"},
                                                                                 {"F4", "mem F4"},
                                                                                 {"F6", "mem F6"},
                                                                                 {"F7", "mem F7"},
                                                                                 {"F8", "mem F1"},
                                                                                 {"F2", "CQ"},
                                                                                 {"F5", "RCQ"},
                                                                                 {"F1a", "Test"}}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 2> kShown{
    {{"CQ", "2 X 2 CQ"}, {"RCQ", "Repeat CQ"}}};

}  // namespace

std::string cqText(std::string_view call) { return callTwice(call) + " K "; }

std::string repeatedCqText(std::string_view call, bool withoutPause) {
    return callTwice(call) + (withoutPause ? "  " : " K ");
}

std::string cqLabel(std::string_view call) {
    std::string shown(call);
    const std::size_t hyphen = shown.find('-');
    if (hyphen != std::string::npos) shown[hyphen] = '/';
    return callTwice(shown) + " K";
}

std::string answerText(std::string_view call) { return "QRZ? DE " + std::string(call) + " \\AR"; }

std::string testText(std::string_view call) { return " TEST DE " + std::string(call) + " \\AR"; }

std::string sentCall(std::string_view call) {
    constexpr std::size_t kSuffix = 5;
    const bool rover = call.size() > 8 && call[call.size() - kSuffix] == '/';
    return std::string(rover ? call.substr(0, call.size() - kSuffix) : call);
}

std::optional<TagPlace> tagPlace(std::string_view message) {
    const std::size_t at = message.find(kCallTag);
    if (at == std::string_view::npos) return std::nullopt;
    const std::size_t behind = at + kCallTag.size();
    TagPlace place{message.substr(0, at), std::nullopt};
    if (behind < message.size()) place.after = message.substr(behind + 1);
    return place;
}

std::string_view runningName(std::string_view key) { return named(kRunning, key); }

std::string_view shownName(std::string_view running) {
    const std::string_view shown = named(kShown, running);
    return shown.empty() ? running : shown;
}

std::string twoDigitSeconds(double seconds) {
    constexpr double kMost = 1e9;
    return text::digits(std::lround(std::clamp(seconds, -kMost, kMost)), 2);
}

std::optional<ConfigName> configName(std::string_view answer) {
    const bool ending = text::upper(text::right(answer, 4)) == ".CFG";
    if (ending && answer.size() > kLongestConfigName) return std::nullopt;
    const std::string name = std::string(answer) + (ending ? "" : ".cfg");
    return ConfigName{name, name.size() <= kLongestConfigName};
}

}  // namespace keyer
