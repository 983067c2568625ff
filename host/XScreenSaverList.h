// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace host {

/// The name under which XScreenSaver finds the clock.
inline constexpr auto kProgramName = "tamsel-clock";

/// The clock's line in XScreenSaver's own list of programs: the resource "programs" of the user's
/// ~/.xscreensaver. XScreenSaver finds no saver by itself, and only this file is the user's to
/// change.

/// \p file, the text of a ~/.xscreensaver, with the clock run as \p program in its list; everything
/// else stays byte for byte. The clock comes last, since "selected" counts the programs. Of a clock
/// that is in the list already only the program is corrected.
QByteArray withClockListed(const QByteArray &file, const QByteArray &program);

/// \p file without the clock in its list of programs, wherever its program stands. "selected" goes
/// on meaning the same saver. What withClockListed() added to a file goes to the last byte.
QByteArray withClockUnlisted(const QByteArray &file);

/// \p path as a command of the list, quoted where needed; empty when the list cannot express it.
QByteArray listedProgram(const QByteArray &path);

} // namespace host
