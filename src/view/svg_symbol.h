#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

// A one-colour drawing from an SVG resource as a pixmap of the wanted size and colour. GUI thread only.
class SvgSymbol {
public:
    // The size is in logical pixels.
    SvgSymbol(const QString &resourcePath, const QSize &logicalSize, const QColor &color);

    QSize logicalSize() const { return m_logicalSize; }
    void setLogicalSize(const QSize &size);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    // The rendered drawing, kept until size, colour or ratio change; it carries the ratio. Null when the resource
    // cannot be read.
    const QPixmap &pixmap(double devicePixelRatio);
    // Renders anew in any case.
    QPixmap render(double devicePixelRatio) const;

private:
    QString m_resourcePath;
    QSize m_logicalSize;
    QColor m_color;
    QPixmap m_pixmap;
    double m_pixmapRatio = 0.0; // 0 while nothing is kept
};
