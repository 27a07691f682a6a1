#pragma once

#include "engine/display_snapshot.h"
#include "geo/geo_coordinate.h"
#include "widgets/urgency.h"

#include <QObject>
#include <QSharedPointer>
#include <QTimer>

#include <functional>

class AlertListModel;
class GeoTrackDisplay;
class ListPane;
class ListView;
class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;
class TrackListModel;
namespace korvane::airdb {
class ICAOAddrDictionary;
}

// The track list and the alert list: their panes, what they show of the newest snapshot, and the selection, which goes
// both ways between the lists and the plan view. GUI thread.
class ListPanes final : public QObject {
    Q_OBJECT

public:
    using NewestSnapshot = std::function<QSharedPointer<const DisplaySnapshot>()>;

    // The panes become the window's, which must outlive this object, as must the display.
    ListPanes(QMainWindow *window, GeoTrackDisplay *tracks, NewestSnapshot newest);

    QDockWidget *trackDock() const { return m_trackDock; }
    QDockWidget *alertDock() const { return m_alertDock; }

    // From now on the lists follow the snapshots, once a second. Does nothing a second time.
    void start();
    // What stands in the place of the rows while there are none.
    void setEmptyTexts(const QString &tracks, const QString &alerts);
    // A line over both lists that says what is wrong with what they show; empty: nothing is.
    void setWarning(Urgency urgency, const QString &text);
    // Where the countries of registration are looked up, from the next tracks on.
    void setAddresses(const korvane::airdb::ICAOAddrDictionary &addresses);
    // From where distances and bearings count; invalid: there are none.
    void setSensorPlace(const GeoCoordinate &place);

    // The columns, among the window's state.
    void restore(const QString &group);
    void save(const QString &group) const;
    // As many pixels of those as show whole columns of the track list.
    int usefulWidth(int most) const;
    // No column is cut by the edge of its pane as it is now.
    void widenToWholeColumns();

Q_SIGNALS:
    // The operator wants to see the track.
    void trackActivated(unsigned long long id);
    // The right button on a row; the key is that of the alert list's row, 0 on the track list. The menu has by now what
    // can be done with the row as a text, and is given up by who does not show it.
    void trackMenuRequested(unsigned long long id, quint64 alert, QMenu *menu, const QPoint &globalPosition);
    void failed(const QString &text);

public Q_SLOTS:
    // Both lists at once.
    void refresh();
    // A list is not kept up to date while it is out of sight.
    void updateTrackList();
    void updateAlertList();
    void clearTrackList();
    void clearAlertList();
    void trackListSelectionChanged();
    void alertListSelectionChanged();
    // By incarnation id; 0 clears the selection.
    void selectTrackInList(unsigned long long id);
    // Lights up the rows that tell of the track that the pointer is on, in both lists; 0: of none.
    void lightTrackInLists(unsigned long long id);

private:
    void makeLists();
    void connectTrackList();
    void connectAlertList();
    QDockWidget *addDock(const QString &title, const QString &name, ListPane *pane);
    void requestMenu(ListPane *pane, int row, const QPoint &globalPosition);
    bool outOfSight(const ListPane *pane) const;

    QMainWindow *m_window;
    GeoTrackDisplay *m_tracks;
    NewestSnapshot m_newest;
    TrackListModel *m_trackModel = nullptr; // these six are the window's
    AlertListModel *m_alertModel = nullptr;
    ListPane *m_trackPane = nullptr;
    ListPane *m_alertPane = nullptr;
    QDockWidget *m_trackDock = nullptr;
    QDockWidget *m_alertDock = nullptr;
    ListView *m_trackView = nullptr; // of the panes
    ListView *m_alertView = nullptr;
    QTimer m_trackTimer;
    QTimer m_alertTimer;
    unsigned long long m_litTrack = 0;
    bool m_updating = false; // the program moves the selection, not the operator
};
