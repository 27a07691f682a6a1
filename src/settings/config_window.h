#pragma once

#include "app/config.h"
#include "widgets/geometry_dialog.h"

#include <QSet>

#include <functional>

class ConfigDefaults;
class ConfigPage;
class ConfigSearch;
class EngineHost;
class InputConfigPage;
class InputProposal;
class QDialogButtonBox;
class QLabel;
class QListWidget;
class QStackedWidget;
class QTimer;
class SensorManager;
class TileConfigPage;
class Theme;

// The settings window: pages chosen in a list at the left, or by a search over all of them. What the operator did not
// touch passes through unchanged, though its field shows it rounded, cut off at the end of a range or spelled in
// another way. What he has changed and not applied yet is marked: the field, its page in the list, and their number.
class ConfigWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The sensor manager offers its sensors on the sensor page; it must outlive the window and may be null.
    ConfigWindow(const Config &config, SensorManager *sensors, QWidget *parent = nullptr);

    // The record as last applied.
    const Config &config() const { return m_config; }
    const QList<ConfigPage *> &pages() const { return m_pages; }

    // Asked before anything is applied; false leaves all as it is, and the window open.
    void setConsent(std::function<bool(const Config &edited)> consent);
    // Of the program's input, for the page that tells what arrives.
    void setEngine(EngineHost *engine);
    // For the demonstration: not even a trial asks a tile service.
    void barTileServices();
    // Locks the pages of what an input is opened with.
    void setInputRunning(bool running);
    // Shown above the buttons until the next attempt; the window stays open. For a receiver of configApplied().
    void showSaveProblem(const QString &problem);

    // Applies all pages, or none: when a field is refused, its page is shown with a note beside it. True when applied.
    bool apply();
    void accept() override;
    void changeEvent(QEvent *event) override;

Q_SIGNALS:
    void configApplied(const Config &config);
    // The settings are applied and the window is closed; the program is to be started again.
    void restartWanted();

private:
    void addPages(SensorManager *sensors);
    void addPage(ConfigPage *page);
    void layOut();
    QDialogButtonBox *makeButtons();
    void goTo(ConfigPage *page, QWidget *field);
    void showPage(int row);
    void showHits();
    void markChanges();
    void labelPages();
    void fitPageList();
    int widthOfAllPages() const;
    void showRefused(qsizetype page);
    void applyForRestart();
    void takeTheme(const Theme &theme);
    void takeFound(const InputProposal &found);
    Config entered() const;

    Config m_config;
    Config m_base; // the same, with the values of a theme that the operator has chosen since
    Config m_untouched; // what the fields hold of it
    Config m_applied; // what the fields held at the last apply
    QSet<QString> m_changed; // keys of what differs from that
    std::function<bool(const Config &edited)> m_consent;
    QList<ConfigPage *> m_pages;
    InputConfigPage *m_input = nullptr;
    TileConfigPage *m_tiles = nullptr;
    ConfigSearch *m_search = nullptr; // these in the order of the tab key
    QListWidget *m_pageList = nullptr;
    QStackedWidget *m_stack = nullptr;
    QLabel *m_changes = nullptr;
    QLabel *m_saveProblem = nullptr;
    ConfigDefaults *m_defaults = nullptr;
    QTimer *m_edited = nullptr; // many edits come at once
};
