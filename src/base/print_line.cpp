// SPDX-License-Identifier: MIT
#include "base/print_line.h"

namespace {

constexpr std::size_t kZoneWidth = 14;

}  // namespace

void PrintLine::goTo(std::size_t column) {
    const std::size_t before = column < 1 ? 0 : column - 1;
    if (filled() <= before) {
        page_.append(before - filled(), ' ');
    } else {
        page_ += ' ';
    }
}

void PrintLine::goToZone() { goTo((filled() / kZoneWidth + 1) * kZoneWidth + 1); }

PrintLine& PrintLine::at(int column, std::string_view text) {
    goTo(static_cast<std::size_t>(column));
    return then(text);
}

PrintLine& PrintLine::numberAt(int column, std::int64_t number) {
    goTo(static_cast<std::size_t>(column));
    return thenNumber(number);
}

PrintLine& PrintLine::inZone(std::string_view text) {
    goToZone();
    return then(text);
}

PrintLine& PrintLine::numberInZone(std::int64_t number) {
    goToZone();
    return thenNumber(number);
}

PrintLine& PrintLine::then(std::string_view text) {
    page_ += text;
    return *this;
}

PrintLine& PrintLine::thenNumber(std::int64_t number) {
    if (number >= 0) page_ += ' ';
    page_ += std::to_string(number);
    page_ += ' ';
    return *this;
}

void PrintLine::end() {
    page_ += "\r\n";
    start_ = page_.size();
}
