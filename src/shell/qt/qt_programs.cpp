// SPDX-License-Identifier: MIT
#include "shell/qt/qt_programs.h"

#include <QDesktopServices>
#include <QUrl>

#include "base/text.h"
#include "shell/qt/codec.h"

std::string viewedFile(const std::string& commandLine) {
    const std::string viewer = "notepad.exe ";
    const std::string line = text::lower(commandLine);
    const std::size_t at = line.find(viewer);
    if (at == std::string::npos || (at > 0 && line[at - 1] != '\\' && line[at - 1] != '/')) return {};
    std::string file(text::trim(commandLine.substr(at + viewer.size())));
    if (file.size() > 1 && file.front() == '"' && file.back() == '"') file = file.substr(1, file.size() - 2);
    return file;
}

bool QtPrograms::start(const std::string& commandLine) {
    if (starter_.start(commandLine)) return true;
    std::string file = viewedFile(commandLine);
    if (file.empty()) return false;
    // The export for other programs is named as the operator typed it, mostly without its ending.
    if (!files_.exists(file)) file += ".adi";
    return files_.exists(file) && starter_.start("xdg-open \"" + files_.path(file) + "\"");
}

void QtPrograms::help(const std::string& file, const std::string& topic) {
    const bool there = !file.empty() && files_.exists(file);
    if (there && QDesktopServices::openUrl(QUrl::fromLocalFile(codec::toQt(files_.path(file))))) return;
    const std::string about = topic.empty() ? std::string() : " (" + topic + ")";
    dialogs_.message(
        {.text = there ? "This desktop has no program that opens the help file " + file + about + "."
                       : "The help file " + file + about + " is not in the program's folder.",
         .title = "Help",
         .icon = Icon::Information});
}
