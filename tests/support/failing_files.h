// SPDX-License-Identifier: MIT
// Files of which one call, counted from the start, fails.
#pragma once

#include <memory>
#include <string>

#include "base/run_time_error.h"
#include "base/text.h"
#include "shell/platform/files.h"

/// Counts the calls that reach the files of one name, and lets some of them fail.
class CallCounter {
public:
    /// `name` is compared with what stands behind the last slash, or with the whole where it holds a slash.
    explicit CallCounter(std::string name) : name_(std::move(name)) {}
    /// The `first`-th call and the `times` - 1 calls behind it fail.
    void failFrom(int first, int times = 1) {
        first_ = first;
        last_ = first + times - 1;
    }
    int calls() const { return calls_; }
    bool hasFailed() const { return first_ > 0 && calls_ >= first_; }
    bool fails(const std::string& name);

private:
    std::string name_;
    int calls_ = 0, first_ = 0, last_ = -1;
};

class FailingFiles : public Files {
public:
    FailingFiles(Files& disk, CallCounter& counter) : disk_(disk), counter_(counter) {}
    std::unique_ptr<OutFile> append(const std::string& name) override;
    std::unique_ptr<OutFile> create(const std::string& name) override;
    void replace(const std::string& name, std::string_view content) override;
    std::string read(const std::string& name) override;
    bool exists(const std::string& name) override { return disk_.exists(name); }
    void remove(const std::string& name) override { disk_.remove(name); }
    std::vector<std::string> list(const std::string& pattern) override { return disk_.list(pattern); }
    std::string path(const std::string& name) override { return disk_.path(name); }

private:
    void check(const std::string& name);
    Files& disk_;
    CallCounter& counter_;
};

constexpr const char* kFaultReason = "Input/output error";
