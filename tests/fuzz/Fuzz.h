// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>

/// What a target tries on any bytes.
void tryBytes(const QByteArray &bytes);

/// Ends the run with a finding when \p holds does not.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    tryBytes(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    return 0;
}
