// SPDX-License-Identifier: MIT
#include "location/DayBar.h"

#include "controls/Mirroring.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

namespace location {

namespace {

constexpr double kBarHeight = 10.0;
constexpr double kLabelGap = 5.0;
constexpr double kLabelSize = 11.0;
constexpr int kHoursBetweenLabels = 6;
constexpr double kMillisecondsOfDay = 24.0 * 60.0 * 60.0 * 1000.0;
constexpr QColor kDaylight(0xff, 0x8a, 0x1f);
constexpr QColor kNight(0x4a, 0x4a, 0x50);

double fractionOfDay(QTime time)
{
    return time.msecsSinceStartOfDay() / kMillisecondsOfDay;
}

/// The highlighted parts of \p bar: one, or two when the daylight spans midnight.
QPainterPath litParts(const QRectF &bar, QTime sunrise, QTime sunset)
{
    const auto part = [&](double from, double to) {
        return QRectF(bar.left() + from * bar.width(), bar.top(), (to - from) * bar.width(),
                      bar.height());
    };
    const double rise = fractionOfDay(sunrise);
    const double set = fractionOfDay(sunset);
    QPainterPath path;
    if (rise <= set) {
        path.addRect(part(rise, set));
    } else {
        path.addRect(part(0.0, set));
        path.addRect(part(rise, 1.0));
    }
    return path;
}

void drawLabels(QPainter &painter, const QRectF &bar)
{
    const QLocale locale = QLocale::system();
    const bool mirrored = painter.layoutDirection() == Qt::RightToLeft;
    const QFontMetricsF metrics(painter.font());
    for (int hour = 0; hour <= 24; hour += kHoursBetweenLabels) {
        const QString text = locale.toString(hour);
        const double width = metrics.horizontalAdvance(text);
        const double part = (mirrored ? 24 - hour : hour) / 24.0;
        const double x = bar.left() + (bar.width() - width) * part;
        painter.drawText(QPointF(x, bar.bottom() + kLabelGap + metrics.ascent()), text);
    }
}

} // namespace

DayBar::DayBar(QWidget *parent) : QWidget(parent)
{
    setFont(platform::systemFont(kLabelSize));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void DayBar::setDaylight(std::optional<QTime> sunrise, std::optional<QTime> sunset)
{
    m_sunrise = sunrise;
    m_sunset = sunset;
    update();
}

QSize DayBar::sizeHint() const
{
    const double height = kBarHeight + kLabelGap + QFontMetricsF(font()).height();
    return {200, int(std::ceil(height))};
}

void DayBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    mirrorFor(this, painter);
    const QRectF bar(0.0, 0.0, width(), kBarHeight);
    QPainterPath track;
    track.addRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);
    painter.fillPath(track, kNight);
    if (m_sunrise && m_sunset)
        painter.fillPath(track & litParts(bar, *m_sunrise, *m_sunset), kDaylight);
    painter.restore();
    painter.setPen(platform::Appearance::shared().secondaryLabelColor());
    drawLabels(painter, bar);
}

} // namespace location
