#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

class ControlTarget;

// The requests of the control channel. One is a JSON object {"command": name, "id": anything, parameters ...}, in one
// line; its answer {"id", "ok": true, "result": {...}} or {"id", "ok": false, "error": sentence}. The identifier is
// that of the request, null where it has none. The commands: status, start, stop, snapshot ["path"], screenshot "path",
// view ["latitude", "longitude", "metresPerPixel", "rotation"].
class ControlCommands {
    Q_DECLARE_TR_FUNCTIONS(ControlCommands)

public:
    // The target must outlive this object.
    explicit ControlCommands(ControlTarget *target) : m_target(target) { }

    QJsonObject answer(const QByteArray &request) const;

private:
    struct Outcome {
        QJsonObject result;
        QString error; // empty: none
    };

    Outcome carryOut(const QJsonObject &request) const;
    Outcome snapshot(const QJsonObject &request) const;
    Outcome screenshot(const QJsonObject &request) const;
    Outcome view(const QJsonObject &request) const;

    ControlTarget *m_target;
};
