// SPDX-License-Identifier: MIT
#pragma once

#include <QTime>
#include <QWidget>

#include <optional>

namespace location {

/// Sunrise and sunset of one day by the local clock; in a place far away the day may begin before
/// midnight.
struct DaylightHours
{
    QTime sunrise;
    QTime sunset;
};

/// A day from midnight to midnight as a bar, the daylight on it lit.
class DayBar : public QWidget
{
    Q_OBJECT

public:
    explicit DayBar(QWidget *parent = nullptr);

    /// None: a day without a sunrise or a sunset, or no place.
    void setDaylight(const std::optional<DaylightHours> &daylight);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<DaylightHours> m_daylight;
};

} // namespace location
