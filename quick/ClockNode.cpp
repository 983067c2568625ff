// SPDX-License-Identifier: MIT
#include "quick/ClockNode.h"

#include "quick/FrameTiles.h"

#include <QQuickWindow>

namespace {

/// The device pixels \p place of a frame in points.
QRectF inPoints(const QRect &place, double ratio)
{
    return {QPointF(place.topLeft()) / ratio, QSizeF(place.size()) / ratio};
}

} // namespace

void ClockNode::show(FrameTiles &frame, const QPointF &origin)
{
    if (m_size != frame.size() || m_ratio != frame.ratio()) {
        while (QSGNode *child = firstChild()) {
            removeChildNode(child);
            delete child;
        }
        m_tiles.clear();
        m_hand.clear();
    }
    QMatrix4x4 toOrigin;
    toOrigin.translate(float(origin.x()), float(origin.y()));
    if (matrix() != toOrigin)
        setMatrix(toOrigin);
    m_size = frame.size();
    m_ratio = frame.ratio();
    layTiles(frame);
    layHand(frame);
    frame.forgetChanges();
}

void ClockNode::layTiles(const FrameTiles &frame)
{
    const bool isNew = m_tiles.empty();
    size_t i = 0;
    for (const QRect &place : frame.places()) {
        if (isNew) {
            m_tiles.push_back(makeImage());
            m_tiles.back()->setOwnsTexture(true);
            m_tiles.back()->setRect(inPoints(place, m_ratio));
        }
        if (isNew || frame.isChanged(place))
            m_tiles[i]->setTexture(textureOf(frame.tile(place)));
        append(m_tiles[i++]);
    }
}

void ClockNode::layHand(FrameTiles &frame)
{
    const HandStrips hand = frame.hand();
    std::unique_ptr<QSGTexture> texture(hand.strips.empty() ? nullptr : textureOf(hand.picture));
    while (m_hand.size() > hand.strips.size()) {
        removeChildNode(m_hand.back());
        delete m_hand.back();
        m_hand.pop_back();
    }
    while (m_hand.size() < hand.strips.size())
        m_hand.push_back(makeImage());
    for (size_t i = 0; i < m_hand.size(); ++i) {
        m_hand[i]->setTexture(texture.get());
        m_hand[i]->setRect(inPoints(hand.strips[i].place, m_ratio));
        m_hand[i]->setSourceRect(hand.strips[i].source);
        append(m_hand[i]);
    }
    m_handTexture = std::move(texture);
}

QSGImageNode *ClockNode::makeImage() const
{
    QSGImageNode *image = m_window.createImageNode();
    image->setFiltering(QSGTexture::Nearest);
    return image;
}

/// An image without a texture must not be in the scene.
void ClockNode::append(QSGImageNode *image)
{
    if (!image->parent())
        appendChildNode(image);
}

QSGTexture *ClockNode::textureOf(const QImage &picture) const
{
    return m_window.createTextureFromImage(picture, QQuickWindow::TextureIsOpaque);
}
