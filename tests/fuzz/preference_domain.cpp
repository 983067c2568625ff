// SPDX-License-Identifier: MIT
#include "platform/PreferenceDomain.h"
#include "platform/PropertyList.h"
#include "tests/fuzz/Fuzz.h"

void tryBytes(const QByteArray &bytes)
{
    auto values = platform::domainFrom(bytes).value_or(QVariantMap());
    values.insert(QStringLiteral("SelectedVariant"), QStringLiteral("blue"));
    const QByteArray written = platform::PropertyList::toBinary(values);
    const auto again = platform::domainFrom(written);
    require(written.isEmpty() || (again && again->keys() == values.keys()));
}
