// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QRectF>

#include <functional>

class QFocusFrame;
class QWidget;

/// Shows keyboard focus: a ring in the accent colour around the control's outline. It is a sibling
/// above the control, so the control's own pixels do not change. It appears when a key moves the
/// focus or is pressed in the control, and disappears at the next mouse press.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    /// A rounded rectangle in the control's coordinates. An invalid \p color means the accent
    /// colour.
    struct Outline
    {
        QRectF rect;
        double radius = 0.0;
        QColor color = {};
    };

    /// Becomes a child of \p control. \p outline is called each time the ring is placed.
    FocusRing(QWidget *control, std::function<Outline()> outline);
    ~FocusRing() override;

    bool isShown() const { return m_shown; }
    /// Whether \p control has a visible ring.
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
