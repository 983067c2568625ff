// SPDX-License-Identifier: MIT
// The options sheet of a user who asked the desktop for less motion: all is at its end at once.
#include "platform/Appearance.h"
#include "tests/support/BusMock.h"
#include "tests/support/SheetFixture.h"
#include "tests/support/TestBus.h"

using namespace Qt::StringLiterals;
using platform::Appearance;

void QApplication::beep()
{
    ++g_beeps;
}

class TestReducedMotion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSheetMovesIfWanted_data()
    {
        QTest::addColumn<bool>("moves");
        QTest::newRow("animations on") << true;
        QTest::newRow("animations off") << false;
    }

    void theSheetMovesIfWanted()
    {
        QFETCH(bool, moves);
        TestBus bus;
        QVERIFY(bus.start());
        const QString service = u"org.freedesktop.portal.Desktop"_s;
        const QString path = u"/org/freedesktop/portal/desktop"_s;
        const QString interface = u"org.freedesktop.portal.Settings"_s;
        BusMock portal(u"--session"_s, service, path);
        QVERIFY(portal.start({service, path, interface}));
        const QString answer =
            u"if args[1] != 'enable-animations': "
            "raise dbus.exceptions.DBusException('none', "
            "name='org.freedesktop.portal.Error.NotFound')\n"
            "ret = dbus.Boolean(%1, variant_level=1)"_s.arg(moves ? u"True"_s : u"False"_s);
        QVERIFY(portal.call(u"AddMethod"_s, {interface, u"ReadOne"_s, u"ss"_s, u"v"_s, answer}));
        delete &Appearance::shared();
        QTRY_COMPARE(Appearance::shared().reducedMotion(), !moves);

        SheetFixture<TamselClockSaverView> fixture;
        QVERIFY(fixture.open());
        const SettingsSheet &sheet = fixture.sheet();
        const int height = fixture.window()->height();
        fixture.chooseVariant(u"custom"_s);
        fixture.click(sheet.calendarCheckbox);
        // Time stands still, so that what moves is where it was.
        QCOMPARE(fixture.visibility().isMoving(), moves);
        QCOMPARE(sheet.dayColorControls->isHidden(), moves);
        QCOMPARE(fixture.window()->height() == height, moves);
        QCOMPARE(sheet.customPreviewView->calendarProgress(), moves ? 0.0 : 1.0);
        delete &Appearance::shared();
    }
};

QTEST_MAIN(TestReducedMotion)
#include "test_ReducedMotion.moc"
