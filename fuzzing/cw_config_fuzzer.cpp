// SPDX-License-Identifier: MIT
// Any bytes as a setup of the Morse keyer: they are taken, or the fault of a number too large is raised;
// written back they are read the same, but for quotes, which are not escaped.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "keyer/cw_config.h"

namespace {

void must(bool holds) {
    if (!holds) std::abort();
}

bool hasQuote(const keyer::CwConfig& config) {
    for (const std::string* const text : {&config.f1, &config.f3, &config.f4, &config.f6, &config.f7}) {
        if (text->find('"') != std::string::npos) return true;
    }
    return false;
}

void writtenBackReadsTheSame(const keyer::CwConfig& config) {
    if (hasQuote(config)) return;
    const keyer::CwConfig again = keyer::parse(keyer::compose(config), {});
    must(again.speed == config.speed && again.port == config.port && again.ptt == config.ptt);
    must(again.loopConstant == config.loopConstant && again.f1Normal == config.f1Normal);
    must(again.f1 == config.f1 && again.f3 == config.f3 && again.f4 == config.f4);
    must(again.f6 == config.f6 && again.f7 == config.f7);
}

}  // namespace

// The name and the signature are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    try {
        const keyer::CwConfig config = keyer::parse(content, {});
        must(config.loopConstant >= 1);
        writtenBackReadsTheSame(config);
    } catch (const RunTimeError&) {
        // Three characters are enough for a number that no counter holds: 1e5.
        must(size > 2);
    }
    keyer::namePointedTo(content);
    return 0;
}
