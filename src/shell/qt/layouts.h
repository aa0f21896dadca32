// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <memory>
#include <string>

/// The window of a form as its layout (ui/FORM.ui) draws it, not shown yet; null where the form has none.
std::unique_ptr<QWidget> layoutOf(const std::string& form);
