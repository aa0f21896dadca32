// SPDX-License-Identifier: MIT
#include "support/failing_files.h"

#include <algorithm>

bool CallCounter::fails(const std::string& name) {
    std::string slashed = name;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    if (!text::same(slashed, name_)) return false;
    ++calls_;
    return calls_ >= first_ && calls_ <= last_;
}

namespace {

/// Counts each call on an open file.
class CountedFile : public OutFile {
public:
    CountedFile(std::unique_ptr<OutFile> file, CallCounter& counter, std::string name, std::string path)
        : file_(std::move(file)), counter_(counter), name_(std::move(name)), path_(std::move(path)) {}

    std::int64_t length() override {
        check();
        return file_->length();
    }
    void write(std::string_view bytes) override {
        if (counter_.fails(name_)) {
            // Half of it is in before the device gives up.
            file_->write(bytes.substr(0, bytes.size() / 2));
            raise();
        }
        file_->write(bytes);
    }
    void sync() override {
        check();
        file_->sync();
    }
    void cutTo(std::int64_t length) override { file_->cutTo(length); }
    int lastByte() override {
        check();
        return file_->lastByte();
    }
    void close() override {
        const bool fails = open_ && counter_.fails(name_);
        open_ = false;
        file_->close();
        if (fails) raise();
    }

private:
    [[noreturn]] void raise() { throw FileError("Device I/O error", path_, kFaultReason); }
    void check() {
        if (counter_.fails(name_)) raise();
    }
    std::unique_ptr<OutFile> file_;
    CallCounter& counter_;
    std::string name_, path_;
    bool open_ = true;
};

}  // namespace

void FailingFiles::check(const std::string& name) {
    if (counter_.fails(name)) throw FileError("Path/File access error", disk_.path(name), kFaultReason);
}

std::unique_ptr<OutFile> FailingFiles::append(const std::string& name) {
    check(name);
    return std::make_unique<CountedFile>(disk_.append(name), counter_, name, disk_.path(name));
}

std::unique_ptr<OutFile> FailingFiles::create(const std::string& name) {
    check(name);
    return std::make_unique<CountedFile>(disk_.create(name), counter_, name, disk_.path(name));
}

void FailingFiles::replace(const std::string& name, std::string_view content) {
    check(name);
    disk_.replace(name, content);
}

std::string FailingFiles::read(const std::string& name) {
    check(name);
    return disk_.read(name);
}
