// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRectF>

#include <memory>

class QPainter;
class QSvgRenderer;

namespace platform {

/// A picture made of vectors: a cheap value, shared between its copies, null when there is no
/// picture. It is drawn from its shapes at every size, so it is crisp on a thumbnail and on a wall.
class SvgImage
{
public:
    SvgImage() = default;

    /// The picture in the file \p path; null when the file is missing, unreadable or not a picture.
    static SvgImage fromFile(const QString &path);
    /// The picture written in \p svg (UTF-8); null when it is not one.
    static SvgImage fromSvg(const QByteArray &svg);

    bool isNull() const { return !m_renderer; }

    /// Draws the whole picture into \p rect, source-over. A null image draws nothing.
    void draw(QPainter &painter, const QRectF &rect) const;

private:
    std::shared_ptr<QSvgRenderer> m_renderer;
};

} // namespace platform
