#pragma once

#include "view/geo_view.h"

#include <QImage>
#include <QPainter>

// A picture of 400 by 400 pixels round a plane point, and questions about its pixels. The ground is black.
class PaintedView {
public:
    static constexpr int Size = 400;
    static constexpr QPoint Middle{Size / 2, Size / 2};

    explicit PaintedView(double metresPerPixel, const QPointF &center = {}, double rotation = 0.0)
    {
        QTransform toScreen = QTransform::fromTranslate(Middle.x(), Middle.y());
        toScreen.rotate(rotation);
        toScreen.scale(1.0 / metresPerPixel, -1.0 / metresPerPixel);
        toScreen.translate(-center.x(), -center.y());
        m_view = GeoView(toScreen, QSize(Size, Size));
    }

    const GeoView &view() const { return m_view; }
    const QImage &image() const { return m_image; }

    // The paint function gets the painter with the view's transform set.
    template <typename Paint>
    void paint(Paint &&paintFunction)
    {
        m_image = QImage(Size, Size, QImage::Format_ARGB32_Premultiplied);
        m_image.fill(Qt::black);
        QPainter painter(&m_image);
        painter.setWorldTransform(m_view.screenTransform());
        paintFunction(painter, m_view);
    }

    QColor at(const QPoint &pixel) const { return m_image.pixelColor(pixel); }
    bool inked(const QPoint &pixel) const { return m_image.rect().contains(pixel) && at(pixel) != QColor(Qt::black); }

    // Whether there is ink within two pixels of a place.
    bool inkedNear(const QPointF &place) const
    {
        const QRect reach(place.toPoint() - QPoint(2, 2), QSize(5, 5));
        return inkIn(reach) > 0;
    }

    int inkIn(const QRect &rect) const
    {
        int count = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                count += inked(QPoint(x, y));
            }
        }
        return count;
    }

    int ink() const { return inkIn(m_image.rect()); }

    int count(const QColor &color) const { return found(color).second; }

    // The smallest rectangle around every pixel of the very colour; empty without any.
    QRect extent(const QColor &color) const { return found(color).first; }

private:
    std::pair<QRect, int> found(const QColor &color) const
    {
        std::pair<QRect, int> result;
        for (int i = 0; i < Size * Size; ++i) {
            const QPoint pixel(i % Size, i / Size);
            if (at(pixel) == color) {
                result = {result.first | QRect(pixel, QSize(1, 1)), result.second + 1};
            }
        }
        return result;
    }

    GeoView m_view;
    QImage m_image;
};
