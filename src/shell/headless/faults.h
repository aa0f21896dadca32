// SPDX-License-Identifier: MIT
// The disk faults and the failing devices that a script has asked for.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// What a script can let fail as a whole.
enum class Device { Port, Printer, Sound, Run };

/// Files of a name that can't be opened, or can't be written once so many bytes more have gone in.
struct FileFault {
    enum class Kind { Open, Write } kind = Kind::Open;
    std::string pattern;
    std::int64_t after = 0;
    /// How many times; nothing for every time until the faults are mended.
    std::optional<int> times;
};

class Faults {
public:
    void add(const FileFault& fault) { files_.push_back(fault); }
    void fail(Device device) { devices_.insert(device); }
    bool fails(Device device) const { return devices_.count(device) != 0; }
    void mend();

    /// Whether opening a file fails now. `name` is its path from the program's folder, with slashes.
    bool opening(std::string_view name);
    struct Write {
        std::int64_t goesIn = 0;
        bool fails = false;
    };
    /// How much of a write to a file goes in now.
    Write writing(std::string_view name, std::int64_t size);

private:
    void failed(std::size_t which);
    std::vector<FileFault> files_;
    std::set<Device> devices_;
};
