#include "display/track_label_lines.h"

#include "display/track_label_text.h"
#include "tracking/track_snapshot.h"

namespace {

using tracklabel::appendNumber;
using tracklabel::ClimbingMark;
using tracklabel::DescendingMark;

// Three digits, or dashes for a value that is not valid.
void appendValue(QString &line, bool valid, int number)
{
    if (valid) {
        appendNumber(line, number, 3);
    } else {
        line += QLatin1String("---");
    }
}

void appendBlank(QString &line)
{
    if (!line.isEmpty() && !line.endsWith(ClimbingMark) && !line.endsWith(DescendingMark)) {
        line += QLatin1Char(' ');
    }
}

QString identityLine(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    QString line;
    if (fields.trackNum) {
        line = QLatin1Char('#');
        appendNumber(line, static_cast<int>(track.trackNumber), 4);
    }
    if (fields.icaoAddr) {
        appendBlank(line);
        line += track.icaoAddrString;
    }
    return line;
}

QString callsignLine(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    QString line;
    if (fields.callsign) {
        line = track.callsign;
    }
    if (track.coasting) {
        line += tracklabel::CoastingMark;
    }
    if (fields.squawk) {
        if (!track.coasting) {
            appendBlank(line);
        }
        line += track.modeACodeValid ? track.modeAString : QStringLiteral("----");
    }
    return line;
}

QString levelLine(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    QString line;
    if (fields.level) {
        line = QLatin1Char('F');
        appendValue(line, track.levelValid, tracklabel::shownLevel(track.level));
        tracklabel::appendTrend(line, track.verticalTrend);
    }
    if (fields.selectedAltitude) {
        appendBlank(line);
        line += QLatin1Char('F');
        appendValue(line, track.selectedAltitudeValid, tracklabel::hundreds(track.selectedAltitude));
    }
    if (fields.groundSpeed) {
        appendBlank(line);
        appendValue(line, track.groundSpeedValid, tracklabel::shownSpeed(track.groundSpeed));
    }
    return line;
}

QString rateLine(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    QString line;
    if (fields.verticalRate) {
        if (track.verticalRateValid) {
            tracklabel::appendRate(line, track.verticalRate);
        } else {
            line += QLatin1String(" --");
        }
    }
    if (fields.heading) {
        appendBlank(line);
        appendValue(line, track.headingValid, tracklabel::shownHeading(track.heading));
        line += tracklabel::DegreeSign;
    }
    return line;
}

} // namespace

QString trackMarks(const TrackSnapshot &track)
{
    QString marks = Track::emergencyString(track.emergency);
    if (track.spi) {
        appendBlank(marks);
        marks += QLatin1String("SPI");
    }
    return marks;
}

QString trackName(const TrackSnapshot &track)
{
    const QLatin1Char zero('0');
    if (track.callsignValid) {
        return track.callsign;
    }
    return track.modeACodeValid ? QStringLiteral("A%1").arg(track.modeACode, 4, 8, zero)
                                : QStringLiteral("#%1").arg(track.trackNumber, 4, 10, zero);
}

bool TrackLabelFields::any() const
{
    return *this != TrackLabelFields{false, false, false, false, false, false, false, false, false, false};
}

TrackLabelLines trackLabelLines(const TrackSnapshot &track, const TrackLabelFields &fields)
{
    TrackLabelLines lines;
    if (fields.alertIndicator) {
        lines.text[TrackLabelLines::Alert] = track.alertsString;
        lines.text[TrackLabelLines::Mark] = trackMarks(track);
    }
    lines.text[TrackLabelLines::Identity] = identityLine(track, fields);
    lines.text[TrackLabelLines::Callsign] = callsignLine(track, fields);
    lines.text[TrackLabelLines::Level] = levelLine(track, fields);
    lines.text[TrackLabelLines::Rate] = rateLine(track, fields);
    return lines;
}
