// SPDX-License-Identifier: MIT
// Texts, and edges that tell what can be used, stand out from what is around them on screen.
#include "tests/support/Contrast.h"

#include "controls/Alert.h"
#include "controls/Popover.h"
#include "controls/TamselGradientSlider.h"
#include "location/LocationWindow.h"
#include "platform/Appearance.h"
#include "prefs/NightSettings.h"
#include "saver/TamselScheduledSaverView.h"
#include "settings/TimeRows.h"
#include "tests/support/ControlPicture.h"
#include "tests/support/SheetFixture.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;
using platform::Appearance;

void QApplication::beep()
{
    ++g_beeps;
}

namespace {

constexpr double kScale = 3.0; // stems of letters have whole pixels
constexpr int kReach = 4;      // of a focus ring around its control

QImage shot(QWidget &window)
{
    QImage image(window.size() * kScale, QImage::Format_RGB32);
    image.setDevicePixelRatio(kScale);
    image.fill(Appearance::shared().windowBackgroundColor());
    window.render(&image);
    return image;
}

/// Of the text in \p area against the colour that most of it has.
double textContrast(const QImage &image, const QRect &area)
{
    const QImage part = image.copy(QRect(area.topLeft() * kScale, area.size() * kScale));
    QMap<QRgb, int> counts;
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            ++counts[part.pixel(x, y)];
    const QColor ground(std::ranges::max_element(counts).key());
    double best = 1.0;
    for (const QRgb colour : counts.keys())
        best = std::max(best, contrast(colour, ground));
    return best;
}

/// Of what is seen within \p reach of the left side of \p area against what is outside.
double edgeContrast(const QImage &image, const QRect &area, double reach)
{
    const double y = area.center().y() + 0.5;
    const QColor ground = pixelAt(image, area.left() - reach - 0.5, y);
    double best = 1.0;
    for (double x = -reach; x < 2.0; x += 1.0 / kScale)
        best = std::max(best, contrast(ground, pixelAt(image, area.left() + x, y)));
    return best;
}

bool hasEdge(const QWidget &view)
{
    const auto *button = qobject_cast<const PushButton *>(&view);
    const bool hasOwnFill = button && button->text() == u"Color Picker"_s;
    const bool isField = view.inherits("QLineEdit") && !view.inherits("TamselHexField") &&
                         !view.parent()->inherits("TimePicker");
    return (button && !hasOwnFill) || isField || view.inherits("QPushButton") ||
           view.inherits("QListWidget") || view.inherits("TamselToggle") ||
           view.inherits("TamselGradientSlider");
}

/// What in \p window cannot be seen.
QStringList faultsIn(QWidget &window)
{
    QStringList faults;
    const QImage image = shot(window);
    for (auto *view : window.findChildren<QWidget *>()) {
        const QRect area(view->mapTo(&window, QPoint()), view->size());
        if (!view->isVisible() || view->window() != &window || !window.rect().contains(area))
            continue;
        const QString text = view->property("text").toString();
        const auto check = [&](const char *what, double measured, double needed) {
            if (measured < needed)
                faults.append(u"%1 of %2 '%3': %4"_s.arg(
                    QLatin1StringView(what), QLatin1StringView(view->metaObject()->className()),
                    text.isEmpty() ? view->accessibleName() : text, QString::number(measured)));
        };
        if (!text.isEmpty())
            check("text", textContrast(image, area.marginsRemoved({3, 3, 3, 3})), 4.5);
        if (hasEdge(*view))
            check("edge", edgeContrast(image, area, 1.0), 3.0);
        if (view->inherits("TamselToggle")) {
            view->setFocus(Qt::TabFocusReason);
            check("ring", edgeContrast(shot(window), area, kReach), 3.0);
        }
    }
    return faults;
}

} // namespace

class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allStandsOut_data()
    {
        QTest::addColumn<Appearance::Scheme>("scheme");
        QTest::newRow("light") << Appearance::Scheme::Light;
        QTest::newRow("dark") << Appearance::Scheme::Dark;
    }

    void allStandsOut()
    {
        QFETCH(Appearance::Scheme, scheme);
        Appearance::shared().setForcedScheme(scheme);
        SheetFixture<TamselScheduledSaverView> f;
        f.setNight({{kNightEnabledKey, true}, {kNightFromModeKey, kNightSunsetMode}});
        QVERIFY(f.open());
        QCOMPARE(faultsIn(*f.window()), QStringList());
        TamselColorPopover colors;
        colors.showFor(f.sheet().nightSwitch, Qt::white);
        QCOMPARE(faultsIn(*colors.popover()), QStringList());
        QVERIFY(f.view->optionsSheet()->timeRows()->askForMissingLocation());
        QCOMPARE(faultsIn(*f.window()->findChild<Alert *>()), QStringList());

        location::LocationWindow window(f.desktop(), location::ZoneCities::ofSystem(),
                                        u"Europe/Helsinki"_s);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(faultsIn(window), QStringList());
        const auto *list = window.findChild<QListWidget *>();
        const QRect row = list->visualItemRect(list->currentItem());
        QVERIFY(textContrast(shot(*list->viewport()), row) >= 4.5);
    }
};

QTEST_MAIN(TestContrast)
#include "test_Contrast.moc"
