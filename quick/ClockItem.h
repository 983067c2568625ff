// SPDX-License-Identifier: MIT
#pragma once

#include "night/SunSchedule.h"
#include "platform/Desktop.h"
#include "platform/FrameTimer.h"
#include "prefs/SaverPreferences.h"
#include "quick/FrameTiles.h"
#include "saver/PaletteOnScreen.h"

#include <QPointer>
#include <QQuickItem>

#include <memory>

/// The clock as an item of Qt Quick, in a program that need know nothing of it: it shows the stored
/// settings, follows them, and draws 30 frames a second as long as somebody can see it. It starts
/// no process, waits for none and for no bus, and without its resources it shows its colours.
class ClockItem : public QQuickItem
{
    Q_OBJECT
    /// While false the hands stand still.
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)

public:
    explicit ClockItem(QQuickItem *parent = nullptr);
    /// With another desktop around it; its objects must outlive the item.
    explicit ClockItem(const platform::Desktop &desktop, QQuickItem *parent = nullptr);
    ~ClockItem() override;

    bool isRunning() const { return m_isRunning; }
    void setRunning(bool running);

Q_SIGNALS:
    void runningChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &geometry, const QRectF &oldGeometry) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    struct Surroundings;

    ClockItem(std::shared_ptr<Surroundings> surroundings, const platform::Desktop &desktop,
              QQuickItem *parent);
    static std::shared_ptr<Surroundings> sharedSurroundings();

    bool isSeen() const;
    void start();
    void tick();
    void showFrame();
    QPointF pixelOrigin() const;

    /// Of all clocks of the process; null with another desktop.
    std::shared_ptr<Surroundings> m_surroundings;
    platform::Desktop m_desktop;
    SaverPreferences m_preferences;
    SunSchedule m_schedule;
    PaletteOnScreen m_palette;
    platform::FrameTimer m_timer;
    QPointer<QWindow> m_watched;
    ClockFrame m_shown;
    FrameTiles m_tiles;
    bool m_isRunning = true;
    bool m_rests = false;
};
