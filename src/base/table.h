// SPDX-License-Identifier: MIT
// Counters of fixed width and arrays of fixed bounds that raise a fault instead of running over.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "base/run_time_error.h"

/// A whole number of the width of T whose arithmetic raises "Overflow" outside its range.
template <typename T>
class Checked {
public:
    constexpr Checked(std::int64_t value = 0) : value_(narrow(value)) {}
    template <typename U>
    constexpr Checked(const Checked<U>& other) : Checked(std::int64_t{static_cast<U>(other)}) {}
    constexpr operator T() const { return value_; }
    Checked& operator+=(std::int64_t other) {
        value_ = narrow(std::int64_t{value_} + other);
        return *this;
    }
    Checked& operator-=(std::int64_t other) { return *this += -other; }
    Checked& operator++() { return *this += 1; }
    Checked& operator--() { return *this += -1; }

private:
    static constexpr T narrow(std::int64_t value) {
        if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
            throw overflowError();
        }
        return static_cast<T>(value);
    }
    T value_;
};

using Int16 = Checked<std::int16_t>;
using Int32 = Checked<std::int32_t>;

/// An array with indices first to last, both included; any other index raises "Subscript out of range".
template <typename T, int first, int last>
class Table {
public:
    static constexpr int kFirst = first;
    static constexpr int kLast = last;
    T& operator()(int index) { return items_[slot(index)]; }
    const T& operator()(int index) const { return items_[slot(index)]; }
    void fill(const T& value) { items_.fill(value); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    static std::size_t slot(int index) {
        if (index < first || index > last) throw subscriptError();
        return static_cast<std::size_t>(index - first);
    }
    std::array<T, static_cast<std::size_t>(last - first + 1)> items_{};
};
