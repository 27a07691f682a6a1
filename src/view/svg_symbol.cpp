#include "view/svg_symbol.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
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

void SvgSymbol::setLineWidth(double pixels)
{
    m_lineWidth = pixels;
    m_pixmapRatio = 0.0;
}

void SvgSymbol::setMargin(int pixels)
{
    m_margin = pixels;
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

QByteArray SvgSymbol::drawing() const
{
    QFile file(m_resourcePath);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QString text = QString::fromUtf8(file.readAll());
    if (m_lineWidth > 0.0 && !m_logicalSize.isEmpty()) {
        static const QRegularExpression Width(QStringLiteral("stroke-width=\"[^\"]*\""));
        const double unitsPerPixel = QSvgRenderer(text.toUtf8()).viewBoxF().width() / m_logicalSize.width();
        text.replace(Width, QStringLiteral("stroke-width=\"%1\"").arg(m_lineWidth * unitsPerPixel));
    }
    return text.toUtf8();
}

QPixmap SvgSymbol::render(double devicePixelRatio) const
{
    QSvgRenderer renderer(drawing());
    const QMarginsF margins(m_margin, m_margin, m_margin, m_margin);
    const QRectF area(QPointF(m_margin, m_margin) * devicePixelRatio, QSizeF(m_logicalSize) * devicePixelRatio);
    const QSize size = (QRectF(QPointF(), m_logicalSize).marginsAdded(margins).size() * devicePixelRatio).toSize();
    if (!renderer.isValid() || m_logicalSize.isEmpty() || size.isEmpty()) {
        return QPixmap();
    }
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, area);
    // The drawing's own colour does not matter: only how much of each pixel it covers.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), m_color);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}
