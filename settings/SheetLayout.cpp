// SPDX-License-Identifier: MIT
#include "settings/SheetLayout.h"

#include "platform/WindowPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kGroupsTop = 252.0;
constexpr double kGroupGap = 10.0;
constexpr double kActionsGap = 32.0;
constexpr double kActionsHeight = 24.0;
constexpr double kBottomMargin = 28.0;

constexpr QRect kThemeNameFrame(104, 13, 70, 18);
/// Between a title and what follows it.
constexpr int kTitleGap = 8;

constexpr QRect kLastActionFrame(264, -2, 80, 28);
constexpr int kActionGap = 10;

} // namespace

SheetLayout sheetLayout(double dayHeight, double nightHeight)
{
    SheetLayout layout;
    double y = kGroupsTop;
    const auto place = [&y](double height, double gap) {
        const QRectF frame(kGroupLeft, y, kGroupWidth, height);
        y += height + gap;
        return frame;
    };
    layout.themeGroup = place(dayHeight, kGroupGap);
    layout.calendarGroup = place(kCollapsedHeight, kGroupGap);
    layout.nightGroup = place(nightHeight, kActionsGap);
    layout.settingsActions = place(kActionsHeight, kBottomMargin);
    layout.contentHeight = y;
    return layout;
}

QRect themeNameFrame(double titleWidth)
{
    QRect frame = kThemeNameFrame;
    frame.setLeft(kTitleInset + int(std::ceil(titleWidth)) + kTitleGap);
    return frame;
}

QRect actionFrame(int fromEnd, int width)
{
    QRect frame = kLastActionFrame;
    frame.setLeft(std::min(frame.left(), frame.right() + 1 - width));
    return frame.translated(-fromEnd * (frame.width() + kActionGap), 0);
}

QRectF sheetFrame(const QRectF &frame, double contentHeight, const QRectF &screen)
{
    return platform::frameOnScreen({frame.topLeft(), QSizeF(kSheetWidth, frame.height())},
                                   contentHeight, screen);
}
