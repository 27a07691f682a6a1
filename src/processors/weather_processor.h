#pragma once

#include "app/log_gate.h"
#include "tracking/report_ledger.h"

#include <QList>
#include <QMetaType>
#include <QObject>

struct _ast_datablock_t;
struct _ast_datarecord_008_t;

// Weather as a monoradar sends it (CAT008): gathers polar vectors from a start-of-picture message to the end-of-picture
// message and hands on the finished picture. One thread.
class WeatherProcessor final : public QObject {
    Q_OBJECT

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

    explicit WeatherProcessor(QObject *parent = nullptr);

    // Blocks that are not whole or of another category are passed over.
    void procAsterixMessage(const _ast_datablock_t &block);
    ReportOutcome procCat008Record(const _ast_datarecord_008_t &record);

    // Who is told what became of every record of a valid block; null, as at first: nobody. It must outlive the
    // processor.
    void setLedger(ReportLedger *ledger) { m_ledger = ledger; }

    // Forgets the picture in progress and the scale, which belong to the radar that sent them.
    void reset();

Q_SIGNALS:
    // Never without vectors.
    void pictureReady(const WeatherProcessor::Picture &picture);
    void message(LogLevel level, const QString &text);

private:
    ReportOutcome procStartOfPicture(const _ast_datarecord_008_t &record);
    ReportOutcome procPolarVectors(const _ast_datarecord_008_t &record);
    ReportOutcome procEndOfPicture(const _ast_datarecord_008_t &record);
    // Weather for vectors that can be taken.
    ReportOutcome judgePolarVectors(const _ast_datarecord_008_t &record);
    // The text is made only where debug lines are shown.
    template <typename MakeText>
    void debug(MakeText makeText)
    {
        if (LogGate::isShown(LogLevel::Debug)) {
            Q_EMIT message(LogLevel::Debug, makeText());
        }
    }
    void warn(const QString &text) { Q_EMIT message(LogLevel::Warning, text); }

    bool m_inPicture = false;
    bool m_scaleKnown = false; // once received, it also holds for pictures that start without it
    int m_scale = 0; // exponent f: ranges count 2^(f-7) nautical miles
    double m_timeOfDay = -1.0;
    QList<PolarVector> m_vectors;
    ReportLedger *m_ledger = nullptr;
};

Q_DECLARE_METATYPE(WeatherProcessor::Picture)
