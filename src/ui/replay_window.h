#pragma once

#include "engine/replay_speed.h"
#include "widgets/geometry_dialog.h"

#include <QDateTime>
#include <QFileInfo>

namespace korvane::astfile {
class RecordingIndex;
}

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QProgressBar;
class QPushButton;
class QSlider;

// The controls of a playback: which recording, where in it, how fast. Shows what it is told and asks by signals; knows
// nothing of the input. Times are UTC.
class ReplayWindow final : public GeometryDialog {
    Q_OBJECT

public:
    enum class State { Stopped, Playing, Paused };

    explicit ReplayWindow(QWidget *parent = nullptr);

    // A recording whose extent is not known yet.
    void setFile(const QFileInfo &file);
    // Percent of the recording that has been read to find out its extent.
    void setScanProgress(int percent);
    void setScanCancelled();
    // What the recording holds; the error names why not all of it, or nothing, could be read.
    void setIndex(const korvane::astfile::RecordingIndex &index, const QString &error);

    void setState(State state);
    // Of the packet just played; ignored while the operator holds the slider.
    void setPosition(const QDateTime &time);
    void setSpeed(ReplaySpeed::Speed speed);
    void setAutoRewind(bool on);
    // Whether there is a live input to go back to.
    void setLiveInputAvailable(bool available);

Q_SIGNALS:
    void openRequested();
    void scanCancelRequested();
    // From where the slider stands.
    void startRequested(const QDateTime &start);
    void pauseRequested(bool paused);
    void stopRequested();
    void jumpRequested(const QDateTime &time);
    void speedChosen(ReplaySpeed::Speed speed);
    void autoRewindChanged(bool on);
    void liveInputRequested();

private:
    QWidget *makeFileRow();
    QWidget *makeScanRow();
    QWidget *makeTimeRows();
    QWidget *makeJumpRow();
    QWidget *makeControlRow();
    QLabel *makeReadOut(const QString &name);
    bool timed() const { return m_first.isValid() && m_last.isValid(); }
    QDateTime sliderTime() const;
    void showPosition();
    void updateControls();
    void startOrPause();
    void sliderReleased();
    void jump();

    QLabel *m_file = nullptr;
    QLabel *m_contents = nullptr;
    QProgressBar *m_progress = nullptr;
    QPushButton *m_cancel = nullptr;
    QSlider *m_slider = nullptr;
    QLabel *m_firstTime = nullptr;
    QLabel *m_lastTime = nullptr;
    QLabel *m_positionTime = nullptr;
    QLabel *m_elapsed = nullptr;
    QLabel *m_remaining = nullptr;
    QDateTimeEdit *m_jumpTime = nullptr;
    QPushButton *m_jump = nullptr;
    QPushButton *m_start = nullptr;
    QPushButton *m_stop = nullptr;
    QPushButton *m_live = nullptr;
    QComboBox *m_speed = nullptr;
    QCheckBox *m_autoRewind = nullptr;

    QFileInfo m_fileInfo;
    State m_state = State::Stopped;
    QDateTime m_first; // of the recording; invalid where it has no time stamps or is not known yet
    QDateTime m_last;
    QDateTime m_position;
};
