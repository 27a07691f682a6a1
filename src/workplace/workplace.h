#pragma once

#include "workplace/scope_holder.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QDockWidget;
class QEvent;
class QMainWindow;
class QMouseEvent;

#include <array>

// Full screen is the scope's alone: bars and panes of the window are out of sight. Those of an edge come back over the
// scope, which stays as it is, while the pointer is pushed against that edge, and go when it leaves them; the keyboard
// brings all of them. Without full screen they are where they were before. Escape leads from panes and bars to the
// scope, and from there out of full screen. GUI thread.
class Workplace final : public QObject {
    Q_OBJECT

public:
    static constexpr int DwellMs = 250; // at the edge, until what stands there comes
    static constexpr int LeaveMs = 400; // beside it, until it goes

    // All of the window by now; the holder is its central widget. The version is that of its arrangement.
    Workplace(QMainWindow *window, ScopeHolder *holder, int arrangementVersion);

    // From now on follows the window's state: to be called when it has been restored.
    void begin();

    // The window's state, as it is, or will be again, without full screen.
    QByteArray arrangement() const;
    bool active() const { return m_active; }

public Q_SLOTS:
    // All that stands at the edges, over the scope until that is asked for again; in full screen only.
    void toggleEdges();

Q_SIGNALS:
    // Full screen has begun or ended.
    void changed(bool active);
    // The status bar, and with it the alerts' indicators, is in sight or is not.
    void statusShown(bool shown);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Edge { Left, Top, Right, Bottom, EdgeCount, NoEdge = EdgeCount };

    struct Piece {
        QPointer<QWidget> widget;
        bool raised = false; // of docks behind one tab bar
    };

    void follow();
    void enter();
    void leave();
    void collect();
    void add(Edge edge, QWidget *widget);
    void show(Edge edge);
    void hideAll();
    bool anyShown() const;
    void watchPointer(const QMouseEvent &event);
    void hideLeft();
    bool goBack(const QObject *from);
    Edge edgeAt(const QPoint &position) const;
    static Edge edgeOf(Qt::DockWidgetArea area);

    QMainWindow *m_window;
    QPointer<ScopeHolder> m_holder; // goes first when the window ends
    const int m_version;
    bool m_begun = false;
    bool m_active = false;
    bool m_pinned = false; // by the keyboard
    QByteArray m_before; // the window's state, while active
    QByteArray m_again; // the same, until the window has got back its size
    std::array<QList<Piece>, EdgeCount> m_pieces; // while active
    Edge m_pushed = NoEdge;
    QTimer m_dwell;
    QTimer m_leaving;
};
