#include "display/geo_track_display.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"
#include "ui/actions.h"
#include "window_fixture.h"
#include "window_tour.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QTabBar>

// What somebody who does not see the window, or does not use a mouse, has of it.
class TestAccess : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void controlsHaveNames();
    void listsAreRead();
};

namespace {

QString accessibleName(QWidget *widget)
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(QAccessible::Name) : QString();
}

bool isControl(const QWidget &widget)
{
    const bool isKind = qobject_cast<const QAbstractButton *>(&widget) || qobject_cast<const QComboBox *>(&widget)
        || qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget)
        || qobject_cast<const QAbstractItemView *>(&widget);
    // Those within a control belong to it: the editor of a spin box, the list of a choice.
    const QWidget *parent = widget.parentWidget();
    const bool isPart = parent
        && (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent)
            || qobject_cast<const QLineEdit *>(parent) || qobject_cast<const QTabBar *>(parent)
            || parent->inherits("QAbstractItemView") || parent->inherits("QComboBoxPrivateContainer")
            || widget.objectName().startsWith(QLatin1String("qt_")));
    return isKind && !isPart && widget.focusPolicy() != Qt::NoFocus;
}

QStringList namelessControls()
{
    QStringList found;
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        if (widget->window()->isVisible() && isControl(*widget) && accessibleName(widget).isEmpty()) {
            found += QStringLiteral("%1: %2 %3")
                         .arg(QLatin1String(widget->window()->metaObject()->className()),
                             QLatin1String(widget->metaObject()->className()),
                             widget->objectName() + u' ' + widget->toolTip());
        }
    }
    found.sort();
    return found;
}

// With its pane or window.
void bringUp(QWidget *widget)
{
    for (QWidget *around = widget; around; around = around->parentWidget()) {
        if (qobject_cast<QDockWidget *>(around)) {
            around->show();
            around->raise();
        }
    }
    widget->window()->show();
    widget->window()->activateWindow();
}

} // namespace

void TestAccess::controlsHaveNames()
{
    const WindowFixture fixture;
    const auto window = WindowFixture::makeWindow();
    const auto &actions = *window->findChild<Actions *>();
    for (const ActionId id : {ActionId::Settings, ActionId::Statistics, ActionId::RawView, ActionId::SensorCheck,
             ActionId::ExplainTrack, ActionId::WhyNotShown, ActionId::WeatherIntensity, ActionId::TrackLabelFormat,
             ActionId::RangeRings, ActionId::SensorManager, ActionId::StaticMaps, ActionId::CheatSheet, ActionId::GoTo,
             ActionId::Rotate, ActionId::PlaybackWindow, ActionId::TileDownloader, ActionId::StaticMapEditor}) {
        actions[id]->trigger();
        QTest::qWait(10);
    }
    const auto docks = window->findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        dock->show();
    }
    const QString nameless = namelessControls().join(u'\n');
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless));
}

// By a screen reader, and with the keys: the arrows move in them rather than the map.
void TestAccess::listsAreRead()
{
    const WindowFixture fixture;
    const auto window = WindowFixture::makeWindow();
    QVERIFY(WindowFixture::openInput(*window));
    const auto &actions = *window->findChild<Actions *>();
    actions[ActionId::RawView]->trigger();
    QVERIFY(WindowTour(*window, fixture.port).fillScope());
    window->geoWidget()->trackDisplay()->setSelected(window->newestSnapshot()->tracks.first().incarnationId);
    actions[ActionId::ExplainTrack]->trigger();
    auto *records = window->findChild<QAbstractItemView *>("records");
    QTRY_VERIFY(records->model()->rowCount() > 0);
    records->setCurrentIndex(records->model()->index(0, 0));
    const QTransform view = window->geoWidget()->screenTransform();
    // With a column that has a text in the first row. Escape closes the raw view, which comes last.
    for (const auto &[name, column] : {std::pair("trackList", 0), std::pair("alertList", 0), std::pair("sources", 0),
             std::pair("sources", 2), std::pair("explainedValues", 1), std::pair("keptReports", 2),
             std::pair("reportFields", 0), std::pair("recordTree", 0), std::pair("records", 2)}) {
        auto *list = window->findChild<QAbstractItemView *>(name);
        QVERIFY2(list, name);
        bringUp(list);
        QTRY_VERIFY2(list->model()->rowCount() > 0, name);
        list->setFocus();
        QTRY_VERIFY2(list->hasFocus(), name);
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(list);
        QVERIFY2(face && face->tableInterface() && !face->text(QAccessible::Name).isEmpty(), name);
        const QAccessibleTableInterface *table = face->tableInterface();
        QTRY_VERIFY2(table->rowCount() > 0, name);
        QCOMPARE(table->columnDescription(column), list->model()->headerData(column, Qt::Horizontal).toString());
        QVERIFY2(!table->cellAt(0, column)->text(QAccessible::Name).isEmpty(), name);

        list->setCurrentIndex(list->model()->index(0, 0));
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY2(list->currentIndex() != list->model()->index(0, 0) || list->model()->rowCount() == 1, name);
        QTest::keyClick(list, Qt::Key_Escape);
        QTRY_VERIFY2(!list->hasFocus() || !list->isVisible(), name);
    }
    QCOMPARE(window->geoWidget()->screenTransform(), view);
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestAccess)

#include "tst_access.moc"
