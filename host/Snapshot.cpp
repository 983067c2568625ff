// SPDX-License-Identifier: MIT
#include "host/Snapshot.h"

#include "platform/ScreenSaverView.h"

#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace host {

QImage pictureOfFrame(platform::ScreenSaverView &view, const QSize &size, double scale)
{
    view.resize(size);
    QImage picture((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    QPainter painter(&picture);
    painter.scale(scale, scale);
    view.drawRect(painter, view.rect());
    return picture;
}

QString writePicture(const QImage &picture, const QString &file)
{
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly))
        return target.errorString();
    QImageWriter writer(&target, "png"_ba);
    if (!writer.write(picture))
        return writer.errorString();
    return target.commit() ? QString() : target.errorString();
}

} // namespace host
