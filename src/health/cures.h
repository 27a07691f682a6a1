#pragma once

#include "explanation/absence.h"
#include "health/source_health.h"

#include <QObject>

#include <functional>

class Config;
class QAction;

// Does what a button beside a sentence promises. GUI thread.
class Cures final : public QObject {
    Q_OBJECT

public:
    // What it is done with; all must outlive this object.
    struct Means {
        QAction *showPlots = nullptr; // these three are checked while it is so
        QAction *showLabels = nullptr;
        QAction *pause = nullptr;
        QAction *start = nullptr;
        QAction *openSettings = nullptr;
        std::function<void(const std::function<void(Config &)> &)> changeSensor; // and read the input with it
    };
    Cures(const Means &means, QObject *parent) : QObject(parent), m_means(means) { }

public Q_SLOTS:
    void cureSource(const SourceHealth &source);
    // Those that concern one target are nobody's but the plan view's.
    void cureAbsence(Cure cure);

private:
    const Means m_means;
};
