// SPDX-License-Identifier: MIT
#include "calendar/CalendarPage.h"
#include "calendar/TamselCalendarFont.h"
#include "calendar/TamselDrawCalendar.h"
#include "clock/ClockFrame.h"
#include "platform/Bundle.h"
#include "tests/support/Pixels.h"
#include "tests/support/RecordingDevice.h"

#include <QDir>
#include <QDirIterator>
#include <QFontDatabase>
#include <QFontInfo>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QColor kBackground(255, 70, 0);
const QColor kMark(20, 30, 200);
const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

/// The numbers that the drawing is measured against, in design units.
struct DesignNumbers
{
    double width, cell, gap, daySize, titleSize, titleMiddle, weekdayMiddle, firstDayMiddle, pitch,
        today;
};
constexpr DesignNumbers kLandscape{500, 68, 4, 32, 34, 26, 98.5, 165.5, 67, 56};
constexpr DesignNumbers kPortrait{244, 28, 8, 15, 16, 11, 44, 71, 30, 25};

const DesignNumbers &designNumbers(bool portrait)
{
    return portrait ? kPortrait : kLandscape;
}

QColor faded(QColor color, double alpha)
{
    color.setAlphaF(float(alpha));
    return color;
}

QList<RecordedFill> record(QDate date, bool portrait, const QRectF &rect)
{
    RecordingDevice device;
    QPainter painter(&device);
    TamselDrawCalendar(painter, kBackground, kMark, calendarPage({date, portrait, kEnglish}), rect);
    painter.end();
    return device.fills();
}

/// The fills of a month in design units, sorted by what they are.
struct RecordedMonth
{
    RecordedFill title;
    QList<RecordedFill> weekdays;
    QList<RecordedFill> days;
    QList<RecordedFill> squares;

    RecordedMonth(QDate date, bool portrait)
    {
        QList<RecordedFill> fills =
            record(date, portrait, QRectF(0, 0, designNumbers(portrait).width, 400));
        title = fills.takeFirst();
        weekdays = fills.mid(0, 7);
        fills.remove(0, 7);
        for (const RecordedFill &fill : std::as_const(fills))
            (fill.color == kMark ? squares : days).append(fill);
    }
};

QImage pictureOf(const ClockFrame &frame, FrameScratch &scratch, double scale = 1.0)
{
    QImage picture((frame.bounds.size() * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    drawFrame(painter, frame, scratch);
    painter.end();
    picture.setDevicePixelRatio(1.0);
    return picture;
}

ClockFrame frameOf(QDate date, bool portrait = false)
{
    ClockFrame frame;
    frame.bounds = QRectF(0, 0, 400, 400);
    frame.background = kBackground;
    frame.mark = kMark;
    frame.calendar = {QRectF(30.3, 20.7, 340, 330), {date, portrait, kEnglish}};
    return frame;
}

} // namespace

class TestTamselDrawCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!QFontDatabase::hasFamily(u"Inter"_s))
            QSKIP("measured with Inter, which is not installed");
    }

    void geometry_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<bool>("portrait");
        QTest::addColumn<int>("lead");
        QTest::newRow("from Monday, landscape") << QDate(2021, 2, 1) << false << 0;
        QTest::newRow("from Wednesday, landscape") << QDate(2026, 7, 31) << false << 2;
        QTest::newRow("from Sunday, portrait") << QDate(2023, 1, 9) << true << 6;
    }
    void geometry()
    {
        QFETCH(QDate, date);
        QFETCH(bool, portrait);
        QFETCH(int, lead);
        const DesignNumbers &design = designNumbers(portrait);
        const RecordedMonth month(date, portrait);
        const auto columnMiddle = [&design](int column) {
            return column * (design.cell + design.gap) + design.cell / 2;
        };
        const auto rowMiddle = [&design](int row) {
            return design.firstDayMiddle + row * design.pitch;
        };
        // A glyph's ink is not quite in the middle of its advance; round ones overshoot a little.
        const double bearing = 0.08 * design.daySize;
        const double overshoot = 0.01 * design.daySize;

        QCOMPARE(month.weekdays.size(), 7);
        for (int column = 0; column < 7; ++column) {
            const RecordedFill &label = month.weekdays.at(column);
            QCOMPARE(label.color, faded(kMark, 0.25));
            QVERIFY(qAbs(label.bounds().center().x() - columnMiddle(column)) < bearing);
            QVERIFY(qAbs(label.bounds().center().y() - design.weekdayMiddle) < overshoot);
        }
        QCOMPARE(month.title.color, faded(kMark, 0.75));

        QCOMPARE(month.days.size(), date.daysInMonth());
        for (int day = 1; day <= date.daysInMonth(); ++day) {
            const QPointF middle(columnMiddle((lead + day - 1) % 7),
                                 rowMiddle((lead + day - 1) / 7));
            const RecordedFill &number = month.days.at(day - 1);
            QCOMPARE(number.color, day == date.day() ? kBackground : faded(kMark, 0.75));
            QVERIFY(qAbs(number.bounds().center().x() - middle.x()) < bearing);
            QVERIFY(qAbs(number.bounds().center().y() - middle.y()) < overshoot);
        }

        QCOMPARE(month.squares.size(), 1);
        const QRectF square = month.squares.first().bounds();
        const int today = lead + date.day() - 1;
        QCOMPARE(square.size(), QSizeF(design.today, design.today));
        QCOMPARE(square.center(), QPointF(columnMiddle(today % 7), rowMiddle(today / 7)));
        // A corner of radius r leaves the diagonal free up to r (1 - 1 / sqrt 2) = 0.0586 sides.
        const QPainterPath &path = month.squares.first().path;
        QVERIFY(!path.contains(square.topLeft() + QPointF(0.054, 0.054) * design.today));
        QVERIFY(path.contains(square.topLeft() + QPointF(0.063, 0.063) * design.today));
    }

    void titleStandsFlushWithTheDigits()
    {
        // August 2026 has its 24 in the first column, as wide as the 28 that sets the inset.
        // Inter's capitals stand in the middle of its lines, and no letter of "August" is higher.
        constexpr double halfCapHeight = 0.3636;
        for (const bool portrait : {false, true}) {
            const DesignNumbers &design = designNumbers(portrait);
            const RecordedMonth month(QDate(2026, 8, 1), portrait);
            const QRectF title = month.title.bounds();
            const double capitalTop = design.titleMiddle - halfCapHeight * design.titleSize;
            QVERIFY(qAbs(title.top() - capitalTop) < 0.012 * design.titleSize);
            QVERIFY(qAbs(title.left() - month.days.at(23).bounds().left()) < 0.06 * design.daySize);
        }
    }

    void todayIsHeavierOnTheSameBaseline()
    {
        const RecordedMonth before(QDate(2026, 8, 10), false);
        const RecordedMonth today(QDate(2026, 8, 11), false);
        const QRectF regular = before.days.at(10).bounds();
        const QRectF medium = today.days.at(10).bounds();
        QVERIFY(medium.width() > regular.width() + 0.1);
        QVERIFY(qAbs(medium.bottom() - regular.bottom()) < 1e-9);
        QVERIFY(qAbs(medium.bottom() - today.days.at(13).bounds().bottom()) < 1e-9);
    }

    void todayShowsThroughItsSquare()
    {
        FrameScratch scratch;
        const QImage picture = pictureOf(frameOf(QDate(2026, 8, 11)), scratch, 2.0);
        // The 11th is the second Tuesday: two upright strokes, left and right of the middle.
        const double unit = 2.0 * 340 / 500;
        const QPointF middle(60.6 + (72 + 34) * unit, 41.4 + (165.5 + 2 * 67) * unit);
        const auto at = [&](double dx) {
            return picture.pixelColor((middle + QPointF(dx, 0) * unit).toPoint());
        };
        QCOMPARE(at(0), kMark);
        QCOMPARE(at(-25), kMark);
        QCOMPARE(at(25), kMark);
        int shown = 0;
        for (int step = -80; step < 80; ++step)
            shown += at(step * 0.25) == kBackground;
        QVERIFY(shown > 8);
    }

    void pixelsAreThoseOfTheOutlines_data()
    {
        QTest::addColumn<double>("deviceScale");
        QTest::addColumn<bool>("portrait");
        QTest::newRow("landscape") << 1.0 << false;
        QTest::newRow("landscape, scaled") << 1.25 << false;
        QTest::newRow("portrait, scaled") << 2.0 << true;
    }
    void pixelsAreThoseOfTheOutlines()
    {
        QFETCH(double, deviceScale);
        QFETCH(bool, portrait);
        const ClockFrame frame = frameOf(QDate(2026, 8, 31), portrait);
        FrameScratch scratch;
        const QImage picture = pictureOf(frame, scratch, deviceScale);

        QImage reference(picture.size(), QImage::Format_RGB32);
        reference.fill(kBackground);
        QPainter painter(&reference);
        painter.scale(deviceScale, deviceScale);
        TamselDrawCalendar(painter, kBackground, kMark, calendarPage(frame.calendar->month),
                           frame.calendar->rect);
        painter.end();
        // Outlines are resolved to 1/64 pixel: each edge of a stroke may differ by one such step.
        QVERIFY(pixels::largestDifference(picture, reference) <= 8);
    }

    void whatIsKeptNeverShows()
    {
        QList<ClockFrame> frames{frameOf(QDate(2026, 8, 31))};
        const auto next = [&frames](auto change) {
            frames.append(frames.last());
            change(frames.last());
        };
        next([](ClockFrame &f) { f.calendar->rect.translate(0.001, 0.0); });

        next([](ClockFrame &f) { f.calendar->rect.setWidth(339.98); });
        next([](ClockFrame &f) { f.mark = Qt::white; });
        next([](ClockFrame &f) { f.background = QColor(12, 13, 14); });
        next([](ClockFrame &f) { f.calendar->month.date = QDate(2026, 8, 30); });

        next([](ClockFrame &f) { f.calendar->month.date = QDate(2027, 9, 30); });
        next([](ClockFrame &f) { f.calendar->month.portrait = true; });

        next([](ClockFrame &f) { f.calendar->month.locale = QLocale(u"ar_EG"_s); });
        next([](ClockFrame &f) { f.calendar->month.locale = QLocale(u"ar_MA"_s); });
        next([](ClockFrame &f) { f.tinted = true; });
        next([](ClockFrame &f) { f.calendar->rect = QRectF(10, 10, 0, 200); });
        next([](ClockFrame &f) { f.calendar->rect = QRectF(10, 10, 200, 200); });

        FrameScratch kept;
        for (const double deviceScale : {1.0, 2.0, 1.0}) {
            for (const ClockFrame &frame : std::as_const(frames)) {
                FrameScratch fresh;
                QCOMPARE(pictureOf(frame, kept, deviceScale), pictureOf(frame, fresh, deviceScale));
            }
        }
    }

    void textTooWideIsCut()
    {
        const TextShape text = textShape(u"MMMMMM"_s, TamselCalendarFont(false, 40));
        for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter}) {
            QImage picture(200, 60, QImage::Format_Grayscale8);
            picture.fill(0);
            QPainter painter(&picture);
            TamselDrawCenteredString(painter, text, Qt::white, alignment, QRectF(50, 0, 80, 60));
            painter.end();
            const auto isBlank = [&picture](int left, int right) {
                const QImage part = picture.copy(left, 0, right - left, 60);
                QImage blank(part.size(), part.format());
                blank.fill(0);
                return part == blank;
            };
            QVERIFY(isBlank(0, 50) && !isBlank(50, 56));
            QVERIFY(!isBlank(120, 130) && isBlank(130, 200));
        }
    }

    /// The last test: what it registers stays registered for this process.
    void registeredFacesComeFirst()
    {
        QDirIterator fonts(u"/usr/share/fonts"_s, {u"NotoSerif-Regular.ttf"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        if (!fonts.hasNext())
            QSKIP("no font to register");
        const QTemporaryDir empty;
        QTemporaryDir folder;
        const QString face = folder.filePath(u"Contents/Resources/fonts/SuisseIntl-Regular.otf"_s);
        QVERIFY(QDir().mkpath(QFileInfo(face).path()) && QFile::copy(fonts.next(), face));
        QFile broken(folder.filePath(u"Contents/Resources/fonts/SuisseIntl-Medium.otf"_s));
        QVERIFY(broken.open(QFile::WriteOnly) && broken.write("no font") > 0);
        broken.close();

        TamselRegisterCalendarFonts(platform::Bundle(folder.path()));
        QCOMPARE(QFontInfo(TamselCalendarFont(true, 512)).family(), u"Inter"_s);
        TamselRegisterCalendarFonts(platform::Bundle(empty.path()));
        QCOMPARE(QFontInfo(TamselCalendarFont(false, 512)).family(), u"Noto Serif"_s);
    }
};

QTEST_MAIN(TestTamselDrawCalendar)
#include "test_TamselDrawCalendar.moc"
