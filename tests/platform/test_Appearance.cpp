// SPDX-License-Identifier: MIT
#include "platform/Appearance.h"
#include "platform/DesktopSettings.h"
#include "tests/support/BusMock.h"
#include "tests/support/TestBus.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using platform::Appearance;
using platform::DesktopSettings;

namespace {

const QString kAppearanceGroup = "org.freedesktop.appearance";
const QString kGnomeGroup = "org.gnome.desktop.interface";
const QString kKdeGroup = "org.kde.kdeglobals.KDE";

} // namespace

class test_Appearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesOnlyWhatMakesSense_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<DesktopSettings>("expected");
        const auto row = [](const char *name, const QString &group, const QString &key,
                            const QVariant &value, const DesktopSettings &expected) {
            QTest::newRow(name) << group << key << value << expected;
        };
        row("dark", kAppearanceGroup, "color-scheme", 1u, {.prefersDark = true});
        row("light", kAppearanceGroup, "color-scheme", 2u, {.prefersDark = false});
        row("no preference", kAppearanceGroup, "color-scheme", 0u, {});
        row("scheme as text", kAppearanceGroup, "color-scheme", "1", {});
        row("less motion", kAppearanceGroup, "reduced-motion", 1u, {.reducedMotion = true});
        row("animations off", kGnomeGroup, "enable-animations", false, {.enableAnimations = false});
        row("factor as text", kKdeGroup, "AnimationDurationFactor", "0", {.animationFactor = 0.0});
        row("factor as nonsense", kKdeGroup, "AnimationDurationFactor", "fast", {});
        row("same key elsewhere", kGnomeGroup, "color-scheme", 1u, {});
    }

    void takesOnlyWhatMakesSense()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(DesktopSettings, expected);
        DesktopSettings settings;
        settings.take(group, key, value);
        QVERIFY(settings == expected);
    }

    void reducedMotionAsksInOrder()
    {
        using Case = std::pair<DesktopSettings, bool>;
        for (const auto &[settings, isReduced] :
             {Case{{}, false}, Case{{.reducedMotion = true, .enableAnimations = true}, true},
              Case{{.reducedMotion = false, .enableAnimations = false}, false},
              Case{{.enableAnimations = false, .animationFactor = 1.0}, true},
              Case{{.enableAnimations = true, .animationFactor = 0.0}, false},
              Case{{.animationFactor = 0.0}, true}, Case{{.animationFactor = 0.5}, false}})
            QCOMPARE(settings.wantsReducedMotion(), isReduced);
    }

    void followsThePaletteWithoutAPortal()
    {
        Appearance &look = Appearance::shared();
        const QPalette before = QApplication::palette();
        QSignalSpy changed(&look, &Appearance::changed);

        QPalette dark(QColor(40, 40, 40), QColor(20, 20, 20));
        dark.setColor(QPalette::Highlight, Qt::magenta);
        QApplication::setPalette(dark);
        QTRY_VERIFY(!changed.isEmpty());
        QVERIFY(look.isDark());
        QCOMPARE(look.controlAccentColor(), QColor(Qt::magenta));

        QApplication::setPalette(before);
        QTRY_VERIFY(!look.isDark());
        QVERIFY(!look.reducedMotion());
    }

    void followsThePortal_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<int>("variants");
        QTest::newRow("first version") << "Read" << 2;
        QTest::newRow("second version") << "ReadOne" << 1;
    }

    void followsThePortal()
    {
        QFETCH(QString, method);
        QFETCH(int, variants);
        TestBus bus;
        QVERIFY(bus.start());
        const QString interface = "org.freedesktop.portal.Settings";
        const QString path = "/org/freedesktop/portal/desktop";
        BusMock portal("--session", "org.freedesktop.portal.Desktop", path);
        QVERIFY(portal.start({"org.freedesktop.portal.Desktop", path, interface}));
        const auto code =
            QString("v = {'color-scheme': dbus.UInt32(1, variant_level=%1),\n"
                    "     'accent-color': dbus.Struct((0.2, 0.4, 0.6), signature='ddd', "
                    "variant_level=%1),\n"
                    "     'enable-animations': dbus.Boolean(False, variant_level=%1)}\n"
                    "if args[1] not in v: raise dbus.exceptions.DBusException('none', "
                    "name='org.freedesktop.portal.Error.NotFound')\n"
                    "ret = v[args[1]]")
                .arg(variants);
        QVERIFY(portal.call("AddMethod", {interface, method, "ss", "v", code}));

        delete &Appearance::shared();
        Appearance &look = Appearance::shared();
        QTRY_VERIFY(look.isDark() && look.reducedMotion());
        QTRY_COMPARE(look.controlAccentColor().name(), "#336699");

        const auto set = [&](const QString &group, const QString &key, const QString &value) {
            return portal.call("EmitSignal",
                               {interface, "SettingChanged", "ssv",
                                "[<'" + group + "'>, <'" + key + "'>, <" + value + ">]"});
        };
        QVERIFY(set(kAppearanceGroup, "color-scheme", "uint32 2"));
        QTRY_VERIFY(!look.isDark());
        QVERIFY(set(kAppearanceGroup, "accent-color", "(1.0, 0.0, 0.0)"));
        QTRY_COMPARE(look.controlAccentColor(), QColor(Qt::red));
        QVERIFY(set(kAppearanceGroup, "accent-color", "(-1.0, 0.0, 0.0)"));
        QTRY_COMPARE(look.controlAccentColor(), QApplication::palette().color(QPalette::Highlight));
        QVERIFY(set(kAppearanceGroup, "accent-color", "(1.0, 0.0)"));
        QVERIFY(set(kAppearanceGroup, "reduced-motion", "uint32 0"));
        QTRY_VERIFY(!look.reducedMotion());
        delete &look;
    }
};

QTEST_MAIN(test_Appearance)
#include "test_Appearance.moc"
