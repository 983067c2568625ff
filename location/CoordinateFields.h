// SPDX-License-Identifier: MIT
#pragma once

#include "location/Coordinates.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace location {

/// Latitude and longitude to type in. A field that makes no sense turns red and says why.
class CoordinateFields : public QWidget
{
    Q_OBJECT

public:
    explicit CoordinateFields(QWidget *parent = nullptr);

    /// Shows \p location without reporting it.
    void setLocation(const SolarLocation &location);

    /// Takes over the colours of the desktop.
    void followAppearance();

Q_SIGNALS:
    /// The user typed: the location, or none while the two fields are none.
    void edited(const std::optional<SolarLocation> &location);

private:
    void report();
    /// Marks \p field when what it holds is no angle on \p axis.
    void mark(QLineEdit *field, Axis axis);

    QLineEdit *m_latitude;
    QLineEdit *m_longitude;
    QLabel *m_fault;
};

} // namespace location
