#include "settings/config_defaults.h"

#include "settings/config_page.h"
#include "widgets/field_form.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <utility>

ConfigDefaults::ConfigDefaults(std::function<Config()> entered, QWidget *window)
    : QObject(window), m_entered(std::move(entered)), m_button(new QPushButton(tr("&Defaults"), window))
{
    m_button->setObjectName(QStringLiteral("defaults"));
    m_button->setAutoDefault(false);
    m_button->setToolTip(tr("Puts back what the program, or the theme chosen, has by itself."));
    auto *menu = new QMenu(m_button);
    m_button->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fill(menu, m_page, m_field); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { noteFocus(now); });
}

void ConfigDefaults::setPage(ConfigPage *page)
{
    m_page = page;
    m_field = nullptr;
}

void ConfigDefaults::noteFocus(QWidget *now)
{
    if (!m_page || !now) {
        return;
    }
    for (QWidget *field : m_page->form()->fields()) {
        if (field == now || field->isAncestorOf(now)) {
            m_field = field;
        }
    }
}

Config ConfigDefaults::defaults(const Config &entered) const
{
    Config defaults;
    if (const Theme *theme = m_themes.find(entered.displayTheme)) {
        theme->applyTo(defaults);
    }
    return defaults;
}

QSet<QString> ConfigDefaults::differing(const Config &entered) const
{
    const Config standard = defaults(entered);
    QSet<QString> keys;
    for (const Setting &setting : Setting::all()) {
        // A password is never taken away by the way.
        if (!setting.same(entered, standard) && &setting != &Setting::of(&Config::settingsLock)) {
            keys.insert(setting.key());
        }
    }
    return keys;
}

void ConfigDefaults::showMenu(ConfigPage *page, QWidget *field, const QPoint &globalPosition)
{
    auto *menu = new QMenu(m_button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(menu, page, field);
    menu->popup(globalPosition);
}

void ConfigDefaults::fill(QMenu *menu, ConfigPage *page, QWidget *field)
{
    menu->clear();
    const QSet<QString> keys = differing(m_entered());
    const auto add = [&](const QString &text, const ConfigPage::Which &wanted) {
        const auto which = [page, wanted](const Setting &setting) { return wanted(setting) && !page->locks(setting); };
        QAction *action =
            menu->addAction(text, this, [this, page, which] { page->showSettings(defaults(m_entered()), which); });
        const QList<const Setting *> &settings = page->settings();
        action->setEnabled(std::any_of(settings.begin(), settings.end(),
            [&](const Setting *setting) { return which(*setting) && keys.contains(setting->key()); }));
    };
    if (field) {
        const QString key = field->objectName();
        add(tr("Default of \"%1\"").arg(page->form()->title(field)),
            [key](const Setting &setting) { return setting.key() == key; });
    }
    add(tr("Defaults of the Page \"%1\"").arg(page->title()),
        [keys](const Setting &setting) { return keys.contains(setting.key()); });
}
