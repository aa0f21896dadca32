// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The serial ports of this machine: each by its number where it has one, else by its device, and behind a
/// blank the name that stays with it wherever it is plugged in.
std::vector<std::string> serialPorts();
