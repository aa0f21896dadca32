// SPDX-License-Identifier: MIT
// Faults that a routine can meet while it runs, as the operator is told of them.
// Thrown by the tables and counters of base and by the platform's files; caught by the routines that
// carry an error trap, and once for all others at the dispatch of events (shell/forms/screen.h).
#pragma once

#include <stdexcept>
#include <string>

/// A fault that ends the routine in which it happens; `what()` is the text shown to the operator.
class RunTimeError : public std::runtime_error {
public:
    explicit RunTimeError(const std::string& text) : std::runtime_error(text) {}
};

inline RunTimeError overflowError() { return RunTimeError("Overflow"); }
inline RunTimeError subscriptError() { return RunTimeError("Subscript out of range"); }
inline RunTimeError divisionByZeroError() { return RunTimeError("Division by zero"); }
inline RunTimeError badCallError() { return RunTimeError("Invalid procedure call or argument"); }

/// A file that could not be opened, read or written. `path` is the full path, `reason` the system's words.
class FileError : public RunTimeError {
public:
    FileError(const std::string& text, std::string filePath, std::string why)
        : RunTimeError(text), path(std::move(filePath)), reason(std::move(why)) {}
    std::string path;
    std::string reason;
};
