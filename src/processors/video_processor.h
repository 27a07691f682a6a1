#pragma once

#include "app/log_level.h"
#include "tracking/report_ledger.h"

#include <QHash>
#include <QList>
#include <QMetaType>
#include <QObject>

#include <functional>
#include <utility>

struct _ast_datablock_t;
struct _ast_datarecord_t;

// Radar video (CAT240): one radial per record. Only uncompressed video of eight bits a cell is taken. One thread.
class VideoProcessor final : public QObject {
    Q_OBJECT

public:
    // One antenna direction with its row of range cells.
    struct Radial {
        quint8 sac = 0; // 0 when the record names no source
        quint8 sic = 0;
        double timeOfDay = -1.0; // seconds since midnight UTC, -1.0 when absent
        double startAzimuth = 0.0; // degrees clockwise from north
        double endAzimuth = 0.0; // below the start azimuth: the radial crosses north
        double cellSize = 0.0; // extent of one cell in range, metres
        quint32 startCell = 0; // index of the first cell along the range
        quint32 cellCount = 0;
        quint16 videoMode = 0; // a change of it starts a new picture
        QList<unsigned char> amplitudes; // one a cell
    };

    explicit VideoProcessor(QObject *parent = nullptr);

    // Blocks that are not whole or of another category are passed over.
    void procAsterixMessage(const _ast_datablock_t &block);
    ReportOutcome procCat240Record(const _ast_datarecord_t &record);

    // Who is told what became of every record of a valid block; null, as at first: nobody. It must outlive the
    // processor.
    void setLedger(ReportLedger *ledger) { m_ledger = ledger; }

    // True at most once a second for each key, so that a stream of bad records does not flood the log.
    bool allowLog(int key);

    // Milliseconds of a clock that never goes back, from any origin: by it the log is limited.
    void setMonotonicClock(std::function<qint64()> clock) { m_monotonicClock = std::move(clock); }

Q_SIGNALS:
    void radialReady(const VideoProcessor::Radial &radial);
    void message(LogLevel level, const QString &text);

private:
    ReportOutcome procVectorError(int error, quint32 cellCount);
    void warn(int key, const QString &text);

    QList<unsigned int> m_amplitudes; // of one record; reused by every record
    QHash<int, qint64> m_lastLogged; // by key, milliseconds
    std::function<qint64()> m_monotonicClock;
    ReportLedger *m_ledger = nullptr;
};

Q_DECLARE_METATYPE(VideoProcessor::Radial)
