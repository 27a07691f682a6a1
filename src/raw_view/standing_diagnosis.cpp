#include "raw_view/standing_diagnosis.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int SettlingMs = 1000; // of an input that has just been opened
constexpr int PeriodMs = 60000;

} // namespace

StandingDiagnosis::StandingDiagnosis(EngineHost *host, std::function<const Config *()> settings, QObject *parent)
    : QObject(parent), m_settings(std::move(settings)), m_diagnosis(host)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &StandingDiagnosis::listen);
    connect(&m_diagnosis, &LiveDiagnosis::found, this, [this](const LiveDiagnosis::Result &result) {
        if (result.isFinal) {
            Q_EMIT found(result.messages > 0 ? sentencesOf(result.remarks) : QStringList());
        }
    });
}

QStringList StandingDiagnosis::sentencesOf(const Diagnosis &remarks)
{
    Diagnosis told;
    std::copy_if(remarks.begin(), remarks.end(), std::back_inserter(told),
        [](const DiagnosisRemark &remark) { return remark.level != DiagnosisRemark::Level::Fine; });
    std::stable_sort(told.begin(), told.end(),
        [](const DiagnosisRemark &one, const DiagnosisRemark &other) { return one.level > other.level; });
    QStringList sentences;
    for (const DiagnosisRemark &remark : told) {
        sentences += remark.sentence;
    }
    return sentences;
}

void StandingDiagnosis::setWatched(bool watched)
{
    if (m_watched == watched) {
        return;
    }
    m_watched = watched;
    if (watched) {
        m_timer.start(0);
    } else {
        m_timer.stop();
        m_diagnosis.stop();
    }
}

void StandingDiagnosis::beginInput()
{
    m_diagnosis.stop();
    Q_EMIT found({});
    if (m_watched) {
        m_timer.start(SettlingMs);
    }
}

void StandingDiagnosis::listen()
{
    if (const Config *config = m_settings()) {
        m_diagnosis.start(*config);
    }
    m_timer.start(PeriodMs);
}
