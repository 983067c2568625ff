// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace host {

/// Tells of every change of screens that the X server tells of. Qt keeps quiet about some: it goes
/// on with the only screen when that is switched off. Silent on other platforms.
class XScreenChanges : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    XScreenChanges();
    ~XScreenChanges() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

Q_SIGNALS:
    void changed();

private:
    /// The number of RandR's first event; 0 without RandR.
    int m_firstEvent = 0;
};

} // namespace host
