// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"
#include "platform/LocationService.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace platform {
class Clocks;
}

namespace location {

/// A button that asks the desktop's location service, with a message about the progress.
class ServiceFinder : public QWidget
{
    Q_OBJECT

public:
    /// \p clocks must outlive the widget.
    explicit ServiceFinder(const platform::Clocks &clocks, QWidget *parent = nullptr);

    /// Cancels a request, because the user chose a place in another way.
    void cancel();

    platform::LocationService &service() { return m_service; }

Q_SIGNALS:
    void found(const SolarLocation &location);

private:
    void toggle();
    void begin();
    void end(const QString &text);
    void consider(const platform::LocationFix &fix);

    const platform::Clocks &m_clocks;
    platform::LocationService m_service;
    QPushButton *m_button;
    QProgressBar *m_progress;
    QLabel *m_message;
};

} // namespace location
