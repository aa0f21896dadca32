// SPDX-License-Identifier: MIT
#include "setup/control_file.h"

#include "core/say.h"
#include "keyer/port_settings.h"
#include "setup/control_text.h"

namespace {

constexpr const char* kControlFile = "TARQEN32Control.Ini";

/// The length of the file, which comes into being where it is missing.
std::int64_t lengthOfFile(Station& s) {
    const auto file = s.platform.files.append(kControlFile);
    const std::int64_t length = file->length();
    file->close();
    return length;
}

/// What the forms of the port show goes there as it is read, so the order of the file tells.
void showPortSetting(Station& s, int setting) {
    PortForm& form = s.forms.ConfigScrn;
    if (setting == setting::OtherPortAddress) form.otherPortAddress.present(s.ControlValues(setting));
    if (setting != setting::OtherPortId) return;
    showPortOfSettings(s);
    form.otherPortName.present(s.ControlValues(setting));
}

/// A file that could not be read at the start may hold good settings: it is kept beside before a new one
/// takes its place.
void keepUnreadFile(Station& s) {
    if (!s.session.controlFileUnread) return;
    s.platform.files.replace("TARQEN32Control.old", s.platform.files.read(kControlFile));
    s.session.controlFileUnread = false;
}

}  // namespace

void SetControlDefaults(Station& s) { control::setDefaults(s.ControlValues); }

void WriteControlFile(Station& s) {
    try {
        if (lengthOfFile(s) == 0) SetControlDefaults(s);
        keepUnreadFile(s);
        s.platform.files.replace(kControlFile, control::compose(s.ControlValues));
    } catch (const FileError& error) {
        tellFileFault(
            s, "Error. The settings are not saved. The control file can't be written:", error,
            "Make room on the disk or mend the folder. The program goes on with the settings it has.");
    }
}

void ReadControlFile(Station& s) {
    try {
        if (lengthOfFile(s) == 0) WriteControlFile(s);
        control::parse(s.platform.files.read(kControlFile), s.ControlValues,
                       [&s](int setting) { showPortSetting(s, setting); });
    } catch (const FileError& error) {
        SetControlDefaults(s);
        s.session.controlFileUnread = true;
        tellFileFault(s, "Error. The settings can't be read from the control file:", error,
                      "The program goes on with the settings of a first start.");
    }
}
