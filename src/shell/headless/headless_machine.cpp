// SPDX-License-Identifier: MIT
#include "shell/headless/headless_machine.h"

#include "shell/forms/form.h"

HeadlessMachine::HeadlessMachine(Files& folder, std::ostream& out)
    : disk(folder),
      transcript(out),
      dialogs(transcript),
      files(disk, faults),
      programs(transcript, faults),
      windows(clock),
      ports(transcript, hardware, faults),
      delay(transcript, hardware, clock),
      platform{clock, dialogs, files, programs, windows, ports, delay} {}

void HeadlessMachine::attach(forms::Screen& screen) {
    dialogs.attach(screen);
    windows.attach(screen);
    screen.onShown = [this](forms::Form& form) { transcript.line("form " + form.name() + " shown"); };
    screen.onHidden = [this](forms::Form& form) { transcript.line("form " + form.name() + " hidden"); };
    if (!screen.onFault) screen.onFault = [this](const std::string& text) { dialogs.fault(text); };
}
