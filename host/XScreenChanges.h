// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace host {

/// Reports every change of screens that the X server reports. Qt does not: it keeps the last screen
/// when that is switched off. Without effect on other platforms.
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
