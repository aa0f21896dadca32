// SPDX-License-Identifier: MIT
// The fault that a refusal of the operating system becomes.
#pragma once

#include <string>

#include "base/run_time_error.h"

/// A fault out of an error number of the system, at a path in the bytes of the disk.
FileError fileFault(const std::string& path, int number);
/// The same out of the number that the last call left behind.
FileError lastFileFault(const std::string& path);
/// A path as the operator may be told it.
std::string shownPath(const std::string& path);
