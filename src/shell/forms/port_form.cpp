// SPDX-License-Identifier: MIT
#include "shell/forms/port_form.h"

PortForm::PortForm(forms::Screen& screen) : Form(screen, "ConfigScrn", "TARQEN - CW port") {
    setHome(OKButton);
    otherPortName.named("Number or device of the other port");
    otherPortAddress.named("USB or address of the other port");
    for (const char* const address :
         {"&H3F8", "&H2F8", "&H3E8", "&H2E8", "&H2F0", "&H3E0", "&H2E0", "&H260", "USB"}) {
        otherPortAddress.add(address);
    }
}
