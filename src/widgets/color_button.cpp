#include "widgets/color_button.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

#include <utility>

ColorButton::ColorButton(const QString &chooserTitle, QWidget *parent)
    : QToolButton(parent), m_chooserTitle(chooserTitle)
{
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setFocusPolicy(Qt::StrongFocus);
    setIconSize(QSize(32, 16));
    connect(this, &QToolButton::clicked, this, &ColorButton::choose);
}

void ColorButton::setColor(const QColor &color)
{
    const bool other = color != std::exchange(m_color, color);
    QPixmap swatch(iconSize() * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setBrush(color);
    painter.fillRect(QRect(QPoint(0, 0), iconSize()), palette().color(QPalette::Base));
    painter.drawRect(QRectF(0.5, 0.5, iconSize().width() - 1.0, iconSize().height() - 1.0));
    painter.end();
    setIcon(QIcon(swatch));
    setText(color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb).toUpper());
    if (other) {
        Q_EMIT colorChanged(color);
    }
}

void ColorButton::choose()
{
    const QColor chosen = QColorDialog::getColor(m_color, this, m_chooserTitle,
        m_alphaShown ? QColorDialog::ShowAlphaChannel : QColorDialog::ColorDialogOptions());
    if (!chosen.isValid()) {
        return;
    }
    setColor(chosen);
    Q_EMIT colorChosen(chosen);
}
