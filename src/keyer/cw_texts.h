// SPDX-License-Identifier: MIT
// The texts that the keyer sends and shows, put together from the calls in them.
// Leans on base alone; the function keys, the messages and the setup form ask it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace keyer {

/// "CQ CQ DE CALL CALL K " once; while it repeats without a pause no "K" invites anybody.
std::string cqText(std::string_view call);
std::string repeatedCqText(std::string_view call, bool withoutPause);
/// What the setup form shows of it: a portable sign's hyphen stands as a slash there.
std::string cqLabel(std::string_view call);
/// The message of F4 of a new setup.
std::string answerText(std::string_view call);
/// What the setup form sends to try the line.
std::string testText(std::string_view call);

constexpr std::string_view kCallTag = "<CALL>";
/// The call as it is sent: a rover's slash and four-character grid are cut off.
std::string sentCall(std::string_view call);
/// What stands before and behind the first tag of a message. The one character behind the tag is dropped; the
/// blank that the call brings stands for it.
struct TagPlace {
    std::string_view before;
    /// Nothing where the tag ends the message, so that there is no character to drop.
    std::optional<std::string_view> after;
};
std::optional<TagPlace> tagPlace(std::string_view message);

/// The long name of a message key, by which the running message is known; empty for a key without one.
std::string_view runningName(std::string_view key);
/// What the transmit form calls a running message, without how the transmitter is switched.
std::string_view shownName(std::string_view running);

/// "01" to "99": seconds rounded, with two digits at least.
std::string twoDigitSeconds(double seconds);

/// A new name for a .cfg file: nothing where it is refused without a word.
struct ConfigName {
    std::string name;
    /// Short enough for 8 characters, a dot and 3.
    bool fits = false;
};
std::optional<ConfigName> configName(std::string_view answer);

}  // namespace keyer
