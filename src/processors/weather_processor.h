#pragma once

#include <QList>
#include <QMetaType>

// Weather as a monoradar sends it (CAT008): for now the picture that the engine hands to the display; nothing makes
// such pictures yet.
class WeatherProcessor {
public:
    // One stretch along one azimuth where the precipitation has one intensity.
    struct PolarVector {
        int intensity = 0; // 0 to 7
        double startRange = 0.0; // nautical miles from the radar
        double endRange = 0.0;
        double azimuth = 0.0; // degrees clockwise from north
    };

    struct Picture {
        double timeOfDay = -1.0; // seconds since midnight UTC; -1.0 when the picture's start carried none
        QList<PolarVector> vectors;
    };
};

Q_DECLARE_METATYPE(WeatherProcessor::Picture)
