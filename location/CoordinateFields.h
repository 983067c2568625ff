// SPDX-License-Identifier: MIT
#pragma once

#include "location/Coordinates.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace location {

/// Text fields for latitude and longitude. A field that cannot be read turns red and says why.
class CoordinateFields : public QWidget
{
    Q_OBJECT

public:
    explicit CoordinateFields(QWidget *parent = nullptr);

    /// Shows \p location without emitting edited().
    void setLocation(const SolarLocation &location);

    /// Updates the colours to those of the desktop.
    void followAppearance();

Q_SIGNALS:
    /// The user typed; none while the two fields make no location.
    void edited(const std::optional<SolarLocation> &location);

private:
    void report();

    QLineEdit *m_latitude;
    QLineEdit *m_longitude;
    QLabel *m_fault;
};

} // namespace location
