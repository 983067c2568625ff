// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace host {

/// A connection to the session's display server that is only watched for its end, which is the end
/// of the session.
class DisplayLifeline : public QObject
{
    Q_OBJECT

public:
    DisplayLifeline();
    ~DisplayLifeline() override;

    bool isConnected() const { return m_end != nullptr; }

Q_SIGNALS:
    void ended();

private:
    template <typename Connection>
    void hold(const std::shared_ptr<Connection> &connection, int descriptor,
              bool (*isAlive)(Connection *));

    /// The slot connected to it owns the display connection.
    std::unique_ptr<QSocketNotifier> m_end;
};

} // namespace host
