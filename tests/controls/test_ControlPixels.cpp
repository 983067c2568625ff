// SPDX-License-Identifier: MIT
// What the controls tell by their pixels.
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselHex.h"
#include "controls/TamselHexField.h"
#include "controls/TamselInputFill.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselSymbolButton.h"
#include "controls/TamselTimeInput.h"
#include "controls/TamselTimeMenu.h"
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "tests/support/ControlPicture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using platform::Appearance;

namespace {

const QColor kOrange(0xE8, 0x5D, 0x25);

/// The sum of all alpha: how much ink there is.
double inkIn(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += image.pixelColor(x, y).alphaF();
    return sum;
}

QRectF darkInk(QWidget *view, double scale)
{
    return boundsOf(picture(view, scale),
                    [](const QColor &it) { return it.alpha() > 200 && it.lightness() < 160; });
}

struct PaintCounter : QObject
{
    explicit PaintCounter(QObject *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

} // namespace

class TestControlPixels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRingTellsWhatIsSelected_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("pickerCounts");
        QTest::addColumn<bool>("pickerOpen");
        QTest::addColumn<bool>("ring");
        QTest::newRow("off") << false << false << false << false;
        QTest::newRow("on") << true << false << false << true;
        QTest::newRow("on, but its picker counts") << true << true << false << false;
        QTest::newRow("picker open") << false << true << true << true;
    }

    void theRingTellsWhatIsSelected()
    {
        QFETCH(bool, checked);
        QFETCH(bool, pickerCounts);
        QFETCH(bool, pickerOpen);
        QFETCH(bool, ring);
        for (const auto scheme : {Appearance::Scheme::Light, Appearance::Scheme::Dark}) {
            const Appearance look(scheme);
            TamselSwatchButton swatch;
            setAppearanceOf(&swatch, look);
            swatch.resize(28, 28);
            swatch.setSwatchColor(kOrange);
            swatch.setCheckable(checked);
            swatch.setChecked(checked);
            swatch.setUsesPickerSelection(pickerCounts);
            swatch.setPickerActive(pickerOpen);
            const QImage image = picture(&swatch, 2);
            QVERIFY(alike(pixelAt(image, 14, 14), kOrange));
            QCOMPARE(pixelAt(image, 2.6, 14).alpha(), 0); // the gap between both
            for (const QPointF at : {QPointF(1.2, 14), QPointF(26.8, 14), QPointF(14, 1.2)})
                QCOMPARE(pixelAt(image, at.x(), at.y()).alpha() > 200, ring);
        }
    }

    void theKnobStandsOnTheColourItChooses()
    {
        const QColor colors[][3] = {
            {Qt::red, Qt::cyan, Qt::red}, // hue
            {QColor(128, 128, 128), QColor(64, 128, 128), QColor(0, 128, 128)},
            {Qt::black, QColor(64, 128, 128), QColor(128, 255, 255)}};
        for (int component = 0; component < 3; ++component) {
            for (int step = 0; step < 3; ++step) {
                TamselGradientSlider slider;
                slider.resize(280, 28);
                slider.setComponent(component);
                slider.setSelectedHue(0.5);
                slider.setSelectedSaturation(component == 0 ? 1.0 : 0.5);
                slider.setSelectedBrightness(component == 0 ? 1.0 : 0.5);
                slider.setDoubleValue(step / 2.0);
                const QImage image = picture(&slider, 2);
                const double centre = 14 + 126 * step;
                QVERIFY(alike(pixelAt(image, centre, 14), colors[component][step], 18));
                QVERIFY(alike(pixelAt(image, centre - 12, 14), Qt::white));
                QVERIFY(alike(pixelAt(image, 77.5, 14), slider.colorAtValue(76.5 / 278), 18));
            }
        }
    }

    void aTitledMenuFillsUnderThePointer()
    {
        QWidget window;
        window.resize(200, 60);
        TamselTimeMenu menu(&window);
        menu.setText(u"Sunset"_s);
        menu.setHoverInk(Qt::red);
        menu.setGeometry(20, 20, 90, 24);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (const bool inside : {false, true, false}) {
            QTest::mouseMove(window.windowHandle(), inside ? QPoint(30, 30) : QPoint(150, 10));
            QCOMPARE(pixelAt(picture(&menu, 1), 2, 12).alpha() > 0, inside);
            QCOMPARE(menu.displayInk() == QColor(Qt::red), inside);
        }
    }

    void symbolsAreTintedCentredAndWeighted()
    {
        QVERIFY(Symbol::named(u"no.such.symbol"_s, 13).isNull());
        for (const QString &name : {u"sun.max.fill"_s, u"moon.fill"_s, u"chevron.up.chevron.down"_s,
                                    u"arrow.up.arrow.down"_s, u"eyedropper"_s}) {
            TamselSymbolButton button;
            button.resize(24, 24);
            button.setFill(Qt::transparent);
            button.setInk(QColor(200, 40, 10, 128));
            button.setImage(Symbol::named(name, 13));
            const QImage image = picture(&button, 4);
            const QRectF ink = boundsOf(image, [](const QColor &it) { return it.alpha() > 60; });
            QVERIFY2(QLineF(ink.center(), QPointF(12, 12)).length() < 0.8, qPrintable(name));
            QVERIFY(ink.height() > 9 && ink.height() < 16); // beside capitals of 9.5 points
            // Overlapping parts must not add up.
            QVERIFY(boundsOf(image, [](const QColor &it) { return it.alpha() > 131; }).isNull());

            button.setDown(true);
            QVERIFY(std::abs(inkIn(picture(&button, 4)) / inkIn(image) - 0.6) < 0.02);
            button.setDown(false);
            button.setImage(Symbol::named(name, 13, QFont::DemiBold));
            QVERIFY(inkIn(picture(&button, 4)) > 1.02 * inkIn(image));
        }
    }

    void textStandsInTheMiddle()
    {
        const Appearance light(Appearance::Scheme::Light);
        QWidget parent;
        setAppearanceOf(&parent, light);
        auto *field = new TamselHexField(&parent);
        field->setText(u"#HHHHHH"_s);
        auto *menu = new TamselTimeMenu(&parent);
        menu->setText(u"HH"_s);
        for (QWidget *control : {static_cast<QWidget *>(field), static_cast<QWidget *>(menu),
                                 static_cast<QWidget *>(new PushButton(u"HH"_s, &parent))}) {
            control->resize(85, 24);
            for (const double scale : {1.0, 1.5, 2.0})
                QVERIFY(std::abs(darkInk(control, scale).center().y() - 12) < 1.1);
        }
        QVERIFY(field->textRect().right() - darkInk(field, 2).right() < 2.1);
    }

    void hexTextDoesNotJumpWhenEdited()
    {
        QWidget window;
        window.resize(200, 60);
        TamselHexField field(&window);
        TamselHexField other(&window);
        field.setGeometry(10, 10, 85, 24);
        field.setText(u"#8A1C2B"_s);
        window.show();
        window.activateWindow();
        other.setFocus();
        QTRY_VERIFY(other.hasFocus());
        const QRect besideCaret(0, 0, 74, 24);
        const QImage resting = picture(&field, 1).copy(besideCaret);
        field.setFocus();
        field.end(false);
        QVERIFY(field.hasFocus());
        QCOMPARE(picture(&field, 1).copy(besideCaret), resting);
    }

    void inputsShareOneBaselineAndEdge()
    {
        const Appearance light(Appearance::Scheme::Light);
        QWidget parent;
        setAppearanceOf(&parent, light);
        TamselHexField field(&parent);
        field.resize(85, 24);
        field.setText(u"08:00"_s);
        TamselTimeInput input(&parent);
        input.resize(85, 24);
        auto *picker = new TimePicker(&input);
        picker->setDisplayFormat(u"HH:mm"_s);
        picker->setTime({8, 0});
        input.setPicker(picker);
        input.alignPicker();
        QCOMPARE(darkInk(&input, 1).bottom(), darkInk(&field, 1).bottom());
        QVERIFY(std::abs(darkInk(&input, 1).right() - darkInk(&field, 1).right()) <= 1);
    }

    void appearanceChangesAtOnce()
    {
        Appearance appearance(Appearance::Scheme::Light);
        QWidget window;
        window.resize(200, 60);
        setAppearanceOf(&window, appearance);
        TamselHexField field(&window);
        TamselSwatchButton swatch(&window);
        swatch.setGeometry(100, 10, 28, 28);
        QCOMPARE(TamselInputFill(&field), TamselHex(0xE8E8E8));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        PaintCounter painted(&swatch);
        appearance.setForcedScheme(Appearance::Scheme::Dark);
        QCOMPARE(TamselInputFill(&field), TamselHex(0x303030));
        QCOMPARE(field.palette().color(QPalette::Text), appearance.controlTextColor());
        QTRY_VERIFY(painted.count > 0);
    }
};

QTEST_MAIN(TestControlPixels)
#include "test_ControlPixels.moc"
