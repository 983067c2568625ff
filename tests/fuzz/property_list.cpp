// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"
#include "tests/fuzz/Fuzz.h"

using namespace platform::PropertyList;

/// A larger tree, which few bytes that share objects can make, only takes longer.
constexpr qsizetype kLargest = 64LL * 1024;

void tryBytes(const QByteArray &bytes)
{
    const auto value = parse(bytes);
    if (!value || toBinary(*value).size() > kLargest)
        return;
    // Compared as bytes, since a number that is none differs from itself.
    for (const auto write : {toXml, toBinary, toXmlOrBinary}) {
        const QByteArray written = write(*value);
        const auto again = parse(written);
        require(written.isEmpty() || (again && write(*again) == written));
    }
}
