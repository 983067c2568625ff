// SPDX-License-Identifier: MIT
// The item of Qt Quick against the saver's view: the same settings at the same moment.
#include "quick/ClockItem.h"
#include "tests/support/Film.h"

#include <QQuickWindow>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

/// An item in a window, \p margin from its corner.
struct Scene
{
    explicit Scene(const QPointF &margin = {}, const platform::Desktop *around = nullptr)
        : item(around ? *around : f.desktop())
    {
        f.clocks.setNow(QDateTime(QDate(2026, 3, 31), QTime(23, 59, 56)));
        view = f.makeView(false);
        window.setColor(Qt::magenta);
        item.setPosition(margin);
        item.setParentItem(window.contentItem());
        static_cast<QQmlParserStatus &>(item).componentComplete();
        resize({160, 100});
        window.resize(340, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    void resize(const QSize &size)
    {
        view->resize(size);
        item.setSize(size);
    }

    /// Draws a frame now.
    void draw() { item.setRunning(!item.isRunning()); }

    QImage shown() const
    {
        const double ratio = window.effectiveDevicePixelRatio();
        const QPoint corner((item.position() * ratio + QPointF(0.001, 0.001)).toPoint());
        const QImage grabbed = const_cast<QQuickWindow &>(window).grabWindow();
        return grabbed.copy({corner, (QSizeF(view->size()) * ratio).toSize()})
            .convertToFormat(QImage::Format_RGB32);
    }

    /// Whether the scene shows what the view would.
    bool isRight() const
    {
        view->animateOneFrame();
        view->grab(); // so that the slow drift takes the same steps
        const QImage reference = SaverFixture::picture(*view, window.effectiveDevicePixelRatio());
        return pixels::largestDifference(shown(), reference) <= kEdgeTolerance;
    }

    SaverFixture f;
    std::unique_ptr<TamselClockSaverView> view;
    QQuickWindow window;
    ClockItem item;
};

} // namespace

class TestClockItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Across an hour, a day, a month, the night, the calendar, a variant and other sizes.
    void whatIsInTheSceneIsTheReference_data()
    {
        QTest::addColumn<QPointF>("margin");
        QTest::newRow("in the window's corner") << QPointF();
        QTest::newRow("between two pixels") << QPointF(31, 7);
    }

    void whatIsInTheSceneIsTheReference()
    {
        QFETCH(QPointF, margin);
        Scene scene(margin);
        const PreferenceStores &stores = scene.f.stores;
        const std::map<int, std::function<void()>> turns{
            {150, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, true); }},
            {180,
             [&] {
                 scene.resize({100, 160});
             }},
            {200, [&] { scene.f.setNight(Film::night(true)); }},
            {310, [&] { scene.f.setNight(Film::night(false)); }},
            {340,
             [&] {
                 scene.resize({300, 90});
             }},
            {420, [&] { SaverFixture::set(stores.suite, kSelectedVariantKey, u"blue"_s); }},
        };
        for (int frame = 0; frame < 450; ++frame) {
            if (const auto turn = turns.find(frame); turn != turns.end())
                turn->second();
            scene.f.clocks.advance(1.0 / 30.0);
            scene.draw();
            QVERIFY2(scene.isRight(), qPrintable(QString::number(frame)));
        }
    }

    /// Nobody who shows the item may be harmed by what it finds.
    void withoutResourcesItShowsItsColour()
    {
        const SaverFixture f;
        platform::Desktop around = f.desktop();
        around.bundle = platform::Bundle(u"/nowhere"_s);
        const Scene scene({}, &around);
        const QImage shown = scene.shown();
        QImage expected(shown.size(), shown.format());
        expected.fill(QColor(0xff, 0x46, 0x00));
        QCOMPARE(pixels::largestDifference(shown, expected), 0);
    }

    void drawsOnlyWhileItIsSeen()
    {
        Scene scene;
        std::atomic<int> frames = 0;
        connect(
            &scene.window, &QQuickWindow::afterRendering, this, [&] { ++frames; },
            Qt::DirectConnection);
        const auto drawn = [&] {
            QTest::qWait(50);
            frames = 0;
            for (int i = 0; i < 10; ++i) {
                scene.f.clocks.advance(0.2);
                QTest::qWait(40);
            }
            return frames.load();
        };
        QVERIFY(drawn() > 5);
        scene.item.setVisible(false);
        QCOMPARE(drawn(), 0);
        scene.item.setVisible(true);
        QVERIFY(drawn() > 5);
        scene.item.setRunning(false);
        QCOMPARE(drawn(), 0);
    }
};

QTEST_MAIN(TestClockItem)
#include "test_ClockItem.moc"
