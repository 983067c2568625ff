// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRectF>

#include <memory>
#include <vector>

class QPainter;

namespace platform {

/// A vector picture: a cheap value, shared between its copies, null when there is no picture. It is
/// rasterised from its shapes at every size, so it is sharp at all sizes.
class SvgImage
{
public:
    SvgImage() = default;

    /// The picture in the file \p path; null when the file is missing, unreadable or not a picture.
    static SvgImage fromFile(const QString &path);
    /// The picture written in \p svg (UTF-8); null when it is not one.
    static SvgImage fromSvg(const QByteArray &svg);

    bool isNull() const { return !m_picture; }

    /// Draws the whole picture into \p rect, source-over. Nothing is drawn of a null image, nor
    /// into an empty rectangle.
    void draw(QPainter &painter, const QRectF &rect) const;

    /// Boxes that together cover all ink of the picture, accurate to about 1/50 of its side, in the
    /// unit square. Meant for narrow, upright ink, such as a hand. Computed on first use.
    const std::vector<QRectF> &inkBoxes() const;
    /// The same for ink all over the picture: the cells of a grid that contain ink, adjacent ones
    /// of a row joined to one box. From top to bottom, from left to right.
    const std::vector<QRectF> &inkCells() const;

    /// Whether both are copies of the same picture.
    bool operator==(const SvgImage &) const = default;

private:
    struct Picture;
    std::shared_ptr<Picture> m_picture;
};

} // namespace platform
