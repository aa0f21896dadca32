// SPDX-License-Identifier: MIT
// A log of 2,500 QSOs and a folder to put it into, for benchmarks.
#pragma once

#include <string>

namespace bench {

constexpr int kQsos = 2500, kMatches = 30;
/// The call of `kMatches` of the QSOs.
constexpr const char* kWanted = "W1XYZ";

/// A folder of its own on a disk, not in memory: the time of a sync is part of what is measured.
class BenchFolder {
public:
    BenchFolder();
    ~BenchFolder();
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;
    const std::string& path() const { return path_; }
    void write(const std::string& name, const std::string& content) const;

private:
    std::string path_;
};

std::string callOf(int number);
std::string gridOf(int number);
/// The log of a contest on four bands; one scored by distance has kilometres and no marks of new grids.
std::string logContent(const std::string& contestNumber);

}  // namespace bench
