#include "app/app_log.h"

#include "app/app_paths.h"

#include <QFileInfo>

namespace {

QLatin1String nameOf(LogLevel level)
{
    switch (level) {
    case LogLevel::None:
        return QLatin1String("NONE");
    case LogLevel::Debug:
        return QLatin1String("DEBUG");
    case LogLevel::Info:
        return QLatin1String("INFO");
    case LogLevel::Warning:
        return QLatin1String("WARNING");
    case LogLevel::Critical:
        return QLatin1String("CRITICAL");
    case LogLevel::Panic:
        return QLatin1String("PANIC");
    }
    return QLatin1String("UNKNOWN"); // a number from elsewhere, cast to a level
}

} // namespace

QString logLevelLabel(LogLevel level)
{
    constexpr int Width = 8;
    return QString(nameOf(level)).leftJustified(Width);
}

QString formatLogLine(LogLevel level, const QDateTime &localTime, const QString &text)
{
    return QStringLiteral("[%1][%2] %3")
        .arg(logLevelLabel(level), localTime.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")), text);
}

bool debugModeMarked()
{
    static const bool marked = QFileInfo::exists(
        AppPaths::exeDir() + QLatin1Char('/') + QFileInfo(AppPaths::exeFile()).baseName() + QStringLiteral(".dbg"));
    return marked;
}
