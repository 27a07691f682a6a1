#pragma once

#include <QMetaType>

// What did not reach the screen, or reached it late, since the program started.
struct DropStats {
    // Pictures that were replaced before the window took them.
    quint64 snapshots = 0;
    quint64 videoBatches = 0;
    quint64 weatherPictures = 0;
    quint64 emptyWeatherPictures = 0; // taken, but passed over because they held nothing
    // Largest delay of a live picture, from its own time of day to when the window took it; milliseconds.
    int weatherDelayMs = 0;
    int videoDelayMs = 0;
    quint64 placelessWeatherPictures = 0; // taken, but the sensor is no radar with a place
    quint64 plots = 0; // gone before they were taken, or before they had faded

    bool operator==(const DropStats &other) const = default;
};

Q_DECLARE_METATYPE(DropStats)
