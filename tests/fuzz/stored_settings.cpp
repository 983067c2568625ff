// SPDX-License-Identifier: MIT
#include "platform/HexColor.h"
#include "prefs/NightSettings.h"
#include "prefs/StoredSettings.h"
#include "tests/fuzz/Fuzz.h"

/// The three stores stand one after the other, parted by a line of its own.
void tryBytes(const QByteArray &bytes)
{
    const QByteArray line = "\n--\n";
    const qsizetype first = bytes.indexOf(line);
    const qsizetype second = first < 0 ? -1 : bytes.indexOf(line, first + line.size());
    StoreContents contents;
    const QByteArray stores[] = {
        bytes.left(first), first < 0 ? QByteArray() : bytes.mid(first + 4, second - first - 4),
        second < 0 ? QByteArray() : bytes.mid(second + 4)};
    for (size_t i = 0; i < contents.size(); ++i)
        contents[i] = platform::domainFrom(stores[i]).value_or(QVariantMap());

    const StoredSettings settings = settingsFrom(contents);
    require(!settings.selectedVariant.isEmpty());
    require(settings.nightSettings.size() == 7);
    require(normalizedNightSettings(settings.nightSettings) == settings.nightSettings);
    for (const QString &key : {kNightFromKey, kNightToKey}) {
        const int minute = settings.nightSettings.value(key).toInt();
        require(minute >= 0 && minute < 1440);
    }
    const QColor base = settings.customBaseColor;
    require(!base.isValid() || colorFromHexString(hexStringForColor(base)) == base);
}
