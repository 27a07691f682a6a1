#include "workplace/workplace.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace {
constexpr int EdgeWidth = 3; // pixels that the pointer is pushed into
constexpr int SettleMs = 1000; // in which a window gets back its size
} // namespace

Workplace::Workplace(QMainWindow *window, ScopeHolder *holder, int arrangementVersion)
    : QObject(window), m_window(window), m_holder(holder), m_version(arrangementVersion)
{
    m_dwell.setSingleShot(true);
    m_dwell.setInterval(DwellMs);
    connect(&m_dwell, &QTimer::timeout, this, [this] { show(m_pushed); });
    m_leaving.setSingleShot(true);
    m_leaving.setInterval(LeaveMs);
    connect(&m_leaving, &QTimer::timeout, this, &Workplace::hideLeft);
    window->installEventFilter(this);
    holder->scope()->installEventFilter(this);
}

void Workplace::begin()
{
    m_begun = true;
    const auto docks = m_window->findChildren<QDockWidget *>(Qt::FindDirectChildrenOnly);
    for (QDockWidget *dock : docks) {
        dock->installEventFilter(this); // floating it is a window of its own
    }
    follow();
}

QByteArray Workplace::arrangement() const
{
    return m_active ? m_before : m_window->saveState(m_version);
}

void Workplace::follow()
{
    if (m_begun && m_window->isFullScreen() != m_active) {
        m_active ? leave() : enter();
    }
}

void Workplace::enter()
{
    m_again.clear();
    m_before = m_window->saveState(m_version);
    collect();
    m_active = true;
    m_holder->setSpread(true);
    hideAll();
    Q_EMIT changed(true);
}

void Workplace::leave()
{
    m_active = false;
    m_pinned = false;
    m_dwell.stop();
    m_leaving.stop();
    for (const QList<Piece> &pieces : m_pieces) {
        for (const Piece &piece : pieces) {
            if (piece.widget) {
                piece.widget->show();
            }
        }
    }
    m_again = std::exchange(m_before, {});
    m_window->restoreState(m_again, m_version);
    QTimer::singleShot(SettleMs, this, [this] { m_again.clear(); });
    m_holder->setSpread(false);
    Q_EMIT statusShown(m_window->statusBar()->isVisible());
    Q_EMIT changed(false);
}

void Workplace::collect()
{
    m_pieces = {};
    const auto docks = m_window->findChildren<QDockWidget *>(Qt::FindDirectChildrenOnly);
    for (QDockWidget *dock : docks) {
        if (dock->toggleViewAction()->isChecked() && !dock->isFloating()) { // one behind another's tab is there too
            add(edgeOf(m_window->dockWidgetArea(dock)), dock);
        }
    }
    const auto bars = m_window->findChildren<QToolBar *>(Qt::FindDirectChildrenOnly);
    for (QToolBar *bar : bars) {
        if (!bar->isHidden() && !bar->isFloating()) {
            add(edgeOf(static_cast<Qt::DockWidgetArea>(m_window->toolBarArea(bar))), bar);
        }
    }
    add(Top, m_window->menuBar());
    add(Bottom, m_window->statusBar());
}

void Workplace::add(Edge edge, QWidget *widget)
{
    if (edge != NoEdge) {
        m_pieces[edge].append(Piece{widget, !widget->visibleRegion().isEmpty()});
    }
}

// Areas of docks and of tool bars have the same values.
Workplace::Edge Workplace::edgeOf(Qt::DockWidgetArea area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return Left;
    case Qt::TopDockWidgetArea:
        return Top;
    case Qt::RightDockWidgetArea:
        return Right;
    case Qt::BottomDockWidgetArea:
        return Bottom;
    default:
        return NoEdge;
    }
}

void Workplace::show(Edge edge)
{
    if (!m_active || edge == NoEdge) {
        return;
    }
    for (const Piece &piece : std::as_const(m_pieces[edge])) {
        if (piece.widget) {
            piece.widget->show();
        }
    }
    for (const Piece &piece : std::as_const(m_pieces[edge])) {
        if (piece.widget && piece.raised) {
            piece.widget->raise();
        }
    }
    Q_EMIT statusShown(m_window->statusBar()->isVisible());
}

void Workplace::hideAll()
{
    m_pinned = false;
    m_leaving.stop();
    for (const QList<Piece> &pieces : std::as_const(m_pieces)) {
        for (const Piece &piece : pieces) {
            if (piece.widget) {
                piece.widget->hide();
            }
        }
    }
    m_holder->scope()->setFocus();
    Q_EMIT statusShown(false);
}

bool Workplace::anyShown() const
{
    return std::any_of(m_pieces.begin(), m_pieces.end(), [](const QList<Piece> &pieces) {
        return std::any_of(
            pieces.begin(), pieces.end(), [](const Piece &piece) { return piece.widget && !piece.widget->isHidden(); });
    });
}

void Workplace::toggleEdges()
{
    if (!m_active) {
        return;
    }
    if (anyShown()) {
        hideAll();
        return;
    }
    for (const Edge edge : {Left, Top, Right, Bottom}) {
        show(edge);
    }
    m_pinned = true;
}

Workplace::Edge Workplace::edgeAt(const QPoint &position) const
{
    const QRect inner = m_holder->scope()->rect().adjusted(EdgeWidth, EdgeWidth, -EdgeWidth, -EdgeWidth);
    if (position.y() < inner.top()) {
        return Top;
    }
    if (position.y() > inner.bottom()) {
        return Bottom;
    }
    return position.x() < inner.left() ? Left : position.x() > inner.right() ? Right : NoEdge;
}

// The pointer is on the scope, so on none of the panes. A button held there drags the view.
void Workplace::watchPointer(const QMouseEvent &event)
{
    const Edge edge = event.buttons() == Qt::NoButton ? edgeAt(event.position().toPoint()) : NoEdge;
    if (edge != m_pushed) {
        m_pushed = edge;
        m_dwell.stop();
    }
    if (edge != NoEdge && !m_dwell.isActive()) {
        m_dwell.start();
    }
    if (edge == NoEdge && !m_pinned && !m_leaving.isActive() && anyShown()) {
        m_leaving.start();
    }
}

void Workplace::hideLeft()
{
    if (QApplication::activePopupWidget()) { // of a menu of theirs
        m_leaving.start();
    } else if (m_active && !m_pinned) {
        hideAll();
    }
}

bool Workplace::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::WindowStateChange) {
        follow();
    }
    if (watched == m_window && event->type() == QEvent::Resize && !m_again.isEmpty()) {
        // In a window that is still too large the panes got other sizes.
        QTimer::singleShot(0, this, [this] {
            if (!m_again.isEmpty()) {
                m_window->restoreState(std::exchange(m_again, {}), m_version);
            }
        });
    }
    if (!m_holder) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape
        && goBack(watched)) {
        return true;
    }
    if (!m_active) {
        return QObject::eventFilter(watched, event);
    }
    if (watched == m_holder->scope() && event->type() == QEvent::MouseMove) {
        watchPointer(*static_cast<QMouseEvent *>(event));
    } else if (watched == m_holder->scope() && event->type() == QEvent::Leave) {
        m_dwell.stop();
        m_leaving.stop();
    }
    return QObject::eventFilter(watched, event);
}

// Nobody below wanted the key: from a pane or a bar it leads to the scope, from there out of full screen.
bool Workplace::goBack(const QObject *from)
{
    const auto *dock = qobject_cast<const QDockWidget *>(from);
    if (dock && dock->isFloating()) {
        m_window->activateWindow();
        m_holder->scope()->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (from != m_window) {
        return false; // it comes to the window yet
    }
    if (m_window->focusWidget() != m_holder->scope()) {
        m_active ? hideAll() : m_holder->scope()->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (!m_active) {
        return false;
    }
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowFullScreen);
    return true;
}
