#pragma once

#include "view/geo_layer.h"
#include "view/geo_view.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

// A screen on which a layer is painted as the terminal does it.
class BenchScreen {
public:
    explicit BenchScreen(const QSize &size) : m_image(size, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(QColor(20, 24, 28));
    }

    QSize size() const { return m_image.size(); }
    QRectF planeRect() const { return m_toScreen.inverted().mapRect(QRectF(m_image.rect())); }

    // The plane point (metres) comes to the middle.
    void lookAt(const QPointF &center, double metresPerPixel, double rotation = 0.0)
    {
        m_toScreen = QTransform::fromTranslate(size().width() / 2.0, size().height() / 2.0);
        m_toScreen.rotate(rotation);
        m_toScreen.scale(1.0 / metresPerPixel, -1.0 / metresPerPixel);
        m_toScreen.translate(-center.x(), -center.y());
    }

    void pan(double pixels) { m_toScreen *= QTransform::fromTranslate(pixels, 0.0); }

    GeoView view() const { return GeoView(m_toScreen, size()); }

    void paint(GeoLayer &layer)
    {
        QPainter painter(&m_image);
        painter.setWorldTransform(m_toScreen);
        layer.paint(painter, view());
    }

private:
    QTransform m_toScreen;
    QImage m_image;
};

// To and fro by so many pixels; by a part of one nothing of the picture can be kept.
template <typename Scope>
void paintPanned(benchmark::State &state, Scope &scope, double pixels)
{
    for (auto _ : state) {
        scope.pan(pixels);
        pixels = -pixels;
        scope.paint();
    }
}
