// SPDX-License-Identifier: MIT
#include "calendar/CalendarPage.h"
#include "calendar/TamselCalendarFont.h"
#include "calendar/TamselDrawCalendar.h"
#include "clock/ClockFrame.h"
#include "platform/Bundle.h"
#include "tests/support/ControlPicture.h"
#include "tests/support/Pixels.h"

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

/// A month of its design's width, drawn large in black on white.
struct DrawnMonth
{
    static constexpr double kScale = 8.0;
    static constexpr double kMargin = 8.0;
    QImage picture;

    DrawnMonth(QDate date, bool portrait) : picture(QSize(520, 560) * kScale, QImage::Format_RGB32)
    {
        picture.fill(Qt::white);
        picture.setDevicePixelRatio(kScale);
        QPainter painter(&picture);
        TamselDrawCalendar(painter, Qt::white, Qt::black, calendarPage({date, portrait, kEnglish}),
                           QRectF(kMargin, 0, designNumbers(portrait).width, 400));
    }

    QImage part(const QRectF &cell) const
    {
        const QPointF corner = cell.topLeft() + QPointF(kMargin, 0);
        return picture.copy(QRectF(corner * kScale, cell.size() * kScale).toRect());
    }

    /// The bounds of what is drawn within \p cell, in design units.
    QRectF inkIn(const QRectF &cell) const
    {
        const QRectF ink =
            boundsOf(part(cell), [](const QColor &it) { return it.lightness() < 250; });
        return ink.isNull() ? ink : ink.translated(cell.topLeft());
    }

    /// How dark the darkest of it is, from 0 to 1.
    double inkAt(const QRectF &cell) const
    {
        double darkest = 0.0;
        const QImage pixels = part(cell);
        for (int y = 0; y < pixels.height(); ++y)
            for (int x = 0; x < pixels.width(); ++x)
                darkest = std::max(darkest, 1.0 - pixels.pixelColor(x, y).lightnessF());
        return darkest;
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
        const DrawnMonth month(date, portrait);
        const auto cellAt = [&design](int column, double middle) {
            return QRectF(column * (design.cell + design.gap) - design.gap / 2,
                          middle - design.pitch / 2, design.cell + design.gap, design.pitch);
        };
        // A glyph's ink is not quite in the middle of its advance; round ones overshoot a little.
        const auto isCentred = [&](const QRectF &cell) {
            const QPointF off = month.inkIn(cell).center() - cell.center();
            return qAbs(off.x()) < 0.09 * design.daySize && qAbs(off.y()) < 0.02 * design.daySize;
        };
        for (int cell = 0; cell < 42; ++cell) {
            const int day = cell - lead + 1;
            const int row = cell / 7;
            const QRectF rect = cellAt(cell % 7, design.firstDayMiddle + row * design.pitch);
            if (day < 1 || day > date.daysInMonth()) {
                QVERIFY(month.inkIn(rect).isNull());
            } else if (day == date.day()) {
                const QRectF square = month.inkIn(rect);
                QCOMPARE(square.size(), QSizeF(design.today, design.today));
                QCOMPARE(square.center(), rect.center());
                const auto inkOfCorner = [&](double inset) {
                    return month.inkAt({square.topLeft(), QSizeF(inset, inset) * design.today});
                };
                // A corner of radius r leaves the diagonal free up to r (1 - 1 / sqrt 2).
                QVERIFY(inkOfCorner(0.05) < 0.1 && inkOfCorner(0.07) > 0.9);
            } else {
                QVERIFY2(isCentred(rect), qPrintable(QString::number(day)));
                QVERIFY(qAbs(month.inkAt(rect) - 0.75) < 0.01);
            }
        }
        for (int column = 0; column < 7; ++column) {
            QVERIFY(isCentred(cellAt(column, design.weekdayMiddle)));
            QVERIFY(qAbs(month.inkAt(cellAt(column, design.weekdayMiddle)) - 0.25) < 0.01);
        }
    }

    void titleStandsFlushWithTheDigits()
    {
        // August 2026 has its 24 in the first column, as wide as the 28 that sets the inset.
        // Inter's capitals stand in the middle of its lines, and no letter of "August" is higher.
        constexpr double halfCapHeight = 0.3636;
        for (const bool portrait : {false, true}) {
            const DesignNumbers &design = designNumbers(portrait);
            const DrawnMonth month(QDate(2026, 8, 1), portrait);
            const QRectF title = month.inkIn({0, 0, design.width, 2 * design.titleMiddle + 4});
            const QRectF digits = month.inkIn(
                {0, design.firstDayMiddle + 3.5 * design.pitch, design.cell, design.pitch});
            const double capitalTop = design.titleMiddle - halfCapHeight * design.titleSize;
            QVERIFY(qAbs(title.top() - capitalTop) < 0.012 * design.titleSize + 0.125);
            QVERIFY(qAbs(title.left() - digits.left()) < 0.06 * design.daySize + 0.125);
        }
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

    /// In the digits of the days, whatever font stands in for the letters beside it.
    void theYearStandsLastAsItIsRead()
    {
        const auto span = [](const QPainterPath &path, int from, int to) {
            return QPointF(path.elementAt(to)) - QPointF(path.elementAt(from));
        };
        for (const auto &[language, isLeft] : {std::pair(u"hi_IN"_s, false), {u"ar_EG"_s, true}}) {
            const CalendarPage page = calendarPage({QDate(2026, 3, 1), false, QLocale(language)});
            const QPainterPath &title = page.title.outline;
            const QPainterPath &day = page.days.at(25).outline;
            const int last = day.elementCount() - 1;
            const int from = isLeft ? 0 : title.elementCount() - 1 - last;
            const QPointF error = span(title, from, from + last) - span(day, 0, last) * 34 / 32;
            QVERIFY(error.manhattanLength() < 0.2);
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
