// SPDX-License-Identifier: MIT
#include "controls/PopUpMenu.h"

#include "controls/ControlFont.h"
#include "controls/Emphasis.h"
#include "controls/FloatingPanel.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include <cmath>

namespace {

constexpr double kRadius = 9.0;
constexpr double kSeparatorAlpha = 0.1;
constexpr double kItemRadius = 5.0;
constexpr double kItemHeight = 24.0;
constexpr double kSeparatorHeight = 11.0;
constexpr int kPadding = 5;
/// Space before the title, where the check mark is drawn, and after it.
constexpr double kTitleInset = 24.0;
constexpr double kTitleMargin = 14.0;
constexpr double kCheckLeft = 8.0;

/// Gives the menu fixed measures, independent of the desktop's style.
class MenuStyle final : public QProxyStyle
{
public:
    MenuStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (type != CT_MenuItem || !item)
            return QProxyStyle::sizeFromContents(type, option, size, widget);
        if (item->menuItemType == QStyleOptionMenuItem::Separator)
            return {1, int(kSeparatorHeight)};
        const double title = QFontMetricsF(item->font).horizontalAdvance(item->text);
        return {int(std::ceil(kTitleInset + title + kTitleMargin)), int(kItemHeight)};
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_MenuPanelWidth:
            return 0;
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return kPadding + shadowMargin(PanelOver::Window);
        case PM_MenuDesktopFrameWidth: // the shadow may reach beyond the screen
            return -shadowMargin(PanelOver::Window);
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

} // namespace

PopUpMenu::PopUpMenu(QWidget *parent) : QMenu(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowFlag(Qt::NoDropShadowWindowHint);
    auto *style = new MenuStyle;
    style->setParent(this);
    setStyle(style);
    setFont(controlFont());
    redrawWithAppearance(this);
}

void PopUpMenu::popUpWithTitleAt(QAction *action, const QPoint &position)
{
    sizeHint(); // lays the items out
    const QRectF item = actionGeometry(action);
    const double left = isRightToLeft() ? item.right() - kTitleInset : item.left() + kTitleInset;
    popup(position - QPointF(left, item.center().y()).toPoint());
    setActiveAction(action);
}

void PopUpMenu::resizeEvent(QResizeEvent *event)
{
    QMenu::resizeEvent(event);
    shapePanel(this, PanelOver::Window, kRadius);
}

void PopUpMenu::mousePressEvent(QMouseEvent *event)
{
    if (panelRect(this, PanelOver::Window).contains(event->position().toPoint()))
        QMenu::mousePressEvent(event);
    else
        close();
}

void PopUpMenu::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawPanel(painter, this, PanelOver::Window, kRadius, rect());
    for (const QAction *action : actions())
        drawItem(painter, *action, actionGeometry(const_cast<QAction *>(action)));
}

void PopUpMenu::drawItem(QPainter &painter, const QAction &action, const QRectF &item) const
{
    const platform::Appearance &appearance = appearanceOf(this);
    if (action.isSeparator()) {
        const QRectF line(item.left() + kCheckLeft, std::floor(item.center().y()),
                          item.width() - 2.0 * kCheckLeft, 1.0);
        painter.fillRect(line, withAlpha(appearance.labelColor(), kSeparatorAlpha));
        return;
    }
    const bool active = activeAction() == &action;
    const Emphasis emphasis = emphasisFrom(appearance.controlAccentColor());
    const QColor ink = active ? emphasis.ink : appearance.controlTextColor();
    if (active)
        fillRounded(painter, item, kItemRadius, emphasis.fill);
    painter.setPen(ink);
    painter.setFont(font());
    const bool mirrored = isRightToLeft();
    painter.drawText(mirrored ? item.adjusted(0.0, 0.0, -kTitleInset, 0.0)
                              : item.adjusted(kTitleInset, 0.0, 0.0, 0.0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, action.text());
    if (!action.isChecked())
        return;
    constexpr double kCheckWidth = 8.5;
    const QPointF corner(mirrored ? item.right() - kCheckLeft - kCheckWidth
                                  : item.left() + kCheckLeft,
                         item.center().y());
    painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{corner + QPointF(0.0, 0.5), corner + QPointF(3.0, 3.5),
                                   corner + QPointF(kCheckWidth, -3.5)});
}
