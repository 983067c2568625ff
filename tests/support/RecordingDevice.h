// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>

/// One filled path, in the coordinates of the device.
struct RecordedFill
{
    QPainterPath path;
    QColor color;

    QRectF bounds() const { return path.boundingRect(); }
};

/// A device that records the paths filled on it, in order and without rounding.
class RecordingDevice : public QPaintDevice
{
public:
    const QList<RecordedFill> &fills() const { return m_engine.fills; }
    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 10000;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 96;
        }
    }

private:
    struct Engine : QPaintEngine
    {
        Engine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState &now) override
        {
            toDevice = now.transform();
            color = now.brush().color();
        }
        void drawPath(const QPainterPath &path) override
        {
            fills.append({toDevice.map(path), color});
        }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}

        QTransform toDevice;
        QColor color;
        QList<RecordedFill> fills;
    };

    mutable Engine m_engine;
};
