// SPDX-License-Identifier: MIT
// The keyer's settings as the text of a .cfg file.
// Leans on base; cw_files.h reads and writes the files with it.
#pragma once

#include <string>
#include <string_view>

#include "base/table.h"

namespace keyer {

/// What a .cfg file holds. The order of the file is not that of the keys: see compose().
struct CwConfig {
    Int16 speed = 20;
    std::string f3, f6, f7;
    float weight = 1.1F;
    Int32 loopConstant = 2000;
    Int16 port = 1;
    std::string f1;
    Int16 ptt;
    Int16 f1Normal;
    std::string f4;
};

/// Twelve lines, texts in quotes and numbers bare; a quote within a text is written as it stands.
std::string compose(const CwConfig& config);
/// The values of a content, by their place; those that it lacks are taken from `before`. Raises "Overflow"
/// for a number beyond its width.
CwConfig parse(std::string_view content, CwConfig before);

/// The weight that a text stands for. Raises "Overflow" beyond single precision.
float weightOf(std::string_view text);

/// The name of a .cfg file out of the file that points to it, empty where it holds none; and back.
std::string namePointedTo(std::string_view content);
std::string pointerTo(std::string_view name);

}  // namespace keyer
