// SPDX-License-Identifier: MIT
// An open file of the operating system, and what is done with one, interrupted calls and short writes looked
// after.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Closes what it holds when it goes. Faults name the path with which it was opened.
class Descriptor {
public:
    /// Opens a plain file; anything else under that name (a folder, a pipe, a device) is refused, and never
    /// waited for.
    static Descriptor openFile(const std::string& path, int flags);
    /// Makes a plain file that must not be there yet; nothing held where it is there.
    static Descriptor makeFile(const std::string& path, int flags);
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&&) = delete;
    Descriptor(const Descriptor&) = delete;
    ~Descriptor();

    bool held() const { return number_ >= 0; }
    int number() const { return number_; }
    std::int64_t length() const;
    void write(std::string_view bytes) const;
    std::string readAll() const;
    /// The byte at a place, or -1 behind the end.
    int byteAt(std::int64_t place) const;
    void cutTo(std::int64_t length) const;
    /// Returns once the content is on the disk.
    void sync() const;
    /// Closes; a fault that the system kept until now is raised.
    void close();

private:
    Descriptor(int number, std::string path) : number_(number), path_(std::move(path)) {}
    int number_;
    std::string path_;
};

/// Returns once a name newly made in the folder of `path`, or renamed there, is on the disk.
void syncFolderOf(const std::string& path);
