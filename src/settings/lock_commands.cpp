#include "settings/lock_commands.h"

#include "app/run_config.h"
#include "app/ui_state.h"
#include "settings/password_window.h"
#include "settings/unlock_window.h"

#include <QAction>

LockCommands::LockCommands(QWidget *window, QAction *action, RunConfig *config)
    : m_window(window), m_action(action), m_config(config)
{
    SettingsLock &lock = config->lock();
    lock.setQuestion([this](const std::function<void()> &wanted) { ask(wanted); });
    connect(action, &QAction::triggered, this, &LockCommands::run);
    connect(&lock, &SettingsLock::changed, this, &LockCommands::tell);
    show();
}

LockCommands::~LockCommands()
{
    UiState::setFrozen(false);
}

void LockCommands::tell()
{
    show();
    const bool now = m_config->lock().locked();
    Q_EMIT logMessage(LogLevel::Info, now ? tr("The settings are locked.") : tr("The settings are not locked."));
    if (now) {
        Q_EMIT locked();
    }
}

void LockCommands::run()
{
    SettingsLock &lock = m_config->lock();
    if (lock.locked()) {
        ask([] {});
    } else if (lock.hasPassword()) {
        lock.lock();
    } else {
        choosePassword();
    }
}

void LockCommands::choosePassword()
{
    auto *window = new PasswordWindow(false, m_window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(window, &PasswordWindow::passwordChosen, this, [this](const QString &stored) {
        m_config->edit([&stored](Config &config) { config.settingsLock = stored; });
        m_config->lock().lock();
    });
    window->open();
}

void LockCommands::lockIfNew(const QString &storedBefore)
{
    if (m_config->live().settingsLock != storedBefore) {
        m_config->lock().lock();
    }
}

// Only one question at a time: what it was first asked for is done.
void LockCommands::ask(const std::function<void()> &action)
{
    if (m_question) {
        m_question->raise();
        return;
    }
    m_question = new UnlockWindow(&m_config->lock(), m_window);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_question, &QDialog::accepted, this, action);
    m_question->open();
}

void LockCommands::show()
{
    UiState::setFrozen(m_config->lock().locked());
    m_action->setText(m_config->lock().locked() ? tr("Unlock Settings...")
            : m_config->lock().hasPassword()    ? tr("Lock Settings")
                                                : tr("Lock Settings..."));
}
