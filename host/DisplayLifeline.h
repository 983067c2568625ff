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

    bool isConnected() const { return m_end != nullptr; }

Q_SIGNALS:
    void ended();

private:
    void watch(int descriptor, const std::function<bool()> &isAlive);

    /// Its slot owns the connection.
    std::unique_ptr<QSocketNotifier> m_end;
};

} // namespace host
