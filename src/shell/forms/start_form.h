// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// The splash.
struct StartForm : forms::Form {
    explicit StartForm(forms::Screen& screen) : Form(screen, "frmStart", "TARQEN") {}
};
