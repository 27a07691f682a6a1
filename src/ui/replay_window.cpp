#include "ui/replay_window.h"

#include "astfile/recording_index.h"
#include "widgets/figure_font.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>

using korvane::astfile::RecFile;
using korvane::astfile::RecordingIndex;

namespace {

constexpr auto TimeFormat = "yyyy-MM-dd hh:mm:ss";
constexpr auto NoTime = "-";
constexpr int SliderSteps = 10000; // from the first to the last time of the recording

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString(TimeFormat) : QString(NoTime);
}

// Hours may have more than two digits.
QString durationText(qint64 milliseconds)
{
    const qint64 seconds = std::max<qint64>(0, milliseconds) / 1000;
    return QString("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QHBoxLayout *rowOf(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

ReplayWindow::ReplayWindow(QWidget *parent) : GeometryDialog("ReplayWindow", parent)
{
    setWindowTitle(tr("Playback"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeFileRow());
    layout->addWidget(makeScanRow());
    layout->addWidget(makeTimeRows());
    layout->addWidget(makeJumpRow());
    layout->addWidget(makeControlRow());
    layout->addStretch(1);
    setFile({});
    updateControls();
}

QWidget *ReplayWindow::makeFileRow()
{
    auto *row = new QWidget(this);
    m_file = new QLabel;
    m_file->setObjectName("file");
    m_file->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *open = new QPushButton(tr("&Open..."));
    open->setObjectName("open");
    open->setAutoDefault(false);
    connect(open, &QPushButton::clicked, this, &ReplayWindow::openRequested);
    rowOf(row)->addWidget(m_file, 1);
    row->layout()->addWidget(open);
    return row;
}

QWidget *ReplayWindow::makeScanRow()
{
    auto *row = new QWidget(this);
    m_contents = new QLabel;
    m_contents->setObjectName("contents");
    m_contents->setWordWrap(true);
    m_progress = new QProgressBar;
    m_progress->setObjectName("scanProgress");
    m_progress->setRange(0, 100);
    m_cancel = new QPushButton(tr("&Cancel"));
    m_cancel->setObjectName("cancelScan");
    m_cancel->setAutoDefault(false);
    connect(m_cancel, &QPushButton::clicked, this, &ReplayWindow::scanCancelRequested);
    QHBoxLayout *layout = rowOf(row);
    layout->addWidget(m_contents, 1);
    layout->addWidget(m_progress);
    layout->addWidget(m_cancel);
    return row;
}

QLabel *ReplayWindow::makeReadOut(const QString &name)
{
    auto *label = new QLabel(NoTime);
    label->setObjectName(name);
    label->setFont(figureFont());
    return label;
}

QWidget *ReplayWindow::makeTimeRows()
{
    auto *rows = new QWidget(this);
    m_slider = new QSlider(Qt::Horizontal);
    m_slider->setObjectName("position");
    m_slider->setRange(0, SliderSteps);
    m_slider->setPageStep(SliderSteps / 20);
    connect(m_slider, &QSlider::sliderReleased, this, &ReplayWindow::sliderReleased);
    connect(m_slider, &QSlider::sliderMoved, this, [this] { m_positionTime->setText(timeText(sliderTime())); });
    connect(m_slider, &QSlider::actionTriggered, this, [this](int action) {
        // Keys and clicks beside the handle; the value is changed only after this signal.
        if (action != QAbstractSlider::SliderMove) {
            QMetaObject::invokeMethod(this, &ReplayWindow::sliderReleased, Qt::QueuedConnection);
        }
    });
    m_firstTime = makeReadOut("firstTime");
    m_lastTime = makeReadOut("lastTime");
    m_positionTime = makeReadOut("positionTime");
    m_elapsed = makeReadOut("elapsed");
    m_remaining = makeReadOut("remaining");
    auto *grid = new QGridLayout(rows);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_slider, 0, 0, 1, 3);
    grid->addWidget(m_firstTime, 1, 0, Qt::AlignLeft);
    grid->addWidget(m_positionTime, 1, 1, Qt::AlignHCenter);
    grid->addWidget(m_lastTime, 1, 2, Qt::AlignRight);
    grid->addWidget(m_elapsed, 2, 0, Qt::AlignLeft);
    grid->addWidget(m_remaining, 2, 2, Qt::AlignRight);
    return rows;
}

QWidget *ReplayWindow::makeJumpRow()
{
    auto *row = new QWidget(this);
    m_jumpTime = new QDateTimeEdit;
    m_jumpTime->setObjectName("jumpTime");
    m_jumpTime->setTimeSpec(Qt::UTC);
    m_jumpTime->setDisplayFormat(TimeFormat);
    auto *label = new QLabel(tr("&Jump to:"));
    label->setBuddy(m_jumpTime);
    m_jump = new QPushButton(tr("&Go"));
    m_jump->setObjectName("jump");
    m_jump->setAutoDefault(false);
    connect(m_jump, &QPushButton::clicked, this, &ReplayWindow::jump);
    QHBoxLayout *layout = rowOf(row);
    layout->addWidget(label);
    layout->addWidget(m_jumpTime);
    layout->addWidget(m_jump);
    layout->addStretch(1);
    return row;
}

QWidget *ReplayWindow::makeControlRow()
{
    auto *row = new QWidget(this);
    const auto button = [this](const QString &text, const QString &name) {
        auto *made = new QPushButton(text, this);
        made->setObjectName(name);
        made->setAutoDefault(false);
        return made;
    };
    m_start = button(tr("&Start"), "start");
    m_stop = button(tr("S&top"), "stop");
    m_live = button(tr("&Live Input"), "liveInput");
    m_live->setToolTip(tr("Leave the recording and go back to the live input"));
    m_speed = new QComboBox;
    m_speed->setObjectName("speed");
    for (const ReplaySpeed::Speed speed : ReplaySpeed::values()) {
        m_speed->addItem(ReplaySpeed::name(speed), speed);
    }
    m_autoRewind = new QCheckBox(tr("Start &again at the end"));
    m_autoRewind->setObjectName("autoRewind");
    auto *speedLabel = new QLabel(tr("S&peed:"));
    speedLabel->setBuddy(m_speed);
    connect(m_start, &QPushButton::clicked, this, &ReplayWindow::startOrPause);
    connect(m_stop, &QPushButton::clicked, this, &ReplayWindow::stopRequested);
    connect(m_live, &QPushButton::clicked, this, &ReplayWindow::liveInputRequested);
    connect(m_speed, &QComboBox::activated, this,
        [this] { Q_EMIT speedChosen(m_speed->currentData().value<ReplaySpeed::Speed>()); });
    connect(m_autoRewind, &QCheckBox::clicked, this, &ReplayWindow::autoRewindChanged);
    QHBoxLayout *layout = rowOf(row);
    layout->addWidget(m_start);
    layout->addWidget(m_stop);
    layout->addSpacing(12);
    layout->addWidget(speedLabel);
    layout->addWidget(m_speed);
    layout->addWidget(m_autoRewind);
    layout->addStretch(1);
    layout->addWidget(m_live);
    return row;
}

void ReplayWindow::setFile(const QFileInfo &file)
{
    m_fileInfo = file;
    m_first = m_last = m_position = QDateTime();
    const bool known = !file.fileName().isEmpty();
    m_file->setText(known ? file.fileName() : tr("No recording is open."));
    m_file->setToolTip(known ? file.absoluteFilePath() : QString());
    m_contents->setText(known ? RecFile::formatName(RecFile::formatFromFileName(file.fileName()))
                              : tr("Open one, or drop a file onto the main window."));
    m_progress->hide();
    m_cancel->hide();
    showPosition();
    updateControls();
}

void ReplayWindow::setScanProgress(int percent)
{
    m_contents->setText(tr("Reading the recording to find its times ..."));
    m_progress->setValue(percent);
    m_progress->show();
    m_cancel->show();
}

void ReplayWindow::setScanCancelled()
{
    m_progress->hide();
    m_cancel->hide();
    m_contents->setText(tr("Not read to its end: its times are not known, it plays from its beginning."));
}

void ReplayWindow::setIndex(const RecordingIndex &index, const QString &error)
{
    m_progress->hide();
    m_cancel->hide();
    m_first = index.isNull() ? QDateTime() : index.first();
    m_last = index.isNull() ? QDateTime() : index.last();
    QString text = index.isNull() ? tr("Cannot be read: %1").arg(error)
                                  : tr("%1, %2, %n message(s)", nullptr, static_cast<int>(index.packetCount()))
                                        .arg(RecFile::formatName(RecFile::formatFromFileName(m_fileInfo.fileName())),
                                            QLocale().formattedDataSize(index.fileSize()));
    if (!index.isNull() && !timed()) {
        text += tr(", without time stamps: plays as fast as it can be read");
    }
    if (!index.isNull() && !error.isEmpty()) {
        text += tr(". Faulty: %1").arg(error);
    }
    m_contents->setText(text);
    if (timed()) {
        m_jumpTime->setDateTimeRange(m_first, m_last);
        m_jumpTime->setDateTime(m_position.isValid() ? m_position : m_first);
    }
    showPosition();
    updateControls();
}

void ReplayWindow::setState(State state)
{
    m_state = state;
    if (state == State::Stopped) {
        m_position = QDateTime();
        showPosition();
    }
    updateControls();
}

void ReplayWindow::setPosition(const QDateTime &time)
{
    m_position = time;
    if (!m_slider->isSliderDown()) {
        showPosition();
    }
}

void ReplayWindow::setSpeed(ReplaySpeed::Speed speed)
{
    m_speed->setCurrentIndex(m_speed->findData(speed));
}

void ReplayWindow::setAutoRewind(bool on)
{
    m_autoRewind->setChecked(on);
}

void ReplayWindow::setLiveInputAvailable(bool available)
{
    m_live->setEnabled(available);
}

QDateTime ReplayWindow::sliderTime() const
{
    return timed() ? m_first.addMSecs(m_first.msecsTo(m_last) * m_slider->value() / SliderSteps) : QDateTime();
}

void ReplayWindow::showPosition()
{
    m_firstTime->setText(timeText(m_first));
    m_lastTime->setText(timeText(m_last));
    const QDateTime position = m_position.isValid() ? m_position : m_first;
    m_positionTime->setText(timeText(position));
    const bool known = timed() && position.isValid();
    const qint64 length = known ? m_first.msecsTo(m_last) : 0;
    const qint64 elapsed = known ? std::clamp<qint64>(m_first.msecsTo(position), 0, length) : 0;
    m_slider->setValue(length > 0 ? static_cast<int>(elapsed * SliderSteps / length) : 0);
    m_elapsed->setText(known ? tr("%1 elapsed").arg(durationText(elapsed)) : QString());
    m_remaining->setText(known ? tr("%1 remaining").arg(durationText(length - elapsed)) : QString());
}

void ReplayWindow::updateControls()
{
    const bool hasFile = !m_fileInfo.fileName().isEmpty();
    m_start->setEnabled(hasFile);
    m_start->setText(m_state == State::Playing ? tr("&Pause")
            : m_state == State::Paused         ? tr("&Resume")
                                               : tr("&Start"));
    m_stop->setEnabled(m_state != State::Stopped);
    m_slider->setEnabled(timed());
    m_jumpTime->setEnabled(timed());
    m_jump->setEnabled(timed());
    const QString reason = timed() || !hasFile ? QString() : tr("The times of this recording are not known");
    m_slider->setToolTip(reason);
    m_jump->setToolTip(reason);
}

void ReplayWindow::startOrPause()
{
    if (m_state == State::Stopped) {
        Q_EMIT startRequested(m_slider->value() > 0 ? sliderTime() : QDateTime());
        return;
    }
    Q_EMIT pauseRequested(m_state == State::Playing);
}

void ReplayWindow::sliderReleased()
{
    const QDateTime time = sliderTime();
    if (!time.isValid()) {
        return;
    }
    setPosition(time);
    if (m_state != State::Stopped) {
        Q_EMIT jumpRequested(time);
    }
}

void ReplayWindow::jump()
{
    setPosition(m_jumpTime->dateTime());
    Q_EMIT jumpRequested(m_position);
}
