#include "app/log_gate.h"

#include <QCoreApplication>
#include <QLocale>

#include <utility>

namespace {

// Debug lines of one kind differ by their figures. Those of higher levels are few, and their figures may matter.
std::size_t kindOf(LogLevel level, const QString &text)
{
    auto hash = static_cast<std::size_t>(level);
    for (const QChar character : text) {
        if (level > LogLevel::Debug || !character.isDigit()) {
            hash = qHash(character.unicode(), hash);
        }
    }
    return hash;
}

constexpr qsizetype MaxKinds = 100; // what differs more than that is taken for one kind

} // namespace

std::atomic<LogLevel> LogGate::ShownLevel = LogLevel::None;

LogGate::LogGate(Sink sink) : m_sink(std::move(sink)) { }

void LogGate::log(LogLevel level, const QString &text)
{
    if (isShown(level) && passes(level, text)) {
        m_sink(level, text);
    }
}

bool LogGate::passes(LogLevel level, const QString &text)
{
    const QMutexLocker lock(&m_mutex);
    const std::size_t key = kindOf(level, text);
    Kind &kind = m_kinds[m_kinds.size() < MaxKinds || m_kinds.contains(key) ? key : 0];
    if (kind.count == 0) {
        kind.level = level;
        kind.text = text;
    }
    return ++kind.count <= PassedInFull;
}

void LogGate::sumUp()
{
    QHash<std::size_t, Kind> kinds;
    {
        const QMutexLocker lock(&m_mutex);
        kinds.swap(m_kinds);
    }
    for (const Kind &kind : std::as_const(kinds)) {
        if (kind.count > PassedInFull) {
            m_sink(kind.level,
                QCoreApplication::translate("LogGate", "%1 … %2 more like this")
                    .arg(kind.text, QLocale(QLocale::English).toString(kind.count - PassedInFull)));
        }
    }
}
