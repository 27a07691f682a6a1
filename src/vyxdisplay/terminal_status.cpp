#include "vyxdisplay/terminal_status.h"

#include "health/input_health.h"
#include "ui/input_session.h"

namespace {

QString stateName(const InputSession &session)
{
    switch (session.state()) {
    case InputSession::State::Closed:
        return QStringLiteral("closed");
    case InputSession::State::Opening:
        return QStringLiteral("opening");
    case InputSession::State::Open:
        break;
    }
    return session.paused() ? QStringLiteral("paused") : QStringLiteral("open");
}

QString lampName(SourceJudgement::Light light)
{
    switch (light) {
    case SourceJudgement::Light::Off:
        return QStringLiteral("off");
    case SourceJudgement::Light::Green:
        return QStringLiteral("green");
    case SourceJudgement::Light::Amber:
        return QStringLiteral("amber");
    case SourceJudgement::Light::Red:
        break;
    }
    return QStringLiteral("red");
}

} // namespace

void describeInput(const InputSession &session, const InputHealth &health, TerminalStatus &status)
{
    status.inputState = stateName(session);
    status.input = session.description();
    status.lamp = lampName(health.light());
    status.notice = session.notice();
    if (const auto &warning = health.notice(); warning && status.notice.isEmpty()) {
        status.notice = QStringLiteral("%1. %2").arg(warning->headline, warning->text);
    }
}
