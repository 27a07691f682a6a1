#pragma once

#include "maps/map_style_sheet.h"

#include <QWidget>

// A small picture of an area, a line, a symbol and a label in one style.
class MapStylePreview final : public QWidget {
    Q_OBJECT

public:
    explicit MapStylePreview(QWidget *parent = nullptr);

    void setStyle(const MapStyleClass &style);
    // Of the plan view.
    void setGround(const QColor &color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    MapStyleClass m_style;
    QColor m_ground = QColor(0x20, 0x24, 0x28);
};
