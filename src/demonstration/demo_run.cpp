#include "demonstration/demo_run.h"

#include "app/run_config.h"

DemoRun::DemoRun(RunConfig *config, const QString &program, QObject *parent)
    : QObject(parent), m_config(config), m_program(program)
{
    // A recording takes the demonstration's place.
    connect(config, &RunConfig::trialEnded, this, &DemoRun::dropTraffic);
}

void DemoRun::begin()
{
    if (isActive() || m_question.running()) {
        return;
    }
    const auto ask = [program = m_program](const BackgroundPass::Token &) {
        Answer answer;
        answer.json = DemoTraffic::askForSensor({}, program, &answer.error);
        return answer;
    };
    m_question.start(ask, [this](const Answer &answer) { take(answer); });
}

void DemoRun::take(const Answer &answer)
{
    auto *traffic = new DemoTraffic({}, m_program, this);
    QString error = answer.error;
    if (answer.json.isNull() || !traffic->takeSensor(answer.json, &error)) {
        delete traffic;
        Q_EMIT message(LogLevel::Warning, tr("The demonstration cannot be shown: %1").arg(error));
        return;
    }
    m_traffic = traffic;
    connect(traffic, &DemoTraffic::message, this, &DemoRun::message);
    Q_EMIT begun(m_config->beginTrial([traffic](Config &config) { traffic->applyTo(config); }));
}

void DemoRun::send()
{
    if (m_traffic) {
        m_traffic->start();
    }
}

void DemoRun::end()
{
    if (isActive()) {
        Q_EMIT ended(m_config->bringBack());
    }
}

void DemoRun::dropTraffic()
{
    if (m_traffic) {
        m_traffic->disconnect(this);
        m_traffic->endSoon();
        m_traffic.clear();
    }
}
