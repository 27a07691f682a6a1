#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QTimer>

class Actions;
class GeoTrackDisplay;
class GeoWidget;
class ListPanes;
class QMenu;
class ScopeChip;

// What the operator does with one track, on the plan view and in the lists alike: select, follow, bring to the centre,
// acknowledge its alerts; and the links between plan view and lists. GUI thread.
class TrackCommands final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object.
    TrackCommands(Actions *actions, GeoWidget *plan, GeoTrackDisplay *tracks, ListPanes *lists);

    // The key is an alert's on the AlertBoard; 0: all of the track's. The track 0 is none of ours. The menu goes when
    // it is closed.
    QMenu *showMenu(unsigned long long track, quint64 alert, const QPoint &globalPosition);
    // The same at the head of the menu of a list's row.
    void showMenuOfList(unsigned long long track, quint64 alert, QMenu *menu, const QPoint &globalPosition);
    // Of a place without a track.
    QMenu *showPlaceMenu(const QPointF &planePoint, const QPoint &globalPosition);

public Q_SLOTS:
    void select(unsigned long long track);
    void bringIntoView(unsigned long long track);
    void acknowledge(unsigned long long track, quint64 alert);
    // What chip and actions say of the newest snapshot; otherwise once a second.
    void refresh();

Q_SIGNALS:
    // The operator wants to know what the selected track or the alert is made of.
    void trackToExplain();
    void alertToExplain(quint64 alert);
    // Before the menu of a place, plane metres, is shown.
    void placeMenuMade(QMenu *menu, const QPointF &planePoint);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isAsking(unsigned long long track, quint64 alert) const;
    void fillMenu(QMenu *menu, unsigned long long track, quint64 alert);
    void addTrackActions(QMenu *menu, unsigned long long track);
    void notePlanMenu(QMenu *menu, const QPoint &globalPosition);

    Actions *m_actions;
    GeoWidget *m_plan;
    GeoTrackDisplay *m_tracks;
    ListPanes *m_lists;
    ScopeChip *m_followChip; // a child of the plan view
    QTimer m_refreshTimer;
    QElapsedTimer m_planMenuAge; // since the plan view's menu came up
    QPoint m_planMenuPlace; // global
};
