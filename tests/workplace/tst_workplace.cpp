#include "test_program.h"
#include "workplace/alert_indicator.h"
#include "workplace/scope_holder.h"
#include "workplace/workplace.h"

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

// A window with a tool bar, two panes behind one tab bar at the right, one hidden at the left and one at the bottom.
class TestWorkplace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void fullScreenIsTheScopes();
    void edgesComeAndGoWithThePointer();
    void keyboardBringsAllAndEscapeEnds();
    void arrangementOutlivesFullScreen();
    void indicatorStandsInTheCorner();

private:
    QDockWidget *addDock(const char *name, Qt::DockWidgetArea area)
    {
        auto *dock = new QDockWidget(name, m_window.get());
        dock->setObjectName(name);
        dock->setWidget(new QLabel(name));
        dock->widget()->setFocusPolicy(Qt::StrongFocus);
        m_window->addDockWidget(area, dock);
        return dock;
    }
    void setFullScreen(bool on)
    {
        const auto state = m_window->windowState();
        m_window->setWindowState(on ? state | Qt::WindowFullScreen : state & ~Qt::WindowFullScreen);
        QCoreApplication::processEvents();
    }
    void push(const QPoint &place)
    {
        QTest::mouseMove(m_scope, m_scope->rect().center());
        QTest::mouseMove(m_scope, place);
        QTest::qWait(Workplace::DwellMs + 100);
    }
    // Of the scope, on the screen.
    QRect place() const { return QRect(m_scope->mapToGlobal(QPoint()), m_scope->size()); }

    std::unique_ptr<QMainWindow> m_window;
    QWidget *m_scope = nullptr;
    Workplace *m_workplace = nullptr;
    QToolBar *m_bar = nullptr;
    QDockWidget *m_tracks = nullptr;
    QDockWidget *m_alerts = nullptr;
    QDockWidget *m_hidden = nullptr;
    QDockWidget *m_log = nullptr;
};

void TestWorkplace::init()
{
    m_window = std::make_unique<QMainWindow>();
    m_scope = new QWidget;
    m_scope->setMouseTracking(true);
    m_scope->setFocusPolicy(Qt::StrongFocus);
    auto *holder = new ScopeHolder(m_scope, m_window.get());
    m_window->setCentralWidget(holder);
    m_workplace = new Workplace(m_window.get(), holder, 1);
    m_window->menuBar()->addMenu("&File")->addAction("Exit");
    m_window->statusBar()->showMessage("all is well");
    m_bar = m_window->addToolBar("Tools");
    m_bar->setObjectName("bar");
    m_bar->addAction("Start");
    m_tracks = addDock("tracks", Qt::RightDockWidgetArea);
    m_alerts = addDock("alerts", Qt::RightDockWidgetArea);
    m_window->tabifyDockWidget(m_tracks, m_alerts);
    m_tracks->raise();
    m_hidden = addDock("hidden", Qt::LeftDockWidgetArea);
    m_hidden->hide();
    m_log = addDock("log", Qt::BottomDockWidgetArea);
    m_window->resize(900, 600);
    m_window->show();
    m_workplace->begin();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCoreApplication::processEvents();
}

void TestWorkplace::fullScreenIsTheScopes()
{
    const QRect before = m_scope->geometry();
    QVERIFY(m_scope->width() < m_window->width());
    setFullScreen(true);
    QCOMPARE(place(), QRect(m_window->mapToGlobal(QPoint()), m_window->size()));
    QVERIFY(!m_window->menuBar()->isVisible() && !m_window->statusBar()->isVisible() && !m_bar->isVisible());
    QVERIFY(!m_tracks->isVisible() && !m_log->isVisible());
    setFullScreen(false);
    m_window->resize(900, 600);
    QCoreApplication::processEvents();
    QCOMPARE(m_scope->geometry(), before);
    QVERIFY(m_window->menuBar()->isVisible() && m_window->statusBar()->isVisible() && m_bar->isVisible());
    QVERIFY(!m_tracks->visibleRegion().isEmpty() && m_alerts->visibleRegion().isEmpty()); // the tab as before
    QVERIFY(m_log->isVisible() && !m_hidden->isVisible());
}

void TestWorkplace::edgesComeAndGoWithThePointer()
{
    setFullScreen(true);
    const QRect scope = place();
    QSignalSpy status(m_workplace, &Workplace::statusShown);
    push(QPoint(m_scope->width() - 1, 200));
    QVERIFY(!m_tracks->visibleRegion().isEmpty());
    QVERIFY(!m_log->isVisible() && !m_bar->isVisible());
    QCOMPARE(place(), scope); // it lies under what has come
    QVERIFY(!m_scope->visibleRegion().contains(QPoint(m_scope->width() - 3, 200)));
    QTest::mouseMove(m_scope, QPoint(200, 200));
    QTRY_VERIFY(!m_tracks->isVisible());
    push(QPoint(300, m_scope->height() - 1));
    QVERIFY(m_log->isVisible() && m_window->statusBar()->isVisible());
    QCOMPARE(status.constLast()[0].toBool(), true);
    QTest::mouseMove(m_scope, QPoint(200, 200));
    QTRY_VERIFY(!m_log->isVisible());
    QCOMPARE(status.constLast()[0].toBool(), false);
    push(QPoint(0, 200));
    QVERIFY(!m_hidden->isVisible()); // it was not there before
    // Passing by is not pushing, and dragging the view is neither.
    QTest::mouseMove(m_scope, QPoint(300, 0));
    QTest::mouseMove(m_scope, QPoint(300, 100));
    QMouseEvent drag(QEvent::MouseMove, QPointF(310, 0), m_scope->mapToGlobal(QPointF(310, 0)), Qt::NoButton,
        Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_scope, &drag);
    QTest::qWait(Workplace::DwellMs + 100);
    QVERIFY(!m_bar->isVisible());
}

void TestWorkplace::keyboardBringsAllAndEscapeEnds()
{
    m_workplace->toggleEdges();
    QVERIFY(m_bar->isVisible()); // without full screen it does nothing
    setFullScreen(true);
    const QRect scope = place();
    m_workplace->toggleEdges();
    QVERIFY(m_bar->isVisible() && m_tracks->isVisible() && m_window->menuBar()->isVisible());
    QCOMPARE(place(), scope);
    QTest::mouseMove(m_scope, QPoint(200, 200));
    QTest::qWait(Workplace::LeaveMs + 100);
    QVERIFY(m_bar->isVisible()); // the pointer does not take away what the keyboard has brought
    m_workplace->toggleEdges();
    QVERIFY(!m_bar->isVisible());
    QCOMPARE(m_window->focusWidget(), m_scope);
    m_workplace->toggleEdges();
    m_tracks->widget()->setFocus();
    QTest::keyClick(m_tracks->widget(), Qt::Key_Escape);
    QVERIFY2(m_window->isFullScreen() && !m_tracks->isVisible(), "from a pane it leads to the scope");
    QCOMPARE(m_window->focusWidget(), m_scope);
    QTest::keyClick(m_scope, Qt::Key_Escape);
    QVERIFY(!m_window->isFullScreen());
    QTRY_VERIFY(m_bar->isVisible());
    m_log->widget()->setFocus();
    QTest::keyClick(m_log->widget(), Qt::Key_Escape);
    QCOMPARE(m_window->focusWidget(), m_scope);
}

// What is stored in full screen, and with panes brought back there, is what there was before.
void TestWorkplace::arrangementOutlivesFullScreen()
{
    const QByteArray before = m_workplace->arrangement();
    setFullScreen(true);
    m_workplace->toggleEdges();
    const QByteArray stored = m_workplace->arrangement();
    QCOMPARE(stored, before);
    setFullScreen(false);
    init(); // the next start
    m_log->hide();
    m_alerts->raise();
    QVERIFY(m_window->restoreState(stored, 1));
    QVERIFY(m_log->isVisible());
    QTRY_VERIFY(!m_tracks->visibleRegion().isEmpty());
}

void TestWorkplace::indicatorStandsInTheCorner()
{
    AlertIndicator indicator(m_scope);
    indicator.showAlerts({true, false, false}, 2);
    indicator.show();
    m_window->resize(1100, 700);
    QCoreApplication::processEvents();
    QVERIFY(m_scope->rect().contains(indicator.geometry()));
    QVERIFY(indicator.geometry().right() > m_scope->width() - 20);
    const auto labels = indicator.findChildren<QLabel *>();
    QStringList shown;
    for (const QLabel *label : labels) {
        if (label->isVisible()) {
            shown.append(label->text() + (label->styleSheet().endsWith("green") ? " on" : ""));
        }
    }
    QCOMPARE(shown, QStringList({"2 to acknowledge", "MSAW on", "APW", "STCA"}));
    indicator.showAlerts({}, 0);
    QVERIFY(!labels.constFirst()->isVisible());
}

VYX_TEST(TestWorkplace)
#include "tst_workplace.moc"
