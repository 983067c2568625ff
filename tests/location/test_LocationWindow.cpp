// SPDX-License-Identifier: MIT
// The companion's window, used as a person would: by what its parts are called and by keys.
#include "location/LocationWindow.h"

#include "controls/Alert.h"
#include "controls/PushButton.h"
#include "location/ServiceFinder.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"
#include "tests/support/GeoClue.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using location::LocationWindow;

namespace {

constexpr QSize kScreen(1024, 600);
constexpr SolarLocation kHelsinki{60.1699, 24.9384};
constexpr SolarLocation kHelsinkiOfItsZone{60 + 10 / 60.0, 24 + 58 / 60.0};

template <typename T>
T *named(const QWidget &window, const QString &name)
{
    for (T *widget : window.findChildren<T *>()) {
        const QString text = widget->property("text").toString().remove(u'&');
        if (widget->accessibleName() == name || text == name)
            return widget;
    }
    qFatal("there is no %s", qUtf8Printable(name));
}

QLineEdit *fieldLabelled(const QWidget &window, const QString &label)
{
    return qobject_cast<QLineEdit *>(named<QLabel>(window, label)->buddy());
}

bool says(const QWidget &window, const QString &words)
{
    const auto labels = window.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
        return label->isVisible() && label->text().contains(words);
    });
}

QString library()
{
    return qEnvironmentVariable("HOME") + "/Library";
}

} // namespace

class test_LocationWindow : public QObject
{
    Q_OBJECT

public:
    /// Before the application object is made.
    static void initMain()
    {
        QFile screens(qEnvironmentVariable("TMPDIR") + "/screens.json");
        QVERIFY(screens.open(QFile::WriteOnly));
        screens.write(R"({"screens": [{"name": "small", "width": %1, "height": %2}]})"_ba
                          .replace("%1", QByteArray::number(kScreen.width()))
                          .replace("%2", QByteArray::number(kScreen.height())));
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    }

private Q_SLOTS:
    void initTestCase() { qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS")); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = {.clocks = &platform::systemClocks(),
                     .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                     .preferencesFolder = m_folder->path()};
        QDir(library()).removeRecursively();
        QFile::remove(library());
    }

    void suggestsTheCityOfTheTimeZone()
    {
        const auto window = open();
        QCOMPARE(window->choice(), kHelsinkiOfItsZone);
        QVERIFY(says(*window, u"Helsinki, Finland"_s));
        QVERIFY(says(*window, u"Today: sunrise"_s));
        QVERIFY(named<QPushButton>(*window, u"Save"_s)->isEnabled());
        QVERIFY(!SolarLocationStore(m_desktop).load());

        const auto nowhere = open(u"Etc/UTC"_s);
        QCOMPARE(nowhere->choice(), std::nullopt);
        QVERIFY(!named<QPushButton>(*nowhere, u"Save"_s)->isEnabled());
    }

    void beginsWithTheSavedPlace()
    {
        QVERIFY(SolarLocationStore(m_desktop).save({-33.87, 151.21}));
        const auto window = open();
        QCOMPARE(window->choice(), (SolarLocation{-33.87, 151.21}));
        QVERIFY(says(*window, u"Near Sydney, Australia"_s));
        QVERIFY(says(*window, u"by this computer's clock"_s));
        QVERIFY(!named<QPushButton>(*window, u"Save"_s)->isEnabled());
    }

    void searchedCityIsSavedByKeyboard()
    {
        const auto window = open();
        auto *search = named<QLineEdit>(*window, u"Search for a city or country"_s);
        QTest::keyClicks(search, u"brazil"_s);
        const auto found = m_cities.matching(u"brazil"_s);
        QCOMPARE(named<QListWidget>(*window, u"Cities"_s)->count(), int(found.size()));
        QTest::keyClick(search, Qt::Key_Down);
        QTest::keyClick(search, Qt::Key_Down);
        QCOMPARE(window->choice(), found[1].location);
        QTest::keyClick(search, Qt::Key_Return);
        QVERIFY(!SolarLocationStore(m_desktop).load());
        QTest::keyClick(window.get(), Qt::Key_Return);
        QCOMPARE(SolarLocationStore(m_desktop).load(), found[1].location);
        QVERIFY(says(*window, u"Saved."_s));
    }

    void typedCoordinatesAreChecked()
    {
        const auto window = open();
        auto *latitude = fieldLabelled(*window, u"Latitude"_s);
        auto *save = named<QPushButton>(*window, u"Save"_s);
        latitude->selectAll();
        QTest::keyClicks(latitude, u"91"_s);
        QCOMPARE(window->choice(), std::nullopt);
        QVERIFY(!save->isEnabled());
        QVERIFY(says(*window, u"from −90 to 90"_s));
        QVERIFY(!latitude->accessibleDescription().isEmpty());
        latitude->selectAll();
        QTest::keyClicks(latitude, u"78,22"_s);
        QCOMPARE(window->choice().value_or(SolarLocation()).latitude, 78.22);
        QVERIFY(!says(*window, u"from −90 to 90"_s));
        QVERIFY(save->isEnabled());
        QCOMPARE(named<QListWidget>(*window, u"Cities"_s)->currentRow(), -1);
    }

    void closingAsksForAChosenPlaceThatIsNotSaved()
    {
        const SolarLocationStore store(m_desktop);
        open()->reject(); // a suggestion is nobody's choice
        for (const auto &[answer, ends, saves] :
             {std::tuple(u"Save"_s, true, true), std::tuple(u"Don't save"_s, true, false),
              std::tuple(u"Cancel"_s, false, false)}) {
            const auto window = open();
            QTest::keyClicks(fieldLabelled(*window, u"Latitude"_s), u"1"_s);
            window->reject();
            const auto *question = window->findChild<Alert *>();
            QVERIFY(question);
            named<PushButton>(*question, answer)->click();
            QTRY_COMPARE(window->isVisible(), !ends);
            QCOMPARE(store.load().has_value(), saves);
            QVERIFY(store.forget());
        }
    }

    void tellsHowTheServiceAnswers_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("words");
        QTest::newRow("rejected") << u"rejected"_s << u"Access to your location was refused"_s;
        QTest::newRow("no agent") << u"no-agent"_s << u"does not give locations to programs"_s;
        QTest::newRow("good") << u"good"_s << u"Near Helsinki, Finland"_s;
    }

    void tellsHowTheServiceAnswers()
    {
        QFETCH(QString, answer);
        QFETCH(QString, words);
        GeoClue service;
        QVERIFY(service.answers(answer));
        const auto window = open();
        named<QPushButton>(*window, u"Find my location"_s)->click();
        QVERIFY(says(*window, u"Asking for your consent"_s));
        QTRY_VERIFY(says(*window, words));
        QCOMPARE(window->choice(), answer == "good"_L1 ? kHelsinki : kHelsinkiOfItsZone);
        QVERIFY(named<QPushButton>(*window, u"Find my location"_s));
        QVERIFY(!SolarLocationStore(m_desktop).load());
    }

    void tellsWhenSavingFails()
    {
        QFile inTheWay(library());
        QVERIFY(inTheWay.open(QFile::WriteOnly));
        const auto window = open();
        named<QPushButton>(*window, u"Save"_s)->click();
        QVERIFY(says(*window, u"cannot be changed: something else stands in its place."_s));
        QVERIFY(named<QPushButton>(*window, u"Save"_s)->isEnabled());
    }

    void hearsOfOtherPrograms()
    {
        // At once by the bus, else when it is in front again.
        for (const bool hasBus : {true, false}) {
            const SolarLocationStore other(m_desktop);
            QVERIFY(other.save(kHelsinki));
            platform::DistributedNotifications ours;
            platform::DistributedNotifications theirs;
            m_desktop.notifications = hasBus ? &ours : nullptr;
            const auto window = open();
            const auto *save = named<QPushButton>(*window, u"Save"_s);
            QVERIFY(!save->isEnabled());
            QVERIFY(other.save({-33.87, 151.21}));
            QWidget front;
            if (!hasBus) {
                front.show();
                front.activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(&front));
                window->activateWindow();
            }
            // Until the window listens, the bus has nobody to tell.
            QTRY_VERIFY(
                (hasBus ? theirs.post(QString(kSolarLocationChanged)) : void(), save->isEnabled()));
            QVERIFY(says(*window, u"Another program saved another place"_s));
            QCOMPARE(window->choice(), kHelsinki);
            m_desktop.notifications = nullptr;
        }
    }

    void everythingHasANameAndAPlaceInTheTabOrder()
    {
        const auto window = open();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        // The screen is lower than all that the window shows, and has room for its title.
        QCOMPARE(QRect(window->pos(), window->size()), QRect(292, 35, 440, kScreen.height() - 70));
        QStringList names;
        const QWidget *first = window->focusWidget();
        QWidget *widget = window->focusWidget();
        do {
            QCOMPARE(widget->visibleRegion().boundingRect(), widget->rect());
            names.append(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
            QTest::keyClick(widget, Qt::Key_Tab);
            widget = window->focusWidget();
        } while (widget != first && names.size() < 20);
        QCOMPARE(names,
                 (QStringList{u"Search for a city or country"_s, u"Cities"_s, u"Latitude"_s,
                              u"Longitude"_s, u"Close"_s, u"Save"_s, u"Find my location"_s}));
    }

private:
    std::unique_ptr<LocationWindow> open(const QString &zone = u"Europe/Helsinki"_s) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    platform::Desktop m_desktop;
    location::ZoneCities m_cities = location::ZoneCities::ofSystem();
};

std::unique_ptr<LocationWindow> test_LocationWindow::open(const QString &zone) const
{
    auto window = std::make_unique<LocationWindow>(m_desktop, m_cities, zone);
    window->show();
    return window;
}

QTEST_MAIN(test_LocationWindow)
#include "test_LocationWindow.moc"
