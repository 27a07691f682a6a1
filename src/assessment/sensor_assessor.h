#pragma once

#include "app/config.h"
#include "assessment/radar_assessor.h"
#include "assessment/time_axis.h"

#include <QSharedPointer>

#include <span>

// Checks radars by what they send, and against reports of other sources about the same targets (ADS-B of category 21,
// system tracks of category 62) where the data hold any. Takes in messages one after the other and keeps of them no
// more than some megabytes, however many there are. For one thread.
class SensorAssessor {
public:
    struct Radar {
        quint8 sac = 0;
        quint8 sic = 0;
        QString name; // maybe empty
        GeoCoordinate site; // with the antenna's altitude; invalid: not known
    };
    struct Options {
        Config::AsterixFormat format = Config::AsterixFormat::Raw;
        QList<Radar> radars; // what is known of radars
        bool onlyThose = false; // others are not looked at
    };

    explicit SensorAssessor(const Options &options);

    // One message with its envelope, in the order of arrival; time UTC, invalid where it is not known.
    void add(std::span<const unsigned char> message, const QDateTime &arrival);

    AssessmentReport report() const;
    qint64 records() const { return m_records; }

private:
    using Id = quint16; // SAC * 256 + SIC

    void addBlock(std::optional<double> arrival);
    void addRecord(int category, const _ast_datarecord_t &record, std::optional<double> arrival);
    void addRadarRecord(int category, const _ast_datarecord_t &record, std::optional<double> arrival, Id id);
    void addReference(int category, const _ast_datarecord_t &record, std::optional<double> arrival);
    std::optional<double> timeOf(const _ast_datarecord_t &record, std::optional<double> arrival);
    RadarAssessor *radarOf(Id id);
    void match(ReferenceKind kind, const ReferenceTracks::Waiting &waiting, quint64 target,
        const ReferencePoint &before, const ReferencePoint &after);
    void settle();
    static QString troubleOf(const SensorReport &report, qint64 references);

    Options m_options;
    _ast_datablock_t m_block;
    TimeAxis m_axis;
    std::map<Id, RadarAssessor> m_radars;
    ReferenceTracks m_adsb;
    ReferenceTracks m_systemTracks;
    qint64 m_records = 0;
    qint64 m_references = 0;
    double m_settled = 0.0; // when
};
