// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBus.h"

#include <QTimer>

#include <functional>

namespace host {

/// What asks the desktop to keep the screen on: a film, a presentation. Asked of everything that
/// keeps such requests: the session manager of GNOME and its relatives, KDE's and the freedesktop
/// power managers, the login manager.
class Inhibitors : public QObject
{
    Q_OBJECT

public:
    Inhibitors();

    /// Calls \p answered once, within a second, whatever the services do; one that is missing or
    /// silent inhibits nothing. A new question ends an older one without an answer.
    void ask(const std::function<void(bool isInhibited)> &answered);

private:
    using Judge = std::function<bool(const platform::BusMessage &reply)>;

    void askService(platform::MessageBus &bus, const platform::BusCall &call,
                    const Judge &inhibits);
    void conclude(bool isInhibited);

    platform::MessageBus m_session{platform::MessageBus::Kind::Session};
    platform::MessageBus m_system{platform::MessageBus::Kind::System};
    std::function<void(bool)> m_answered;
    int m_question = 0;
    int m_open = 0;
    QTimer m_patience;
};

} // namespace host
