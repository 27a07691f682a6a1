#include "assessment_windows/sensor_check_window.h"

#include "assessment/assessment_text.h"
#include "assessment_report/report_document.h"
#include "assessment_windows/chart_view.h"
#include "astfile/rec_file.h"
#include "widgets/figure_font.h"
#include "widgets/file_edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

using korvane::astfile::RecFile;

namespace {

enum Source { InputSource, RecordingSource };

QString tabTitle(assessment::Chart chart)
{
    using assessment::Chart;
    switch (chart) {
    case Chart::DetectionMap:
        return SensorCheckWindow::tr("Detection");
    case Chart::DetectionByRange:
        return SensorCheckWindow::tr("By Range");
    case Chart::RangeErrors:
        return SensorCheckWindow::tr("Range Errors");
    case Chart::AzimuthErrors:
        return SensorCheckWindow::tr("Azimuth Errors");
    case Chart::Rotation:
        return SensorCheckWindow::tr("Antenna");
    }
    return {};
}

} // namespace

SensorCheckWindow::SensorCheckWindow(LiveAssessment::SwitchTap switchTap, OptionsSource options, QWidget *parent)
    : GeometryDialog(QStringLiteral("SensorCheckWindow"), parent), m_options(std::move(options)),
      m_canListen(switchTap), m_live(std::move(switchTap)), m_nameQuestion([this] { return askName(); })
{
    setWindowTitle(tr("Sensor Check"));
    auto *layout = new QVBoxLayout(this);
    makeSourceRow(layout);
    makeResults(layout);
    makeFoot(layout);
    connect(&m_live, &LiveAssessment::reported, this, &SensorCheckWindow::take);
    connect(&m_pass, &BackgroundPass::progressed, m_progress, &QProgressBar::setValue);
    resize(1080, 640);
    updateControls();
    sayStatus(m_canListen ? tr("Check the input as it comes, or choose a recording.") : tr("Choose a recording."));
}

void SensorCheckWindow::makeSourceRow(QVBoxLayout *layout)
{
    m_source = new QComboBox;
    m_source->setObjectName(QStringLiteral("source"));
    if (m_canListen) {
        m_source->addItem(tr("The input, as it comes"), InputSource);
    }
    m_source->addItem(tr("A recording:"), RecordingSource);
    m_file = new FileEdit(tr("Check Recording"), RecFile::formatNameFilter(RecFile::formats()));
    m_file->setObjectName(QStringLiteral("file"));
    m_start = new QPushButton;
    m_start->setObjectName(QStringLiteral("start"));
    m_start->setDefault(true);
    m_progress = new QProgressBar;
    m_progress->setMaximumWidth(160);
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(tr("Data:")));
    row->addWidget(m_source);
    row->addWidget(m_file, 1);
    row->addWidget(m_progress);
    row->addWidget(m_start);
    layout->addLayout(row);
    connect(m_source, &QComboBox::currentIndexChanged, this, &SensorCheckWindow::updateControls);
    connect(m_start, &QPushButton::clicked, this, &SensorCheckWindow::startOrStop);

    m_radar = new QComboBox;
    m_radar->setObjectName(QStringLiteral("radar"));
    m_radar->setMinimumContentsLength(24);
    m_status = new QLabel;
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setWordWrap(true);
    auto *second = new QHBoxLayout;
    auto *radarLabel = new QLabel(tr("Radar:"));
    radarLabel->setBuddy(m_radar);
    second->addWidget(radarLabel);
    second->addWidget(m_radar);
    second->addWidget(m_status, 1);
    layout->addLayout(second);
    connect(m_radar, &QComboBox::currentIndexChanged, this, &SensorCheckWindow::showChosen);
}

void SensorCheckWindow::makeResults(QVBoxLayout *layout)
{
    using assessment::Chart;
    m_figures = new QTreeWidget;
    m_figures->setObjectName(QStringLiteral("figures"));
    m_figures->setHeaderLabels({tr("Figure"), tr("Value"), tr("Remark")});
    m_figures->setRootIsDecorated(false);
    m_figures->setIndentation(12);
    m_figures->setSelectionMode(QAbstractItemView::NoSelection);
    m_figures->setFocusPolicy(Qt::NoFocus);
    auto *tabs = new QTabWidget;
    tabs->setUsesScrollButtons(false); // all of them are to be seen
    for (const Chart chart :
        {Chart::DetectionMap, Chart::DetectionByRange, Chart::RangeErrors, Chart::AzimuthErrors, Chart::Rotation}) {
        m_charts += new ChartView(chart);
        tabs->addTab(m_charts.last(), tabTitle(chart));
    }
    auto *splitter = new QSplitter;
    splitter->addWidget(m_figures);
    splitter->addWidget(tabs);
    splitter->setSizes({560, 500});
    layout->addWidget(splitter, 1);
}

void SensorCheckWindow::makeFoot(QVBoxLayout *layout)
{
    m_onMap = new QCheckBox(tr("Show the probability of detection on the &map"));
    m_onMap->setObjectName(QStringLiteral("onMap"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_export = buttons->addButton(tr("&Export Report..."), QDialogButtonBox::ActionRole);
    m_export->setObjectName(QStringLiteral("export"));
    m_export->setAutoDefault(false);
    auto *row = new QHBoxLayout;
    row->addWidget(m_onMap, 1);
    row->addWidget(buttons);
    layout->addLayout(row);
    connect(buttons, &QDialogButtonBox::rejected, this, &SensorCheckWindow::reject);
    connect(m_export, &QPushButton::clicked, this, &SensorCheckWindow::exportReport);
    connect(m_onMap, &QCheckBox::toggled, this, &SensorCheckWindow::chooseDetection);
}

void SensorCheckWindow::setInput(bool isOpen, const QString &name)
{
    m_isInputOpen = isOpen;
    m_inputName = name;
    if (!isOpen && m_live.isRunning()) {
        stop();
        sayStatus(tr("The input has ended; this is what came until then."));
    }
    updateControls();
}

void SensorCheckWindow::startOrStop()
{
    if (m_live.isRunning() || m_pass.running()) {
        stop();
        sayStatus(tr("Stopped."));
    } else if (m_source->currentData().toInt() == InputSource) {
        assessInput();
    } else {
        assessFile(m_file->path());
    }
}

void SensorCheckWindow::assessInput()
{
    stop();
    m_source->setCurrentIndex(m_source->findData(m_canListen ? InputSource : RecordingSource));
    if (!m_isInputOpen || !m_canListen) {
        sayStatus(tr("No input is open: start one, or choose a recording."));
        return;
    }
    m_live.start(m_options());
    sayStatus(tr("Listening..."));
    updateControls();
}

void SensorCheckWindow::assessFile(const QString &fileName)
{
    stop();
    m_source->setCurrentIndex(m_source->findData(RecordingSource));
    m_file->setPath(fileName);
    if (fileName.isEmpty()) {
        sayStatus(tr("Choose a recording first."));
        return;
    }
    m_progress->setValue(0);
    const auto work = [fileName, options = m_options()](const BackgroundPass::Token &token) {
        return assessRecording(
            fileName, options, [&token](qint64 done, qint64 total) { return token.report(done, total); });
    };
    m_pass.start(work, [this](const RecordingAssessment &result) { takeRecording(result); });
    sayStatus(tr("Reading %1...").arg(QFileInfo(fileName).fileName()));
    updateControls();
}

void SensorCheckWindow::stop()
{
    m_live.stop();
    m_pass.cancel();
    updateControls();
}

void SensorCheckWindow::takeRecording(const RecordingAssessment &result)
{
    if (result.fault.isEmpty()) {
        take(result.report);
        if (!result.damage.isEmpty()) {
            sayStatus(tr("The file is damaged: %1").arg(result.damage));
        }
    } else {
        sayStatus(tr("%1: %2").arg(QFileInfo(result.fileName).fileName(), result.fault));
    }
    updateControls();
}

// The choice stays with the radar as long as it is there.
void SensorCheckWindow::take(const AssessmentReport &report)
{
    const QVariant before = m_radar->currentData();
    m_report = report;
    if (m_live.isRunning()) {
        m_report.source = m_inputName;
    }
    {
        const QSignalBlocker blocker(m_radar);
        m_radar->clear();
        for (const SensorReport &sensor : m_report.sensors) {
            m_radar->addItem(sensor.title(), sensor.sac * 256 + sensor.sic);
        }
        m_radar->setCurrentIndex(std::max(m_radar->findData(before), m_report.sensors.isEmpty() ? -1 : 0));
    }
    sayStatus(m_report.sensors.isEmpty() ? tr("There are no reports of radars (CAT001, CAT002, CAT034, CAT048).")
                                         : assessment::describeData(m_report));
    showChosen();
    updateControls();
}

const SensorReport *SensorCheckWindow::chosen() const
{
    const int index = m_radar->currentIndex();
    return index >= 0 && index < m_report.sensors.size() ? &m_report.sensors[index] : nullptr;
}

void SensorCheckWindow::showChosen()
{
    const SensorReport none;
    const SensorReport *sensor = chosen() ? chosen() : &none;
    showFigures(*sensor);
    for (ChartView *chart : m_charts) {
        chart->setReport(*sensor);
    }
    chooseDetection();
}

void SensorCheckWindow::showFigures(const SensorReport &sensor)
{
    m_figures->clear();
    if (!chosen()) {
        return;
    }
    for (const assessment::Table &table : assessment::tablesOf(sensor)) {
        auto *group = new QTreeWidgetItem(m_figures, {table.title});
        QFont bold = group->font(0);
        bold.setBold(true);
        group->setFont(0, bold);
        group->setFirstColumnSpanned(true);
        for (const assessment::Row &row : table.rows) {
            auto *item = new QTreeWidgetItem(group, {row.name, row.value, row.remark});
            item->setFont(1, figureFont());
            item->setToolTip(2, row.remark);
        }
    }
    if (!sensor.trouble.isEmpty()) {
        auto *item = new QTreeWidgetItem(m_figures, {sensor.trouble});
        item->setFirstColumnSpanned(true);
        item->setToolTip(0, sensor.trouble);
    }
    m_figures->expandAll();
    m_figures->resizeColumnToContents(0);
    m_figures->resizeColumnToContents(1);
}

void SensorCheckWindow::updateControls()
{
    const bool isBusy = m_live.isRunning() || m_pass.running();
    const bool isRecording = m_source->currentData().toInt() == RecordingSource;
    m_start->setText(isBusy ? tr("S&top") : tr("&Start"));
    m_source->setEnabled(!isBusy);
    m_file->setEnabled(!isBusy && isRecording);
    m_progress->setVisible(m_pass.running());
    m_radar->setEnabled(m_radar->count() > 0);
    m_export->setEnabled(!m_report.sensors.isEmpty());
    const bool isPlaced = chosen() && chosen()->isSite();
    m_onMap->setEnabled(isPlaced || m_onMap->isChecked());
    m_onMap->setToolTip(chosen() && !isPlaced ? tr("Where this radar stands is not known.") : QString());
}

void SensorCheckWindow::sayStatus(const QString &text)
{
    m_status->setText(text);
}

void SensorCheckWindow::chooseDetection()
{
    const bool isShown = m_onMap->isChecked() && chosen() && chosen()->isSite();
    Q_EMIT detectionChosen(isShown ? std::optional(*chosen()) : std::nullopt);
    updateControls();
}

QString SensorCheckWindow::askName()
{
    const QString base = QFileInfo(m_report.source).completeBaseName();
    return QFileDialog::getSaveFileName(this, tr("Export Report"),
        base.isEmpty() ? tr("sensor-check.html") : base + QStringLiteral("-check.html"),
        tr("Web page (*.html);;Portable document (*.pdf)"));
}

void SensorCheckWindow::exportReport()
{
    QString name = m_nameQuestion();
    if (name.isEmpty()) {
        return;
    }
    if (QFileInfo(name).suffix().isEmpty()) {
        name += QStringLiteral(".html");
    }
    const QString fault = assessment::writeReport(m_report, name);
    sayStatus(fault.isEmpty() ? tr("Written to %1.").arg(name) : fault);
}
