#include "inspection/octet_view.h"

#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Margin = 6;
constexpr qreal BitWidth = 3.0; // with the gap behind it: whole pixels, or the bars blur
constexpr qreal BitHeight = 5.0;
constexpr qreal CellGap = 6.0;
constexpr qreal RowGap = 7.0;
constexpr int MarkAlpha = 90; // behind the digits
constexpr int ClearAlpha = 60; // of bits that are 0

} // namespace

OctetView::OctetView(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFont(figureFont());
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Octets of the report"));
    measure();
}

void OctetView::measure()
{
    const QFontMetricsF metrics(font());
    m_textHeight = std::ceil(metrics.height());
    m_cellWidth = std::max(8.0 * BitWidth, std::ceil(metrics.horizontalAdvance("00"))) + CellGap;
    m_cellHeight = m_textHeight + BitHeight + RowGap;
    m_numberWidth = std::ceil(metrics.horizontalAdvance("0000")) + 6.0;
    updateGeometry();
}

void OctetView::setOctets(const QByteArray &octets)
{
    if (m_octets != octets) {
        m_octets = octets;
        updateGeometry();
        update();
    }
}

void OctetView::setMarks(const QList<BitRange> &marks)
{
    if (m_marks != marks) {
        m_marks = marks;
        update();
    }
}

// A power of two, so that the count of octets at the left is easily added to.
int OctetView::columns(int width) const
{
    const int room = static_cast<int>((width - 2 * Margin - m_numberWidth) / m_cellWidth);
    return room >= 16 ? 16 : room >= 8 ? 8 : 4;
}

int OctetView::rowsFor(int width) const
{
    const int perRow = columns(width);
    return std::max(1, (static_cast<int>(m_octets.size()) + perRow - 1) / perRow);
}

QSize OctetView::sizeHint() const
{
    const int width = static_cast<int>(16 * m_cellWidth + m_numberWidth) + 2 * Margin;
    return {width, heightForWidth(width)};
}

QSize OctetView::minimumSizeHint() const
{
    const int width = static_cast<int>(8 * m_cellWidth + m_numberWidth) + 2 * Margin;
    return {width, static_cast<int>(m_cellHeight) + 2 * Margin};
}

int OctetView::heightForWidth(int width) const
{
    return static_cast<int>(rowsFor(width) * m_cellHeight) + 2 * Margin;
}

QRectF OctetView::placeOfOctet(int octet) const
{
    const int perRow = columns(width());
    return {Margin + m_numberWidth + (octet % perRow) * m_cellWidth, Margin + (octet / perRow) * m_cellHeight,
        m_cellWidth, m_cellHeight};
}

QRectF OctetView::placeOfBit(int bit) const
{
    const QRectF octet = placeOfOctet(bit / 8);
    return {octet.left() + (bit % 8) * BitWidth, octet.top() + m_textHeight, BitWidth - 1.0, BitHeight};
}

int OctetView::bitAt(const QPointF &place) const
{
    for (int octet = 0; octet < m_octets.size(); ++octet) {
        const QRectF cell = placeOfOctet(octet);
        if (cell.contains(place)) {
            const auto bit = static_cast<int>((place.x() - cell.left()) / BitWidth);
            return octet * 8 + std::clamp(bit, 0, 7);
        }
    }
    return -1;
}

bool OctetView::isMarked(int bit) const
{
    return std::any_of(m_marks.begin(), m_marks.end(), [bit](const BitRange &mark) { return mark.contains(bit); });
}

void OctetView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const int perRow = columns(width());
    for (int octet = 0; octet < m_octets.size(); ++octet) {
        if (octet % perRow == 0) {
            const QRectF cell = placeOfOctet(octet);
            painter.setPen(quietTextColor(palette()));
            painter.drawText(QRectF(Margin, cell.top(), m_numberWidth, m_textHeight), Qt::AlignLeft | Qt::AlignVCenter,
                QString("%1").arg(octet, 3));
        }
        paintOctet(painter, octet);
    }
}

// The digits over the bits: a digit has a mark behind it when one of its four bits does.
void OctetView::paintOctet(QPainter &painter, int octet) const
{
    const QRectF cell = placeOfOctet(octet);
    const QString digits = QString::fromLatin1(m_octets.mid(octet, 1).toHex()).toUpper();
    const qreal digitWidth = QFontMetricsF(font()).horizontalAdvance('0');
    const QColor mark = warningTextColor(palette()); // seen against base and text in every theme
    QColor faint = mark;
    faint.setAlpha(MarkAlpha);
    for (int nibble = 0; nibble < 2; ++nibble) {
        const QRectF place(cell.left() + nibble * digitWidth, cell.top(), digitWidth, m_textHeight);
        bool marked = false;
        for (int bit = octet * 8 + nibble * 4; bit < octet * 8 + nibble * 4 + 4; ++bit) {
            marked = marked || isMarked(bit);
        }
        if (marked) {
            painter.fillRect(place, faint);
        }
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(place, Qt::AlignCenter, digits.mid(nibble, 1));
    }
    for (int bit = octet * 8; bit < octet * 8 + 8; ++bit) {
        const QRectF place = placeOfBit(bit);
        const bool set = static_cast<unsigned char>(m_octets[octet]) >> (7 - bit % 8) & 1;
        const QColor color = isMarked(bit) ? mark : quietTextColor(palette());
        QColor fill = color;
        fill.setAlpha(set ? 255 : ClearAlpha);
        painter.fillRect(place, fill);
    }
}

void OctetView::noteHover(int bit)
{
    if (m_hoveredBit != bit) {
        m_hoveredBit = bit;
        Q_EMIT bitHovered(bit);
    }
}

void OctetView::mouseMoveEvent(QMouseEvent *event)
{
    noteHover(bitAt(event->position()));
}

void OctetView::leaveEvent(QEvent *)
{
    noteHover(-1);
}

void OctetView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        measure();
    }
}
