#include "control/control_commands.h"

#include "control/control_target.h"
#include "engine/snapshot_json.h"

#include <QDir>
#include <QJsonDocument>

namespace {

struct Command {
    const char *name;
    QStringList parameters; // besides command and id
};

const QList<Command> &commandTable()
{
    static const QList<Command> table{{"status", {}}, {"start", {}}, {"stop", {}}, {"snapshot", {"path"}},
        {"screenshot", {"path"}}, {"view", {"latitude", "longitude", "metresPerPixel", "rotation"}}};
    return table;
}

QString commandNames()
{
    QStringList names;
    for (const Command &command : commandTable()) {
        names += command.name;
    }
    return names.join(QStringLiteral(", "));
}

// Why the request is none; empty when it is one.
QString requestProblem(const QJsonObject &request)
{
    const QJsonValue name = request["command"];
    if (!name.isString()) {
        return ControlCommands::tr("The request has no \"command\": one of %1.").arg(commandNames());
    }
    for (const Command &command : commandTable()) {
        if (name.toString() != command.name) {
            continue;
        }
        for (const QString &key : request.keys()) {
            if (key != "command" && key != "id" && !command.parameters.contains(key)) {
                return ControlCommands::tr("The command %1 takes no \"%2\".").arg(command.name, key);
            }
        }
        return {};
    }
    return ControlCommands::tr("There is no command \"%1\": %2.").arg(name.toString(), commandNames());
}

// Why nothing can be written there; empty when it can be tried. The path of a client means nothing in another
// directory.
QString pathProblem(const QJsonValue &path)
{
    return path.isString() && QDir::isAbsolutePath(path.toString())
        ? QString()
        : ControlCommands::tr("\"path\" has to be the absolute path of a file.");
}

} // namespace

QJsonObject ControlCommands::answer(const QByteArray &request) const
{
    QJsonParseError fault{};
    const QJsonDocument document = QJsonDocument::fromJson(request, &fault);
    const QJsonObject object = document.object();
    Outcome outcome;
    if (document.isObject()) {
        outcome.error = requestProblem(object);
    } else {
        outcome.error = fault.error == QJsonParseError::NoError
            ? tr("A request is a JSON object in one line.")
            : tr("A request is a JSON object in one line: %1 at octet %2.").arg(fault.errorString()).arg(fault.offset);
    }
    if (outcome.error.isEmpty()) {
        outcome = carryOut(object);
    }
    QJsonObject answer{{"id", object.contains("id") ? object["id"] : QJsonValue()}, {"ok", outcome.error.isEmpty()}};
    if (outcome.error.isEmpty()) {
        answer.insert("result", outcome.result);
    } else {
        answer.insert("error", outcome.error);
    }
    return answer;
}

ControlCommands::Outcome ControlCommands::carryOut(const QJsonObject &request) const
{
    const QString command = request["command"].toString();
    if (command == "status") {
        return {m_target->status(), {}};
    }
    if (command == "start") {
        return {{}, m_target->start()};
    }
    if (command == "stop") {
        return {{}, m_target->stop()};
    }
    if (command == "snapshot") {
        return snapshot(request);
    }
    return command == "screenshot" ? screenshot(request) : view(request);
}

ControlCommands::Outcome ControlCommands::snapshot(const QJsonObject &request) const
{
    if (!request.contains("path")) {
        return {m_target->snapshot(), {}};
    }
    const QString path = request["path"].toString();
    QString error = pathProblem(request["path"]);
    if (error.isEmpty() && !SnapshotJson::save(m_target->snapshot(), path, &error)) {
        error = tr("%1 cannot be written: %2").arg(path, error);
    }
    return {{{"path", path}}, error};
}

ControlCommands::Outcome ControlCommands::screenshot(const QJsonObject &request) const
{
    const QString path = request["path"].toString();
    const QString error = pathProblem(request["path"]);
    return {{{"path", path}}, error.isEmpty() ? m_target->saveScreenshot(path) : error};
}

ControlCommands::Outcome ControlCommands::view(const QJsonObject &request) const
{
    QJsonObject changes = request;
    changes.remove("command");
    changes.remove("id");
    for (const QString &key : changes.keys()) {
        if (!changes[key].isDouble()) {
            return {{}, tr("\"%1\" has to be a number.").arg(key)};
        }
    }
    if (m_target->view().isEmpty()) {
        return {{}, tr("There is no window.")};
    }
    const QString error = changes.isEmpty() ? QString() : m_target->setView(changes);
    return {m_target->view(), error};
}
