// SPDX-License-Identifier: MIT
#include "base/print_line.h"

#include "base/number.h"

PrintLine& PrintLine::goToZone() {
    constexpr int kZoneWidth = 14;
    return goTo((filled() / kZoneWidth + 1) * kZoneWidth + 1);
}

PrintLine& PrintLine::thenNumber(std::int64_t number) {
    if (number >= 0) then(" ");
    return then(number::toText(number)).then(" ");
}

void PrintLine::end() {
    page_ += "\r\n";
    start_ = page_.size();
}
