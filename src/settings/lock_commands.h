#pragma once

#include "app/log_level.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QWidget;
class RunConfig;
class UnlockWindow;

// The operator's side of the lock on settings: the action that locks and unlocks, and the question for the password.
// GUI thread only.
class LockCommands final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object; the window is the parent of the dialogs.
    LockCommands(QWidget *window, QAction *action, RunConfig *config);
    ~LockCommands() override;

    // Whoever has a window open in which the password can be changed locks when it is closed.
    void lockIfNew(const QString &storedBefore);

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    // Windows that need the password are to be closed.
    void locked();

private:
    void tell();
    void run();
    void choosePassword();
    void ask(const std::function<void()> &action);
    void show();

    QWidget *m_window;
    QAction *m_action;
    RunConfig *m_config;
    QPointer<UnlockWindow> m_question;
};
