#pragma once

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>

class Config;

// Keeps settings as they are until a password is given, so that a working position keeps its set-up. The settings file
// has, under "settingsLock", no password but what can tell it:
//
//     pbkdf2-sha512:ROUNDS:SALT:KEY
//
// with the number of rounds in decimal, and in Base64 the salt, 16 random octets, and the key that PBKDF2 with
// HMAC-SHA-512 derives from the password in UTF-8, 32 octets. A value of any other form is locked for good. Who has
// forgotten the password removes the line from the file while the program does not run. GUI thread only.
class SettingsLock final : public QObject {
    Q_OBJECT

public:
    using Clock = std::function<std::chrono::milliseconds()>;

    // What the file has for the password.
    static QString stored(const QString &password);
    static bool opens(const QString &password, const QString &stored);
    // Whether the two differ in nothing but what an operator switches as he works: layers, range rings, the order of
    // labels. That is left to him, and holds for the run.
    static bool operated(const Config &before, const Config &after);

    // The clock never goes back.
    explicit SettingsLock(const QString &stored, QObject *parent = nullptr, Clock clock = monotonicClock());

    // Another password, or none: empty. Does not lock by itself, so that whoever has set it can finish his work.
    void setStored(const QString &stored);
    bool hasPassword() const { return !m_stored.isEmpty(); }
    bool locked() const { return m_locked; }

    // Nothing without a password.
    void lock();
    // False for a wrong password, and for any while wait() is not over.
    bool unlock(const QString &password);
    // Each wrong password in a row makes the next one wait longer.
    std::chrono::milliseconds wait() const;

    // At once, or when the question, which asks for the password and never waits itself, has been answered.
    void whenUnlocked(const std::function<void()> &action) const;
    void setQuestion(std::function<void(const std::function<void()> &action)> question);

Q_SIGNALS:
    // Locked, unlocked, or with another password.
    void changed();

private:
    static Clock monotonicClock();

    QString m_stored;
    Clock m_clock;
    std::function<void(const std::function<void()> &action)> m_question;
    bool m_locked;
    int m_wrong = 0; // passwords in a row
    std::chrono::milliseconds m_nextTry{0}; // by the clock
};
