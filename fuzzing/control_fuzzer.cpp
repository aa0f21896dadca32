// SPDX-License-Identifier: MIT
// Any bytes as a control file: the values taken are lines of it, and written back they are read the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "setup/control_text.h"
#include "setup/utc_clock.h"

namespace {

void must(bool holds) {
    if (!holds) std::abort();
}

void writtenBackReadsTheSame(const Settings& values) {
    Settings again;
    control::parse(control::compose(values), again, nullptr);
    for (int index = Settings::kFirst; index <= Settings::kLast; ++index) must(again(index) == values(index));
}

}  // namespace

// The name and the signature are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    Settings values;
    control::parse(content, values, [&](int setting) {
        must(values(setting).find_first_of("\r\n") == std::string::npos);
        must(content.find(values(setting)) != std::string_view::npos);
    });
    writtenBackReadsTheSame(values);
    try {
        const UtcOffset offset = offsetOf(values(setting::UtcOffset));
        must(offset.half == 0 || offset.half == 30);
    } catch (const RunTimeError&) {
        // An offset beyond all numbers ends in order.
    }
    return 0;
}
