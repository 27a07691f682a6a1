#include "explanation/absence.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Absence)
};

QString clockText(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString("HH:mm:ss");
}

QString nameOf(const SeenIdentity &seen)
{
    QStringList names;
    const QString callsign = QString::fromLatin1(seen.callsign).trimmed();
    if (!callsign.isEmpty()) {
        names.append(callsign);
    }
    if (seen.modeA) {
        names.append(QString("A%1").arg(*seen.modeA, 4, 8, QChar('0')));
    }
    if (seen.address != 0) {
        names.append(QString("%1").arg(seen.address, 6, 16, QChar('0')).toUpper());
    }
    if (seen.sensorNumber != 0) {
        names.append(Text::tr("sensor's number %1").arg(seen.sensorNumber));
    }
    return names.join(", ");
}

QString reportsOf(const SeenIdentity &seen)
{
    return seen.category == 0 ? Text::tr("Its reports")
                              : Text::tr("Its reports (CAT%1)").arg(seen.category, 3, 10, QChar('0'));
}

// The first thing that keeps a living track from being seen.
AbsenceFinding liveFinding(const LiveTarget &target, const AbsenceFacts &facts)
{
    AbsenceFinding finding;
    finding.who = target.name;
    finding.track = target.track;
    const auto is = [&finding](const QString &sentence, Cure cure) {
        finding.sentence = sentence;
        finding.cure = cure;
    };
    if (!target.hasPlace) {
        is(Text::tr("It has the track %1, but none of its reports says where it is.").arg(target.number), Cure::None);
    } else if (!target.inView) {
        is(Text::tr("It is outside the view, %1 NM from its centre in direction %2°.")
                .arg(target.distance, 0, 'f', 1)
                .arg(std::lround(target.bearing) % 360, 3, 10, QChar('0')),
            Cure::Centre);
    } else if (target.symbolCovered) {
        is(Text::tr("Its symbol is under the label of %1.").arg(target.coveredBy), Cure::Select);
    } else if (!facts.detailsShown) {
        is(Text::tr("It is in view; the view is too wide for labels, so that only its symbol is shown."), Cure::ZoomIn);
    } else if (!facts.labelsOn) {
        is(Text::tr("It is in view; labels are switched off, so that only its symbol is shown."), Cure::ShowLabels);
    } else if (!target.labelShown) {
        is(Text::tr("It is in view; its label is under others, so that only its symbol is shown."), Cure::Select);
    } else {
        is(Text::tr("It is shown."), Cure::Select);
    }
    if (target.coasting) {
        finding.sentence += ' '
            + Text::tr("It coasts: no report has told its position for %1 s.")
                  .arg(static_cast<double>(target.silentMs) / 1000.0, 0, 'f', 0);
    }
    return finding;
}

AbsenceFinding endedFinding(const SeenIdentity &seen)
{
    AbsenceFinding finding;
    const QString ended = clockText(seen.endedMs);
    finding.sentence = seen.endedBySource
        ? Text::tr("Its track %1 ended at %2: its source ended it.").arg(seen.trackNumber).arg(ended)
        : Text::tr("Its track %1 ended at %2: no report had told its position since %3.")
              .arg(seen.trackNumber)
              .arg(ended, clockText(seen.lastMs));
    finding.cure = seen.place ? Cure::Centre : Cure::None;
    return finding;
}

AbsenceFinding plotFinding(const SeenIdentity &seen, const AbsenceFacts &facts)
{
    AbsenceFinding finding;
    const QString why = Text::tr("%1 carry neither track number nor address, so they are plots and no track.");
    if (facts.plotsOn) {
        finding.sentence = why.arg(reportsOf(seen)) + ' ' + Text::tr("The plot layer shows them.");
        finding.cure = seen.place ? Cure::Centre : Cure::None;
    } else {
        finding.sentence = why.arg(reportsOf(seen)) + ' ' + Text::tr("The plot layer is switched off.");
        finding.cure = Cure::ShowPlots;
    }
    return finding;
}

QString sourceSentence(const SeenIdentity &seen, const AbsenceFacts &facts)
{
    if (!seen.sourceKnown || facts.sensorSac < 0) {
        return Text::tr("%1 are dropped: they are of another source than the sensor's.").arg(reportsOf(seen));
    }
    return Text::tr("%1 are dropped: they are of SAC/SIC %2/%3, the sensor is set to %4/%5.")
        .arg(reportsOf(seen))
        .arg(seen.sac)
        .arg(seen.sic)
        .arg(facts.sensorSac)
        .arg(facts.sensorSic);
}

AbsenceFinding droppedFinding(const SeenIdentity &seen, const AbsenceFacts &facts)
{
    const QString reports = reportsOf(seen);
    const auto dropped = [&reports](const char *why, Cure cure = Cure::None) {
        AbsenceFinding finding;
        finding.sentence = Text::tr(why).arg(reports);
        finding.cure = cure;
        return finding;
    };
    switch (seen.outcome) {
    case ReportOutcome::OtherSource: {
        AbsenceFinding finding;
        finding.sentence = sourceSentence(seen, facts);
        finding.cure = Cure::OpenSettings;
        return finding;
    }
    case ReportOutcome::WrongSensorKind:
        return dropped(QT_TRANSLATE_NOOP("Absence", "%1 are dropped: sensors of the configured kind do not send them."),
            Cure::OpenSettings);
    case ReportOutcome::NoReader:
        return dropped(QT_TRANSLATE_NOOP("Absence", "%1 are dropped: this program shows nothing of their category."));
    case ReportOutcome::NoIdentity:
        return dropped(QT_TRANSLATE_NOOP(
            "Absence", "%1 are dropped: they carry neither track number nor address nor a position."));
    case ReportOutcome::TestTarget:
        return dropped(QT_TRANSLATE_NOOP("Absence", "%1 are dropped: the source marks it as a test target."));
    case ReportOutcome::NoPosition:
        return dropped(QT_TRANSLATE_NOOP("Absence", "%1 have told no position yet."));
    case ReportOutcome::OutOfRange:
        return dropped(QT_TRANSLATE_NOOP("Absence",
                           "%1 are dropped: their position is out of range. Is the sensor's location right?"),
            Cure::OpenSettings);
    case ReportOutcome::NoTrackNumber:
        return dropped(QT_TRANSLATE_NOOP("Absence", "%1 make no track: all system track numbers are in use."));
    default: {
        AbsenceFinding finding;
        finding.sentence = Text::tr("%1 are dropped: %2.").arg(reports, reportOutcomeText(seen.outcome));
        return finding;
    }
    }
}

AbsenceFinding seenFinding(const SeenIdentity &seen, const AbsenceFacts &facts)
{
    AbsenceFinding finding = seen.hasEnded()  ? endedFinding(seen)
        : seen.outcome == ReportOutcome::Plot ? plotFinding(seen, facts)
                                              : droppedFinding(seen, facts);
    finding.who = nameOf(seen);
    finding.seenMs = seen.lastMs;
    finding.place = seen.place;
    return finding;
}

AbsenceFinding unknownFinding(const IdentityQuery &query, const AbsenceFacts &facts)
{
    AbsenceFinding finding;
    finding.who = query.callsign;
    if (!facts.inputOpen) {
        finding.sentence = Text::tr("It has not been received, and no input is open now.");
        finding.cure = Cure::StartInput;
    } else if (facts.paused) {
        finding.sentence = Text::tr("It has not been received, and the input is paused.");
        finding.cure = Cure::ResumeInput;
    } else {
        finding.sentence = Text::tr("It has not been received: no report has named it.");
    }
    return finding;
}

// Who lives is not told of a track that ended before, nor of a report that was passed over.
bool lives(const SeenIdentity &seen, const AbsenceFacts &facts)
{
    const QString callsign = QString::fromLatin1(seen.callsign).trimmed();
    return std::any_of(facts.live.begin(), facts.live.end(), [&](const LiveTarget &target) {
        if (seen.address != 0 && target.address != 0) {
            return seen.address == target.address;
        }
        return !callsign.isEmpty() && callsign == target.callsign;
    });
}

} // namespace

QList<AbsenceFinding> explainAbsence(const IdentityQuery &query, const AbsenceFacts &facts)
{
    QList<AbsenceFinding> findings;
    if (query.isEmpty()) {
        return findings;
    }
    for (const LiveTarget &target : facts.live) {
        findings.append(liveFinding(target, facts));
    }
    for (const SeenIdentity &seen : facts.seen) {
        if (!lives(seen, facts)) {
            findings.append(seenFinding(seen, facts));
        }
    }
    if (findings.isEmpty()) {
        findings.append(unknownFinding(query, facts));
    }
    return findings;
}

QString cureText(Cure cure)
{
    switch (cure) {
    case Cure::None:
        return {};
    case Cure::Select:
        return Text::tr("Select");
    case Cure::Centre:
        return Text::tr("Show the Place");
    case Cure::ZoomIn:
        return Text::tr("Zoom In");
    case Cure::ShowLabels:
        return Text::tr("Show Labels");
    case Cure::ShowPlots:
        return Text::tr("Show Plots");
    case Cure::StartInput:
        return Text::tr("Start Input");
    case Cure::ResumeInput:
        return Text::tr("Resume Input");
    case Cure::OpenSettings:
        return Text::tr("Settings...");
    }
    return {};
}
