#include "health/health_lamp.h"

#include "health/health_light.h"

namespace {
constexpr int LampSize = 12; // pixels
}

HealthLamp::HealthLamp(QWidget *parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setText(tr("Input"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({LampSize, LampSize});
    setFocusPolicy(Qt::NoFocus);
    setLight(SourceJudgement::Light::Off, {});
}

void HealthLamp::setLight(SourceJudgement::Light light, const QString &explanation)
{
    const QString hint = tr("How the input does; a click shows its sources.");
    setToolTip(explanation.isEmpty() ? hint : explanation);
    if (light != m_light) {
        m_light = light;
        setIcon(lightPixmap(light, LampSize, devicePixelRatioF()));
    }
}
