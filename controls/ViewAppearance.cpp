// SPDX-License-Identifier: MIT
#include "controls/ViewAppearance.h"

#include "controls/ControlFont.h"
#include "controls/Emphasis.h"
#include "platform/Appearance.h"

#include <QToolTip>
#include <QVariant>
#include <QWidget>

namespace {
constexpr const char *kAppearance = "appearance";
}

const platform::Appearance &appearanceOf(const QWidget *view)
{
    for (; view; view = view->parentWidget()) {
        const QVariant own = view->property(kAppearance);
        if (own.isValid())
            return *own.value<const platform::Appearance *>();
    }
    return platform::Appearance::shared();
}

void setAppearanceOf(QWidget *view, const platform::Appearance &appearance)
{
    view->setProperty(kAppearance, QVariant::fromValue(&appearance));
    view->update();
}

void followAppearance(QWidget *view, const std::function<void()> &apply)
{
    apply();
    QObject::connect(&appearanceOf(view), &platform::Appearance::changed, view, apply);
}

QPalette paletteOf(const QWidget *window)
{
    QPalette colors = appearanceOf(window).palette();
    const Emphasis selection = emphasisFrom(appearanceOf(window).controlAccentColor());
    colors.setColor(QPalette::Highlight, selection.fill);
    colors.setColor(QPalette::HighlightedText, selection.ink);
    return colors;
}

void applyPalette(QWidget *window)
{
    const QPalette colors = paletteOf(window);
    window->setPalette(colors);
    QToolTip::setPalette(colors);
    QToolTip::setFont(controlFont());
}

QColor accentEdgeOf(const QWidget *view)
{
    const platform::Appearance &appearance = appearanceOf(view);
    return edgeFrom(appearance.controlAccentColor(), appearance.windowBackgroundColor());
}

void redrawWithAppearance(QWidget *view)
{
    followAppearance(view, [view] { view->update(); });
}

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}
