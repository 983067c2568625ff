// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRectF>

#include <memory>
#include <vector>

class QPainter;

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

    bool isNull() const { return !m_picture; }

    /// Draws the whole picture into \p rect, source-over. Nothing is drawn of a null image, nor
    /// into an empty rectangle.
    void draw(QPainter &painter, const QRectF &rect) const;

    /// Boxes that together cover all ink of the picture, tight to about 1/50 of its side, in a
    /// unit square. Meant for a slender picture whose ink stands upright. Found when first asked
    /// for.
    const std::vector<QRectF> &inkBoxes() const;
    /// The same for ink that is scattered over the picture: the cells of a grid that have some,
    /// those side by side in one box. From top to bottom, from left to right.
    const std::vector<QRectF> &inkCells() const;

    /// Whether both are copies of the same picture.
    bool operator==(const SvgImage &) const = default;

private:
    struct Picture;
    std::shared_ptr<Picture> m_picture;
};

} // namespace platform
