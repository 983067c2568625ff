// SPDX-License-Identifier: MIT
#pragma once

#include "location/DayBar.h"
#include "location/Place.h"

#include <QFrame>

class QLabel;

namespace location {

/// Shows the chosen place in words, and its daylight as a bar.
class PlaceCard : public QFrame
{
    Q_OBJECT

public:
    explicit PlaceCard(QWidget *parent = nullptr);

    /// None: no place is chosen.
    void setPlace(const std::optional<Place> &place);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_name;
    QLabel *m_coordinates;
    QLabel *m_sun;
    DayBar *m_bar;
};

} // namespace location
