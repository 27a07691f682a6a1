#pragma once

#include "health/source_health.h"

#include <QDockWidget>

class HealthLamp;
class HealthPane;
class InputHealth;
class QMainWindow;

// The pane of the input's sources and, in the status bar, the light that brings it up. Hidden until it is asked for:
// what must not be missed stands on the scope. GUI thread.
class HealthDock final : public QDockWidget {
    Q_OBJECT

public:
    // Becomes the window's, a tab beside that dock; the health must outlive it.
    HealthDock(const InputHealth *health, QMainWindow *window, QDockWidget *beside);

public Q_SLOTS:
    // Of the stream as a whole, as HealthPane has it.
    void setDiagnosis(const QStringList &sentences);

Q_SIGNALS:
    // The operator wants what the judgement of this source proposes.
    void cureRequested(const SourceHealth &source);

private:
    void bringUp();
    void refresh();

    const InputHealth *m_health;
    QMainWindow *m_window;
    HealthPane *m_pane;
    HealthLamp *m_lamp; // the status bar's
};
