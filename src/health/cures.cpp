#include "health/cures.h"

#include "app/config.h"

#include <QAction>

namespace {

void bring(QAction *action, bool checked)
{
    if (action->isChecked() != checked) {
        action->trigger();
    }
}

} // namespace

void Cures::cureSource(const SourceHealth &source)
{
    switch (source.judgement.cure) {
    case SourceJudgement::Cure::ShowPlots:
        return bring(m_means.showPlots, true);
    case SourceJudgement::Cure::UseSacSic:
        return m_means.changeSensor([sac = source.statistics.sac, sic = source.statistics.sic](Config &config) {
            config.sensorSac = sac;
            config.sensorSic = sic;
        });
    case SourceJudgement::Cure::UseSensorKind:
        return m_means.changeSensor([kind = source.judgement.cureKind](Config &config) { config.sensorType = kind; });
    case SourceJudgement::Cure::None:
        return;
    }
}

void Cures::cureAbsence(Cure cure)
{
    switch (cure) {
    case Cure::ShowLabels:
        return bring(m_means.showLabels, true);
    case Cure::ShowPlots:
        return bring(m_means.showPlots, true);
    case Cure::ResumeInput:
        return bring(m_means.pause, false);
    case Cure::StartInput:
        return m_means.start->trigger();
    case Cure::OpenSettings:
        return m_means.openSettings->trigger();
    default:
        return;
    }
}
