// SPDX-License-Identifier: MIT
// A whole program on a machine without a screen, in a folder of its own, for tests that play lines of a
// script.
#pragma once

#include <sstream>
#include <string>

#include "shell/headless/headless_machine.h"
#include "shell/headless/player.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"
#include "support/temp_folder.h"

/// What a file of the folder holds, nothing where it isn't there.
std::string contentOf(const TempFolder& folder, const std::string& name);

class PlayedStation {
public:
    /// `files` are those of the folder, or a layer over them.
    explicit PlayedStation(Files& files);
    /// Plays lines of a script; true where the run did not break off.
    bool play(const std::string& lines);
    /// What was printed since the last call.
    std::string transcript();
    /// Why the last run broke off.
    std::string reason() const { return errors_.str(); }
    Station& station() { return program_.station(); }
    bool ended() { return program_.screen().ended(); }

private:
    std::ostringstream out_, errors_;
    HeadlessMachine machine_;
    Program program_;
    Player player_;
};

/// The lines that start a new log "JAN.lgg" of a contest and leave the focus in the call field. `contest` is
/// the entry of the first list, `family` that of the second one, where there is one.
std::string startOfNewLog(const std::string& contest, const std::string& sprint = {});
/// The lines that open "JAN.lgg" again.
std::string startOfOldLog();
/// A control file that turns the backup on, into the folder "BU" beside the log.
std::string settingsWithBackup();
/// The personal data of the station W1ABC in FN20jk.
std::string personalData();
