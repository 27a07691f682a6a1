#pragma once

#include <QList>
#include <QMetaType>

// Radar video (CAT240): for now the radial that the engine gathers for the display; nothing makes radials yet.
class VideoProcessor {
public:
    // One antenna direction with its row of range cells.
    struct Radial {
        quint8 sac = 0; // 0 when the record names no source
        quint8 sic = 0;
        double timeOfDay = -1.0; // seconds since midnight UTC, -1.0 when absent
        double startAzimuth = 0.0; // degrees clockwise from north
        double endAzimuth = 0.0; // below the start azimuth: the radial crosses north
        double cellSize = 0.0; // extent of one cell in range, as the decoding library gives it
        quint32 startCell = 0; // index of the first cell along the range
        quint32 cellCount = 0;
        quint16 videoMode = 0; // a change of it starts a new picture
        QList<unsigned char> amplitudes; // one a cell
    };
};

Q_DECLARE_METATYPE(VideoProcessor::Radial)
