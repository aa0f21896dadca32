// SPDX-License-Identifier: MIT
#include "shell/headless/headless_files.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "base/text.h"

namespace {

FileError fullDisk(const std::string& path) {
    return FileError("Disk full", path, "No space left on device");
}

/// Lets through what the faults let through, at each write anew.
class FaultyFile : public OutFile {
public:
    FaultyFile(std::unique_ptr<OutFile> file, Faults& faults, std::string name, std::string path)
        : file_(std::move(file)), faults_(faults), name_(std::move(name)), path_(std::move(path)) {}

    std::int64_t length() override { return file_->length(); }
    void write(std::string_view bytes) override {
        const Faults::Write write = faults_.writing(name_, static_cast<std::int64_t>(bytes.size()));
        if (write.goesIn > 0) file_->write(bytes.substr(0, static_cast<std::size_t>(write.goesIn)));
        if (write.fails) throw fullDisk(path_);
    }
    void sync() override { file_->sync(); }
    void cutTo(std::int64_t length) override { file_->cutTo(length); }
    int lastByte() override { return file_->lastByte(); }
    void close() override { file_->close(); }

private:
    std::unique_ptr<OutFile> file_;
    Faults& faults_;
    std::string name_, path_;
};

}  // namespace

std::string HeadlessFiles::nameInFolder(const std::string& name) const {
    std::string slashed = name;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    const std::string folder = disk_.path("") + "/";
    if (text::same(text::left(slashed, static_cast<int>(folder.size())), folder))
        slashed.erase(0, folder.size());
    while (text::startsWith(slashed, "./")) slashed.erase(0, 2);
    return slashed;
}

void HeadlessFiles::checkOpen(const std::string& name) {
    if (!faults_.opening(nameInFolder(name))) return;
    throw FileError("Path/File access error", disk_.path(name), "Permission denied");
}

std::unique_ptr<OutFile> HeadlessFiles::append(const std::string& name) {
    checkOpen(name);
    return std::make_unique<FaultyFile>(disk_.append(name), faults_, nameInFolder(name), disk_.path(name));
}

std::unique_ptr<OutFile> HeadlessFiles::create(const std::string& name) {
    checkOpen(name);
    return std::make_unique<FaultyFile>(disk_.create(name), faults_, nameInFolder(name), disk_.path(name));
}

void HeadlessFiles::replace(const std::string& name, std::string_view content) {
    checkOpen(name);
    const Faults::Write write =
        faults_.writing(nameInFolder(name), static_cast<std::int64_t>(content.size()));
    // What goes in goes in beside, and is taken away again.
    if (write.fails) throw fullDisk(disk_.path(name));
    disk_.replace(name, content);
}

std::string HeadlessFiles::read(const std::string& name) {
    checkOpen(name);
    return disk_.read(name);
}
