#pragma once

#include "widgets/geometry_dialog.h"

#include <QList>

class GeoWeatherMap;
class QCheckBox;
class QLabel;

// Switches the intensity levels of the weather layer on and off, and shows how much of each there is. Works at once and
// stays open beside the picture.
class WeatherIntensityWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The layer must outlive the window.
    explicit WeatherIntensityWindow(GeoWeatherMap *weather, QWidget *parent = nullptr);

    // Shows the layer's state anew; to be called when its colours have changed.
    void refresh();

private:
    struct Level {
        QCheckBox *box = nullptr;
        QLabel *count = nullptr;
    };

    void addLevel(int level);
    void setAll(bool visible);

    GeoWeatherMap *m_weather;
    QList<Level> m_levels;
};
