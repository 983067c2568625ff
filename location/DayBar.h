// SPDX-License-Identifier: MIT
#pragma once

#include <QTime>
#include <QWidget>

#include <optional>

namespace location {

/// A bar for the day from midnight to midnight, with the daylight highlighted.
class DayBar : public QWidget
{
    Q_OBJECT

public:
    explicit DayBar(QWidget *parent = nullptr);

    /// Sunrise and sunset by this computer's clock; at a distant place the sun may rise after it
    /// sets. Without one of them there is no daylight to show.
    void setDaylight(std::optional<QTime> sunrise, std::optional<QTime> sunset);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<QTime> m_sunrise;
    std::optional<QTime> m_sunset;
};

} // namespace location
