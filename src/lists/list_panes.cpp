#include "lists/list_panes.h"

#include "app/ui_state.h"
#include "display/geo_track_display.h"
#include "lists/alert_list_model.h"
#include "lists/column_choice.h"
#include "lists/list_pane.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {
constexpr int RefreshIntervalMs = 1000;
constexpr auto TrackListKey = "trackListColumns";
constexpr auto AlertListKey = "alertListColumns";
} // namespace

ListPanes::ListPanes(QMainWindow *window, GeoTrackDisplay *tracks, NewestSnapshot newest)
    : m_window(window), m_tracks(tracks), m_newest(std::move(newest))
{
    makeLists();
    m_trackDock = addDock(tr("Track List"), "trackListDock", m_trackPane);
    m_alertDock = addDock(tr("Alert List"), "alertListDock", m_alertPane);
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
    m_trackPane = new ListPane(m_trackModel, "trackList", m_window);
    m_trackView = m_trackPane->list();
    m_trackView->sortByColumn(TrackListModel::Callsign, Qt::AscendingOrder);
    m_alertModel = new AlertListModel(m_window);
    m_alertPane = new ListPane(m_alertModel, "alertList", m_window);
    m_alertView = m_alertPane->list();
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
    connect(m_trackView, &ListView::menuRequested, this,
        [this](int row, const QPoint &globalPosition) { requestMenu(m_trackPane, row, globalPosition); });
    connect(m_trackPane, &ListPane::failed, this, &ListPanes::failed);
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
    connect(m_alertView, &ListView::menuRequested, this,
        [this](int row, const QPoint &globalPosition) { requestMenu(m_alertPane, row, globalPosition); });
    connect(m_alertPane, &ListPane::failed, this, &ListPanes::failed);
    connect(m_tracks, &GeoTrackDisplay::acknowledged, this, &ListPanes::updateAlertList);
}

QDockWidget *ListPanes::addDock(const QString &title, const QString &name, ListPane *pane)
{
    auto *dock = new QDockWidget(title, m_window);
    dock->setObjectName(name); // under which the window's state remembers it
    dock->setWidget(pane);
    pane->list()->setAccessibleName(title);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    return dock;
}

void ListPanes::requestMenu(ListPane *pane, int row, const QPoint &globalPosition)
{
    auto *menu = new QMenu(pane);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(pane->actionsFor(row, menu));
    const bool ofAlerts = pane == m_alertPane;
    if (row < 0) {
        menu->popup(globalPosition);
    } else {
        const quint64 track = ofAlerts ? m_alertModel->trackId(row) : m_trackModel->trackId(row);
        Q_EMIT trackMenuRequested(track, ofAlerts ? m_alertModel->key(row) : 0, menu, globalPosition);
    }
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
    m_trackPane->setEmptyText(tracks);
    m_alertPane->setEmptyText(alerts);
}

void ListPanes::setWarning(Urgency urgency, const QString &text)
{
    m_trackPane->setWarning(urgency, text);
    m_alertPane->setWarning(urgency, text);
}

void ListPanes::setAddresses(const korvane::airdb::ICAOAddrDictionary &addresses)
{
    m_trackModel->setAddresses(addresses);
}

void ListPanes::setSensorPlace(const GeoCoordinate &place)
{
    m_trackModel->setSensorPlace(place);
}

void ListPanes::restore(const QString &group)
{
    ColumnChoice::fromBytes(UiState::value(group, TrackListKey), *m_trackView);
    ColumnChoice::fromBytes(UiState::value(group, AlertListKey), *m_alertView);
}

void ListPanes::save(const QString &group) const
{
    UiState::saveValue(group, TrackListKey, ColumnChoice::toBytes(*m_trackView));
    UiState::saveValue(group, AlertListKey, ColumnChoice::toBytes(*m_alertView));
}

int ListPanes::usefulWidth(int most) const
{
    return m_trackView->widthOfWholeColumns(most);
}

void ListPanes::widenToWholeColumns()
{
    m_trackView->widenToWholeColumns();
    m_alertView->widenToWholeColumns();
}

bool ListPanes::outOfSight(const ListPane *pane) const
{
    return m_window->isVisible() && !pane->isVisible();
}

void ListPanes::refresh()
{
    updateTrackList();
    updateAlertList();
}

void ListPanes::updateTrackList()
{
    const auto snapshot = m_newest();
    m_trackDock->setWindowTitle(tr("Track List - %1").arg(snapshot ? snapshot->tracks.size() : 0));
    if (outOfSight(m_trackPane)) {
        return;
    }
    const QScopedValueRollback updating(m_updating, true);
    m_trackPane->takeChange([this, &snapshot] { m_trackModel->setSnapshot(snapshot); });
    selectTrackInList(m_tracks->selectedTrackId());
}

void ListPanes::updateAlertList()
{
    const auto snapshot = m_newest();
    const AlertBoard &board = m_tracks->alertBoard();
    const auto ofTracks = std::count_if(
        board.entries().begin(), board.entries().end(), [](const AlertBoard::Entry &entry) { return entry.ofTrack; });
    m_alertDock->setWindowTitle(tr("Alert List - %1").arg((snapshot ? snapshot->alerts.size() : 0) + ofTracks));
    if (outOfSight(m_alertPane)) {
        return;
    }
    const QScopedValueRollback updating(m_updating, true);
    m_alertPane->takeChange([this, &snapshot, &board] { m_alertModel->setSnapshot(snapshot, board); });
    m_alertView->setLitRows(m_alertModel->rowsOf(m_litTrack)); // an alert may have come under the pointer
}

void ListPanes::clearTrackList()
{
    const QScopedValueRollback updating(m_updating, true);
    m_trackPane->takeChange([this] { m_trackModel->clear(); });
    m_trackDock->setWindowTitle(tr("Track List - %1").arg(0));
}

void ListPanes::clearAlertList()
{
    const QScopedValueRollback updating(m_updating, true);
    m_alertPane->takeChange([this] { m_alertModel->clear(); });
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
