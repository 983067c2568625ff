// SPDX-License-Identifier: MIT
#include "platform/SolidShapes.h"

#include "platform/SvgImage.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

namespace platform {

namespace {

/// Writes down what is drawn instead of drawing it.
class ShapeRecorder final : public QPaintEngine
{
public:
    ShapeRecorder() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}

    void drawPath(const QPainterPath &path) override
    {
        const QPainter &p = *painter();
        const QBrush &brush = p.brush();
        if (p.pen().style() != Qt::NoPen || brush.style() != Qt::SolidPattern ||
            !brush.isOpaque() || p.opacity() < 1.0 || p.hasClipping())
            m_isSolid = false;
        m_shapes.push_back({p.transform().map(path), brush.color().rgb()});
    }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        drawPath(path);
    }

    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { m_isSolid = false; }
    void drawImage(const QRectF &, const QImage &, const QRectF &,
                   Qt::ImageConversionFlags) override
    {
        m_isSolid = false;
    }
    void drawTextItem(const QPointF &, const QTextItem &) override { m_isSolid = false; }

    std::optional<std::vector<SolidShape>> shapes() const
    {
        return m_isSolid ? std::optional(m_shapes) : std::nullopt;
    }

private:
    std::vector<SolidShape> m_shapes;
    bool m_isSolid = true;
};

class RecordingDevice final : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &m_recorder; }
    const ShapeRecorder &recorder() const { return m_recorder; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 1;
        }
    }

private:
    mutable ShapeRecorder m_recorder;
};

} // namespace

std::optional<std::vector<SolidShape>> solidShapes(const SvgImage &image)
{
    RecordingDevice device;
    QPainter painter(&device);
    image.draw(painter, QRectF(0, 0, 1, 1));
    painter.end();
    return device.recorder().shapes();
}

} // namespace platform
