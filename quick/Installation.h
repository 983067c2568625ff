// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"

/// The bundle that is installed with the QML module this code is in, whatever program has loaded
/// it.
platform::Bundle installedBundle();

/// Starts the program with its options sheet, without waiting for it. False when it cannot be
/// started.
bool startOptions();
