#pragma once

#include "raw_view/live_diagnosis.h"
#include "widgets/geometry_dialog.h"

class QLabel;
class QPushButton;
class QTextBrowser;

#include <functional>

// What arrives, in words, and what is wrong with it or with the settings that it is read with. Looks when it is opened,
// and again when asked to. GUI thread.
class DiagnosisWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The host must outlive the window. Settings as of now; none while no input is open.
    using InputSettings = std::function<const Config *()>;
    DiagnosisWindow(EngineHost *host, InputSettings settings, QWidget *parent = nullptr);

    void look();
    void showResult(const LiveDiagnosis::Result &result);
    // The sentences, one a line, with how much each matters before it.
    QString plainText() const;

protected:
    void setVisible(bool visible) override;

private:
    InputSettings m_settings;
    LiveDiagnosis m_diagnosis;
    Diagnosis m_remarks;
    QLabel *m_state;
    QTextBrowser *m_text;
    QPushButton *m_again = nullptr;
};
