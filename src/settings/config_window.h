#pragma once

#include "app/config.h"
#include "widgets/geometry_dialog.h"

#include <functional>

class ConfigPage;
class EngineHost;
class InputConfigPage;
class InputProposal;
class QLabel;
class QListWidget;
class QStackedWidget;
class SensorManager;
class Theme;

// The settings window: pages chosen in a list at the left. What the operator did not touch passes through unchanged,
// though its field shows it rounded, cut off at the end of a range or spelled in another way.
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
    // Locks the pages of what an input is opened with.
    void setInputRunning(bool running);
    // Shown above the buttons until the next attempt; the window stays open. For a receiver of configApplied().
    void showSaveProblem(const QString &problem);

    // Applies all pages, or none: when a field is refused, its page is shown with a note beside it. True when applied.
    bool apply();
    void accept() override;

Q_SIGNALS:
    void configApplied(const Config &config);

private:
    void addPage(ConfigPage *page);
    QWidget *makeScrollable(ConfigPage *page);
    void showRefused(qsizetype page);
    void takeTheme(const Theme &theme);
    void takeFound(const InputProposal &found);
    Config entered() const;

    Config m_config;
    Config m_base; // the same, with the values of a theme that the operator has chosen since
    Config m_untouched; // what the fields hold of it
    std::function<bool(const Config &edited)> m_consent;
    QList<ConfigPage *> m_pages;
    InputConfigPage *m_input = nullptr;
    QListWidget *m_pageList = nullptr;
    QStackedWidget *m_stack = nullptr;
    QLabel *m_saveProblem = nullptr;
};
