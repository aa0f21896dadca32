// SPDX-License-Identifier: MIT
// A line of a report put together from the left, by columns that count from 1 and by print zones.
// Leans on the standard library alone; the writers of files lay their lines out with it. What a line of each
// QSO goes through is inline.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Appends one line to a text. Zones are 14 columns wide, from column 1 on. A number stands as its digits
/// with one blank in front (or a minus sign) and one behind.
class PrintLine {
public:
    /// The line begins at the end of `page`, which must outlive it and must not change by other hands.
    explicit PrintLine(std::string& page) : page_(page), start_(page.size()) {}
    PrintLine(const PrintLine&) = delete;
    PrintLine& operator=(const PrintLine&) = delete;

    /// A text from a column on. Where what stands before it runs past the column, one blank parts the two.
    PrintLine& at(int column, std::string_view text) { return goTo(column).then(text); }
    PrintLine& numberAt(int column, std::int64_t number) { return goTo(column).thenNumber(number); }
    /// At the start of the zone that follows the one reached so far.
    PrintLine& inZone(std::string_view text) { return goToZone().then(text); }
    PrintLine& numberInZone(std::int64_t number) { return goToZone().thenNumber(number); }
    /// Right behind what stands there.
    PrintLine& then(std::string_view text) {
        page_.append(text);
        return *this;
    }
    PrintLine& thenNumber(std::int64_t number);
    /// Closes the line with CR LF; a next one may begin.
    void end();

private:
    /// Columns filled so far.
    int filled() const { return static_cast<int>(page_.size() - start_); }
    PrintLine& goTo(int column) {
        const int gap = column - 1 - filled();
        page_.append(gap < 0 ? 1 : static_cast<std::size_t>(gap), ' ');
        return *this;
    }
    PrintLine& goToZone();
    std::string& page_;
    std::size_t start_;
};
