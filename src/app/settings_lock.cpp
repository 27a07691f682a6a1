#include "app/settings_lock.h"

#include "app/config.h"
#include "app/setting.h"

#include <QCryptographicHash>
#include <QPasswordDigestor>
#include <QRandomGenerator>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

using std::chrono::milliseconds;
using namespace std::chrono_literals;

namespace {

const QString Scheme = QStringLiteral("pbkdf2-sha512");
// A tenth of a second: the picture stands still for no longer. Whoever can read the file can also take the lock
// off it, so this protects no more than the password itself.
constexpr int Rounds = 20000;
constexpr int MostRounds = 10000000; // of a file
constexpr int SaltLength = 16; // octets
constexpr int KeyLength = 32;
constexpr int FreeTries = 3; // slips of the finger
constexpr milliseconds LongestWait = 5min;

QByteArray derived(const QString &password, const QByteArray &salt, int rounds)
{
    return QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha512, password.toUtf8(), salt, rounds, KeyLength);
}

// Takes as long for each wrong key.
bool same(const QByteArray &a, const QByteArray &b)
{
    int difference = a.size() == b.size() ? 0 : 1;
    for (qsizetype i = 0; i < std::min(a.size(), b.size()); ++i) {
        difference |= a.at(i) ^ b.at(i);
    }
    return difference == 0;
}

bool isOperated(const Setting &setting)
{
    static const std::array<const Setting *, 15> all{&Setting::of(&Config::mapStaticVisible),
        &Setting::of(&Config::mapTileVisible), &Setting::of(&Config::mapSensorVisible),
        &Setting::of(&Config::mapWeatherVisible), &Setting::of(&Config::mapVideoVisible),
        &Setting::of(&Config::mapPlotVisible), &Setting::of(&Config::mapRangeRingVisible),
        &Setting::of(&Config::mapRangeRingLabelVisible), &Setting::of(&Config::mapRangeRingNumber),
        &Setting::of(&Config::mapRangeRingDistance), &Setting::of(&Config::mapCompassRoseVisible),
        &Setting::of(&Config::mapScaleBarVisible), &Setting::of(&Config::mapKeyVisible),
        &Setting::of(&Config::trackLabelAutoPlace), &Setting::of(&Config::inputFileAutoRewind)};
    return std::find(all.begin(), all.end(), &setting) != all.end();
}

} // namespace

QString SettingsLock::stored(const QString &password)
{
    QByteArray salt(SaltLength, Qt::Uninitialized);
    for (char &octet : salt) {
        octet = static_cast<char>(QRandomGenerator::system()->bounded(256));
    }
    return QStringLiteral("%1:%2:%3:%4")
        .arg(Scheme)
        .arg(Rounds)
        .arg(QString::fromLatin1(salt.toBase64()), QString::fromLatin1(derived(password, salt, Rounds).toBase64()));
}

bool SettingsLock::opens(const QString &password, const QString &stored)
{
    const QStringList parts = stored.split(u':');
    if (parts.size() != 4 || parts.at(0) != Scheme) {
        return false;
    }
    const int rounds = parts.at(1).toInt();
    const QByteArray salt = QByteArray::fromBase64(parts.at(2).toLatin1());
    const QByteArray key = QByteArray::fromBase64(parts.at(3).toLatin1());
    if (rounds < 1 || rounds > MostRounds || salt.isEmpty() || key.size() != KeyLength) {
        return false;
    }
    return same(derived(password, salt, rounds), key);
}

bool SettingsLock::operated(const Config &before, const Config &after)
{
    const auto all = Setting::all();
    return std::all_of(all.begin(), all.end(),
        [&](const Setting &setting) { return setting.same(before, after) || isOperated(setting); });
}

SettingsLock::SettingsLock(const QString &stored, QObject *parent, Clock clock)
    : QObject(parent), m_stored(stored), m_clock(std::move(clock)), m_locked(!stored.isEmpty())
{
}

SettingsLock::Clock SettingsLock::monotonicClock()
{
    return [] { return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch()); };
}

void SettingsLock::setStored(const QString &stored)
{
    if (stored != std::exchange(m_stored, stored)) {
        m_locked = m_locked && hasPassword();
        Q_EMIT changed();
    }
}

void SettingsLock::lock()
{
    if (!m_locked && hasPassword()) {
        m_locked = true;
        Q_EMIT changed();
    }
}

bool SettingsLock::unlock(const QString &password)
{
    if (!m_locked) {
        return true;
    }
    if (wait() > 0ms) {
        return false;
    }
    if (!opens(password, m_stored)) {
        ++m_wrong;
        const int doublings = std::min(m_wrong - FreeTries, 10);
        const milliseconds wait =
            m_wrong < FreeTries ? 0ms : std::min<milliseconds>(1s * (1 << doublings), LongestWait);
        m_nextTry = m_clock() + wait;
        return false;
    }
    m_wrong = 0;
    m_locked = false;
    Q_EMIT changed();
    return true;
}

milliseconds SettingsLock::wait() const
{
    return std::max<milliseconds>(m_nextTry - m_clock(), 0ms);
}

void SettingsLock::whenUnlocked(const std::function<void()> &action) const
{
    if (!m_locked) {
        action();
    } else if (m_question) {
        m_question(action);
    }
}

void SettingsLock::setQuestion(std::function<void(const std::function<void()> &action)> question)
{
    m_question = std::move(question);
}
