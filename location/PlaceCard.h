// SPDX-License-Identifier: MIT
#pragma once

#include "location/DayBar.h"
#include "night/SolarLocation.h"

#include <QFrame>

#include <optional>

class QLabel;

namespace location {

/// A place and the sun there today.
struct Place
{
    /// "Helsinki, Finland"; null when there is no city near.
    QString name;
    SolarLocation location;
    std::optional<DaylightHours> daylight;
    /// Whether clocks there show the hours of the daylight otherwise than this computer's.
    bool hasOtherTime = false;
};

/// Shows the place that is chosen, in words and as a bar of the day.
class PlaceCard : public QFrame
{
    Q_OBJECT

public:
    explicit PlaceCard(QWidget *parent = nullptr);

    /// None: no place is chosen.
    void setPlace(const std::optional<Place> &place);

    /// Takes over the colours of the desktop.
    void followAppearance();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_name;
    QLabel *m_coordinates;
    QLabel *m_sun;
    DayBar *m_bar;
};

} // namespace location
