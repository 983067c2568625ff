// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace host {

/// Lets the user's sessions start with the program waiting for an idle user, or no longer, by an
/// entry in the autostart folder that every desktop reads. Returns the reason for a failure, else a
/// null string.
QString startWaitingAtLogin(bool wanted);

} // namespace host
