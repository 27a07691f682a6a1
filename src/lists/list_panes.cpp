#include "lists/list_panes.h"

#include "app/ui_state.h"
#include "display/geo_track_display.h"
#include "lists/alert_list_model.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"

#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
constexpr int RefreshIntervalMs = 1000;
constexpr auto TrackListKey = "trackListHeader";
constexpr auto AlertListKey = "alertListHeader";
} // namespace

ListPanes::ListPanes(QMainWindow *window, GeoTrackDisplay *tracks, NewestSnapshot newest)
    : m_window(window), m_tracks(tracks), m_newest(std::move(newest))
{
    makeLists();
    m_trackDock = addDock(tr("Track List"), "trackListDock", m_trackView);
    m_alertDock = addDock(tr("Alert List"), "alertListDock", m_alertView);
    connectTrackList();
    connectAlertList();
    connect(m_trackDock, &QDockWidget::visibilityChanged, this, &ListPanes::updateTrackList);
    connect(m_alertDock, &QDockWidget::visibilityChanged, this, &ListPanes::updateAlertList);
    m_trackTimer.setInterval(RefreshIntervalMs);
    connect(&m_trackTimer, &QTimer::timeout, this, &ListPanes::updateTrackList);
    m_alertTimer.setInterval(RefreshIntervalMs);
    connect(&m_alertTimer, &QTimer::timeout, this, &ListPanes::updateAlertList);
}

void ListPanes::makeLists()
{
    m_trackModel = new TrackListModel(m_window);
    m_trackView = new ListView(m_trackModel, m_trackModel->columns(), m_window);
    m_trackView->setObjectName("trackList");
    m_trackView->sortByColumn(TrackListModel::Callsign, Qt::AscendingOrder);
    m_alertModel = new AlertListModel(m_window);
    m_alertView = new ListView(m_alertModel, m_alertModel->columns(), m_window);
    m_alertView->setObjectName("alertList");
    m_alertView->sortByColumn(AlertListModel::Start, Qt::DescendingOrder);
}

void ListPanes::connectTrackList()
{
    const auto activate = [this](int row) { Q_EMIT trackActivated(m_trackModel->trackId(row)); };
    connect(m_trackView, &ListView::selectedRowChanged, this, &ListPanes::trackListSelectionChanged);
    connect(m_trackView, &ListView::hoveredRowChanged, m_tracks,
        [this](int row) { m_tracks->setHovered(row < 0 ? 0 : m_trackModel->trackId(row)); });
    connect(m_trackView, &ListView::rowDoubleClicked, this, activate);
    connect(m_trackView, &ListView::rowConfirmed, this, activate);
    connect(m_trackView, &ListView::rowMenuRequested, this, [this](int row, const QPoint &globalPosition) {
        Q_EMIT trackMenuRequested(m_trackModel->trackId(row), 0, globalPosition);
    });
}

void ListPanes::connectAlertList()
{
    connect(m_alertView, &ListView::selectedRowChanged, this, &ListPanes::alertListSelectionChanged);
    connect(m_alertView, &ListView::hoveredRowChanged, m_tracks,
        [this](int row) { m_tracks->setHovered(row < 0 ? 0 : m_alertModel->trackId(row)); });
    connect(m_alertView, &ListView::rowDoubleClicked, this,
        [this](int row) { Q_EMIT trackActivated(m_alertModel->trackId(row)); });
    connect(m_alertView, &ListView::rowConfirmed, m_tracks,
        [this](int row) { m_tracks->acknowledge(m_alertModel->key(row)); });
    connect(m_alertView, &ListView::rowMenuRequested, this, [this](int row, const QPoint &globalPosition) {
        Q_EMIT trackMenuRequested(m_alertModel->trackId(row), m_alertModel->key(row), globalPosition);
    });
    connect(m_tracks, &GeoTrackDisplay::acknowledged, this, &ListPanes::updateAlertList);
}

QDockWidget *ListPanes::addDock(const QString &title, const QString &name, QWidget *list)
{
    auto *content = new QWidget(m_window);
    auto *warning = new QLabel(content);
    warning->setAlignment(Qt::AlignCenter);
    warning->setTextFormat(Qt::PlainText);
    warning->setWordWrap(true);
    warning->hide();
    m_warnings.append(warning);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(warning);
    layout->addWidget(list);
    auto *dock = new QDockWidget(title, m_window);
    dock->setObjectName(name); // under which the window's state remembers it
    dock->setWidget(content);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    return dock;
}

void ListPanes::start()
{
    for (QTimer *timer : {&m_trackTimer, &m_alertTimer}) {
        if (!timer->isActive()) {
            timer->start();
        }
    }
}

void ListPanes::setEmptyTexts(const QString &tracks, const QString &alerts)
{
    m_trackView->setEmptyText(tracks);
    m_alertView->setEmptyText(alerts);
}

void ListPanes::setWarning(Urgency urgency, const QString &text)
{
    for (QLabel *warning : std::as_const(m_warnings)) {
        const QString style = urgencyStyle(urgency) + QStringLiteral("; padding: 3px; font-weight: bold");
        if (warning->styleSheet() != style) { // setting one costs a new layout
            warning->setStyleSheet(style);
        }
        warning->setText(text);
        warning->setVisible(!text.isEmpty());
    }
}

void ListPanes::setAddresses(const korvane::airdb::ICAOAddrDictionary &addresses)
{
    m_trackModel->setAddresses(addresses);
}

void ListPanes::restore(const QString &group)
{
    m_trackView->horizontalHeader()->restoreState(UiState::value(group, TrackListKey));
    m_alertView->horizontalHeader()->restoreState(UiState::value(group, AlertListKey));
}

void ListPanes::save(const QString &group) const
{
    UiState::saveValue(group, TrackListKey, m_trackView->horizontalHeader()->saveState());
    UiState::saveValue(group, AlertListKey, m_alertView->horizontalHeader()->saveState());
}

bool ListPanes::outOfSight(const ListView *list) const
{
    return m_window->isVisible() && !list->isVisible();
}

void ListPanes::refresh()
{
    updateTrackList();
    updateAlertList();
}

void ListPanes::updateTrackList()
{
    const auto snapshot = m_newest();
    const QList<TrackSnapshot> tracks = snapshot ? snapshot->tracks : QList<TrackSnapshot>();
    m_trackDock->setWindowTitle(tr("Track List - %1").arg(tracks.size()));
    if (outOfSight(m_trackView)) {
        return;
    }
    const QScopedValueRollback updating(m_updating, true);
    m_trackModel->setTracks(tracks);
    selectTrackInList(m_tracks->selectedTrackId());
}

void ListPanes::updateAlertList()
{
    const auto snapshot = m_newest();
    const QList<AlertSnapshot> alerts = snapshot ? snapshot->alerts : QList<AlertSnapshot>();
    const AlertBoard &board = m_tracks->alertBoard();
    const auto ofTracks = std::count_if(
        board.entries().begin(), board.entries().end(), [](const AlertBoard::Entry &entry) { return entry.ofTrack; });
    m_alertDock->setWindowTitle(tr("Alert List - %1").arg(alerts.size() + ofTracks));
    if (outOfSight(m_alertView)) {
        return;
    }
    const QScopedValueRollback updating(m_updating, true);
    m_alertModel->setAlerts(alerts, board);
    m_alertView->setLitRows(m_alertModel->rowsOf(m_litTrack)); // an alert may have come under the pointer
}

void ListPanes::clearTrackList()
{
    const QScopedValueRollback updating(m_updating, true);
    m_trackModel->clear();
    m_trackDock->setWindowTitle(tr("Track List - %1").arg(0));
}

void ListPanes::clearAlertList()
{
    const QScopedValueRollback updating(m_updating, true);
    m_alertModel->clear();
    m_alertDock->setWindowTitle(tr("Alert List - %1").arg(0));
}

void ListPanes::trackListSelectionChanged()
{
    if (m_updating) {
        return;
    }
    const int row = m_trackView->selectedRow();
    m_tracks->setSelected(row < 0 ? 0 : m_trackModel->trackId(row));
}

void ListPanes::alertListSelectionChanged()
{
    const int row = m_alertView->selectedRow();
    if (m_updating || row < 0 || m_alertModel->trackId(row) == 0) {
        return;
    }
    m_tracks->setSelected(m_alertModel->trackId(row));
    selectTrackInList(m_alertModel->trackId(row));
}

void ListPanes::selectTrackInList(unsigned long long id)
{
    const int row = m_trackModel->rowOf(id).value_or(-1);
    if (row == m_trackView->selectedRow()) {
        return;
    }
    const QScopedValueRollback updating(m_updating, true);
    m_trackView->selectRow(row);
}

void ListPanes::lightTrackInLists(unsigned long long id)
{
    m_litTrack = id;
    const std::optional<int> row = m_trackModel->rowOf(id);
    m_trackView->setLitRows(row ? QList<int>{*row} : QList<int>());
    m_alertView->setLitRows(m_alertModel->rowsOf(id));
}
