// SPDX-License-Identifier: MIT
// Mouse, wheel, keyboard and text input as a user gives them.
#include "controls/FocusRing.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "controls/ViewAlpha.h"
#include "platform/Clocks.h"

#include <QApplication>
#include <QFocusFrame>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

void turnWheel(QWidget *control, const QPoint &eighths)
{
    QWheelEvent event(control->rect().center(), control->mapToGlobal(control->rect().center()), {},
                      eighths, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(control, &event);
}

} // namespace

class TestControlInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(400, 200);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void focusRingIsForTheKeyboard()
    {
        TamselToggle first(platform::systemClocks(), m_window.get());
        TamselSwatchButton second(m_window.get());
        first.setGeometry(20, 20, 36, 16);
        second.setGeometry(80, 20, 28, 28);
        first.show();
        second.show();
        m_window->setFocus();
        QTest::keyClick(m_window.get(), Qt::Key_Tab);
        QVERIFY(first.hasFocus() && FocusRing::isShownAround(&first));
        QCOMPARE(m_window->findChild<QFocusFrame *>()->geometry(), QRect(17, 17, 42, 22));
        first.move(30, 40);
        QCOMPARE(m_window->findChild<QFocusFrame *>()->pos(), QPoint(27, 37));
        QTest::keyClick(&first, Qt::Key_Tab);
        QVERIFY(second.hasFocus() && !FocusRing::isShownAround(&first));
        QTest::mouseClick(&second, Qt::LeftButton);
        QVERIFY(!FocusRing::isShownAround(&second));
        QTest::keyClick(&second, Qt::Key_Space);
        QVERIFY(FocusRing::isShownAround(&second));
        second.hide();
        QVERIFY(!FocusRing::isShownAround(&second));
    }

    void sliderFollowsThePointer()
    {
        TamselGradientSlider slider(m_window.get());
        slider.setGeometry(20, 20, 280, 28);
        slider.show();
        QList<double> values;
        connect(&slider, &TamselGradientSlider::edited, this,
                [&] { values.append(slider.doubleValue()); });
        QTest::mousePress(&slider, Qt::LeftButton, {}, {14 + 63, 14});
        QTest::mouseMove(&slider, {14 + 126, 200}); // far below: still tracked
        QTest::mouseMove(&slider, {-50, 14});
        QTest::mouseMove(&slider, {900, 14});
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, {900, 14});
        QCOMPARE(values, (QList<double>{0.25, 0.5, 0, 1, 1}));
        QTest::mouseMove(&slider, {14, 14});
        QTest::mouseClick(&slider, Qt::RightButton, {}, {14, 14});
        QCOMPARE(values.size(), 5);
    }

    void sliderStepsByKeyAndWheel_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QPoint>("turn");
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        const QPoint still;
        QTest::newRow("up") << int(Qt::Key_Up) << still << 0.5 << 0.51;
        QTest::newRow("page down") << int(Qt::Key_PageDown) << still << 0.5 << 0.4;
        QTest::newRow("end") << int(Qt::Key_End) << still << 0.5 << 1.0;
        QTest::newRow("fine wheel down") << 0 << QPoint(0, -30) << 0.5 << 0.4975;
        QTest::newRow("wheel to the right") << 0 << QPoint(-240, 10) << 0.5 << 0.52;
    }

    void sliderStepsByKeyAndWheel()
    {
        QFETCH(int, key);
        QFETCH(QPoint, turn);
        QFETCH(double, from);
        TamselGradientSlider slider(m_window.get());
        slider.setGeometry(20, 20, 280, 28);
        slider.setLayoutDirection(Qt::RightToLeft); // a colour's scale is never mirrored
        slider.show();
        slider.setDoubleValue(from);
        const QSignalSpy edited(&slider, &TamselGradientSlider::edited);
        if (key != 0)
            QTest::keyClick(&slider, Qt::Key(key));
        else
            turnWheel(&slider, turn);
        QTEST(slider.doubleValue(), "to");
        QCOMPARE(edited.size(), 1);
    }

    void modeControlFades()
    {
        platform::FixedClocks clocks({}, 100.0);
        TamselModeControl control(clocks, m_window.get());
        const auto enabled = [&] { return control.buttons().at(0)->isEnabled(); };
        control.show();
        control.setVisible(false, true);
        QVERIFY(control.isVisible() && !enabled());
        clocks.advance(0.07);
        control.visibilityTimer().tick();
        QVERIFY(qAbs(alphaValue(&control) - (1 - 0.15625)) < 1e-9); // smoothstep of a quarter
        control.setVisible(true, true);                             // turns round where it is
        QVERIFY(enabled());
        QVERIFY(qAbs(alphaValue(&control) - (1 - 0.15625)) < 1e-9);
        control.setVisible(false, true);
        clocks.advance(0.28);
        control.visibilityTimer().tick();
        QVERIFY(control.isHidden() && !control.visibilityTimer().isRunning());
        control.setVisible(true, true);
        QVERIFY(control.isVisible());
        QCOMPARE(alphaValue(&control), 0.0);
    }

    /// Wherever the caret was put.
    void digitsReplaceAWholeNumber()
    {
        TimePicker picker(m_window.get());
        picker.setDisplayFormat(u"HH:mm"_s);
        picker.resize(picker.sizeHint());
        picker.setTime({7, 30});
        picker.show();
        picker.setFocus();
        picker.setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClick(&picker, Qt::Key_Up);
        QCOMPARE(picker.time(), QTime(8, 30));
        auto *editor = picker.findChild<QLineEdit *>();
        QTest::mouseClick(editor, Qt::LeftButton, {}, {editor->width() - 4, editor->height() / 2});
        QCoreApplication::processEvents();
        QTest::keyClicks(&picker, u"41"_s);
        QCOMPARE(picker.time(), QTime(8, 41));
        for (const auto key : {QKeySequence::MoveToEndOfLine, QKeySequence::SelectAll}) {
            QTest::keySequence(&picker, QKeySequence(key));
            QTest::keyClicks(&picker, u"05"_s);
        }
        QCOMPARE(picker.time(), QTime(5, 5));
    }

    void timesAreTypedInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QTime>("from");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QTime>("to");
        const QTime morning(6, 30);
        const QTime evening(21, 30);
        const auto row = [](const char *language, QTime from, const QString &typed, QTime to) {
            QTest::addRow("%s %s", language, qPrintable(typed)) << language << from << typed << to;
        };
        row("en_US", evening, u"12:00 AM"_s, {0, 0});
        row("en_US", morning, u"12:00 p.m."_s, {12, 0});
        row("en_US", evening, u"9:5 am"_s, {9, 5});
        row("en_US", evening, u"130a"_s, {1, 30}); // an hour of one digit, without a colon
        row("en_US", evening, u"0130"_s, {13, 30});
        row("ko_KR", evening, u"오전1015"_s, {10, 15});
        row("zh_TW", evening, u"1015上午"_s, {10, 15});
        row("sq_AL", morning, u"1015 e pas"_s, {22, 15});
        row("ar_EG", evening, u"١٠١٥ ص"_s, {10, 15});
        row("fr_CA", evening, u"1 h 15"_s, {1, 15});
        row("ff_SN", evening, u"𞥑𞥐𞥑𞥕"_s, {10, 15});
        row("ccp_BD", evening, u"𑄷𑄶𑄷𑄻AM"_s, {10, 15});
        row("bem_ZM", morning, u"1015a"_s, {22, 15}); // akasuba, and not AM
    }

    void timesAreTypedInEveryLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QTime, from);
        QFETCH(QString, typed);
        m_window->setLocale(QLocale(language));
        for (const bool isComposed : {false, true}) {
            TimePicker picker(m_window.get());
            QVERIFY(!picker.displayFormat().contains(u'B'));
            picker.setTime(from);
            picker.show();
            picker.setFocus();
            QTest::keySequence(&picker, QKeySequence(QKeySequence::SelectAll));
            const auto keys = isComposed ? QList<uint>() : typed.toUcs4();
            for (const char32_t sign : keys)
                QTest::sendKeyEvent(QTest::Click, &picker, Qt::Key_unknown,
                                    QString::fromUcs4(&sign, 1), {});
            QInputMethodEvent composed;
            composed.setCommitString(isComposed ? typed : QString());
            QCoreApplication::sendEvent(&picker, &composed);
            picker.clearFocus();
            QTEST(picker.time(), "to");
        }
    }

    void settingsWindowMovesByItsBackground()
    {
        TamselSettingsWindow window;
        window.resize(400, 482);
        window.move(50, 50);
        window.show();
        const auto drag = [&] {
            QTest::mousePress(&window, Qt::LeftButton, {}, {200, 10});
            QTest::mouseMove(&window, {230, 30});
            QTest::mouseRelease(&window, Qt::LeftButton, {}, {200, 10});
        };
        drag();
        QCOMPARE(window.pos(), QPoint(50, 50));
        window.setMovableByWindowBackground(true);
        drag();
        QCOMPARE(window.pos(), QPoint(80, 70));
    }

private:
    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(TestControlInput)
#include "test_ControlInput.moc"
