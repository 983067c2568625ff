// SPDX-License-Identifier: MIT
// Geometry and colours of every control, measured from its pixels at scale 1 and 2.
#include "controls/Symbol.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselHSBColor.h"
#include "controls/TamselHex.h"
#include "controls/TamselHexField.h"
#include "controls/TamselInputFill.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselRainbowImage.h"
#include "controls/TamselSeparator.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselTimeInput.h"
#include "controls/TamselTimeMenu.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "tests/support/ControlPicture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using platform::Appearance;

namespace {

const QColor kClear(0, 0, 0, 0);
const QColor kOrange(0xE8, 0x5D, 0x25);

struct Probe
{
    double x;
    double y;
    QColor expected;
    /// Only at this scale; 0 is any.
    int scale = 0;
};

/// What one control in one state must look like.
struct Look
{
    const char *name;
    QSize size;
    std::function<QWidget *(QWidget *parent)> make;
    std::function<QList<Probe>(const Appearance &)> probes;
};

template <typename Control>
std::function<QWidget *(QWidget *)> made(std::function<void(Control &)> adjust = {})
{
    return [adjust](QWidget *parent) {
        auto *control = new Control(parent);
        if (adjust)
            adjust(*control);
        return control;
    };
}

QColor inputFill(const Appearance &look)
{
    return look.isDark() ? TamselHex(0x303030) : TamselHex(0xE8E8E8);
}

Look swatch(const char *name, const QColor &shown, bool ring,
            std::function<void(TamselSwatchButton &)> adjust)
{
    const auto probes = [=](const Appearance &look) {
        const QColor white = Qt::white;
        const QColor rim = composed(shown, withAlpha(look.isDark() ? white : Qt::black, 0.2));
        const QColor around = !ring ? kClear : (look.isDark() ? white : look.controlAccentColor());
        return QList<Probe>{{14, 14, shown},    {4.1, 14, rim},       {23.9, 14, rim},
                            {4.75, 14, rim, 1}, {4.75, 14, shown, 2}, {3.5, 14, kClear},
                            {2.1, 14, kClear},  {0.1, 0.1, kClear},   {1.2, 14, around},
                            {26.8, 14, around}, {14, 1.2, around},    {0.2, 14, kClear, 2}};
    };
    return {name, {28, 28}, made<TamselSwatchButton>(adjust), probes};
}

Look toggle(const char *name, bool on)
{
    const auto probes = [=](const Appearance &look) {
        const QColor off = withAlpha(look.labelColor(), 0.16);
        const QColor track = on ? look.controlAccentColor() : off;
        const double left = on ? 22 : 2;
        return QList<Probe>{{left + 6, 8, Qt::white},    {left + 0.6, 8, Qt::white},
                            {left + 11.4, 8, Qt::white}, {left - 1, 8, track},
                            {left + 12.6, 8, track},     {18, 0.2, track},
                            {18, 15.8, track},           {0.2, 0.2, kClear}};
    };
    return {name, {36, 16}, made<TamselToggle>([=](auto &it) { it.setChecked(on); }), probes};
}

Look slider(const char *name, int component, double value)
{
    const auto adjust = [=](TamselGradientSlider &it) {
        it.setComponent(component);
        it.setSelectedSaturation(1.0);
        it.setSelectedBrightness(1.0);
        it.setDoubleValue(value);
    };
    const auto probes = [=](const Appearance &) {
        TamselGradientSlider colors;
        adjust(colors);
        const double centre = value * 252 + 14;
        const double away = value < 0.5 ? 200.5 : 60.5;
        return QList<Probe>{{centre, 14, colors.colorAtValue(value)},
                            {centre - 12, 14, Qt::white},
                            {centre + 12, 14, Qt::white},
                            {centre, 2, Qt::white},
                            {away, 14, colors.colorAtValue((away - 1) / 278)},
                            {away, 1, kClear, 2},
                            {0.3, 14, kClear, 2},
                            {1.2, 3, kClear}};
    };
    return {name, {280, 28}, made<TamselGradientSlider>(adjust), probes};
}

enum class Touch { None, Hovered, Pressed };

Look timeMenu(const char *name, const QString &title, Touch touch)
{
    const double width = title.isEmpty() ? 20 : 90;
    const double height = title.isEmpty() ? 20 : 24;
    const auto adjust = [=](TamselTimeMenu &menu) {
        menu.setFont(platform::systemFont(13));
        menu.setText(title);
        menu.setDown(touch == Touch::Pressed);
        if (touch == Touch::Hovered) {
            QEnterEvent enters({1, 1}, {1, 1}, {1, 1});
            QCoreApplication::sendEvent(&menu, &enters);
        }
    };
    const auto probes = [=](const Appearance &look) {
        const QColor fill = inputFill(look);
        const QColor outside = touch != Touch::None && !title.isEmpty() ? fill : kClear;
        QList<Probe> points{{width - 10, height / 2 - 9.5, fill},
                            {width - 19.5, height / 2, fill},
                            {width - 19, height / 2 - 9, outside},
                            {width - 0.3, 0.3, kClear}};
        if (!title.isEmpty())
            points << Probe{2, 12, outside} << Probe{width - 26, 12, outside}
                   << Probe{width / 2, 0.5, outside};
        return points;
    };
    return {name, QSizeF(width, height).toSize(), made<TamselTimeMenu>(adjust), probes};
}

QList<Look> swatches()
{
    struct State
    {
        const char *name;
        bool checked;
        bool pickerCounts;
        bool pickerOpen;
        bool ring;
    };
    QList<Look> looks{swatch("swatch without a colour", Qt::black, false, nullptr)};
    for (const State &state :
         {State{"swatch", false, false, false, false},
          State{"swatch switched on", true, false, false, true},
          State{"swatch on, but its picker counts", true, true, false, false},
          State{"swatch with its picker open", false, true, true, true},
          State{"swatch whose picker does not count", false, false, true, false}})
        looks += swatch(state.name, kOrange, state.ring, [state](TamselSwatchButton &it) {
            it.setSwatchColor(kOrange);
            it.setCheckable(state.checked);
            it.setChecked(state.checked);
            it.setUsesPickerSelection(state.pickerCounts);
            it.setPickerActive(state.pickerOpen);
        });
    return looks;
}

/// A plain ground with corners of \p radius.
Look ground(const char *name, const QSize &size, double radius,
            const std::function<QWidget *(QWidget *)> &make,
            const std::function<QColor(const Appearance &)> &color)
{
    const auto probes = [=](const Appearance &look) {
        const QColor fill = color(look);
        const double w = size.width();
        const double h = size.height();
        const QColor corner = radius > 0 ? kClear : fill;
        return QList<Probe>{{w / 2, 0.2, fill},
                            {w / 2, h - 0.2, fill},
                            {0.2, h / 2, fill},
                            {w - 0.2, h / 2, fill},
                            {0.3, 0.3, corner},
                            {w - 0.3, h - 0.3, corner},
                            {0.42 * radius, 0.42 * radius, fill}};
    };
    return {name, size, make, probes};
}

QList<Look> grounds()
{
    const auto group = [](TamselSettingsView &it) {
        it.setGroup(true);
        it.setGroupRadius(12);
        it.setGroupContrast(0.2);
    };
    const QSize field(85, 24);
    return {ground("hex field", field, 6, made<TamselHexField>(), inputFill),
            ground("time input", field, 6, made<TamselTimeInput>(), inputFill),
            ground("symbol button", field, 6,
                   made<TamselSymbolButton>([](auto &it) { it.setRadius(6); }), inputFill),
            ground("mode control", {50, 24}, 6,
                   made<TamselModeControl>([](auto &it) { it.setInk(kOrange); }),
                   [](const Appearance &) { return withAlpha(kOrange, 0.1); }),
            ground("separator", {100, 1}, 0, made<TamselSeparator>(),
                   [](const Appearance &look) { return withAlpha(look.labelColor(), 0.05); }),
            ground("group", {100, 40}, 12, made<TamselSettingsView>(group),
                   [](const Appearance &look) { return withAlpha(look.labelColor(), 0.2); })};
}

const QList<Look> &allLooks()
{
    static const QList<Look> all =
        swatches() + grounds() +
        QList<Look>{toggle("toggle off", false),
                    toggle("toggle on", true),
                    slider("hue at the left end", 0, 0.0),
                    slider("saturation in the middle", 1, 0.5),
                    slider("brightness at the right end", 2, 1.0),
                    timeMenu("time menu, bare", {}, Touch::None),
                    timeMenu("time menu, bare, hovered", {}, Touch::Hovered),
                    timeMenu("time menu, bare, pressed", {}, Touch::Pressed),
                    timeMenu("time menu", u"Sunset"_s, Touch::None),
                    timeMenu("time menu, hovered", u"Sunset"_s, Touch::Hovered),
                    timeMenu("time menu, pressed", u"Sunset"_s, Touch::Pressed)};
    return all;
}

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
    void looks_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("scale");
        QTest::addColumn<bool>("dark");
        for (int index = 0; index < allLooks().size(); ++index)
            for (const int scale : {1, 2})
                for (const bool dark : {false, true})
                    QTest::addRow("%s, %s, scale %d", allLooks()[index].name,
                                  dark ? "dark" : "light", scale)
                        << index << scale << dark;
    }

    void looks()
    {
        QFETCH(int, index);
        QFETCH(int, scale);
        QFETCH(bool, dark);
        const Appearance appearance(dark ? Appearance::Scheme::Dark : Appearance::Scheme::Light);
        QWidget parent;
        setAppearanceOf(&parent, appearance);
        const Look &look = allLooks()[index];
        QWidget *control = look.make(&parent);
        control->resize(look.size);
        const QImage image = picture(control, scale);
        for (const Probe &probe : look.probes(appearance)) {
            if (probe.scale != 0 && probe.scale != scale)
                continue;
            const QColor found = pixelAt(image, probe.x, probe.y);
            const QString text = u"at %1, %2: %3 instead of %4"_s.arg(probe.x).arg(probe.y).arg(
                found.name(QColor::HexArgb), probe.expected.name(QColor::HexArgb));
            QVERIFY2(alike(found, probe.expected, 18), qPrintable(text));
        }
    }

    void rainbowFillsItsCircle()
    {
        TamselSwatchButton swatch;
        swatch.resize(28, 28);
        swatch.setRainbow(true);
        const QImage image = picture(&swatch, 2);
        QCOMPARE(pixelAt(image, 14, 14).alpha(), 255);
        QVERIFY(pixelAt(image, 14, 6).hsvSaturation() > 128);
        QVERIFY(!alike(pixelAt(image, 14, 6), pixelAt(image, 14, 22), 60));
        QCOMPARE(pixelAt(image, 3.2, 14).alpha(), 0);
        QCOMPARE(TamselRainbowImage().deviceIndependentSize(), QSizeF(20, 20));
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

    void modeControlShowsTheOtherSegmentPaler()
    {
        TamselModeControl control;
        control.resize(50, 24);
        control.setInk(Qt::black);
        const auto inkOf = [&](int segment) {
            return inkIn(picture(control.buttons().at(segment), 4));
        };
        const double sun = inkOf(0);
        const double moon = inkOf(1);
        control.setSelectedSegment(1);
        QVERIFY(std::abs(inkOf(0) / sun - 0.4) < 0.02);
        QVERIFY(std::abs(moon / inkOf(1) - 0.4) < 0.02);
    }

    void hexTextStandsInItsRectangle()
    {
        TamselHexField field;
        field.resize(85, 24);
        field.setFill(Qt::white);
        field.setText(u"#HHHHHH"_s);
        const QRectF text = field.textRect();
        QCOMPARE(text, QRectF(4, 4, 71, 16));
        for (const double scale : {1.0, 1.5, 2.0}) {
            const QRectF ink = darkInk(&field, scale);
            QVERIFY(text.contains(ink));
            QVERIFY2(text.right() - ink.right() < 2.1, qPrintable(QString::number(ink.right())));
            QVERIFY(std::abs(ink.center().y() - 12) < 1.1);
        }
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

    void timePickerKeepsInside()
    {
        QCOMPARE(timePickerFrame({85, 24}, {44.2, 19}), QRectF(32, 4, 45, 19));
        QCOMPARE(timePickerFrame({85, 24}, {40, 23}),
                 QRectF(37, 1, 40, 23)); // above the lower edge
        QCOMPARE(timePickerFrame({85, 24}, {200, 40}), QRectF(6, 0, 71, 24)); // too large
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

    void colorsOfTheSlider()
    {
        TamselGradientSlider slider;
        slider.setSelectedHue(1.0 / 3.0);
        slider.setSelectedSaturation(0.5);
        slider.setSelectedBrightness(0.5);
        QVERIFY(alike(slider.colorAtValue(2.0 / 3.0), Qt::blue, 1)); // hue ignores the colour
        slider.setComponent(1);
        QVERIFY(alike(slider.colorAtValue(1.0), QColor::fromRgbF(0, 0.5F, 0), 1));
        slider.setComponent(7); // anything else is brightness
        QVERIFY(alike(slider.colorAtValue(1.0), QColor::fromRgbF(0.5F, 1, 0.5F), 1));
        QCOMPARE(slider.colorAtValue(1.0).spec(), QColor::Rgb);
        for (const auto hue : {1.0, -1.0}) // red again, and beyond the range
            QCOMPARE(TamselHSBColor(hue, 2, 3).rgb(), QColor(Qt::red).rgb());
        QCOMPARE(TamselHex(0xFF8A1C2B), QColor(0x8A, 0x1C, 0x2B));
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
