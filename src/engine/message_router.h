#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "asterix/asterix.h"
#include "modes/mode_s_decoder.h"
#include "modes/receiver_clock.h"
#include "sirm/alenia_sir_m_radar_decoder.h"
#include "tracking/clock.h"
#include "tracking/report_ledger.h"

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QSharedPointer>

#include <memory>
#include <string>
#include <vector>

class AlertProcessor;
class PipelineMeter;
class SensorInfo;
class SourceMonitor;
class StreamTaps;
class Tracker;
class VideoProcessor;
class WeatherProcessor;

// Takes each message of an input apart and hands every unit in it to the one consumer that it is for: strips the
// envelope, walks the blocks, checks the source. Made anew for each input, so that nothing of one reaches into the
// next.
class MessageRouter final : public QObject {
    Q_OBJECT

public:
    // The processors outlive the router.
    struct Consumers {
        QSharedPointer<Tracker> tracker; // null for sensors that none serves
        AlertProcessor *alerts = nullptr;
        WeatherProcessor *weather = nullptr;
        VideoProcessor *video = nullptr;
        SourceMonitor *sources = nullptr;
        ReportLedger *ledger = nullptr; // is told of what reaches no consumer
        StreamTaps *taps = nullptr;
    };

    // The meter outlives the router.
    MessageRouter(const Config &config, const QSharedPointer<SensorInfo> &sensor, const Consumers &consumers,
        const SharedClock &clock, PipelineMeter *meter);

    // Counts one message and routes it by the configured processor type. Data need to live during the call only.
    // endpoint: by which of the input's it came.
    void procMessage(const QByteArray &data, int endpoint = 0);

Q_SIGNALS:
    void message(LogLevel level, const QString &text);

private:
    void procAsterixMessage(const QByteArray &data);
    bool decodeBlock(const unsigned char *data, std::size_t length);
    void procBlock(const unsigned char *octets);
    bool fromConfiguredSensor();
    void routeBlock();
    void dropRest(const unsigned char *octets, std::size_t size, bool isWholeMessage);
    void dropBlock(const unsigned char *octets, ReportOutcome outcome);
    void dropUndecoded(const unsigned char *octets, std::size_t size, ReportOutcome outcome);
    void logUnsupportedCategory();
    void procModeSMessage(const QByteArray &data);
    void dropUnframed(const QByteArray &data, std::size_t taken);
    void procModeSFrame(korvane::modes::ModeSFrame &frame);
    void procAleniaSirMMessage(const QByteArray &data);
    void dropAleniaSirM(const unsigned char *octets, std::size_t size, const AleniaSirMRadarDecoder::Result &result);
    void logAleniaSirMFailure(qsizetype size);
    // For texts that need not be made: nothing where debug lines are shown nowhere.
    template <typename MakeText>
    void debug(MakeText makeText);

    const Config m_config;
    const QSharedPointer<SensorInfo> m_sensor;
    const Consumers m_consumers;
    const SharedClock m_clock;
    PipelineMeter *const m_meter;
    const _ast_uap_t *const m_uap; // null: the library chooses

    _ast_datablock_t m_block; // reused by every block
    QSet<quint16> m_mismatchingSources; // SAC * 256 + SIC, already reported

    // Frames and message are reused.
    korvane::modes::ModeSDecoder m_modesDecoder;
    korvane::modes::ReceiverClock m_receiverClock;
    std::string m_modesBuffer; // the beginning of a frame whose rest is to come
    std::vector<korvane::modes::ModeSFrame> m_modesFrames;
    std::shared_ptr<korvane::modes::ModeSMessage> m_modesMessage;
    bool m_aleniaSirMFailureReported = false;
};
