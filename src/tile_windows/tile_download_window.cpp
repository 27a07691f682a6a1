#include "tile_windows/tile_download_window.h"

#include "tiles/tile_deployment.h"
#include "widgets/coordinate_edit.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using State = TileDownloadProgress::State;

namespace {

// Of what the services send for land with some detail; pictures of the ground are larger, empty sea is smaller.
constexpr qint64 TypicalOctets = 16 * 1024;
// Where nothing can be said of the service: a map of the region and its approaches.
constexpr int FirstLevel = 5;
constexpr int LastLevel = 10;

QString sizeText(qint64 octets)
{
    return QLocale().formattedDataSize(octets, 1, QLocale::DataSizeTraditionalFormat);
}

QString countText(qint64 count)
{
    return QLocale().toString(count);
}

QString stateText(const TileDownloadProgress &progress)
{
    switch (progress.state) {
    case State::Running:
        return TileDownloadWindow::tr("Downloading");
    case State::Paused:
        return TileDownloadWindow::tr("Paused");
    case State::Waiting:
        return TileDownloadWindow::tr("Waiting");
    case State::Finished:
        return TileDownloadWindow::tr("Finished");
    case State::Failed:
        return TileDownloadWindow::tr("Stopped");
    case State::Cancelled:
        return TileDownloadWindow::tr("Cancelled");
    }
    return {};
}

QLabel *makeText()
{
    auto *label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

TileDownloadWindow::TileDownloadWindow(std::function<Config()> config, QWidget *parent)
    : GeometryDialog(QStringLiteral("TileDownloadWindow"), parent), m_config(std::move(config)),
      m_form(new FieldForm(this))
{
    setWindowTitle(tr("Download Map Tiles"));
    addRows();
    addTargetRows();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_form);
    layout->addStretch(1);
    addProgress();
    connect(&m_downloader, &TileDownloader::progressed, this, &TileDownloadWindow::showProgress);
    connect(&m_downloader, &TileDownloader::message, this, &TileDownloadWindow::message);
    showService();
    offerStored();
    showButtons();
    resize(600, sizeHint().height());
}

void TileDownloadWindow::addRows()
{
    m_service = new QComboBox;
    m_service->setObjectName(QStringLiteral("service"));
    for (int i = static_cast<int>(TileService::BingMaps); i <= static_cast<int>(TileService::Custom); ++i) {
        m_service->addItem(tileServiceName(static_cast<TileService>(i)), i);
    }
    const auto addCorner = [this](const QString &label, const QString &name) {
        auto *corner = new CoordinateEdit(GeoCoordinate::NormalPrecision);
        corner->setObjectName(name);
        m_form->addField(label, corner);
        connect(corner, &QLineEdit::textChanged, this, &TileDownloadWindow::showEstimate);
        return corner;
    };
    const auto addLevel = [this](const QString &label, const QString &name, int value) {
        auto *level = new QSpinBox;
        level->setObjectName(name);
        level->setRange(TileIndex::MinLevel, TileIndex::MaxLevel);
        level->setValue(value);
        m_form->addField(label, level);
        connect(level, &QSpinBox::valueChanged, this, &TileDownloadWindow::showEstimate);
        return level;
    };
    m_form->addField(tr("&Service:"), m_service);
    m_northWest = addCorner(tr("&North-west corner:"), QStringLiteral("northWest"));
    m_southEast = addCorner(tr("South-&east corner:"), QStringLiteral("southEast"));
    auto *view = new QPushButton(tr("Area of the &View"));
    view->setObjectName(QStringLiteral("takeView"));
    view->setAutoDefault(false);
    m_form->addField(view);
    m_firstLevel = addLevel(tr("&Levels from:"), QStringLiteral("firstLevel"), FirstLevel);
    m_lastLevel = addLevel(tr("&to:"), QStringLiteral("lastLevel"), LastLevel);
    connect(view, &QPushButton::clicked, this, &TileDownloadWindow::takeView);
    connect(m_service, &QComboBox::currentIndexChanged, this, &TileDownloadWindow::showService);
}

void TileDownloadWindow::addTargetRows()
{
    m_target = new QComboBox;
    m_target->setObjectName(QStringLiteral("target"));
    m_target->addItem(tr("Tile files of the service, for the map layers"));
    m_target->addItem(tr("One MBTiles file"));
    m_archive = new FileEdit(tr("Download To"), tr("MBTiles (*.mbtiles)"));
    m_archive->setObjectName(QStringLiteral("archive"));
    m_archive->setSaving(true);
    m_estimate = makeText();
    m_estimate->setObjectName(QStringLiteral("estimate"));
    m_terms = makeText();
    m_terms->setObjectName(QStringLiteral("terms"));
    m_confirmed = new QCheckBox(tr("I have the &right to download tiles of this service in bulk"));
    m_confirmed->setObjectName(QStringLiteral("termsConfirmed"));
    m_form->addField(tr("&Write to:"), m_target);
    m_form->addField(tr("&File:"), m_archive);
    m_form->addField(tr("Amount:"), m_estimate);
    m_form->addField(tr("Terms:"), m_terms);
    m_form->addField(m_confirmed);
    m_form->setRowVisible(m_archive, false);
    connect(m_target, &QComboBox::currentIndexChanged, this, [this](int target) {
        m_form->setRowVisible(m_archive, target == 1);
        growToContents(this);
    });
}

void TileDownloadWindow::addProgress()
{
    m_bar = new QProgressBar;
    m_bar->setRange(0, 1000);
    m_status = makeText();
    m_status->setObjectName(QStringLiteral("status"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    m_start = buttons->addButton(tr("&Download"), QDialogButtonBox::ActionRole);
    m_start->setObjectName(QStringLiteral("start"));
    m_start->setDefault(true);
    m_cancel = buttons->addButton(tr("&Cancel Download"), QDialogButtonBox::ActionRole);
    m_cancel->setObjectName(QStringLiteral("cancel"));
    m_cancel->setAutoDefault(false);
    connect(m_start, &QPushButton::clicked, this, &TileDownloadWindow::startOrPause);
    connect(m_cancel, &QPushButton::clicked, this, &TileDownloadWindow::cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &TileDownloadWindow::reject);
    layout()->addWidget(m_bar);
    layout()->addWidget(m_status);
    layout()->addWidget(buttons);
}

void TileDownloadWindow::prepare()
{
    if (!m_downloader.active() && m_stored == 0 && !m_northWest->coordinate().isValid()) {
        m_service->setCurrentIndex(
            std::max(0, m_service->findData(static_cast<int>(m_config().mapTileBottomLayerProvider))));
        takeView();
    }
}

void TileDownloadWindow::takeView()
{
    if (m_view) {
        const TileArea area = m_view();
        m_northWest->setCoordinate({area.north, area.west});
        m_southEast->setCoordinate({area.south, area.east});
    }
}

TileDownloadJob TileDownloadWindow::job() const
{
    TileDownloadJob job;
    const GeoCoordinate northWest = m_northWest->coordinate();
    const GeoCoordinate southEast = m_southEast->coordinate();
    job.service = static_cast<TileService>(m_service->currentData().toInt());
    if (northWest.isValid() && southEast.isValid()) {
        job.area = {northWest.latitude(), northWest.longitude(), southEast.latitude(), southEast.longitude()};
    }
    job.firstLevel = m_firstLevel->value();
    job.lastLevel = m_lastLevel->value();
    job.termsConfirmed = m_confirmed->isChecked();
    if (m_target->currentIndex() == 1 && !m_archive->path().isEmpty()) {
        const QFileInfo file(m_archive->path());
        job.archive = file.absoluteFilePath() + (file.suffix().isEmpty() ? QStringLiteral(".mbtiles") : QString());
    }
    return job;
}

void TileDownloadWindow::showJob(const TileDownloadJob &job)
{
    m_service->setCurrentIndex(m_service->findData(static_cast<int>(job.service)));
    m_northWest->setCoordinate({job.area.north, job.area.west});
    m_southEast->setCoordinate({job.area.south, job.area.east});
    m_firstLevel->setValue(job.firstLevel);
    m_lastLevel->setValue(job.lastLevel);
    m_target->setCurrentIndex(job.archive.isEmpty() ? 0 : 1);
    m_archive->setPath(job.archive);
    m_confirmed->setChecked(job.termsConfirmed);
}

void TileDownloadWindow::offerStored()
{
    const auto stored = TileDownloadJob::stored();
    if (!stored || stored->position == 0) {
        return;
    }
    showJob(*stored);
    m_stored = stored->position;
    const qint64 total = stored->plan().count();
    m_bar->setValue(static_cast<int>(1000 * m_stored / total));
    m_status->setText(tr("A download was broken off after %1 of %2 tiles. It can go on from there.")
                          .arg(countText(m_stored), countText(total)));
}

void TileDownloadWindow::showService()
{
    const auto service = static_cast<TileService>(m_service->currentData().toInt());
    const TileDeployment deployment = tileDeployment(service);
    m_confirmed->setChecked(false);
    m_terms->setText(deployment.terms);
    m_form->setRowVisible(m_terms, !deployment.terms.isEmpty());
    m_form->setRowVisible(m_confirmed, deployment.bulkDownloadForbidden);
    showEstimate();
    if (isVisible()) {
        growToContents(this);
    }
}

void TileDownloadWindow::showEstimate()
{
    const TileDownloadJob entered = job();
    const qint64 count = entered.plan().count();
    m_estimate->setText(count == 0 ? tr("none: the area or the levels are not complete")
                                   : tr("%1 tiles, about %2").arg(countText(count), sizeText(count * TypicalOctets)));
}

bool TileDownloadWindow::validate()
{
    const TileDownloadJob entered = job();
    bool valid = m_form->checkCoordinate(m_northWest);
    valid &= m_form->checkCoordinate(m_southEast);
    if (valid) {
        valid = m_form->check(m_southEast, entered.area.valid() ? QString() : tr("It has to lie south of the other."));
    }
    valid &= m_form->check(
        m_lastLevel, entered.firstLevel <= entered.lastLevel ? QString() : tr("Not below the first level."));
    valid &= m_form->check(m_archive, targetProblem());
    const bool forbidden = tileDeployment(entered.service).bulkDownloadForbidden && !entered.termsConfirmed;
    return valid
        & m_form->check(m_confirmed, forbidden ? tr("Without it nothing of this service is downloaded.") : QString());
}

QString TileDownloadWindow::targetProblem() const
{
    if (m_target->currentIndex() == 0) {
        return {};
    }
    const TileDownloadJob entered = job();
    if (entered.archive.isEmpty()) {
        return tr("The name of a file is needed.");
    }
    return QFileInfo(entered.archive).isDir() ? tr("This is a folder.") : QString();
}

void TileDownloadWindow::startOrPause()
{
    switch (m_downloader.active() ? m_downloader.progress().state : State::Finished) {
    case State::Running:
    case State::Waiting:
        return m_downloader.pause();
    case State::Paused:
        return m_downloader.resume();
    default:
        break;
    }
    if (!validate()) {
        growToContents(this);
        m_form->firstWithNote()->setFocus();
        return;
    }
    TileDownloadJob entered = job();
    const auto stored = TileDownloadJob::stored();
    entered.position = stored ? stored->position : 0;
    // Another one than the one that was broken off begins at its beginning.
    if (!stored || !(*stored == entered)) {
        entered.position = 0;
    }
    begin(entered);
}

void TileDownloadWindow::begin(const TileDownloadJob &job)
{
    if (m_consent && !m_consent(job.service)) {
        m_status->setText(tr("Nothing was downloaded: no service is asked before that is agreed to."));
        return;
    }
    m_stored = 0;
    m_downloader.start(job, m_config());
    showProgress(m_downloader.progress());
}

void TileDownloadWindow::cancel()
{
    if (m_downloader.active()) {
        m_downloader.cancel();
        return;
    }
    // What is only offered is given up.
    TileDownloadJob::forget();
    m_stored = 0;
    m_bar->setValue(0);
    m_status->clear();
    showButtons();
}

void TileDownloadWindow::showProgress(const TileDownloadProgress &progress)
{
    m_bar->setValue(progress.total > 0 ? static_cast<int>(1000 * progress.done() / progress.total) : 0);
    QStringList parts{tr("%1: %2 of %3 tiles, %4 fetched (%5)")
                          .arg(stateText(progress), countText(progress.done()), countText(progress.total),
                              countText(progress.fetched), sizeText(progress.octets))};
    if (progress.present > 0) {
        parts.append(tr("%1 were there already").arg(countText(progress.present)));
    }
    if (progress.unavailable > 0) {
        parts.append(tr("%1 the service does not have").arg(countText(progress.unavailable)));
    }
    QString text = parts.join(QStringLiteral(", ")) + u'.';
    if (!progress.reason.isEmpty()) {
        text += u'\n' + progress.reason;
    }
    m_status->setText(text);
    showButtons();
}

void TileDownloadWindow::showButtons()
{
    const State state = m_downloader.progress().state;
    const bool active = m_downloader.active();
    const bool offered = m_stored > 0 || (!active && state == State::Failed);
    m_start->setText(active && state != State::Paused ? tr("&Pause")
            : active || offered                       ? tr("&Resume")
                                                      : tr("&Download"));
    m_cancel->setEnabled(active || offered);
    m_form->setEnabled(!active);
}
