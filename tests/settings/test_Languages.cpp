// SPDX-License-Identifier: MIT
// No text of a window is cut or meets another control, in any language that there is a catalogue
// for.
#include "controls/Alert.h"
#include "location/LocationWindow.h"
#include "platform/Translations.h"
#include "prefs/NightSettings.h"
#include "prefs/Variants.h"
#include "saver/TamselScheduledSaverView.h"
#include "settings/TimeRows.h"
#include "tests/support/SheetFixture.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

using namespace Qt::StringLiterals;

void QApplication::beep()
{
    ++g_beeps;
}

namespace {

/// Where the text of \p label is drawn, in its parent.
QRect textOf(const QLabel &label)
{
    const Qt::Alignment alignment =
        QStyle::visualAlignment(label.layoutDirection(), label.alignment());
    const int flags = int(alignment) | (label.wordWrap() ? int(Qt::TextWordWrap) : 0);
    return label.fontMetrics()
        .boundingRect(label.rect(), flags, label.text().remove(u'&'))
        .translated(label.pos());
}

QString faultOf(const QLabel &label)
{
    const QRect text = textOf(label);
    const QRect frame = label.geometry().adjusted(-1, -1, 1, 1);
    if (!label.text().isEmpty() && !frame.contains(text))
        return u"'%1' is cut"_s.arg(label.text());
    for (const QWidget *other :
         label.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        const auto *otherLabel = qobject_cast<const QLabel *>(other);
        const QRect taken = otherLabel ? textOf(*otherLabel) : other->geometry();
        if (other != &label && other->isVisible() && !other->isWindow() && taken.intersects(text))
            return u"'%1' meets a %2"_s.arg(label.text(),
                                            QLatin1StringView(other->metaObject()->className()));
    }
    return {};
}

/// What is wrong with the texts of \p window, in the first place.
QString faultIn(const QWidget &window)
{
    for (const auto *label : window.findChildren<QLabel *>()) {
        if (!label->isVisible())
            continue;
        if (QString fault = faultOf(*label); !fault.isEmpty())
            return fault;
    }
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        const bool showsText =
            qobject_cast<const PushButton *>(button) || qobject_cast<const QPushButton *>(button);
        const bool isWhole = button->sizeHint().width() <= button->width() && button->x() >= 0 &&
                             button->geometry().right() < button->parentWidget()->width();
        if (showsText && button->isVisible() && !isWhole)
            return u"'%1' is cut"_s.arg(button->text());
    }
    for (const auto *field : window.findChildren<QLineEdit *>()) {
        const int width = field->fontMetrics().horizontalAdvance(field->placeholderText());
        if (width + field->height() / 2 > field->width())
            return u"'%1' is cut"_s.arg(field->placeholderText());
    }
    return {};
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(qputenv("LC_ALL", "C.UTF-8")); }

    void everyTextFits_data()
    {
        QTest::addColumn<QString>("language");
        const QDir catalogues(platform::Bundle::ofProgram().resourcesPath() + "/translations");
        const QStringList names = catalogues.entryList({u"*.qm"_s});
        QCOMPARE(names.size(), 11);
        for (const QString &name : names) {
            const QString language = name.chopped(3).section(u'_', 1);
            QTest::newRow(qUtf8Printable(language)) << language;
        }
    }

    void everyTextFits()
    {
        QFETCH(QString, language);
        platform::useLanguage(QLocale(language));
        const QString nothing;

        SheetFixture<TamselScheduledSaverView> f;
        f.setNight({{kNightEnabledKey, true}, {kNightFromModeKey, kNightSunsetMode}});
        QVERIFY(f.open());
        for (const QString &variant : popupVariants()) {
            f.chooseVariant(variant);
            QCOMPARE(faultIn(*f.window()), nothing);
        }
        TamselColorPopover popover;
        popover.showFor(f.sheet().nightSwitch, Qt::red);
        QCOMPARE(faultIn(*popover.view()), nothing);
        QVERIFY(f.view->optionsSheet()->timeRows()->askForMissingLocation());
        const auto *alert = f.window()->findChild<Alert *>();
        QCOMPARE(faultIn(*alert), nothing);
        QVERIFY(panelRect(alert, PanelOver::Window).width() <= f.window()->width());

        location::LocationWindow window(f.desktop(), location::ZoneCities::ofSystem(),
                                        u"Europe/Helsinki"_s);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(faultIn(window), nothing);
    }
};

QTEST_MAIN(TestLanguages)
#include "test_Languages.moc"
