// SPDX-License-Identifier: MIT
// The saver view following its stored settings and the time of day.
#include "platform/LoginSession.h"
#include "tests/support/ControlPicture.h"
#include "tests/support/SaverFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QColor kOrange = QColor::fromRgbF(1.0F, 0.2745F, 0.0F);
const QVariantMap kNight{
    {u"enabled"_s, true},         {u"from"_s, 1170},          {u"to"_s, 450},
    {u"fromMode"_s, u"custom"_s}, {u"toMode"_s, u"custom"_s}, {u"base"_s, u"#101820"_s},
    {u"mark"_s, u"#C0A080"_s}};

} // namespace

class TestTamselClockSaverView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheDocumentedDefaults()
    {
        const SaverFixture f;
        const auto view = f.makeView();
        QCOMPARE(view->loadedPalette().activeVariant, u"orange"_s);
        QCOMPARE(view->displayedBackgroundColor(), kOrange);
        QVERIFY(!view->appliedSettings().calendarEnabled);
        QCOMPARE(view->animationTimeInterval(), 1.0 / 30.0);
        QCOMPARE(SaverFixture::picture(*view).pixelColor(1, 1), QColor(0xff, 0x46, 0x00));
    }

    void showsTheStoredVariant_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<QColor>("mark");
        QTest::newRow("nero") << u"nero"_s << u"nero"_s << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("alias of nero")
            << u"black"_s << u"nero"_s << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("unknown") << u"mauve"_s << u"orange"_s << QColor(0xff, 0x46, 0x00)
                                 << QColor(Qt::black);
        QTest::newRow("custom without colours")
            << u"custom"_s << u"custom"_s << QColor(0xff, 0x46, 0x00) << QColor(Qt::black);
    }

    /// Written while the view runs, by another process: on screen with the next frame.
    void showsTheStoredVariant()
    {
        QFETCH(QString, stored);
        QFETCH(QColor, background);
        QFETCH(QColor, mark);
        const SaverFixture f;
        const auto view = f.makeView();
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, stored);
        view->animateOneFrame();
        QTEST(view->loadedPalette().activeVariant, "shown");
        const QImage picture = SaverFixture::picture(*view);
        QCOMPARE(picture.pixelColor(1, 1), background);
        QCOMPARE(picture.pixelColor(98, 26), mark); // the baton at 12
    }

    void randomPicksAfreshAtEachStartOnly()
    {
        const SaverFixture f;
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"random"_s);
        const auto view = f.makeView();
        QHash<QString, int> picks;
        for (int start = 0; start < 200; ++start) {
            view->startAnimation();
            const QString picked = view->loadedPalette().activeVariant;
            SaverFixture::set(f.stores.suite, kCalendarEnabledKey, start % 2 == 0);
            view->animateOneFrame();
            QCOMPARE(view->appliedSettings().calendarEnabled, start % 2 == 0);
            QCOMPARE(view->loadedPalette().activeVariant, picked);
            ++picks[picked];
        }
        view->stopAnimation();
        QCOMPARE(picks.size(), 4);
        QVERIFY(!picks.contains(u"custom"_s));
        // 200 uniform picks put fewer than 20 on one of four about once in ten million runs.
        for (const int count : std::as_const(picks))
            QVERIFY(count > 20);
    }

    void customColoursAreFollowed()
    {
        const SaverFixture f;
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"custom"_s);
        const auto view = f.makeView();
        SaverFixture::set(f.stores.saverDefaults, kCustomMarkColorKey, u"#00FF00"_s);
        SaverFixture::set(f.stores.suite, kCustomBaseColorKey, u"#0000FF"_s);
        view->animateOneFrame();
        const QImage picture = SaverFixture::picture(*view);
        QCOMPARE(picture.pixelColor(1, 1), QColor(0, 0, 255));
        QCOMPARE(picture.pixelColor(98, 26), QColor(0, 255, 0));
        QCOMPARE(view->paletteTransitionProgress(), 1.0); // no fade
    }

    void nightFadesInExactly()
    {
        SaverFixture f;
        f.setNight(kNight);
        f.setTime(19, 29);
        const auto view = f.makeView();
        QCOMPARE(view->loadedPalette().activeVariant, u"orange"_s);
        f.setTime(19, 30);
        view->animateOneFrame();
        QCOMPARE(view->loadedPalette().activeVariant, u"night"_s);
        // At the quarters the eased progress is 0.15625 and 0.84375.
        for (const auto &[seconds, expected] :
             {std::pair(0.75, QColor(218, 63, 5)), std::pair(2.25, QColor(53, 31, 27))}) {
            f.clocks.setMonotonicSeconds(1000.0 + seconds);
            QVERIFY(alike(SaverFixture::picture(*view).pixelColor(1, 1), expected, 1));
        }
    }

    void theLastFrameOfAFadeIsThePlainOne()
    {
        SaverFixture f;
        f.setNight(kNight);
        const auto fading = f.makeView();
        f.setTime(22, 0);
        fading->animateOneFrame();
        f.clocks.setMonotonicSeconds(1002.9);
        const QImage tinted = SaverFixture::picture(*fading);
        f.clocks.setMonotonicSeconds(1003.0);
        const QImage last = SaverFixture::picture(*fading);
        const auto plain = f.makeView();
        QCOMPARE(last, SaverFixture::picture(*plain));
        QVERIFY(tinted != last);
        QCOMPARE(SaverFixture::picture(*fading), last);
    }

    void aFlipInMidFadeGoesOnFromTheColoursOnScreen()
    {
        SaverFixture f;
        f.setNight(kNight);
        const auto view = f.makeView();
        f.setTime(22, 0);
        view->animateOneFrame();
        f.clocks.setMonotonicSeconds(1001.0);
        const QColor background = view->displayedBackgroundColor();
        const QColor mark = view->displayedMarkColor();
        f.setTime(12, 0); // the clock was set back to noon
        view->animateOneFrame();
        QCOMPARE(view->loadedPalette().activeVariant, u"orange"_s);
        QCOMPARE(view->displayedBackgroundColor(), background);
        QCOMPARE(view->displayedMarkColor(), mark);
        f.clocks.setMonotonicSeconds(1004.0);
        QCOMPARE(view->displayedBackgroundColor(), kOrange);
    }

    void anotherChangeEndsAFade()
    {
        QVariantMap darker = kNight;
        darker.insert(u"base"_s, u"#000001"_s);
        for (const auto &[key, value] : {std::pair(kNightSettingsKey, QVariant(darker)),
                                         {kSelectedVariantKey, QVariant(u"blue"_s)}}) {
            SaverFixture f;
            f.setNight(kNight);
            const auto view = f.makeView();
            f.setTime(22, 0);
            view->animateOneFrame();
            f.clocks.setMonotonicSeconds(1001.0);
            QVERIFY(view->paletteTransitionProgress() < 1.0);
            SaverFixture::set(f.stores.suite, key, value);
            view->animateOneFrame();
            QCOMPARE(view->paletteTransitionProgress(), 1.0);
        }
    }

    void theNightHidesCustomColours()
    {
        SaverFixture f;
        f.setNight(kNight);
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"custom"_s);
        f.setTime(23, 0);
        const auto view = f.makeView();
        SaverFixture::set(f.stores.suite, kCustomBaseColorKey, u"#123456"_s);
        view->animateOneFrame();
        QCOMPARE(view->paletteTransitionProgress(), 1.0);
        QVERIFY(!view->appliedSettings().lastStoredCustomBaseColor.isValid());
        QCOMPARE(view->displayedBackgroundColor(), QColor(0x10, 0x18, 0x20));
    }

    void drawsNothingBeyondAThinView()
    {
        const SaverFixture f;
        SaverFixture::set(f.stores.suite, kCalendarEnabledKey, true);
        const auto view = f.makeView(false);
        for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(400, 1), QSize(1, 400)}) {
            view->resize(size);
            QImage image(410, 410, QImage::Format_RGB32);
            image.fill(Qt::magenta);
            const QImage untouched = image;
            QPainter painter(&image);
            view->drawRect(painter, view->rect());
            painter.fillRect(view->rect(), Qt::magenta);
            painter.end();
            QCOMPARE(image, untouched);
        }
    }

    /// After switching users, or on waking up.
    void randomPickOutlastsAnInactiveSession()
    {
        const SaverFixture f;
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"random"_s);
        platform::LoginSession session;
        platform::Desktop desktop = f.desktop();
        desktop.session = &session;
        TamselClockSaverView view(desktop, true);
        view.startAnimation();
        const QString picked = view.loadedPalette().activeVariant;
        for (int i = 0; i < 30; ++i) {
            Q_EMIT session.becameActive();
            QCOMPARE(view.loadedPalette().activeVariant, picked);
        }
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"blue"_s);
        Q_EMIT session.becameActive();
        QCOMPARE(view.loadedPalette().activeVariant, u"blue"_s);
    }
};

QTEST_MAIN(TestTamselClockSaverView)
#include "test_TamselClockSaverView.moc"
