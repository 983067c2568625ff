// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QtGlobal>

/// The binary form. A file is a header, the objects, a table of their offsets, and a trailer that
/// says how wide offsets and references are. An object begins with a marker: its kind in the
/// upper four bits, in the lower four its length, or 15 when the length follows as an integer.
namespace platform::BinaryPropertyListFormat {

inline constexpr char kHeader[] = "bplist00";
inline constexpr quint64 kLengthFollows = 0x0F;

enum Kind : quint8 {
    kConstant = 0x0,
    kInteger = 0x1,
    kReal = 0x2,
    kDate = 0x3,
    kData = 0x4,
    kAscii = 0x5,
    kUtf16 = 0x6,
    kUtf8 = 0x7,
    kUid = 0x8,
    kArray = 0xA,
    kOrderedSet = 0xB,
    kSet = 0xC,
    kDictionary = 0xD,
};

/// Limit of a whole tree: the bytes of its text and data, and this many for every object. Fuzzers
/// make up trees by the million and get a smaller limit, since large ones only take longer.
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
inline constexpr quint64 kBudget = 64ULL * 1024;
#else
inline constexpr quint64 kBudget = 8ULL * 1024 * 1024;
#endif
inline constexpr quint64 kObjectCost = 32;

inline constexpr quint64 kFalse = 0x8;
inline constexpr quint64 kTrue = 0x9;

/// The beginning of \p year, UTC. Dates are stored as seconds since the beginning of 2001.
inline QDateTime utc(int year)
{
    return {QDate(year, 1, 1), QTime(0, 0), Qt::UTC};
}

} // namespace platform::BinaryPropertyListFormat
