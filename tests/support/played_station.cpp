// SPDX-License-Identifier: MIT
#include "support/played_station.h"

#include "setup/control_text.h"
#include "setup/personal_text.h"
#include "shell/show.h"

std::string contentOf(const TempFolder& folder, const std::string& name) {
    return folder.has(name) ? folder.read(name) : std::string();
}

PlayedStation::PlayedStation(Files& files)
    : machine_(files, out_),
      program_(machine_.platform),
      player_(machine_, {program_.screen(), [this] { program_.start(); },
                         [this](std::string_view name, const std::vector<int>& indices) {
                             return fieldValue(program_.station(), name, indices);
                         }}) {}

bool PlayedStation::play(const std::string& lines) {
    std::istringstream script(lines);
    return player_.play(script, errors_) == 0;
}

std::string PlayedStation::transcript() {
    std::string text = out_.str();
    out_.str("");
    return text;
}

std::string startOfNewLog(const std::string& contest, const std::string& sprint) {
    std::string lines =
        "start\nreply JAN\nclick frmSetup.Label1\nchoose frmContest.Contest " + contest + "\n";
    if (!sprint.empty()) lines += "choose frmContest.Sprint " + sprint + "\n";
    return lines + "click frmContest.cmdCont\nclick frmSetup.cmdDone\n";
}

std::string startOfOldLog() { return "start\nclick frmSetup.logFile 0\nclick frmSetup.cmdDone\n"; }

std::string settingsWithBackup() {
    Settings values;
    control::setDefaults(values);
    values(setting::BackupPath) = "BU\\";
    return control::compose(values);
}

std::string personalData() {
    Personal data;
    personal::setDefaults(data);
    data(personal::Call) = "W1ABC";
    return personal::compose(data);
}
