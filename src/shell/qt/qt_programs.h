// SPDX-License-Identifier: MIT
#pragma once

#include "shell/linux/instance_lock.h"
#include "shell/linux/program_starter.h"
#include "shell/platform/dialogs.h"
#include "shell/platform/files.h"
#include "shell/platform/programs.h"

/// Other programs of the desktop, and the help.
class QtPrograms : public Programs {
public:
    /// `folder` is the program's folder.
    QtPrograms(const std::string& folder, Files& files, Dialogs& dialogs)
        : starter_(folder), lock_(folder), files_(files), dialogs_(dialogs) {}
    /// Where the first of the program's two viewers, NOTEPAD, isn't there, the desktop's own one opens the
    /// file. The second is always asked for the same file, and must not open it once more.
    bool start(const std::string& commandLine) override;
    void help(const std::string& file, const std::string& topic) override;
    bool previousInstance() override { return lock_.heldByAnother(); }

private:
    ProgramStarter starter_;
    InstanceLock lock_;
    Files& files_;
    Dialogs& dialogs_;
};

/// The file that a command line hands to NOTEPAD; empty where it is another program's.
std::string viewedFile(const std::string& commandLine);
