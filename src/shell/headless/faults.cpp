// SPDX-License-Identifier: MIT
#include "shell/headless/faults.h"

#include <algorithm>

#include "base/text.h"

namespace {

bool applies(const FileFault& fault, FileFault::Kind kind, std::string_view name) {
    if (fault.kind != kind) return false;
    if (text::contains(fault.pattern, "/")) return text::matches(name, fault.pattern);
    return text::matches(name.substr(name.rfind('/') + 1), fault.pattern);
}

}  // namespace

void Faults::mend() {
    files_.clear();
    devices_.clear();
}

bool Faults::opening(std::string_view name) {
    for (std::size_t i = 0; i < files_.size(); ++i) {
        if (!applies(files_[i], FileFault::Kind::Open, name)) continue;
        failed(i);
        return true;
    }
    return false;
}

Faults::Write Faults::writing(std::string_view name, std::int64_t size) {
    Write write{size, false};
    std::size_t first = 0;
    for (std::size_t i = 0; i < files_.size(); ++i) {
        if (!applies(files_[i], FileFault::Kind::Write, name) || files_[i].after >= write.goesIn) continue;
        write = {files_[i].after, true};
        first = i;
    }
    for (FileFault& fault : files_) {
        if (!applies(fault, FileFault::Kind::Write, name)) continue;
        fault.after = std::max<std::int64_t>(fault.after - write.goesIn, 0);
    }
    if (write.fails) failed(first);
    return write;
}

void Faults::failed(std::size_t which) {
    FileFault& fault = files_[which];
    if (!fault.times) return;
    if (--*fault.times == 0) files_.erase(files_.begin() + static_cast<std::ptrdiff_t>(which));
}
