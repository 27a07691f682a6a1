#pragma once

#include <QByteArray>
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

    // The width of its lines in logical pixels, however large it is drawn; 0, as at first: the drawing's own.
    void setLineWidth(double pixels);
    // Logical pixels of empty room that the pixmap has on each side besides the logical size, for lines that reach over
    // the drawing's edge; 0 at first.
    void setMargin(int pixels);

    // The rendered drawing, kept until size, colour or ratio change; it carries the ratio. Null when the resource
    // cannot be read.
    const QPixmap &pixmap(double devicePixelRatio);
    // Renders anew in any case.
    QPixmap render(double devicePixelRatio) const;

private:
    QByteArray drawing() const;

    QString m_resourcePath;
    QSize m_logicalSize;
    QColor m_color;
    double m_lineWidth = 0.0;
    int m_margin = 0;
    QPixmap m_pixmap;
    double m_pixmapRatio = 0.0; // 0 while nothing is kept
};
