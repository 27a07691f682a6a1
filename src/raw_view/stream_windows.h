#pragma once

#include "raw_view/diagnosis_window.h"

#include <QObject>
#include <QPointer>

class RawViewWindow;

// The windows on the stream as it comes, made when they are first opened. GUI thread.
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

private:
    QWidget *m_window;
    EngineHost *m_host;
    DiagnosisWindow::InputSettings m_settings;
    QPointer<RawViewWindow> m_rawView;
    QPointer<DiagnosisWindow> m_diagnosis;
};
