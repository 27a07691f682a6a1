#include "lists/list_view.h"
#include "test_program.h"
#include "ui/actions.h"
#include "window_fixture.h"

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

void TestAccess::listsAreRead()
{
    const WindowFixture fixture;
    const auto window = WindowFixture::makeWindow();
    const auto lists = window->findChildren<ListView *>();
    QCOMPARE(lists.size(), 2);
    for (ListView *list : lists) {
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(list);
        QVERIFY(face && face->tableInterface());
        const QAccessibleTableInterface *table = face->tableInterface();
        QVERIFY(table->columnCount() > 3);
        QCOMPARE(table->columnDescription(0), list->model()->headerData(0, Qt::Horizontal).toString());
        QVERIFY(!face->text(QAccessible::Name).isEmpty());
    }
}

VYX_TEST(TestAccess)

#include "tst_access.moc"
