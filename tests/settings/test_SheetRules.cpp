// SPDX-License-Identifier: MIT
#include "settings/SheetRules.h"

#include "controls/Emphasis.h"
#include "controls/TamselInputFill.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "tests/support/Contrast.h"
#include "tests/support/ControlPicture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using platform::Appearance;

class TestSheetRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inkCanBeReadOnItsGround()
    {
        QCOMPARE(inkForLuminance(0.5), QColor(Qt::white));
        QCOMPARE(inkForLuminance(0.5000001), QColor(Qt::black));
        QCOMPARE(luminance(QColor(Qt::white)), 1.0);
        QVERIFY(qAbs(luminance(QColor(255, 0, 0)) - 0.2126) < 1e-6);
        QVERIFY(qAbs(luminance(QColor(0, 255, 0)) - 0.7152) < 1e-6);
    }

    void textCanBeRead()
    {
        for (const auto scheme : {Appearance::Scheme::Light, Appearance::Scheme::Dark}) {
            const Appearance look(scheme);
            QWidget view;
            setAppearanceOf(&view, look);
            const QColor inputFill = TamselInputFill(&view);
            const QColor group =
                composed(look.windowBackgroundColor(), withAlpha(look.labelColor(), 0.03));
            const Emphasis emphasis = emphasisFrom(look.controlAccentColor());
            const std::pair<QColor, QColor> inksOnGrounds[] = {
                {look.labelColor(), group},
                {look.secondaryLabelColor(), group},
                {look.controlTextColor(), inputFill},
                {look.systemRedColor(), inputFill}, // an end time that is refused
                {emphasis.ink, emphasis.fill}};
            for (const auto &[ink, on] : inksOnGrounds)
                QVERIFY2(contrast(ink, on) >= 4.5, qPrintable(ink.name() + u" on "_s + on.name()));
        }
    }
};

QTEST_MAIN(TestSheetRules)
#include "test_SheetRules.moc"
