#include "ui/layout_menu.h"

#include "app/app_paths.h"
#include "app/settings_lock.h"
#include "map_windows/layout_save_window.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "widgets/window_opening.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QMenu>

namespace {

const QString DefaultLayoutName = QStringLiteral("default");

QString layoutFile()
{
    return AppPaths::configFile(QStringLiteral("layout"));
}

QString menuText(const QString &name)
{
    return QString(name).replace(u'&', QLatin1String("&&"));
}

} // namespace

LayoutMenu::LayoutMenu(QWidget *window, Actions *actions, GeoWidget *plan, const SettingsLock *lock)
    : m_window(window), m_actions(actions), m_plan(plan), m_lock(lock)
{
    connect(&m_layouts, &MapLayout::currentLayoutChanged, plan, &GeoWidget::changeViewPort);
    connect(&m_layouts, &MapLayout::saveViewport, plan, &GeoWidget::saveViewport, Qt::DirectConnection);
    connect((*actions)[ActionId::SaveLayout], &QAction::triggered, this, &LayoutMenu::showSaveWindow);
    updateMenu();
}

void LayoutMenu::load()
{
    QTransform lastView;
    m_plan->saveViewport(lastView);
    m_layouts.load(layoutFile());
    if (!chosen()) {
        m_plan->changeViewPort(lastView);
    }
    updateMenu();
}

bool LayoutMenu::chosen() const
{
    return m_layouts.layoutNames().contains(m_layouts.currentLayoutName());
}

void LayoutMenu::placeDefault(const QPointF &center)
{
    m_layouts.setDefaultLayout(center.x(), center.y());
}

void LayoutMenu::leave()
{
    if (chosen()) {
        m_layouts.setCurrentLayout(DefaultLayoutName);
        save();
    }
}

void LayoutMenu::save()
{
    if (!m_lock->locked() && !m_layouts.save(layoutFile())) {
        Q_EMIT logMessage(
            LogLevel::Warning, tr("Cannot write the layout file %1").arg(QDir::toNativeSeparators(layoutFile())));
    }
    updateMenu();
}

void LayoutMenu::updateMenu()
{
    auto *menu = new QMenu(m_window);
    if (QMenu *before = m_actions->setMenu(ActionId::LoadLayout, menu)) {
        before->deleteLater(); // one of its actions may be at work
    }
    auto *group = new QActionGroup(menu);
    auto *removal = new QMenu(tr("Remove"), menu);
    const QStringList stored = m_layouts.layoutNames();
    for (const QString &name : QStringList{DefaultLayoutName} + stored) {
        QAction *action = menu->addAction(menuText(name));
        action->setData(name);
        action->setCheckable(true);
        action->setChecked(name == (chosen() ? m_layouts.currentLayoutName() : DefaultLayoutName));
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this, &LayoutMenu::loadLayout);
    for (const QString &name : stored) {
        removal->addAction(menuText(name), this, [this, name] {
            m_lock->whenUnlocked([this, name] {
                m_layouts.removeLayout(name);
                save();
            });
        });
    }
    m_actions->showValue(ActionId::LoadLayout, chosen() ? m_layouts.currentLayoutName() : QString());
    menu->addSeparator();
    menu->addMenu(removal)->setEnabled(!stored.isEmpty());
}

void LayoutMenu::loadLayout(QAction *action)
{
    m_layouts.setCurrentLayout(action->data().toString());
    save();
}

void LayoutMenu::showSaveWindow()
{
    m_lock->whenUnlocked([this] { askForName(); });
}

void LayoutMenu::askForName()
{
    auto *window = new LayoutSaveWindow(m_layouts.layoutNames(), m_window);
    if (chosen()) {
        window->setName(m_layouts.currentLayoutName());
    }
    connect(window, &LayoutSaveWindow::layoutNamed, this, [this](const QString &name, bool makeCurrent) {
        m_layouts.saveCurrentView(name, makeCurrent);
        save();
    });
    openOver(window);
}
