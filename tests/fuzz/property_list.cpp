// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"
#include "tests/fuzz/Fuzz.h"

using namespace platform::PropertyList;

void tryBytes(const QByteArray &bytes)
{
    const auto value = parse(bytes);
    if (!value)
        return;
    // Compared as bytes, since a number that is none differs from itself.
    for (const auto write : {toXml, toBinary, toXmlOrBinary}) {
        const QByteArray written = write(*value);
        const auto again = parse(written);
        require(written.isEmpty() || (again && write(*again) == written));
    }
}
