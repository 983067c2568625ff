// SPDX-License-Identifier: MIT
#include "host/Configuration.h"

#include "platform/SingleWindow.h"
#include "saver/TamselClockSaverView.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>

namespace host {

namespace {

void centre(QWidget &window)
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    const QRect area = (screen ? screen : window.screen())->availableGeometry();
    window.move(area.center() - window.rect().center());
}

} // namespace

bool runSheet(TamselClockSaverView &view, const platform::SingleWindow &single)
{
    QWidget *sheet = view.configureSheet();
    sheet->setWindowTitle(QGuiApplication::applicationDisplayName());
    bool saved = false;
    QObject::connect(&view, &TamselClockSaverView::configurationEnded, sheet, [&](bool isSaved) {
        saved = isSaved;
        QCoreApplication::exit();
    });
    QApplication::setQuitOnLastWindowClosed(false);
    centre(*sheet);
    single.present(*sheet);
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
