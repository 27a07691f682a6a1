#pragma once

#include "app/theme_library.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

class Config;
class ConfigPage;
class QMenu;
class QPoint;
class QPushButton;
class QWidget;

// Puts defaults into the fields of the settings window, of one or of a whole page; they count as entered and take
// effect as all else does. What a theme holds has the value of the theme that is chosen.
class ConfigDefaults final : public QObject {
    Q_OBJECT

public:
    // Entered: what the fields hold. The window is the parent.
    ConfigDefaults(std::function<Config()> entered, QWidget *window);

    // Has a menu for the page on screen and for its field that had the focus last.
    QPushButton *button() const { return m_button; }
    void setPage(ConfigPage *page);
    void showMenu(ConfigPage *page, QWidget *field, const QPoint &globalPosition);
    // The keys of those settings that do not have their default.
    QSet<QString> differing(const Config &entered) const;

private:
    Config defaults(const Config &entered) const;
    void fill(QMenu *menu, ConfigPage *page, QWidget *field);
    void noteFocus(QWidget *now);

    std::function<Config()> m_entered;
    ThemeLibrary m_themes;
    QPushButton *m_button;
    ConfigPage *m_page = nullptr;
    QWidget *m_field = nullptr; // of the page; null: none had the focus yet
};
