// SPDX-License-Identifier: MIT
#include "platform/StaleBuffers.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QWidget>

namespace platform {

namespace {

/// A buffer that the compositor holds cannot be dropped, and it gives that back a frame later.
constexpr int kFramesUntilAllWereFree = 3;

/// The toolkit lets go of free buffers of another size than the one it is to paint.
void dropFreeBuffers(QBackingStore &store)
{
    const QSize size = store.size();
    const QSize smallest(1, 1);
    store.resize(smallest);
    store.beginPaint(QRect(QPoint(), smallest));
    store.endPaint();
    store.resize(size);
}

} // namespace

bool StaleBuffers::drop(const QWidget &window)
{
    QBackingStore *store = window.backingStore();
    const QPaintDevice *painted = store ? store->paintDevice() : nullptr;
    if (!painted || !QGuiApplication::platformName().startsWith(QLatin1StringView("wayland")))
        return false;
    if (painted->devicePixelRatioF() != window.devicePixelRatioF())
        m_framesLeft = kFramesUntilAllWereFree;
    if (m_framesLeft == 0)
        return false;
    --m_framesLeft;
    dropFreeBuffers(*store);
    return true;
}

} // namespace platform
