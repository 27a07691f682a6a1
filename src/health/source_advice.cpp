#include "health/source_advice.h"

#include "health/record_text.h"
#include "health/source_judgement.h"
#include "recognition/report_facts.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_type_text.h"
#include "tracking/fault_text.h"

#include <QCoreApplication>

namespace {

using Cure = SourceJudgement::Cure;
using Trouble = SourceJudgement::Trouble;

constexpr double ClockSpread = 1.0; // seconds; a line that queues varies more
constexpr double ClockFault = 600.0; // seconds; no line keeps anything that long
constexpr double NotableShare = 0.02; // of the records: fewer are nobody's trouble

class Advice {
    Q_DECLARE_TR_FUNCTIONS(SourceAdvice)

public:
    Advice(const SourceStatistics &source, const JudgementBasis &basis, SourceJudgement &judgement)
        : m_source(source), m_basis(basis), m_judgement(judgement)
    {
    }

    QString ofTrouble() const;
    QString ofReason(ReportOutcome reason) const;
    QString ofPlots() const;
    void offerCure(ReportOutcome reason);
    void offerPlots();
    QString allWell() const { return tr("All that it sends is used."); }

private:
    QString late() const;
    QString malformed() const;
    QString noReader() const;
    QString wrongKind() const;
    QString noPosition() const;

    const SourceStatistics &m_source;
    const JudgementBasis &m_basis;
    SourceJudgement &m_judgement;
};

// Surface movement radars and multilateration send the same category; what radars measure is polar.
SensorType surfaceKindOf(const SourceStatistics &source)
{
    SensorType kind = SmrSensor;
    for (const ReportExample &example : source.examples) {
        RecordText::read(source, example, [&](const _ast_datarecord_t &record) {
            const ReportFacts facts = ReportFacts::of(source.category, record);
            if (facts.isTarget && !facts.polar) {
                kind = MlatSensor;
            }
        });
    }
    return kind;
}

// Which kind of sensor sends this.
SensorType kindOf(const SourceStatistics &source)
{
    if (source.form == TakenReport::Form::ModeS) {
        return AdsbSensor;
    }
    if (source.form == TakenReport::Form::AleniaSirM) {
        return RadarSensor;
    }
    switch (source.category) {
    case 1:
    case 2:
    case 34:
    case 48:
        return RadarSensor;
    case 10:
        return surfaceKindOf(source);
    case 20:
        return MlatSensor;
    case 21:
        return AdsbSensor;
    case 62:
        return SdpsSensor;
    default:
        return UnknownSensor;
    }
}

QString Advice::ofTrouble() const
{
    switch (m_judgement.trouble) {
    case Trouble::Silent:
        return m_basis.inputSilent
            ? tr("Nothing arrives from any source: check the sender and the line.")
            : tr("Nothing has come for three of its periods: check the source and the line to it.");
    case Trouble::CategorySilent:
        return tr("The source is alive, but these reports have stopped.");
    case Trouble::Late:
        return late();
    case Trouble::Thin:
        return tr("In the last minute far fewer reports came than in the ten before: reports are lost on the way, or "
                  "the source sees less.");
    case Trouble::Unused:
    case Trouble::None:
        break;
    }
    return {};
}

QString Advice::late() const
{
    const DelayStatistics &delay = m_source.delay;
    const QString figures = tr("Reports arrive %1 after their time of day.").arg(SourceJudge::delayText(delay.median));
    if (delay.median > ClockFault) {
        return tr("%1 Its clock, or this computer's, is wrong.").arg(figures);
    }
    return delay.percentile95 - delay.smallest < ClockSpread
        ? tr("%1 It is always the same: its clock and this computer's differ, or the line is slow.").arg(figures)
        : tr("%1 It varies, up to %2: they wait somewhere on the way.")
              .arg(figures, SourceJudge::delayText(delay.percentile95));
}

QString Advice::malformed() const
{
    const ReportExample &example = m_source.example(ReportOutcome::Malformed);
    const QString fault = example.fault.isEmpty()
        ? QString()
        : tr(" The last one: %1 at octet %2.").arg(faultText(example.fault)).arg(example.faultOffset);
    return tr("What cannot be decoded may be of another edition or in another envelope than the one in Settings, "
              "Processor.")
        + fault;
}

QString Advice::noReader() const
{
    return m_source.form == TakenReport::Form::Asterix
        ? tr("Nothing here shows this kind of message of CAT%1; it is counted only.")
              .arg(m_source.category, 3, 10, QLatin1Char('0'))
        : tr("Nothing here shows this kind of message; it is counted only.");
}

QString Advice::wrongKind() const
{
    const QString configured = sensorTypeText(m_basis.sensorKind);
    const SensorType sender = kindOf(m_source);
    return sender == UnknownSensor
        ? tr("The sensor is set to %1, which does not send CAT%2.")
              .arg(configured)
              .arg(m_source.category, 3, 10, QLatin1Char('0'))
        : tr("The sensor is set to %1; these are %2 reports.").arg(configured, sensorTypeText(sender));
}

QString Advice::noPosition() const
{
    return m_source.form == TakenReport::Form::ModeS
        ? tr("These messages are of aircraft whose place is not known: it takes two messages of position, and not all "
             "aircraft send them.")
        : tr("These reports carry no position, and no track is known that has one.");
}

QString Advice::ofPlots() const
{
    return tr("These reports carry neither track number nor address. The plot layer shows them.");
}

QString Advice::ofReason(ReportOutcome reason) const
{
    switch (reason) {
    case ReportOutcome::OtherSource:
        return tr("This source is %1/%2, the sensor is set to %3/%4.")
            .arg(m_source.sac)
            .arg(m_source.sic)
            .arg(m_basis.sensorSac)
            .arg(m_basis.sensorSic);
    case ReportOutcome::Malformed:
        return malformed();
    case ReportOutcome::WrongSensorKind:
        return wrongKind();
    case ReportOutcome::NoIdentity:
        return tr("These reports carry neither track number nor address, and no place for a plot.");
    case ReportOutcome::TestTarget:
        return tr("These are targets that the source makes to test itself; they are not shown.");
    case ReportOutcome::NoPosition:
        return noPosition();
    case ReportOutcome::OutOfRange:
        return tr("These positions are not on the globe or out of the sensor's reach: check its place in Settings, "
                  "Sensor.");
    case ReportOutcome::NoTrackNumber:
        return tr("All system track numbers are in use: there are more targets than this kind of sensor may have.");
    case ReportOutcome::Incomplete:
        return tr("These messages lack what they need, or what must come before them has not come yet.");
    case ReportOutcome::Unsupported:
        return tr("These messages have a form that is not read.");
    case ReportOutcome::ModeAC:
        return tr("These are replies to Mode A/C interrogations, which tell neither who nor where. Nothing is wrong.");
    case ReportOutcome::UnknownAddress:
        return tr(
            "These are replies of aircraft of which nothing else was heard. At the rim of reception that is usual.");
    default:
        return noReader();
    }
}

void Advice::offerCure(ReportOutcome reason)
{
    if (reason == ReportOutcome::OtherSource && m_source.identified) {
        m_judgement.cure = Cure::UseSacSic;
        m_judgement.cureText = tr("Use %1/%2").arg(m_source.sac).arg(m_source.sic);
    } else if (reason == ReportOutcome::WrongSensorKind && kindOf(m_source) != UnknownSensor) {
        m_judgement.cure = Cure::UseSensorKind;
        m_judgement.cureKind = kindOf(m_source);
        m_judgement.cureText = tr("Set the sensor to %1").arg(sensorTypeText(m_judgement.cureKind));
    }
}

void Advice::offerPlots()
{
    if (!m_basis.plotsShown) {
        m_judgement.cure = Cure::ShowPlots;
        m_judgement.cureText = tr("Show plots");
    }
}

} // namespace

void SourceAdvice::advise(const SourceStatistics &source, const JudgementBasis &basis, SourceJudgement &judgement)
{
    Advice advice(source, basis, judgement);
    const auto plots = source.outcome(ReportOutcome::Plot);
    const auto dropped = judgement.reason ? source.outcome(*judgement.reason) : 0;
    const auto notable = static_cast<quint64>(NotableShare * static_cast<double>(source.records));
    judgement.sentence = advice.ofTrouble();
    QString reason;
    if (plots > dropped && plots > source.outcome(ReportOutcome::Track)) {
        reason = advice.ofPlots();
        advice.offerPlots();
    } else if (judgement.reason && dropped > notable) {
        reason = advice.ofReason(*judgement.reason);
        advice.offerCure(*judgement.reason);
    }
    judgement.whyNotUsed = reason;
    const QString gap(judgement.sentence.isEmpty() || reason.isEmpty() ? "" : " ");
    judgement.sentence += gap + reason;
    if (judgement.sentence.isEmpty()) {
        judgement.sentence = advice.allWell();
    }
}
