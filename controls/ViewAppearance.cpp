// SPDX-License-Identifier: MIT
#include "controls/ViewAppearance.h"

#include "controls/ControlFont.h"
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

void applyPalette(QWidget *window)
{
    const QPalette colors = appearanceOf(window).palette();
    window->setPalette(colors);
    QToolTip::setPalette(colors);
    QToolTip::setFont(controlFont());
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
