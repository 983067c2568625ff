// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace host {

/// Edits XScreenSaver's list of programs, the resource "programs" of the user's ~/.xscreensaver.
/// XScreenSaver runs only what is listed, and users can change no other list.

/// Returns \p file, the text of a ~/.xscreensaver, with an entry that runs the clock as \p program;
/// everything else stays byte for byte. The entry is appended, since "selected" is an index into
/// the list. If the clock is listed already, only its program is replaced.
QByteArray withClockListed(const QByteArray &file, const QByteArray &program);

/// Returns \p file without the entries of the clock, whatever the path of its program. "selected"
/// is adjusted to mean the same saver as before. Undoes withClockListed() exactly.
QByteArray withClockUnlisted(const QByteArray &file);

/// \p path as a command of the list, quoted where needed; empty when the list cannot express it.
QByteArray listedProgram(const QByteArray &path);

} // namespace host
