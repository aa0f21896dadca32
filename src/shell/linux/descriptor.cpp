// SPDX-License-Identifier: MIT
#include "shell/linux/descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <utility>

#include "shell/linux/file_fault.h"

namespace {

/// Does a call again for as long as a signal cuts it short.
template <typename Call>
auto again(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

int openAt(const std::string& path, int flags) {
    // A name with a zero byte would be cut there and reach another file.
    if (path.find('\0') != std::string::npos) {
        errno = EINVAL;
        return -1;
    }
    // O_NONBLOCK: opening a pipe that nobody feeds would wait for ever.
    return again([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666); });
}

/// Some file systems cannot sync a folder or a file; nothing more can be done there.
bool cannotSync(int number) { return number == EINVAL || number == EROFS || number == ENOTSUP; }

}  // namespace

Descriptor Descriptor::openFile(const std::string& path, int flags) {
    // What is no plain file must not be emptied before that is known.
    Descriptor opened(openAt(path, flags & ~O_TRUNC), path);
    if (!opened.held()) throw lastFileFault(path);
    struct stat status {};
    if (::fstat(opened.number_, &status) != 0) throw lastFileFault(path);
    if (!S_ISREG(status.st_mode)) throw fileFault(path, S_ISDIR(status.st_mode) ? EISDIR : EACCES);
    if (flags & O_TRUNC) opened.cutTo(0);
    return opened;
}

Descriptor Descriptor::makeFile(const std::string& path, int flags) {
    Descriptor made(openAt(path, flags | O_CREAT | O_EXCL), path);
    if (!made.held() && errno != EEXIST) throw lastFileFault(path);
    return made;
}

Descriptor::Descriptor(Descriptor&& other) noexcept
    : number_(std::exchange(other.number_, -1)), path_(std::move(other.path_)) {}

Descriptor::~Descriptor() {
    if (held()) ::close(number_);
}

std::int64_t Descriptor::length() const {
    struct stat status {};
    if (::fstat(number_, &status) != 0) throw lastFileFault(path_);
    return status.st_size;
}

void Descriptor::write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const auto count = again([&] { return ::write(number_, bytes.data(), bytes.size()); });
        if (count < 0) throw lastFileFault(path_);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::string Descriptor::readAll() const {
    std::string content;
    std::array<char, 65536> buffer{};
    while (true) {
        const auto count = again([&] { return ::read(number_, buffer.data(), buffer.size()); });
        if (count < 0) throw lastFileFault(path_);
        if (count == 0) return content;
        content.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

int Descriptor::byteAt(std::int64_t place) const {
    unsigned char byte = 0;
    if (place < 0) return -1;
    const auto count = again([&] { return ::pread(number_, &byte, 1, place); });
    if (count < 0) throw lastFileFault(path_);
    return count == 0 ? -1 : byte;
}

void Descriptor::cutTo(std::int64_t length) const {
    if (again([&] { return ::ftruncate(number_, length); }) != 0) throw lastFileFault(path_);
}

void Descriptor::sync() const {
    if (again([&] { return ::fdatasync(number_); }) != 0 && !cannotSync(errno)) throw lastFileFault(path_);
}

void Descriptor::close() {
    if (!held()) return;
    // After an interruption the number is free all the same, and may already be another's.
    if (::close(std::exchange(number_, -1)) != 0 && errno != EINTR) throw lastFileFault(path_);
}

void syncFolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    const int number = openAt(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (number < 0) throw lastFileFault(path);
    const int result = again([&] { return ::fsync(number); });
    const int error = errno;
    ::close(number);
    if (result != 0 && !cannotSync(error)) throw fileFault(path, error);
}
