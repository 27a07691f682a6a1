#pragma once

#include "engine/video_batch.h"
#include "processors/weather_processor.h"

#include <QSharedPointer>

#include <random>

// Made-up radar video: receiver noise, ground clutter near the site, a ridge, and targets of a beam's width.
class RadarScene {
public:
    // Radials a revolution, cells a radial and the range of them all in metres.
    RadarScene(int radials, int cells, double rangeMetres);

    // A part of revolutions one after the other: the next radials from where the last call ended.
    QSharedPointer<const VideoBatch> next(int radials);

private:
    VideoProcessor::Radial radial(int index);
    unsigned char amplitude(int radial, int cell);

    int m_radials;
    int m_cells;
    double m_cellSize;
    int m_next = 0;
    std::mt19937 m_random{1};
};

// Storm cells with up to seven levels, a whole number of vectors long in all.
WeatherProcessor::Picture stormCells(int vectors);
