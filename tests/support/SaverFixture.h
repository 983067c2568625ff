// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "prefs/PreferenceStores.h"
#include "saver/TamselClockSaverView.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <memory>

/// A saver view with its own settings folder and clocks. Settings are written to files, as another
/// process does it.
struct SaverFixture
{
    QTemporaryDir folder;
    platform::FixedClocks clocks{QDateTime(QDate(2026, 3, 14), QTime(12, 0)), 1000.0};
    PreferenceStores stores{folder.path(), QCoreApplication::applicationName()};

    platform::Desktop desktop() const
    {
        platform::Desktop desktop;
        desktop.clocks = &clocks;
        desktop.bundle = platform::Bundle(QStringLiteral(TAMSEL_TEST_BUNDLE));
        desktop.preferencesFolder = folder.path();
        return desktop;
    }

    std::unique_ptr<TamselClockSaverView> makeView(bool isPreview = true) const
    {
        auto view = std::make_unique<TamselClockSaverView>(desktop(), isPreview);
        view->resize(200, 200);
        return view;
    }

    static void set(const platform::PreferenceDomain &store, const QString &key,
                    const QVariant &value)
    {
        if (!store.setValue(key, value))
            qFatal("the test's store cannot be written");
    }

    void setNight(const QVariantMap &record) const { set(stores.suite, kNightSettingsKey, record); }

    void setTime(int hour, int minute)
    {
        clocks.setNow(QDateTime(QDate(2026, 3, 14), QTime(hour, minute)));
    }

    static QImage picture(TamselClockSaverView &view, double ratio = 1.0)
    {
        QImage image((QSizeF(view.size()) * ratio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        view.drawRect(painter, view.rect());
        return image;
    }
};
