// SPDX-License-Identifier: MIT
// Single-byte text of the program (Windows-1252) to and from the text of Qt, at the one border between them.
// Leans on Qt's strings alone; every file of this folder that shows or takes a text calls it.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace codec {

QString toQt(std::string_view text);
/// A character that Windows-1252 lacks becomes a question mark.
std::string fromQt(const QString& text);
/// The byte of one character, or nothing where there is none.
std::optional<unsigned char> byteOf(QChar character);

}  // namespace codec
