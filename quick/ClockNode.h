// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSGImageNode>
#include <QSGNode>
#include <QSGTexture>

#include <memory>
#include <vector>

class FrameTiles;
class QQuickWindow;

/// The clock in a scene graph: a texture per tile of the frame, of which only those that changed
/// are made anew, and one for the second hand.
class ClockNode final : public QSGTransformNode
{
public:
    /// \p window is where the node will be shown.
    explicit ClockNode(QQuickWindow &window) : m_window(window) {}

    /// Shows \p frame, which has pictures, with its top-left corner at \p origin.
    void show(FrameTiles &frame, const QPointF &origin);

private:
    void layTiles(const FrameTiles &frame);
    void layHand(FrameTiles &frame);
    QSGImageNode *makeImage() const;
    void append(QSGImageNode *image);
    QSGTexture *textureOf(const QImage &picture) const;

    QQuickWindow &m_window;
    QSize m_size;
    double m_ratio = 0.0;
    std::vector<QSGImageNode *> m_tiles;
    std::vector<QSGImageNode *> m_hand;
    std::unique_ptr<QSGTexture> m_handTexture;
};
