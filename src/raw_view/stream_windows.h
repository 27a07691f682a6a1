#pragma once

#include "raw_view/diagnosis_window.h"
#include "raw_view/standing_diagnosis.h"

#include <QObject>
#include <QPointer>

class RawViewWindow;

// The windows on the stream as it comes, made when they are first opened, and what is to be said of it elsewhere. GUI
// thread.
class StreamWindows final : public QObject {
    Q_OBJECT

public:
    // Both must outlive this object; the window is the parent of the others.
    StreamWindows(QWidget *window, EngineHost *host, DiagnosisWindow::InputSettings settings);
    ~StreamWindows() override;

    void showRawView();
    void showDiagnosis();
    // Another input begins.
    void beginInput();
    // Somebody wants to know what is wrong with the input.
    void setWatched(bool watched) { m_standing.setWatched(watched); }

Q_SIGNALS:
    // A sentence each.
    void diagnosed(const QStringList &sentences);

private:
    QWidget *m_window;
    EngineHost *m_host;
    DiagnosisWindow::InputSettings m_settings;
    StandingDiagnosis m_standing;
    QPointer<RawViewWindow> m_rawView;
    QPointer<DiagnosisWindow> m_diagnosis;
};
