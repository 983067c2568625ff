// SPDX-License-Identifier: MIT
#include "settings/SheetLayout.h"

#include "platform/WindowPlacement.h"

namespace {

constexpr double kGroupsTop = 252.0;
constexpr double kGroupGap = 10.0;
constexpr double kActionsGap = 32.0;
constexpr double kActionsHeight = 24.0;
constexpr double kBottomMargin = 28.0;

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

QRectF sheetFrame(const QRectF &frame, double contentHeight, const QRectF &screen)
{
    return platform::frameOnScreen({frame.topLeft(), QSizeF(kSheetWidth, frame.height())},
                                   contentHeight, screen);
}
