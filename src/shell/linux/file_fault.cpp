// SPDX-License-Identifier: MIT
#include "shell/linux/file_fault.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "shell/linux/code_page.h"

namespace {

/// A file that is missing in a folder that is there, and a folder that is missing, are told apart.
const char* missing(const std::string& path) {
    std::error_code error;
    const bool folder = std::filesystem::is_directory(std::filesystem::path(path).parent_path(), error);
    return folder ? "File not found" : "Path not found";
}

const char* textOf(const std::string& path, int number) {
    switch (number) {
        case ENOENT:
            return missing(path);
        case ENOTDIR:
            return "Path not found";
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return "Disk full";
        case EIO:
            return "Device I/O error";
        case EMFILE:
        case ENFILE:
            return "Too many files";
        case ENAMETOOLONG:
        case EINVAL:
        case EILSEQ:
            return "Bad file name or number";
        case ENXIO:
        case ENODEV:
            return "Device unavailable";
        default:
            return "Path/File access error";
    }
}

}  // namespace

std::string shownPath(const std::string& path) {
    const auto shown = code_page::fromUtf8(path);
    return shown ? *shown : path;
}

FileError fileFault(const std::string& path, int number) {
    return FileError(textOf(path, number), shownPath(path), std::generic_category().message(number));
}

FileError lastFileFault(const std::string& path) { return fileFault(path, errno); }
