#include "engine/picture_publisher.h"

PicturePublisher::PicturePublisher(SnapshotSlot<DisplaySnapshot> *displaySlot, SnapshotSlot<VideoBatch> *videoSlot,
    SnapshotSlot<WeatherProcessor::Picture> *weatherSlot, SnapshotSlot<InputStatistics> *statisticsSlot)
    : m_displaySlot(displaySlot), m_videoSlot(videoSlot), m_weatherSlot(weatherSlot), m_statisticsSlot(statisticsSlot)
{
    m_clock.start();
}

void PicturePublisher::reset()
{
    m_videoBatch.reset();
    m_meter.reset();
}

void PicturePublisher::publishVideoBatch()
{
    if (m_videoBatch) {
        m_videoSlot->publish(m_videoBatch);
        m_videoBatch.reset();
    }
}

void PicturePublisher::addVideoRadial(const VideoProcessor::Radial &radial)
{
    if (!m_videoBatch) {
        m_videoBatch = QSharedPointer<VideoBatch>::create();
        m_videoBatch->firstTime = radial.timeOfDay;
    }
    m_videoBatch->lastTime = radial.timeOfDay;
    m_videoBatch->radials += radial;
    m_meter.countRadial();
}

void PicturePublisher::publishWeatherPicture(const WeatherProcessor::Picture &picture)
{
    m_weatherSlot->publish(QSharedPointer<WeatherProcessor::Picture>::create(picture));
    m_meter.countWeatherPicture(m_clock.elapsed(), static_cast<int>(picture.vectors.size()));
}
