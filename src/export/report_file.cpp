// SPDX-License-Identifier: MIT
#include "export/report_file.h"

namespace exporting {

Hourglass::Hourglass(Station& s) : s_(s) { s_.platform.dialogs.pointer(Pointer::Hourglass); }
Hourglass::~Hourglass() { s_.platform.dialogs.pointer(Pointer::Normal); }

void writeReport(Station& s, const std::string& name, const std::function<void(std::string&)>& compose) {
    const auto file = s.platform.files.create(name);
    std::string content;
    try {
        compose(content);
    } catch (const RunTimeError&) {
        file->write(content);
        throw;
    }
    file->write(content);
    file->close();
}

void offerForViewing(Station& s, const std::string& name) {
    for (const char* const viewer : {"\\NOTEPAD.exe ", "\\EDITPAD.exe "})
        s.platform.programs.start(s.session.AppPath + viewer + name);
}

}  // namespace exporting
