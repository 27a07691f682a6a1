#include "view/svg_symbol.h"

#include <QPainter>
#include <QSvgRenderer>

SvgSymbol::SvgSymbol(const QString &resourcePath, const QSize &logicalSize, const QColor &color)
    : m_resourcePath(resourcePath), m_logicalSize(logicalSize), m_color(color)
{
}

void SvgSymbol::setLogicalSize(const QSize &size)
{
    m_logicalSize = size;
    m_pixmapRatio = 0.0;
}

void SvgSymbol::setColor(const QColor &color)
{
    m_color = color;
    m_pixmapRatio = 0.0;
}

const QPixmap &SvgSymbol::pixmap(double devicePixelRatio)
{
    if (m_pixmapRatio != devicePixelRatio) {
        m_pixmap = render(devicePixelRatio);
        m_pixmapRatio = devicePixelRatio;
    }
    return m_pixmap;
}

QPixmap SvgSymbol::render(double devicePixelRatio) const
{
    QSvgRenderer renderer(m_resourcePath);
    const QSize size = (QSizeF(m_logicalSize) * devicePixelRatio).toSize();
    if (!renderer.isValid() || size.isEmpty()) {
        return QPixmap();
    }
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(0, 0), size));
    // The drawing's own colour does not matter: only how much of each pixel it covers.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), m_color);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}
