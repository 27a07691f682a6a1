#pragma once

#include <QString>
#include <QtGlobal>

// What became of one record: an ASTERIX record, a Mode S frame, a plot or track of an Alenia SIR-M message. Each record
// has exactly one outcome, decided in this order:
//  1. before anyone reads it: OtherSource, Malformed, NoReader, WrongSensorKind. A block or message that cannot be
//     decoded whole counts as one record, whatever stood in it.
//  2. what it is used for: a target report is Track where its track can be shown, whether or not it is a plot as well;
//     TrackEnd where it ended one; Plot where it is a plot alone. NoTrackNumber goes before Plot, since what is missing
//     from the picture counts more than the dot that is left of it. A report that only says where nobody can be is
//     OutOfRange, even if its track goes on to be shown elsewhere.
//  3. what it lacks, where it is used for nothing: TestTarget where it has a place and no track, NoIdentity where it
//  has
//     neither, NoPosition where it has a track that has no place.
enum class ReportOutcome : quint8 {
    // Used.
    Track, // it began or updated a track that has a place
    TrackEnd, // the source ended a track
    Plot, // a plot without a track
    Alert, // a safety-net message that changed an alert or the state of a safety net
    Weather, // part of a weather picture
    Video, // a radial
    SourceStatus, // north marker, sector crossing or another message of the source about itself

    // Dropped.
    OtherSource, // SAC/SIC is checked, and is another than the sensor's
    Malformed, // not decoded, or not whole
    NoReader, // nothing reads its category, its message type or its downlink format
    WrongSensorKind, // sensors of the configured kind do not send its category
    NoIdentity, // neither track number nor address, nor a place for a plot; an alert without number or tracks
    TestTarget, // a target that the source makes to test itself, without a track
    NoPosition, // the place is missing, and its track has none either
    OutOfRange, // its place is not on the globe, or out of the sensor's reach
    NoTrackNumber, // all system track numbers are in use
    Incomplete, // an item that its kind of message needs is missing, or what must come before has not come
    Unsupported, // a form of the message that is not read: system coordinates, compressed video
    ModeAC, // a reply to a Mode A/C interrogation in a Mode S stream: nobody's address, no place
    UnknownAddress, // Mode S: the address cannot be told from noise, no aircraft has been heard under it
};

inline constexpr int ReportOutcomeCount = static_cast<int>(ReportOutcome::UnknownAddress) + 1;

// Whether the record was used: every outcome before OtherSource.
constexpr bool isShown(ReportOutcome outcome)
{
    return outcome < ReportOutcome::OtherSource;
}

// A stable identifier for files, such as "noIdentity"; static.
const char *reportOutcomeName(ReportOutcome outcome);
// A few words for people, such as "no track number, no address".
QString reportOutcomeText(ReportOutcome outcome);
