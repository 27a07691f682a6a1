#include "assessment_windows/live_assessment.h"

namespace {

constexpr int TakingIntervalMs = 250;
constexpr int PassesOfReport = 12; // about three seconds

void addAll(SensorAssessor &assessor, const std::vector<std::shared_ptr<const StreamBatch>> &batches)
{
    for (const auto &batch : batches) {
        for (const StreamBatch::Message &message : batch->messages) {
            assessor.add(batch->octetsOf(message), QDateTime::fromMSecsSinceEpoch(message.timeMs, Qt::UTC));
        }
    }
}

} // namespace

LiveAssessment::LiveAssessment(SwitchTap switchTap, QObject *parent)
    : QObject(parent), m_switchTap(std::move(switchTap))
{
    m_timer.setInterval(TakingIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &LiveAssessment::takeMore);
}

LiveAssessment::~LiveAssessment()
{
    stop();
}

void LiveAssessment::start(const SensorAssessor::Options &options)
{
    stop();
    m_assessor = std::make_shared<SensorAssessor>(options);
    m_tap = std::make_shared<StreamTap>(StreamTap::Content::Messages);
    m_missed = 0;
    m_passes = PassesOfReport - 4; // the first report comes soon
    m_switchTap(m_tap, true);
    m_timer.start();
}

void LiveAssessment::stop()
{
    if (!m_tap) {
        return;
    }
    m_switchTap(m_tap, false);
    m_timer.stop();
    m_pass.cancel();
    m_waiting.clear();
    m_tap.reset();
    m_assessor.reset();
}

void LiveAssessment::takeMore()
{
    StreamTap::Taken taken = m_tap->takeAll();
    m_missed += taken.missed;
    m_waiting.insert(m_waiting.end(), taken.batches.begin(), taken.batches.end());
    if (m_pass.running()) {
        return;
    }
    m_passes = (m_passes + 1) % PassesOfReport;
    const auto work = [assessor = m_assessor, batches = std::move(m_waiting), isReportDue = m_passes == 0](
                          const BackgroundPass::Token &) {
        addAll(*assessor, batches);
        return isReportDue ? std::optional(assessor->report()) : std::nullopt;
    };
    m_waiting.clear();
    m_pass.start(work, [this](const std::optional<AssessmentReport> &report) {
        if (report) {
            Q_EMIT reported(*report);
        }
    });
}
