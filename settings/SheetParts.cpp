// SPDX-License-Identifier: MIT
#include "settings/SheetParts.h"

#include "controls/Mirroring.h"
#include "controls/Symbol.h"
#include "controls/TamselInputFill.h"
#include "controls/TamselSeparator.h"
#include "controls/TamselSettingsView.h"
#include "controls/ViewAppearance.h"
#include "settings/SheetLayout.h"

#include <QPainter>

#include <utility>

namespace {

constexpr double kGroupRadius = 12.0;
constexpr double kGroupContrast = 0.03;
constexpr int kDividerLeft = 10;
constexpr int kDividerWidth = 324;

} // namespace

TamselSettingsView *settingsGroupIn(QWidget *parent)
{
    auto *group = new TamselSettingsView(parent);
    group->setGeometry(int(kGroupLeft), 0, int(kGroupWidth), int(kCollapsedHeight));
    group->setGroup(true);
    group->setGroupRadius(kGroupRadius);
    group->setGroupContrast(kGroupContrast);
    return group;
}

void addSettingsDividerAt(int y, QWidget *view)
{
    auto *divider = new TamselSeparator(view);
    divider->setGeometry(kDividerLeft, y, kDividerWidth, 1);
}

ConnectorView::ConnectorView(platform::SvgImage image, QWidget *parent)
    : QWidget(parent), m_image(std::move(image))
{
    redrawWithAppearance(this);
}

void ConnectorView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    mirrorFor(this, painter);
    drawTinted(painter, m_image, rect(), TamselInputFill(this));
}
