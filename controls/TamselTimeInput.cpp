// SPDX-License-Identifier: MIT
#include "controls/TamselTimeInput.h"

#include "controls/TamselInputFill.h"
#include "controls/ViewAppearance.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kWidthLoss = 14.0;
constexpr double kRightMargin = 8.0;
/// Moves the picker down, because its text is above the centre of its cell.
constexpr double kNudge = 1.5;

} // namespace

QRectF timePickerFrame(const QSizeF &bounds, const QSizeF &cell)
{
    const double width = std::min(bounds.width() - kWidthLoss, std::ceil(cell.width()));
    const double height = std::min(bounds.height(), std::ceil(cell.height()));
    const double y = std::min(bounds.height() - height, (bounds.height() - height) / 2.0 + kNudge);
    return {bounds.width() - kRightMargin - width, y, width, height};
}

TamselTimeInput::TamselTimeInput(QWidget *parent) : QWidget(parent)
{
    redrawWithAppearance(this);
}

void TamselTimeInput::setPicker(QWidget *picker)
{
    m_picker = picker;
    if (picker && picker->parentWidget() != this) {
        picker->setParent(this);
        picker->show();
    }
}

void TamselTimeInput::alignPicker()
{
    if (QWidget *picker = m_picker)
        picker->setGeometry(timePickerFrame(size(), picker->sizeHint()).toRect());
}

void TamselTimeInput::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawInputField(painter, this, m_fill);
}
