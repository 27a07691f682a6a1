#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <memory>

class HelpWindow;
class QDialog;
class QWidget;

// Opens the manual at the right place: F1, and a Help button, in every window but the main one, where F1 is a command.
// Its window belongs to no other one, so that it can be read while a dialog waits for an answer. GUI thread.
class Help final : public QObject {
    Q_OBJECT

public:
    explicit Help(QWidget *mainWindow);
    ~Help() override;

    // Makes a page of the manual when it is first opened, as Markdown.
    void setMadePage(const QString &file, QString (*make)());

    // About the pane of the main window that has the focus; otherwise the contents, or the page that is open.
    void showContents();
    void showPlace(const QString &place);
    // With the main window, which is not the last one while this one is open.
    void closeWindow();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addButton(QDialog *dialog);

    QPointer<QWidget> m_mainWindow;
    QHash<QString, QString (*)()> m_made;
    std::unique_ptr<HelpWindow> m_window; // made when it is first wanted
};
