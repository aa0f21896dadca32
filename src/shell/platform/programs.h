// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Other programs of the desktop.
class Programs {
public:
    virtual ~Programs() = default;
    /// Starts a command line with a normal window; false where it can't be started.
    virtual bool start(const std::string& commandLine) = 0;
    virtual void help(const std::string& file, const std::string& topic) = 0;
    /// Whether this program runs already in the same folder.
    virtual bool previousInstance() = 0;
};
