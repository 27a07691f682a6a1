#pragma once

#include "explanation/report_view.h"

#include <QWidget>

// The octets of a report: each as two hexadecimal digits over its eight bits, with some bits marked. Tells which bit
// the pointer is on.
class OctetView final : public QWidget {
    Q_OBJECT

public:
    explicit OctetView(QWidget *parent = nullptr);

    void setOctets(const QByteArray &octets);
    void setMarks(const QList<BitRange> &marks);
    const QList<BitRange> &marks() const { return m_marks; }

    // The bit at a place of the widget, from the first octet's most significant one; -1: none.
    int bitAt(const QPointF &place) const;
    // Where the bit is drawn.
    QRectF placeOfBit(int bit) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

Q_SIGNALS:
    // -1: none any more.
    void bitHovered(int bit);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int columns(int width) const;
    int rowsFor(int width) const;
    void measure();
    QRectF placeOfOctet(int octet) const;
    void paintOctet(QPainter &painter, int octet) const;
    bool isMarked(int bit) const;
    void noteHover(int bit);

    QByteArray m_octets;
    QList<BitRange> m_marks;
    int m_hoveredBit = -1;
    qreal m_cellWidth = 0.0; // pixels, with the gap behind it
    qreal m_cellHeight = 0.0;
    qreal m_textHeight = 0.0;
    qreal m_numberWidth = 0.0; // of the column that counts the octets
};
