// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

class QDateTime;
class TamselSolarTimes;

/// Whether \p minute of the day lies in the night from \p from (inclusive) to \p to (exclusive),
/// which runs over midnight when it begins later than it ends. Equal ends make an empty night,
/// never a whole day.
bool TamselNightContainsMinute(qint64 minute, qint64 from, qint64 to);

/// Decides which moments belong to the night that a night record describes.
class NightSchedule : public QObject
{
    Q_OBJECT

public:
    /// Whether \p record puts \p date in the night, by the local time of day.
    virtual bool nightActiveAtDate(const QDateTime &date, const QVariantMap &record) = 0;

    /// \p record as it is to be stored when its start and its end are chosen by \p modes, which is
    /// empty when nobody chose.
    virtual QVariantMap recordToStore(const QVariantMap &record, const QStringList &modes) const;

    /// Where the sun's times come from, the saved location looked up anew with each call; null when
    /// both ends of the night are always clock times.
    virtual TamselSolarTimes *solarTimes() { return nullptr; }

Q_SIGNALS:
    /// The same record may describe another night now: another location was saved.
    void changed();
};

/// The night between two clock times.
class ClockSchedule final : public NightSchedule
{
public:
    bool nightActiveAtDate(const QDateTime &date, const QVariantMap &record) override;
};
