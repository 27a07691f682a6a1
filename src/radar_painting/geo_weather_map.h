#pragma once

#include "geo/geo_coordinate.h"
#include "processors/shown_cells.h"
#include "radar_painting/weather_shapes.h"
#include "view/geo_layer.h"
#include "view/sheet_picture.h"

#include <QColor>
#include <QList>
#include <QSharedPointer>

#include <array>
#include <functional>
#include <optional>

class Projector;
class SensorInfo;

// The newest weather picture of the radar: each vector a sector in the colour of its intensity level, the stronger over
// the weaker, all equally transparent; hatched where the level is switched off, so that nobody takes it for clear air.
// It goes when its validity ends. The drawn picture is kept until view, picture, colours or levels change.
class GeoWeatherMap final : public GeoLayer {
    Q_OBJECT

public:
    static constexpr int LevelCount = 8;

    // The projector must outlive the layer.
    explicit GeoWeatherMap(Projector *projector, QObject *parent = nullptr);

    void paint(QPainter &painter, const GeoView &view) override;
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::Weather; }

    // Levels are 0 to LevelCount - 1. A level without a valid colour is never shown; one that is not
    // visible is hatched.
    bool levelVisible(int level) const { return m_levelVisible[static_cast<std::size_t>(level)]; }
    QColor levelColor(int level) const { return m_colors.value(level); }
    // As it is drawn, filled or hatched; invalid without a colour.
    QColor drawnColor(int level) const;
    // Vectors of the level in the picture that is shown; 0 when it has expired.
    int vectorCount(int level) const;

    // The uppermost vector that is drawn over a place, plane metres; nothing where none is or the layer is hidden.
    std::optional<ShownWeather> vectorAt(const QPointF &place) const;

    // Pictures that were not taken, since the start: without vectors; and while the sensor was no radar with a place.
    quint64 emptyPictures() const { return m_emptyPictures; }
    quint64 placelessPictures() const { return m_placelessPictures; }

    // Shows what the other shows, of the same sensor, as long as it does.
    void takePictureOf(const GeoWeatherMap &other);

    // Replaces the steady clock, milliseconds from any start.
    void setClock(std::function<qint64()> clock);

public Q_SLOTS:
    // Pictures do not say whose they are: they are this sensor's, if it is a radar. Forgets the picture.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);
    // Shown until its validity ends. An empty one removes the one before, or is ignored when so configured.
    void setPicture(const WeatherProcessor::Picture &picture);
    void setLevelVisible(int level, bool visible);
    void clear();

Q_SIGNALS:
    // Another picture is shown, or none any more.
    void pictureChanged();

private:
    void setVectorWidth(double width, bool automatic);
    double drawnWidth() const;
    void makeShapes();
    void dropExpired();
    void drawShapes(QImage &picture, const GeoView &part) const;

    Projector *m_projector;
    std::function<qint64()> m_clock;
    GeoCoordinate m_site; // invalid without a radar

    QList<QColor> m_colors;
    std::array<bool, LevelCount> m_levelVisible;
    int m_opacity = 0; // 0 to 255
    qint64 m_validity = 0; // milliseconds
    double m_vectorWidth = 0.0; // degrees
    bool m_autoVectorWidth = false;
    bool m_ignoreEmpty = false;

    std::optional<WeatherProcessor::Picture> m_picture;
    qint64 m_pictureTime = 0;
    std::vector<WeatherShape> m_shapes;
    SheetPicture m_drawn; // of the shapes
    quint64 m_emptyPictures = 0;
    quint64 m_placelessPictures = 0;
};
