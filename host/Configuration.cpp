// SPDX-License-Identifier: MIT
#include "host/Configuration.h"

#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileReplacement.h"
#include "saver/TamselClockSaverView.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>

#include <chrono>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr QLatin1StringView kComeToFront("org.tamsel.VornakClockSaver.configurationRequested");

/// The lock's file in \p folder, which is made if needed.
QString lockPath(const QString &folder)
{
    platform::makePrivateFolder(folder);
    return folder + "/configuration.lock"_L1;
}

void centre(QWidget &window)
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    const QRect area = (screen ? screen : window.screen())->availableGeometry();
    window.move(area.center() - window.rect().center());
}

void bringToFront(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

Configuration::Configuration(const platform::Desktop &desktop)
    : m_desktop(desktop),
      m_lock(lockPath(desktop.preferencesFolder), std::chrono::milliseconds::zero())
{
}

void Configuration::bringOtherToFront() const
{
    if (m_desktop.notifications)
        m_desktop.notifications->post(kComeToFront);
}

bool Configuration::run(TamselClockSaverView &view) const
{
    QWidget *sheet = view.configureSheet();
    sheet->setWindowTitle(QGuiApplication::applicationDisplayName());
    if (m_desktop.notifications)
        m_desktop.notifications->observe(kComeToFront, sheet, [sheet] { bringToFront(*sheet); });
    bool saved = false;
    QObject::connect(&view, &TamselClockSaverView::configurationEnded, sheet, [&](bool isSaved) {
        saved = isSaved;
        QCoreApplication::exit();
    });
    QApplication::setQuitOnLastWindowClosed(false);
    centre(*sheet);
    bringToFront(*sheet);
    QApplication::exec();
    return saved;
}

QImage pictureOfSheet(TamselClockSaverView &view, double scale)
{
    QWidget *sheet = view.configureSheet();
    auto *scroll = sheet->findChild<QScrollArea *>();
    sheet->resize(scroll->widget()->size());
    scroll->resize(sheet->size());
    sheet->show();
    QImage picture((QSizeF(sheet->size()) * scale).toSize(), QImage::Format_ARGB32);
    if (picture.isNull())
        return picture;
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    sheet->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

} // namespace host
