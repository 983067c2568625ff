// SPDX-License-Identifier: MIT
#include "controls/Popover.h"
#include "controls/PushButton.h"
#include "controls/TamselColorPopover.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselSwatchButton.h"

#include <QPointer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A sheet with a swatch whose popover is open, and the count of what it reports.
struct Sheet
{
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QPointer<TamselSwatchButton> swatch = new TamselSwatchButton(window.get());
    std::unique_ptr<TamselColorPopover> editor = std::make_unique<TamselColorPopover>();
    int dismissed = 0;
    int panels = 0;

    Sheet()
    {
        window->setGeometry(250, 250, 400, 300);
        swatch->setGeometry(310, 200, 28, 28);
        swatch->setAccessibleName(u"Day primary color"_s);
        window->show();
        window->activateWindow();
        editor->dismissed = [this] { ++dismissed; };
        editor->openPanel = [this] { ++panels; };
        editor->showFor(swatch, Qt::red);
    }

    /// Presses a control of the sheet, seen through the popover's shadow, that does \p what on
    /// that.
    void press(const std::function<void(QWidget *)> &what)
    {
        auto *control = new PushButton(u"Outside"_s, window.get());
        control->setGeometry(200, 200, 80, 20);
        control->show();
        bool isReached = false;
        QObject::connect(control, &QAbstractButton::pressed, control, [=, &isReached] {
            isReached = true;
            what(control);
        });
        QWidget *popover = editor->popover();
        const QPoint middle = control->mapToGlobal(control->rect().center());
        QTest::mousePress(popover, Qt::LeftButton, {}, popover->mapFromGlobal(middle));
        QVERIFY(isReached);
    }

    PushButton *panelButton() const { return editor->view()->findChild<PushButton *>(); }
};

using Way = void (*)(Sheet &);

} // namespace

Q_DECLARE_METATYPE(Way)

class TestTamselColorPopover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closesOnceAndReportsOnce_data()
    {
        QTest::addColumn<Way>("close");
        QTest::addColumn<bool>("forPanel");
        const auto add = [](const char *name, Way way, bool forPanel = false) {
            QTest::newRow(name) << way << forPanel;
        };
        add("press outside", [](Sheet &it) {
            QTest::mousePress(it.editor->popover(), Qt::LeftButton, {}, QPoint(-50, -50));
        });
        add("press on the anchor", [](Sheet &it) {
            QWidget *popover = it.editor->popover();
            const QPoint anchor = it.swatch->mapToGlobal(QPoint(14, 14));
            QTest::mousePress(popover, Qt::LeftButton, {}, popover->mapFromGlobal(anchor));
        });
        add("press that destroys its control",
            [](Sheet &it) { it.press([](QWidget *control) { delete control; }); });
        add("press that destroys the window",
            [](Sheet &it) { it.press([&](QWidget *) { it.window.reset(); }); });
        add("escape", [](Sheet &it) { QTest::keyClick(it.editor->hueSlider(), Qt::Key_Escape); });
        add(
            "panel button", [](Sheet &it) { QTest::mouseClick(it.panelButton(), Qt::LeftButton); },
            true);
        add(
            "panel button by key",
            [](Sheet &it) { QTest::keyClick(it.panelButton(), Qt::Key_Space); }, true);
        add("owner", [](Sheet &it) { it.editor->popover()->close(); });
        add("window moved", [](Sheet &it) { it.window->move(10, 10); });
        add("window closed", [](Sheet &it) { it.window->close(); });
        add("window destroyed", [](Sheet &it) { it.window.reset(); });
        add("focus lost", [](Sheet &it) {
            QWidget other;
            other.show();
            other.activateWindow();
            QTRY_VERIFY(!it.editor->popover() || !it.editor->popover()->isVisible());
        });
        add("anchor hidden", [](Sheet &it) { it.swatch->hide(); });
        add("anchor destroyed", [](Sheet &it) { delete it.swatch; });
    }

    void closesOnceAndReportsOnce()
    {
        QFETCH(Way, close);
        QFETCH(bool, forPanel);
        Sheet sheet;
        const QPointer<Popover> popover = sheet.editor->popover();
        QVERIFY(popover->isVisible());
        close(sheet);
        QVERIFY(!popover || !popover->isVisible());
        QCOMPARE(sheet.dismissed, forPanel ? 0 : 1);
        QCOMPARE(sheet.panels, forPanel ? 1 : 0);
        QCOMPARE(sheet.editor->openingFullPanel(), forPanel);
        sheet.window.reset();
        sheet.editor.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!popover);
        QCOMPARE(sheet.dismissed + sheet.panels, 1);
    }

    void staysOpenWhileItIsUsed()
    {
        Sheet sheet;
        sheet.window->activateWindow();
        QCoreApplication::processEvents();
        QTest::mouseClick(sheet.editor->popover(), Qt::LeftButton, {}, QPoint(150, 150));
        QTest::keyClick(sheet.editor->popover(), Qt::Key_A);
        sheet.window->update();
        QCoreApplication::processEvents();
        QVERIFY(sheet.editor->popover()->isVisible());
    }

    void staysOnTheScreen_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QPoint>("expected");
        QTest::newRow("above, centred") << QRect(500, 500, 28, 28) << QPoint(364, 338);
        QTest::newRow("no room above") << QRect(500, 130, 28, 28) << QPoint(364, 162);
        QTest::newRow("left edge") << QRect(110, 500, 28, 28) << QPoint(100, 338);
        QTest::newRow("right edge") << QRect(1080, 500, 28, 28) << QPoint(800, 338);
        QTest::newRow("lower edge") << QRect(500, 690, 28, 28) << QPoint(364, 528);
        QTest::newRow("off to the left") << QRect(-900, 500, 28, 28) << QPoint(100, 338);
        QTest::newRow("below everything") << QRect(500, 5000, 28, 28) << QPoint(364, 542);
    }

    void staysOnTheScreen()
    {
        QFETCH(QRect, anchor);
        const QRect bounds(100, 100, 1000, 600); // a second screen: its origin is not 0
        QTEST(popoverPosition(anchor, {300, 158}, bounds), "expected");
    }
};

QTEST_MAIN(TestTamselColorPopover)
#include "test_TamselColorPopover.moc"
