#include "raw_view/live_diagnosis.h"

#include "engine/engine_host.h"
#include "recognition/settings_diagnosis.h"
#include "recognition/stream_analyser.h"
#include "recognition/stream_diagnosis.h"

#include <QDateTime>

namespace {

constexpr int LookPeriodMs = 300;

using Batches = std::vector<std::shared_ptr<const StreamBatch>>;

StreamFindings findingsOf(const Batches &batches, const BackgroundPass::Token &token)
{
    StreamAnalyser analyser;
    for (const auto &batch : batches) {
        for (const StreamBatch::Message &message : batch->messages) {
            if (token.cancelled()) {
                return {};
            }
            const auto octets = batch->octetsOf(message);
            analyser.add(QByteArray::fromRawData(
                             reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())),
                QDateTime::fromMSecsSinceEpoch(message.timeMs, Qt::UTC));
        }
    }
    return analyser.findings();
}

} // namespace

LiveDiagnosis::LiveDiagnosis(EngineHost *host, QObject *parent) : QObject(parent), m_host(host)
{
    connect(&m_pullTimer, &QTimer::timeout, this, &LiveDiagnosis::pull);
}

LiveDiagnosis::~LiveDiagnosis()
{
    stop();
}

void LiveDiagnosis::start(const Config &config)
{
    stop();
    m_config = config;
    m_heard.clear();
    m_octets = 0;
    m_tap = std::make_shared<StreamTap>(StreamTap::Content::Messages);
    m_host->openTap(m_tap);
    m_clock.start();
    m_pullTimer.start(LookPeriodMs);
}

void LiveDiagnosis::stop()
{
    endListening();
    m_analysis.cancel();
}

void LiveDiagnosis::endListening()
{
    m_pullTimer.stop();
    if (m_tap) {
        m_host->closeTap(m_tap);
        m_tap.reset();
    }
}

void LiveDiagnosis::pull()
{
    for (const auto &batch : m_tap->takeAll().batches) {
        m_octets += batch->octets.size();
        m_heard.push_back(batch);
    }
    const bool isEnough = m_clock.elapsed() >= ListeningMs || m_octets >= MostOctets;
    if (isEnough) {
        endListening();
    }
    if (isEnough || !m_analysis.running()) {
        analyse(isEnough);
    }
}

void LiveDiagnosis::analyse(bool isFinal)
{
    const auto work = [batches = m_heard, config = m_config, isFinal](const BackgroundPass::Token &token) {
        const StreamFindings findings = findingsOf(batches, token);
        Result result;
        result.messages = findings.messages;
        result.isFinal = isFinal;
        if (findings.messages > 0 || isFinal) {
            result.remarks = diagnose(findings) + diagnoseSettings(findings, config);
        }
        return result;
    };
    if (isFinal) {
        m_heard.clear(); // the work holds what it needs
    }
    m_analysis.start(work, [this](const Result &result) { Q_EMIT found(result); });
}
