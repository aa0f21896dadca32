// SPDX-License-Identifier: MIT
// The open devices whose lines key a transmitter, known to the whole process, so that no way out of it leaves
// one keyed: a signal and exit() know no objects.
#pragma once

namespace line_guard {

enum class Kind { Serial, Parallel };

/// From now on the process doesn't end or stop by a signal, nor end by exit(), with a line up. Before the
/// first device is opened, which raises its lines.
void catchEnds();
/// From now on the lines of an open device drop so.
void watch(int descriptor, Kind kind);
/// Before the device is closed.
void forget(int descriptor);
/// Drops the lines of one device.
void drop(int descriptor, Kind kind);
/// Drops the lines of all devices that are watched.
void dropAll();

}  // namespace line_guard
