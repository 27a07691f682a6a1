#pragma once

#include "app/background_pass.h"
#include "assessment/recording_assessment.h"
#include "assessment_windows/live_assessment.h"
#include "widgets/geometry_dialog.h"

#include <functional>
#include <optional>

class ChartView;
class FileEdit;
class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

// How good the radars of the input, or of a recording, are: figures, charts, and a report to keep. GUI thread.
class SensorCheckWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // What is known of radars and how the input's messages are wrapped; asked at each start.
    using OptionsSource = std::function<SensorAssessor::Options()>;

    // switchTap may be null: then there are recordings only.
    SensorCheckWindow(LiveAssessment::SwitchTap switchTap, OptionsSource options, QWidget *parent = nullptr);

    // Whether an input is open, and under what name it stands in reports.
    void setInput(bool isOpen, const QString &name);
    void assessFile(const QString &fileName);
    void assessInput();
    void stop();

    // Asked for the name of a report; empty: none is written. Replaces the file dialog.
    void setNameQuestion(std::function<QString()> question) { m_nameQuestion = std::move(question); }

Q_SIGNALS:
    // The radar that is to be shown on the map; nothing: none is.
    void detectionChosen(const std::optional<SensorReport> &sensor);

private:
    void makeSourceRow(QVBoxLayout *layout);
    void makeResults(QVBoxLayout *layout);
    void makeFoot(QVBoxLayout *layout);
    void startOrStop();
    void take(const AssessmentReport &report);
    void takeRecording(const RecordingAssessment &result);
    const SensorReport *chosen() const;
    void showChosen();
    void showFigures(const SensorReport &sensor);
    void updateControls();
    void sayStatus(const QString &text);
    void chooseDetection();
    void exportReport();
    QString askName();

    OptionsSource m_options;
    bool m_canListen;
    LiveAssessment m_live;
    BackgroundPass m_pass;
    AssessmentReport m_report;
    std::function<QString()> m_nameQuestion;
    QString m_inputName;
    bool m_isInputOpen = false;

    QComboBox *m_source = nullptr;
    FileEdit *m_file = nullptr;
    QPushButton *m_start = nullptr;
    QProgressBar *m_progress = nullptr;
    QComboBox *m_radar = nullptr;
    QLabel *m_status = nullptr;
    QTreeWidget *m_figures = nullptr;
    QList<ChartView *> m_charts;
    QCheckBox *m_onMap = nullptr;
    QPushButton *m_export = nullptr;
};
