#pragma once

#include "raw_view/live_diagnosis.h"

#include <QStringList>

#include <functional>

// What is remarkable about the input as it comes, for as long as somebody looks: found out when he begins to, when
// another input begins, and every minute. GUI thread.
class StandingDiagnosis final : public QObject {
    Q_OBJECT

public:
    // The settings of the input; null while none is open. The host must outlive this object.
    StandingDiagnosis(EngineHost *host, std::function<const Config *()> settings, QObject *parent = nullptr);

    // The sentences of what is wrong or worth knowing, the worst first; what the stream holds is no such thing.
    static QStringList sentencesOf(const Diagnosis &remarks);

public Q_SLOTS:
    void setWatched(bool watched);
    // What was found is of another input.
    void beginInput();

Q_SIGNALS:
    // Also none any more.
    void found(const QStringList &sentences);

private:
    void listen();

    std::function<const Config *()> m_settings;
    LiveDiagnosis m_diagnosis;
    QTimer m_timer; // to the next listening
    bool m_watched = false;
};
