#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

// Puts one request to a running terminal and waits for its answer.
class ControlClient {
    Q_DECLARE_TR_FUNCTIONS(ControlClient)

public:
    static constexpr int WaitMs = 10000;

    // The request as {"command", parameters ...}. The line that was answered, without its end; empty, with a sentence
    // in error, when none came.
    static QByteArray ask(const QString &path, const QJsonObject &request, QString *error);
};
