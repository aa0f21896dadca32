// SPDX-License-Identifier: MIT
// Files by name, relative to the program's folder, whatever the case of the name and the kind of its slashes.
// Leans on nothing; shell/linux does it on a disk, shell/headless adds faults; all readers and writers call
// it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A file open for writing. Every call raises FileError where the system refuses it.
class OutFile {
public:
    virtual ~OutFile() = default;
    virtual std::int64_t length() = 0;
    virtual void write(std::string_view bytes) = 0;
    /// Returns once all that was written is on the disk.
    virtual void sync() = 0;
    /// Cuts the file back to a length, to take back a line that went in only in part.
    virtual void cutTo(std::int64_t length) = 0;
    /// The last byte of the file, or -1 of an empty one.
    virtual int lastByte() = 0;
    /// Closing twice does no harm; an open file is closed when it goes.
    virtual void close() = 0;
};

/// `\` and `/` part folders alike; each component is looked up without regard to case, and a name that isn't
/// there yet is made as written. A drive letter is a folder of that name. FileError tells path and reason.
class Files {
public:
    virtual ~Files() = default;
    /// Opens for appending; the file comes into being where it is missing.
    virtual std::unique_ptr<OutFile> append(const std::string& name) = 0;
    /// Opens for writing from scratch, in place.
    virtual std::unique_ptr<OutFile> create(const std::string& name) = 0;
    /// Puts a whole content in place of a file: written beside, synced, renamed over it.
    virtual void replace(const std::string& name, std::string_view content) = 0;
    virtual std::string read(const std::string& name) = 0;
    virtual bool exists(const std::string& name) = 0;
    virtual void remove(const std::string& name) = 0;
    /// Names in the program's folder that match a pattern, in order of name without regard to case.
    virtual std::vector<std::string> list(const std::string& pattern) = 0;
    /// The full path that a name stands for, as the operator may be told it.
    virtual std::string path(const std::string& name) = 0;
};

/// Makes sure that a file exists, empty where it is new.
inline void touch(Files& files, const std::string& name) { files.append(name)->close(); }
