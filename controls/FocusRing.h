// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QRectF>

#include <functional>

class QFocusFrame;
class QWidget;

/// Shows which control has the keyboard: a ring in the accent colour around the control's outline,
/// drawn above its siblings so that the control's own pixels stay as they are. It appears when the
/// focus came by a key or a key is used, and goes with the next mouse press.
class FocusRing : public QObject
{
public:
    /// A rounded rectangle in the control's coordinates, and the ring's colour: the accent colour
    /// when invalid.
    struct Outline
    {
        QRectF rect;
        double radius = 0.0;
        QColor color = {};
    };

    /// Belongs to \p control; \p outline is asked whenever the ring is placed.
    FocusRing(QWidget *control, std::function<Outline()> outline);
    ~FocusRing() override;

    bool isShown() const { return m_shown; }
    /// Whether \p control has a ring and it is shown.
    static bool isShownAround(const QWidget *control);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setShown(bool shown);
    void place();

    QWidget *m_control;
    std::function<Outline()> m_outline;
    QPointer<QFocusFrame> m_frame;
    bool m_shown = false;
};
