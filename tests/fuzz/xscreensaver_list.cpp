// SPDX-License-Identifier: MIT
#include "host/XScreenSaverList.h"
#include "tests/fuzz/Fuzz.h"

using namespace host;

void tryBytes(const QByteArray &bytes)
{
    const QByteArray program = "'/a b/tamsel-clock'";
    const QByteArray listed = withClockListed(bytes, program);
    require(listed.contains(program) && withClockListed(listed, program) == listed);
    const QByteArray unlisted = withClockUnlisted(bytes);
    require(withClockUnlisted(unlisted) == unlisted);
    require(unlisted != bytes || withClockUnlisted(listed) == bytes);
}
