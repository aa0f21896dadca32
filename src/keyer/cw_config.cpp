// SPDX-License-Identifier: MIT
#include "keyer/cw_config.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "base/number.h"
#include "base/text.h"

namespace keyer {

namespace {

std::string quoted(std::string_view value) { return "\"" + std::string(value) + "\""; }

template <typename Width>
std::string bare(const Checked<Width>& value) {
    return number::toText(static_cast<std::int64_t>(static_cast<Width>(value)));
}

}  // namespace

float weightOf(std::string_view text) {
    const double value = number::valueOf(text);
    if (!(value >= -std::numeric_limits<float>::max() && value <= std::numeric_limits<float>::max()))
        throw overflowError();
    return static_cast<float>(value);
}

std::string compose(const CwConfig& config) {
    std::string content;
    for (const std::string& line :
         {bare(config.speed), quoted(config.f3), quoted(config.f6), quoted(config.f7),
          number::toText(config.weight), bare(config.loopConstant), bare(config.port), quoted(config.f1),
          bare(config.ptt), bare(config.f1Normal), quoted(config.f4), quoted("spare")}) {
        content += line + "\r\n";
    }
    return content;
}

CwConfig parse(std::string_view content, CwConfig before) {
    const std::vector<std::string> items =
        content.empty() ? std::vector<std::string>() : text::items(content);
    CwConfig config = std::move(before);
    const auto take = [&items](std::size_t line, auto& value, const auto& read) {
        if (line <= items.size()) value = read(items[line - 1]);
    };
    const auto whole = [](const std::string& item) { return std::int64_t{number::wholeOf(item)}; };
    const auto same = [](const std::string& item) { return item; };
    take(1, config.speed, whole);
    take(2, config.f3, same);
    take(3, config.f6, same);
    take(4, config.f7, same);
    take(5, config.weight, weightOf);
    take(6, config.loopConstant, whole);
    take(7, config.port, whole);
    take(8, config.f1, same);
    take(9, config.ptt, whole);
    take(10, config.f1Normal, whole);
    take(11, config.f4, same);
    if (config.loopConstant < 1) config.loopConstant = 1;
    return config;
}

std::string namePointedTo(std::string_view content) {
    return content.empty() ? std::string() : text::items(content).front();
}

std::string pointerTo(std::string_view name) { return quoted(name) + "\r\n"; }

}  // namespace keyer
