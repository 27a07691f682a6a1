#include "health/source_judgement.h"

#include "health/source_advice.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

using Light = SourceJudgement::Light;
using Trouble = SourceJudgement::Trouble;

constexpr double ShortestPeriod = 1.0; // seconds
constexpr quint64 FewRecords = 20; // of which nothing can be said
constexpr int ThinBuckets = 6; // of the last minute, which is compared with those before
constexpr int LeastBuckets = 12; // before them; a source has no rate of its own yet otherwise
constexpr double LeastPatience = 60.0; // seconds, with what does not come all the time
constexpr double ReportsMissed = 20.0; // before those of one category are missed
constexpr double LongestInSeconds = 600.0; // of delays; longer ones are no matter of seconds
constexpr int UsualGaps = 3; // in ten minutes: silence of that length is a habit

class Judge {
    Q_DECLARE_TR_FUNCTIONS(SourceJudge)

public:
    static QString unidentified() { return tr("no SAC/SIC"); }
    static QString noBlocks() { return tr("no data blocks"); }
    static QString sirM() { return tr("SIR-M %1"); }
    static QString onEndpoint() { return tr("%1 (input %2)"); }
    static QString timeText(qint64 ms)
    {
        return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(QStringLiteral("HH:mm:ss"));
    }

    static Trouble troubleOf(const SourceStatistics &source, const JudgementBasis &basis);
    static QString stateText(Trouble trouble, const SourceStatistics &source, const JudgementBasis &basis);
};

// Seconds from one record to the next, on average; 0 where there is but one.
double spacing(const SourceStatistics &source)
{
    const double span = static_cast<double>(source.lastArrivalMs - source.firstArrivalMs) / 1000.0;
    return source.records > 1 ? span / static_cast<double>(source.records - 1) : 0.0;
}

// Records a second in the minutes before the last one; nothing for a source that is too young to have a habit.
std::optional<double> usualRate(const SourceStatistics &source)
{
    const auto first = std::find_if(source.history.begin(), source.history.end(), [](quint32 n) { return n > 0; });
    const auto last = source.history.end() - ThinBuckets;
    if (last - first < LeastBuckets + 1) {
        return std::nullopt;
    }
    const auto begin = first + 1; // the first bucket need not be whole
    const double sum = std::accumulate(begin, last, 0.0);
    return sum / static_cast<double>(last - begin) / SourceStatistics::BucketSeconds;
}

// Beyond what chance would bring: records come as by a Poisson process at worst.
bool isThin(const SourceStatistics &source)
{
    const auto usual = usualRate(source);
    if (!usual) {
        return false;
    }
    const double seconds = ThinBuckets * SourceStatistics::BucketSeconds;
    const double expected = *usual * seconds;
    const double heard = source.rate60 * seconds;
    return heard < SourceJudge::ThinPart * expected && expected - heard > 4.0 * std::sqrt(expected);
}

// The longest pause of a source that pauses again and again, seconds; 0 for others.
double usualPause(const SourceStatistics &source)
{
    int pauses = 0;
    int longest = 0;
    int empty = 0;
    bool heard = false;
    for (const quint32 count : source.history) {
        if (count == 0) {
            ++empty;
            continue;
        }
        if (heard && empty > 0) {
            ++pauses;
            longest = std::max(longest, empty);
        }
        heard = true;
        empty = 0;
    }
    return pauses >= UsualGaps ? (longest + 1) * SourceStatistics::BucketSeconds : 0.0;
}

bool isUnused(const SourceStatistics &source)
{
    if (source.records < FewRecords) {
        return false;
    }
    quint64 useless = 0;
    for (const ReportOutcome outcome : {ReportOutcome::Malformed, ReportOutcome::WrongSensorKind,
             ReportOutcome::NoIdentity, ReportOutcome::NoPosition, ReportOutcome::OutOfRange,
             ReportOutcome::NoTrackNumber, ReportOutcome::Incomplete, ReportOutcome::Unsupported}) {
        useless += source.outcome(outcome);
    }
    return !SourceJudge::bringsTargets(source) && 2 * useless > source.records;
}

Trouble Judge::troubleOf(const SourceStatistics &source, const JudgementBasis &basis)
{
    const auto secondsSince = [&](qint64 heardMs) {
        return static_cast<double>(basis.nowMs - std::max(heardMs, source.lastArrivalMs)) / 1000.0;
    };
    const double patience = SourceJudge::patience(source);
    // Of what comes now and then nobody could tell by itself.
    if (basis.inputSilent || secondsSince(basis.stationHeardMs) >= patience) {
        return Trouble::Silent;
    }
    if (!SourceJudge::isSteady(source)) {
        return isUnused(source) ? Trouble::Unused : Trouble::None;
    }
    if (secondsSince(basis.categoryHeardMs) >= std::max(patience, ReportsMissed * spacing(source))) {
        return Trouble::CategorySilent;
    }
    if (source.delay.samples > 0 && source.delay.median > SourceJudge::LateSeconds) {
        return Trouble::Late;
    }
    if (isThin(source)) {
        return Trouble::Thin;
    }
    return isUnused(source) ? Trouble::Unused : Trouble::None;
}

QString Judge::stateText(Trouble trouble, const SourceStatistics &source, const JudgementBasis &basis)
{
    switch (trouble) {
    case Trouble::Silent:
    case Trouble::CategorySilent:
        return tr("silent since %1").arg(timeText(std::max(source.lastArrivalMs, basis.categoryHeardMs)));
    case Trouble::Late:
        return tr("%1 late").arg(SourceJudge::delayText(source.delay.median));
    case Trouble::Thin:
        return tr("%1/s, usually %2/s").arg(source.rate60, 0, 'f', 1).arg(usualRate(source).value_or(0.0), 0, 'f', 1);
    case Trouble::Unused:
        return tr("nothing of it is shown");
    case Trouble::None:
        break;
    }
    return tr("arrives as usual");
}

std::optional<ReportOutcome> mainReason(const SourceStatistics &source)
{
    const auto dropped = source.outcomes.begin() + static_cast<int>(ReportOutcome::OtherSource);
    const auto most = std::max_element(dropped, source.outcomes.end());
    return *most > 0 ? std::optional(static_cast<ReportOutcome>(most - source.outcomes.begin())) : std::nullopt;
}

std::optional<double> shownShare(const SourceStatistics &source)
{
    if (source.records == 0) {
        return std::nullopt;
    }
    const auto dropped = source.outcomes.begin() + static_cast<int>(ReportOutcome::OtherSource);
    const quint64 shown = std::accumulate(source.outcomes.begin(), dropped, quint64(0));
    return static_cast<double>(shown) / static_cast<double>(source.records);
}

bool isSameStation(const SourceStatistics &one, const SourceStatistics &other)
{
    return one.form == other.form && one.identified == other.identified && one.sac == other.sac && one.sic == other.sic
        && one.endpoint == other.endpoint;
}

} // namespace

QString SourceJudge::delayText(double seconds)
{
    return std::abs(seconds) < LongestInSeconds ? QStringLiteral("%1 s").arg(seconds, 0, 'f', 1)
                                                : QStringLiteral("%1 h").arg(seconds / 3600.0, 0, 'f', 1);
}

QString SourceJudge::nameOf(const SourceStatistics &source)
{
    switch (source.form) {
    case TakenReport::Form::ModeS:
        return QStringLiteral("Mode S");
    case TakenReport::Form::AleniaSirM:
        return source.identified ? Judge::sirM().arg(source.sic) : QStringLiteral("SIR-M");
    case TakenReport::Form::Asterix:
        break;
    }
    const QString station =
        source.identified ? QStringLiteral("%1/%2").arg(source.sac).arg(source.sic) : Judge::unidentified();
    const QString name = source.category == 0
        ? Judge::noBlocks()
        : QStringLiteral("%1 CAT%2").arg(station).arg(source.category, 3, 10, QLatin1Char('0'));
    return source.endpoint > 0 ? Judge::onEndpoint().arg(name).arg(source.endpoint + 1) : name;
}

bool SourceJudge::isSteady(const SourceStatistics &source)
{
    constexpr std::array Steady{1, 2, 10, 20, 21, 34, 48, 62, 240};
    return source.form != TakenReport::Form::Asterix
        || std::find(Steady.begin(), Steady.end(), source.category) != Steady.end();
}

bool SourceJudge::bringsTargets(const SourceStatistics &source)
{
    return source.outcome(ReportOutcome::Track) + source.outcome(ReportOutcome::Plot)
        + source.outcome(ReportOutcome::Weather) + source.outcome(ReportOutcome::Video)
        > 0;
}

double SourceJudge::patience(const SourceStatistics &source)
{
    const double period =
        std::max(ShortestPeriod, source.expectedInterval > 0.0 ? source.expectedInterval : AssumedPeriod);
    const double least = isSteady(source) ? 0.0 : LeastPatience;
    return std::max({least, SilentPeriods * std::max(period, spacing(source)), usualPause(source)});
}

JudgementBasis SourceJudge::basisFor(const SourceStatistics &source, const InputStatistics &input, JudgementBasis basis)
{
    basis.stationHeardMs = basis.categoryHeardMs = source.lastArrivalMs;
    for (const SourceStatistics &other : input.sources) {
        if (isSameStation(source, other)) {
            basis.stationHeardMs = std::max(basis.stationHeardMs, other.lastArrivalMs);
            if (other.category == source.category) {
                basis.categoryHeardMs = std::max(basis.categoryHeardMs, other.lastArrivalMs);
            }
        }
    }
    return basis;
}

SourceJudgement SourceJudge::judge(const SourceStatistics &source, const JudgementBasis &basis)
{
    SourceJudgement judgement;
    judgement.shownShare = shownShare(source);
    judgement.reason = mainReason(source);
    judgement.trouble = basis.expecting ? Judge::troubleOf(source, basis) : Trouble::None;
    judgement.state = Judge::stateText(judgement.trouble, source, basis);
    if (!basis.expecting) {
        judgement.light = Light::Off;
        judgement.state.clear();
    } else if (judgement.trouble == Trouble::Silent) {
        judgement.light = Light::Red;
    } else {
        judgement.light = judgement.trouble == Trouble::None ? Light::Green : Light::Amber;
    }
    SourceAdvice::advise(source, basis, judgement);
    return judgement;
}
