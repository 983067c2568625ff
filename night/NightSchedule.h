// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Whether \p minute of the day lies in the night from \p from (inclusive) to \p to (exclusive),
/// which runs over midnight when it begins later than it ends. Equal ends make an empty night,
/// never a whole day.
bool TamselNightContainsMinute(qint64 minute, qint64 from, qint64 to);
