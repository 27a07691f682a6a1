#pragma once

#include "silence/last_places.h"
#include "view/geo_layer.h"

#include <QColor>

#include <vector>

// Dim hollow marks where tracks were when everything fell silent, each with its name and the time of its last report,
// so that nobody takes the empty scope for an empty sky.
class GeoLastPlaceMap final : public GeoLayer {
    Q_OBJECT

public:
    explicit GeoLastPlaceMap(QObject *parent = nullptr);

    void setPlaces(const std::vector<LastPlace> &places);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::Tracks | SettingGroup::PlanView; }

private:
    struct Text {
        QPointF center; // pixels
        QString text;
    };

    void placeText(const QPointF &mark, const LastPlace &place, TextRoom &room);

    std::vector<LastPlace> m_places;
    std::vector<Text> m_texts; // of the frame
    QColor m_color;
    QColor m_ground;
};
