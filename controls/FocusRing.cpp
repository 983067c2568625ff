// SPDX-License-Identifier: MIT
#include "controls/FocusRing.h"

#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QFocusEvent>
#include <QFocusFrame>
#include <QPainter>

namespace {

constexpr double kGap = 1.0;
constexpr double kWidth = 2.0;
constexpr double kMargin = kGap + kWidth;

/// A QFocusFrame, because Qt hides focus frames from assistive technology.
class RingFrame final : public QFocusFrame
{
public:
    explicit RingFrame(QWidget *parent) : QFocusFrame(parent) { redrawWithAppearance(this); }

    void setOutline(const FocusRing::Outline &outline)
    {
        m_outline = outline;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(
            QPen(m_outline.color.isValid() ? m_outline.color : accentEdgeOf(this), kWidth));
        const double grow = kGap + kWidth / 2.0;
        painter.drawRoundedRect(m_outline.rect.adjusted(-grow, -grow, grow, grow),
                                m_outline.radius + grow, m_outline.radius + grow);
    }

private:
    FocusRing::Outline m_outline;
};

bool comesByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

FocusRing::FocusRing(QWidget *control, std::function<Outline()> outline)
    : QObject(control), m_control(control), m_outline(std::move(outline))
{
    control->installEventFilter(this);
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

bool FocusRing::isShownAround(const QWidget *control)
{
    const auto *ring = control->findChild<FocusRing *>(QString(), Qt::FindDirectChildrenOnly);
    return ring && ring->isShown();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (comesByKey(static_cast<QFocusEvent *>(event)->reason()))
            setShown(true);
        break;
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
        setShown(false);
        break;
    case QEvent::KeyPress:
        setShown(m_control->hasFocus());
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ParentChange:
        place();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::setShown(bool shown)
{
    m_shown = shown;
    place();
}

void FocusRing::place()
{
    QWidget *parent = m_control->parentWidget();
    if (!m_shown || !parent || m_control->isHidden()) {
        delete m_frame;
        return;
    }
    auto *frame = static_cast<RingFrame *>(m_frame.data());
    if (!frame || frame->parentWidget() != parent) {
        delete frame;
        frame = new RingFrame(parent);
        m_frame = frame;
    }
    Outline outline = m_outline();
    const QRect place = outline.rect.adjusted(-kMargin, -kMargin, kMargin, kMargin).toAlignedRect();
    frame->setGeometry(place.translated(m_control->pos()));
    outline.rect.translate(-place.topLeft());
    frame->setOutline(outline);
    frame->raise();
    frame->show();
}
