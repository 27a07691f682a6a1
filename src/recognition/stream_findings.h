#pragma once

#include "app/config.h"
#include "geo/geo_coordinate.h"
#include "modes/mode_s_encapsulation.h"
#include "sensors/sensor_type.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

// What a stream of messages was found to hold: plain values, made by StreamAnalyser.

// Where reported positions lie.
struct PositionArea {
    qint64 positions = 0;
    GeoCoordinate center; // invalid where there are no positions
    double radius = 0.0; // metres around the centre in which nine of ten of them lie
};

// How one edition's table suits what a source sent in a category.
struct EditionFindings {
    QString edition; // "2.7"
    qint64 wholeBlocks = 0; // that it reads to their end
    qint64 onlyBlocks = 0; // that no other edition reads to their end
    qint64 records = 0; // of the whole blocks
    qint64 oddRecords = 0; // of them, with values out of range or bits that the edition leaves unused
};

// What one source sent in one ASTERIX category.
struct CategoryFindings {
    int category = 0;
    QString edition; // of the table that decoded most of the records, such as "2.7"; empty where none did
    bool editionChosen = false; // told from other editions by the contents, not the only one there is
    qint64 editionRecords = 0; // those that were decoded by it
    qint64 records = 0;
    qint64 undecodableOctets = 0; // of blocks with a fault in them, or of a category without a table
    qint64 blocks = 0;
    qint64 undecodableBlocks = 0;
    bool hasTable = true; // false: no edition of the category is built in
    // Of the first of the undecodable blocks: why, in English, and octets from its beginning to the fault.
    QString fault;
    qint64 faultOffset = 0;
    QList<EditionFindings> editions; // in which the first so many blocks were read, the best one first
    qint64 judgedBlocks = 0;

    // Records that carry the item.
    qint64 trackNumbers = 0;
    qint64 addresses = 0;
    qint64 polarPositions = 0;
    qint64 cartesianPositions = 0;
    qint64 wgs84Positions = 0;
    // Records of which the tracker for this category makes a track: they say who and where.
    qint64 trackable = 0;
    bool multilateration = false; // of category 10, which surface movement radars send as well
    // Records with blanks before or between the characters of an aircraft identification; the last such.
    qint64 oddIdentifications = 0;
    QString oddIdentification;

    // The sensor whose tracker reads the category; UnknownSensor for alerts, weather, video and what is not used.
    SensorType sensorType() const;
    // Whether it reports targets, rather than the state of the source, alerts, weather or video.
    bool reportsTargets() const;
};

// One source of ASTERIX data: everything that it sent under one SAC/SIC.
struct SourceFindings {
    enum class PeriodBasis { None, Reported, SectorsAndMarkers, TrackUpdates };

    bool identified = false; // false: for records without SAC/SIC
    quint8 sac = 0;
    quint8 sic = 0;
    QList<CategoryFindings> categories; // reports of targets first, then by number
    double rotationPeriod = 0.0; // seconds a turn of the antenna; 0: not known
    PeriodBasis periodBasis = PeriodBasis::None;
    GeoCoordinate site; // as the source says, or as follows from positions that it sends in two ways; invalid: unknown
    PositionArea area; // of positions in WGS-84
    // Kinds of detection that a radar marks its reports with.
    bool primary = false;
    bool secondary = false;
    bool modeS = false;

    // Sums over the categories that belong to the type's tracker.
    qint64 trackable(SensorType type) const;
    qint64 records(SensorType type) const;
    const CategoryFindings *find(int category) const; // null: not sent

    // "25/11"; "a source without SAC/SIC".
    QString name() const;
};

struct ModeSFindings {
    qint64 frames = 0; // valid ones
    qint64 squitters = 0; // of them, extended squitters
    qint64 modeAcReplies = 0; // to interrogations of Mode A or C, beside the frames; nobody can tell whose they are
    qint64 aircraft = 0; // addresses that send extended squitters
    PositionArea area;
};

struct SirMFindings {
    unsigned radarId = 0; // of the first message
    qint64 northMarkers = 0;
    qint64 plots = 0;
    qint64 tracks = 0;
    double rotationPeriod = 0.0; // seconds; 0: not known
};

// A way to take messages apart: the kind of data and its encapsulation, of which the one of the kind counts.
struct StreamFormat {
    Config::ProcessorType kind = Config::ProcessorType::Asterix;
    Config::AsterixFormat asterix = Config::AsterixFormat::Raw;
    korvane::modes::ModeSEncapsulation::Format modeS = korvane::modes::ModeSEncapsulation::DefaultFormat;
    Config::AleniaSirMFormat aleniaSirM = Config::AleniaSirMFormat::Raw;
};

// Messages in a stream that make sense in another format than the rest of it, and none in that of the rest.
struct Admixture {
    StreamFormat format;
    qint64 messages = 0;
};

// Octets that follow the last block of messages and begin no other one.
struct TrailerFindings {
    qint64 messages = 0; // that have any
    int octets = 0; // of the most frequent length
    qint64 alike = 0; // messages with that length
};

struct StreamFindings {
    std::optional<Config::ProcessorType> kind; // nothing: none of those known
    // The one of the kind counts.
    Config::AsterixFormat asterixFormat = Config::AsterixFormat::Raw;
    korvane::modes::ModeSEncapsulation::Format modeSEncapsulation = korvane::modes::ModeSEncapsulation::DefaultFormat;
    Config::AleniaSirMFormat aleniaSirMFormat = Config::AleniaSirMFormat::Raw;

    qint64 messages = 0;
    qint64 octets = 0;
    qint64 undecodableOctets = 0; // that are no data of the kind, envelopes and the ends of messages not counted
    QDateTime first; // earliest and latest time of the messages, UTC; invalid where they have none
    QDateTime last;

    QByteArray beginning; // the first octets of the first message
    QList<Admixture> admixtures; // the most frequent first
    TrailerFindings trailers; // ASTERIX
    qint64 cutShort = 0; // ASTERIX: messages whose last block is longer than what is left of them

    QList<SourceFindings> sources; // ASTERIX; by SAC/SIC
    ModeSFindings modeS;
    SirMFindings sirM;

    // Where the kind is known.
    StreamFormat format() const { return {*kind, asterixFormat, modeSEncapsulation, aleniaSirMFormat}; }
};

// "ASTERIX", "ASTERIX in HDLC Frame", "Mode S (Beast)".
QString formatText(const StreamFormat &format);
// "CAT048"
QString categoryName(int category);

// "CAT048 and CAT034 from 25/11, polar positions, track numbers, turning once in 4.0 s".
QString describe(const SourceFindings &source);
// One plain sentence about everything that was found.
QString describe(const StreamFindings &findings);
