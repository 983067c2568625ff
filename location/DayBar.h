// SPDX-License-Identifier: MIT
#pragma once

#include <QTime>
#include <QWidget>

#include <optional>

namespace location {

/// Sunrise and sunset on one day by this computer's clock; at a distant place the sun may rise
/// after it sets.
struct DaylightHours
{
    QTime sunrise;
    QTime sunset;
};

/// A bar for the day from midnight to midnight, with the daylight highlighted.
class DayBar : public QWidget
{
    Q_OBJECT

public:
    explicit DayBar(QWidget *parent = nullptr);

    /// None on a day without a sunrise or a sunset, or without a place.
    void setDaylight(const std::optional<DaylightHours> &daylight);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<DaylightHours> m_daylight;
};

} // namespace location
