// SPDX-License-Identifier: MIT
// Between the program's single-byte text (Windows-1252) and UTF-8, which names on a disk and a desktop's
// texts are in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace code_page {

/// The five bytes that Windows-1252 leaves open stand for the control characters of the same number, so that
/// every byte has a character and comes back as the same byte.
std::string toUtf8(std::string_view bytes);
/// Nothing where the text holds a character that Windows-1252 lacks, or is no UTF-8.
std::optional<std::string> fromUtf8(std::string_view utf8);
bool isUtf8(std::string_view bytes);

}  // namespace code_page
