// SPDX-License-Identifier: MIT
// Any bytes as personal data: they fit, or the fault of too many fields is raised; written back they are read
// the same, but for quotes, which are not escaped.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "setup/personal_text.h"

namespace {

void must(bool holds) {
    if (!holds) std::abort();
}

void writtenBackReadsTheSame(const Personal& data) {
    Personal again;
    personal::parse(personal::compose(data), again);
    for (int element = personal::kFirst; element <= personal::kLast; ++element) {
        const bool quoted = data(element).find('"') != std::string::npos;
        must(quoted || again(element) == data(element));
    }
}

}  // namespace

// The name and the signature are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Personal values;
    try {
        personal::parse(std::string_view(reinterpret_cast<const char*>(data), size), values);
    } catch (const RunTimeError&) {
        must(!values(Personal::kLast).empty() || size >= 20);
    }
    must(values(0).empty());
    writtenBackReadsTheSame(values);
    return 0;
}
