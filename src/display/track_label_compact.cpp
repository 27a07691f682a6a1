#include "display/track_label_lines.h"
#include "display/track_label_text.h"
#include "tracking/track_snapshot.h"

#include <algorithm>

namespace {

using tracklabel::appendNumber;

void separate(QString &line)
{
    if (!line.isEmpty()) {
        line += QLatin1Char(' ');
    }
}

// Who it is is never left open while the operator wants to know.
QString identity(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    if (!fields.callsign && !fields.squawk) {
        return {};
    }
    if (!fields.callsign && track.modeACodeValid) {
        return QLatin1Char('A') + track.modeAString;
    }
    QString line = trackName(track);
    if (fields.squawk && track.callsignValid && track.modeACodeValid) {
        separate(line);
        line += track.modeAString;
    }
    return line;
}

void appendLevel(QString &line, const TrackSnapshot &track)
{
    if (track.onGround) {
        line += QLatin1String("GND");
        return;
    }
    if (!track.levelValid) {
        return;
    }
    line += QLatin1Char('F');
    appendNumber(line, tracklabel::shownLevel(track.level), 3);
    tracklabel::appendTrend(line, track.verticalTrend);
}

QString motion(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    QString line;
    if (fields.level) {
        appendLevel(line, track);
    }
    if (fields.selectedAltitude && track.selectedAltitudeValid) {
        separate(line);
        line += QLatin1Char('S');
        appendNumber(line, tracklabel::hundreds(track.selectedAltitude), 3);
    }
    if (fields.groundSpeed && track.groundSpeedValid) {
        separate(line);
        appendNumber(line, tracklabel::shownSpeed(track.groundSpeed), 3);
    }
    return line;
}

// What is rarely on: how it flies before what it is called by machines.
QString extras(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    QString line;
    if (fields.verticalRate && track.verticalRateValid) {
        tracklabel::appendRate(line, track.verticalRate);
    }
    if (fields.heading && track.headingValid) {
        separate(line);
        appendNumber(line, tracklabel::shownHeading(track.heading), 3);
        line += tracklabel::DegreeSign;
    }
    if (fields.icaoAddr && track.icaoAddrValid) {
        separate(line);
        line += track.icaoAddrString;
    }
    if (fields.trackNum) {
        separate(line);
        line += QLatin1Char('#');
        appendNumber(line, static_cast<int>(track.trackNumber), 4);
    }
    return line;
}

// For how many seconds nothing has been heard of the track.
void appendSilence(QString &line, const TrackSnapshot &track, const QDateTime &time)
{
    if (time.isValid() && track.lastUpdate.isValid()) {
        appendNumber(line, static_cast<int>(std::max<qint64>(0, track.lastUpdate.msecsTo(time) / 1000)), 1);
        line += QLatin1Char('s');
    }
}

} // namespace

TrackLabelLines compactLabelLines(const TrackSnapshot &track, const TrackLabelFields &fields, const QDateTime &time)
{
    TrackLabelLines lines;
    if (fields.alertIndicator) {
        lines.text[TrackLabelLines::Alert] = track.alertsString;
        lines.text[TrackLabelLines::Mark] = trackMarks(track);
    }
    QString &who = lines.text[TrackLabelLines::Callsign];
    who = identity(track, fields);
    if (track.coasting && !who.isEmpty()) {
        who += tracklabel::CoastingMark;
        appendSilence(who, track, time);
    }
    lines.text[TrackLabelLines::Level] = motion(track, fields);
    TrackLabelFields others = fields;
    others.trackNum &= !who.startsWith(QLatin1Char('#')); // the number need not stand there twice
    lines.text[TrackLabelLines::Rate] = extras(track, others);
    return lines;
}
