// SPDX-License-Identifier: MIT
#include "controls/ViewAlpha.h"

#include <QGraphicsOpacityEffect>
#include <QWidget>

#include <algorithm>

double alphaValue(const QWidget *view)
{
    const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect());
    return effect ? effect->opacity() : 1.0;
}

void setAlphaValue(QWidget *view, double alpha)
{
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect());
    if (!effect) {
        if (alpha >= 1.0)
            return;
        effect = new QGraphicsOpacityEffect(view);
        view->setGraphicsEffect(effect);
    }
    effect->setOpacity(std::clamp(alpha, 0.0, 1.0));
    // An enabled effect renders the view into a separate layer even at full opacity.
    effect->setEnabled(alpha < 1.0);
}
