#include "control/status_json.h"

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "engine/snapshot_json.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace {

QJsonObject inputObject(const TerminalStatus &status)
{
    QJsonObject input{{"state", status.inputState}, {"name", status.input},
        {"notice", status.notice.isEmpty() ? QJsonValue() : QJsonValue(status.notice)}};
    if (const auto &counts = status.statistics) {
        const auto last = counts->lastMessageMs;
        const auto lastTime = last ? QDateTime::fromMSecsSinceEpoch(*last, Qt::UTC) : QDateTime();
        input.insert("endpoints", QJsonArray::fromStringList(counts->endpoints));
        input.insert("messages", static_cast<qint64>(counts->messages));
        input.insert("octets", static_cast<qint64>(counts->octets));
        input.insert("undecodable", static_cast<qint64>(counts->undecodableMessages));
        input.insert("lastMessage", last ? QJsonValue(lastTime.toString(Qt::ISODateWithMs)) : QJsonValue());
        input.insert("drops", static_cast<qint64>(counts->backlog.kernelDrops));
    }
    return input;
}

} // namespace

QJsonObject statusJson(const TerminalStatus &status)
{
    return {{"program", QStringLiteral("Vyx Display")}, {"version", QCoreApplication::applicationVersion()},
        {"revision", buildRevision()}, {"profile", AppPaths::profile()}, {"pid", QCoreApplication::applicationPid()},
        {"window", status.window}, {"uptime", static_cast<qint64>(status.uptime.count())}, {"lamp", status.lamp},
        {"tracks", status.picture ? status.picture->tracks.size() : 0},
        {"alerts", status.picture ? status.picture->alerts.size() : 0}, {"input", inputObject(status)},
        {"sources", status.statistics ? SnapshotJson::sources(*status.statistics) : QJsonArray()}};
}
