// SPDX-License-Identifier: MIT
#include "shell/linux/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "base/text.h"
#include "shell/linux/descriptor.h"
#include "shell/linux/file_fault.h"
#include "shell/linux/path_lookup.h"

namespace {

namespace fs = std::filesystem;

class PosixOutFile : public OutFile {
public:
    /// `fresh` of a file whose name is not yet sure to be on the disk.
    PosixOutFile(Descriptor descriptor, std::string path, bool fresh)
        : descriptor_(std::move(descriptor)), path_(std::move(path)), fresh_(fresh) {}

    std::int64_t length() override { return descriptor_.length(); }
    void write(std::string_view bytes) override { descriptor_.write(bytes); }
    void sync() override {
        descriptor_.sync();
        if (fresh_) syncFolderOf(path_);
        fresh_ = false;
    }
    void cutTo(std::int64_t length) override {
        if (length < descriptor_.length()) descriptor_.cutTo(length);
    }
    int lastByte() override { return descriptor_.byteAt(descriptor_.length() - 1); }
    void close() override { descriptor_.close(); }

private:
    Descriptor descriptor_;
    std::string path_;
    bool fresh_;
};

// Every file is written at its end, so that a cut file goes on where it was cut.
constexpr int kWriteFlags = O_RDWR | O_APPEND;

std::unique_ptr<OutFile> openForWriting(const std::string& path, int flags) {
    Descriptor made = Descriptor::makeFile(path, kWriteFlags);
    if (made.held()) return std::make_unique<PosixOutFile>(std::move(made), path, true);
    return std::make_unique<PosixOutFile>(Descriptor::openFile(path, kWriteFlags | O_CREAT | flags), path,
                                          false);
}

/// Where the file itself lies that a name leads to; renaming over a link would put the file in the link's
/// place.
std::string withoutLinks(const std::string& path) {
    std::error_code error;
    const fs::path end = fs::canonical(path, error);
    return error ? path : end.string();
}

/// Hidden, and with an ending of its own, so that no list of the program's files ever shows it.
std::string besideOf(const std::string& path) {
    const fs::path at(path);
    return (at.parent_path() / ("." + at.filename().string() + ".new")).string();
}

/// Raises what writing to the file itself would raise: a rename asks the folder alone.
void checkWritable(const std::string& path, const struct stat& status) {
    if (!S_ISREG(status.st_mode)) throw fileFault(path, S_ISDIR(status.st_mode) ? EISDIR : EACCES);
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw lastFileFault(path);
}

void writeBeside(const std::string& beside, std::string_view content, const struct stat* old) {
    Descriptor file = Descriptor::makeFile(beside, O_WRONLY);
    if (!file.held()) throw fileFault(beside, EEXIST);
    if (old) {
        // The owner can be kept by few; who can't keeps the file as his own.
        const bool kept = ::fchown(file.number(), old->st_uid, old->st_gid) == 0;
        const mode_t mode = old->st_mode & (kept ? 07777 : 0777);
        if (::fchmod(file.number(), mode) != 0) throw lastFileFault(beside);
    }
    file.write(content);
    file.sync();
    file.close();
}

}  // namespace

std::unique_ptr<OutFile> PosixFiles::append(const std::string& name) {
    return openForWriting(path_lookup::find(folder_, name), 0);
}

std::unique_ptr<OutFile> PosixFiles::create(const std::string& name) {
    return openForWriting(path_lookup::find(folder_, name), O_TRUNC);
}

void PosixFiles::replace(const std::string& name, std::string_view content) {
    const std::string path = withoutLinks(path_lookup::find(folder_, name));
    if (path.find('\0') != std::string::npos) throw fileFault(path, EINVAL);
    struct stat status {};
    const bool there = ::stat(path.c_str(), &status) == 0;
    if (there) checkWritable(path, status);
    const std::string beside = besideOf(path);
    // What a crash left of an earlier one.
    ::unlink(beside.c_str());
    try {
        writeBeside(beside, content, there ? &status : nullptr);
        if (::rename(beside.c_str(), path.c_str()) != 0) throw lastFileFault(path);
    } catch (const FileError& fault) {
        ::unlink(beside.c_str());
        // The operator knows the file by its own name.
        throw FileError(fault.what(), shownPath(path), fault.reason);
    }
    try {
        syncFolderOf(path);
    } catch (const FileError&) {
        // The new content is in place; telling of a failure now would make a caller undo what has been done.
    }
}

std::string PosixFiles::read(const std::string& name) {
    return Descriptor::openFile(path_lookup::find(folder_, name), O_RDONLY).readAll();
}

bool PosixFiles::exists(const std::string& name) {
    std::error_code error;
    const fs::file_status status = fs::status(path_lookup::find(folder_, name), error);
    return fs::exists(status) && !fs::is_directory(status);
}

void PosixFiles::remove(const std::string& name) {
    const std::string path = path_lookup::find(folder_, name);
    if (path.find('\0') != std::string::npos) throw fileFault(path, EINVAL);
    if (::unlink(path.c_str()) != 0) throw lastFileFault(path);
}

std::vector<std::string> PosixFiles::list(const std::string& pattern) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder_, error), end; !error && at != end; at.increment(error)) {
        const auto name = path_lookup::nameOfEntry(at->path().filename().string());
        const bool hidden = name && text::startsWith(*name, ".") && !text::startsWith(pattern, ".");
        std::error_code gone;
        if (name && !hidden && text::matches(*name, pattern) && at->is_regular_file(gone))
            names.push_back(*name);
    }
    if (error) throw fileFault(folder_, error.value());
    std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
        const std::string a = text::lower(one), b = text::lower(other);
        return a != b ? a < b : one < other;
    });
    return names;
}

std::string PosixFiles::path(const std::string& name) { return shownPath(path_lookup::find(folder_, name)); }
