// SPDX-License-Identifier: MIT
#include "platform/SingleWindow.h"

#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "tests/support/TestBus.h"

#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;
using platform::SingleWindow;

class TestSingleWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Each has a bus connection of its own, as processes have.
    void secondBringsFirstToFront()
    {
        TestBus bus;
        QVERIFY(bus.start());
        platform::DistributedNotifications firsts;
        platform::DistributedNotifications seconds;
        const QTemporaryDir dir;
        platform::Desktop desktop;
        desktop.preferencesFolder = dir.filePath(u"made when needed"_s);
        desktop.notifications = &firsts;
        auto first = std::make_unique<SingleWindow>(desktop, u"one"_s);
        QVERIFY(first->isOnlyOne());
        QWidget window;
        first->present(window);
        QVERIFY(window.isVisible());
        window.hide();

        desktop.notifications = &seconds;
        const SingleWindow second(desktop, u"one"_s);
        QVERIFY(!second.isOnlyOne());
        QVERIFY(SingleWindow(desktop, u"another"_s).isOnlyOne());
        // The connections are made meanwhile.
        QTRY_VERIFY((second.bringOtherToFront(), QTest::qWait(20), window.isVisible()));
        first.reset();
        QVERIFY(SingleWindow(desktop, u"one"_s).isOnlyOne());
    }

    void withoutAPlaceForItsLockItIsShown()
    {
        platform::Desktop desktop;
        desktop.preferencesFolder = u"/proc/nowhere"_s;
        QVERIFY(SingleWindow(desktop, u"one"_s).isOnlyOne());
    }
};

QTEST_MAIN(TestSingleWindow)
#include "test_SingleWindow.moc"
