// SPDX-License-Identifier: MIT
#include "shell/qt/codec.h"

#include <QList>
#include <algorithm>
#include <array>

namespace codec {
namespace {

constexpr unsigned kFirstOdd = 0x80;
/// What the bytes 0x80 to 0x9F stand for. The five that stand for nothing keep their own number, so that
/// every byte of a file survives the way to the screen and back.
constexpr std::array<char16_t, 32> kOdd = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t characterOf(unsigned char byte) {
    return byte >= kFirstOdd && byte < kFirstOdd + kOdd.size() ? kOdd[byte - kFirstOdd] : char16_t{byte};
}

}  // namespace

QString toQt(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(),
                   [](char c) { return QChar(characterOf(static_cast<unsigned char>(c))); });
    return result;
}

std::optional<unsigned char> byteOf(QChar character) {
    const char16_t code = character.unicode();
    const auto odd = std::find(kOdd.begin(), kOdd.end(), code);
    if (odd != kOdd.end())
        return static_cast<unsigned char>(kFirstOdd + static_cast<unsigned>(odd - kOdd.begin()));
    if (code > 0xFF || (code >= kFirstOdd && code < kFirstOdd + kOdd.size())) return std::nullopt;
    return static_cast<unsigned char>(code);
}

std::string fromQt(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const char32_t code : text.toUcs4()) {
        const auto byte = code <= 0xFFFF ? byteOf(QChar(static_cast<char16_t>(code))) : std::nullopt;
        result.push_back(static_cast<char>(byte.value_or('?')));
    }
    return result;
}

}  // namespace codec
