#pragma once

#include "help/manual.h"
#include "widgets/geometry_dialog.h"

class ManualView;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolButton;
class QTreeWidget;

// The manual: at the left its contents, or what a search has found, at the right a page.
class HelpWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // As Manual takes them.
    explicit HelpWindow(const Manual::MadePages &made = {}, const QString &language = QStringLiteral("en"));
    ~HelpWindow() override;

    const Manual &manual() const { return m_manual; }
    // What the manual has no place for is shown as its index.
    void showPlace(const QString &place);
    // Of the page that is shown.
    QString place() const;

private:
    QBoxLayout *makeBar();
    QToolButton *makeButton(const QString &text, const QString &toolTip, const QList<QKeySequence> &keys);
    QWidget *makeNavigation();
    void makeContents();
    void search(const QString &words);
    void markPlace(const QUrl &url);
    void changeTextSize(int steps);

    Manual m_manual;
    ManualView *m_view = nullptr;
    QLineEdit *m_search = nullptr;
    QStackedWidget *m_navigation = nullptr; // contents, hits
    QTreeWidget *m_contents = nullptr;
    QListWidget *m_hits = nullptr;
    QLabel *m_notTranslated = nullptr;
    int m_textSize = 0; // steps from the ordinary one
};
