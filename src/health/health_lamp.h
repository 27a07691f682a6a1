#pragma once

#include "health/source_judgement.h"

#include <QToolButton>

// The input's light among the read-outs; a click asks for its pane.
class HealthLamp final : public QToolButton {
    Q_OBJECT

public:
    explicit HealthLamp(QWidget *parent = nullptr);

    void setLight(SourceJudgement::Light light, const QString &explanation);

private:
    SourceJudgement::Light m_light = SourceJudgement::Light::Red;
};
