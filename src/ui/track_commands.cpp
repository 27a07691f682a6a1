#include "ui/track_commands.h"

#include "display/geo_track_display.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "widgets/scope_chip.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>

namespace {
constexpr int RefreshIntervalMs = 1000;
}

TrackCommands::TrackCommands(Actions *actions, GeoWidget *plan, GeoTrackDisplay *tracks, ListPanes *lists)
    : m_actions(actions), m_plan(plan), m_tracks(tracks), m_lists(lists), m_followChip(new ScopeChip(plan))
{
    QAction *follow = (*actions)[ActionId::FollowSelectedTrack];
    connect(follow, &QAction::toggled, plan, &GeoWidget::setFollowSelectedTrack);
    connect(plan, &GeoWidget::followSelectedTrackChanged, follow, &QAction::setChecked);
    connect(plan, &GeoWidget::followSelectedTrackChanged, this, &TrackCommands::refresh);
    connect(plan, &GeoWidget::trackSelected, lists, &ListPanes::selectTrackInList);
    connect(plan, &GeoWidget::trackSelected, this, &TrackCommands::refresh);
    connect(plan, &GeoWidget::trackHovered, lists, &ListPanes::lightTrackInLists);
    connect(plan, &GeoWidget::trackMenuRequested, this,
        [this](unsigned long long track, const QPoint &place) { notePlanMenu(showMenu(track, 0, place), place); });
    connect(plan, &GeoWidget::placeMenuRequested, this, [this](const QPointF &planePoint, const QPoint &place) {
        notePlanMenu(showPlaceMenu(planePoint, place), place);
    });
    connect(lists, &ListPanes::trackMenuRequested, this, &TrackCommands::showMenuOfList);
    connect(lists, &ListPanes::trackActivated, this, &TrackCommands::bringIntoView);
    connect((*actions)[ActionId::AcknowledgeAlert], &QAction::triggered, this,
        [this] { m_tracks->acknowledgeTrack(m_tracks->selectedTrackId()); });
    connect((*actions)[ActionId::AcknowledgeAllAlerts], &QAction::triggered, tracks, &GeoTrackDisplay::acknowledgeAll);
    connect(tracks, &GeoTrackDisplay::acknowledged, this, &TrackCommands::refresh);
    connect(&m_refreshTimer, &QTimer::timeout, this, &TrackCommands::refresh);
    m_refreshTimer.start(RefreshIntervalMs);
    refresh();
}

QMenu *TrackCommands::showMenu(unsigned long long track, quint64 alert, const QPoint &globalPosition)
{
    auto *menu = new QMenu(m_plan);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(menu, track, alert);
    menu->popup(globalPosition);
    return menu;
}

void TrackCommands::showMenuOfList(unsigned long long track, quint64 alert, QMenu *menu, const QPoint &globalPosition)
{
    const QList<QAction *> ofRow = menu->actions();
    fillMenu(menu, track, alert);
    menu->addSeparator();
    menu->addActions(ofRow); // moves them to the end
    menu->popup(globalPosition);
}

void TrackCommands::fillMenu(QMenu *menu, unsigned long long track, quint64 alert)
{
    if (m_tracks->hasTrack(track)) {
        addTrackActions(menu, track);
    }
    if (alert != 0) {
        menu->addAction(tr("Explain Alert"), this, [this, alert] { Q_EMIT alertToExplain(alert); });
    }
    QAction *one = menu->addAction(tr("Acknowledge"), this, [this, track, alert] { acknowledge(track, alert); });
    one->setEnabled(isAsking(track, alert));
    menu->addAction((*m_actions)[ActionId::AcknowledgeAllAlerts]);
    refresh();
}

QMenu *TrackCommands::showPlaceMenu(const QPointF &planePoint, const QPoint &globalPosition)
{
    auto *menu = new QMenu(m_plan);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction((*m_actions)[ActionId::WhyNotShown]);
    Q_EMIT placeMenuMade(menu, planePoint);
    menu->popup(globalPosition);
    return menu;
}

void TrackCommands::notePlanMenu(QMenu *menu, const QPoint &globalPosition)
{
    m_planMenuAge.start();
    m_planMenuPlace = globalPosition;
    menu->installEventFilter(this);
}

void TrackCommands::addTrackActions(QMenu *menu, unsigned long long track)
{
    const bool selected = track == m_tracks->selectedTrackId();
    menu->addSection(trackName(*m_tracks->findTrack(track)));
    menu->addAction(tr("Select"), this, [this, track] { select(track); })->setEnabled(!selected);
    QAction *follow = menu->addAction(tr("Follow"), this, [this, track](bool on) {
        select(track);
        m_plan->setFollowSelectedTrack(on);
    });
    follow->setCheckable(true);
    follow->setChecked(selected && m_plan->followsSelectedTrack());
    menu->addAction(tr("Centre"), this, [this, track] { m_plan->showTrack(track); });
    QAction *reset =
        menu->addAction(tr("Reset Label"), m_tracks, [this, track] { m_tracks->resetTrackLabelOffset(track); });
    reset->setEnabled(!m_tracks->trackLabelOffsetDefault(track));
    menu->addAction((*m_actions)[ActionId::TrackLabelFormat]);
    menu->addAction(tr("Explain"), this, [this, track] {
        select(track);
        Q_EMIT trackToExplain();
    });
    menu->addSeparator();
}

bool TrackCommands::isAsking(unsigned long long track, quint64 alert) const
{
    const auto &entries = m_tracks->alertBoard().entries();
    return std::any_of(entries.begin(), entries.end(), [=](const AlertBoard::Entry &entry) {
        return entry.isAsking() && (alert != 0 ? entry.key == alert : entry.concerns(track));
    });
}

void TrackCommands::select(unsigned long long track)
{
    m_tracks->setSelected(track);
    m_lists->selectTrackInList(track);
    refresh();
}

void TrackCommands::bringIntoView(unsigned long long track)
{
    if (m_tracks->hasTrack(track)) {
        select(track);
        m_plan->showTrack(track);
    }
}

void TrackCommands::acknowledge(unsigned long long track, quint64 alert)
{
    if (alert != 0) {
        m_tracks->acknowledge(alert);
    } else {
        m_tracks->acknowledgeTrack(track);
    }
}

void TrackCommands::refresh()
{
    const unsigned long long selected = m_tracks->selectedTrackId();
    const TrackSnapshot *track = m_tracks->findTrack(selected);
    const bool following = m_plan->followsSelectedTrack() && track;
    m_followChip->showText(following ? tr("Following %1").arg(trackName(*track)) : QString());
    (*m_actions)[ActionId::AcknowledgeAlert]->setEnabled(isAsking(selected, 0));
    (*m_actions)[ActionId::AcknowledgeAllAlerts]->setEnabled(m_tracks->alertBoard().askingCount() > 0);
}

// The menu comes up at the first click of what may become a double-click, and that belongs to the plan view.
bool TrackCommands::eventFilter(QObject *watched, QEvent *event)
{
    auto *menu = qobject_cast<QMenu *>(watched);
    if (!menu || event->type() != QEvent::MouseButtonPress
        || m_planMenuAge.elapsed() > QApplication::doubleClickInterval()) {
        return QObject::eventFilter(watched, event);
    }
    const auto *press = static_cast<QMouseEvent *>(event);
    const QPoint place = press->globalPosition().toPoint();
    const bool here = (place - m_planMenuPlace).manhattanLength() < QApplication::startDragDistance();
    if (press->button() != Qt::RightButton || !here) {
        return QObject::eventFilter(watched, event);
    }
    menu->close();
    QMouseEvent second(QEvent::MouseButtonDblClick, m_plan->mapFromGlobal(QPointF(place)), QPointF(place),
        Qt::RightButton, Qt::RightButton, press->modifiers());
    QApplication::sendEvent(m_plan, &second);
    return true;
}
