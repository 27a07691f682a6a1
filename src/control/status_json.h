#pragma once

#include "engine/display_snapshot.h"
#include "engine/source_statistics.h"

#include <QJsonObject>
#include <QSharedPointer>
#include <QString>

#include <chrono>

// How a terminal does, as it tells it.
struct TerminalStatus {
    bool window = false;
    std::chrono::seconds uptime{0};
    QString inputState; // "closed", "opening", "open" or "paused"
    QString input; // for people: "UDP port 20000"
    QString notice; // why there is none, or what is wrong with it; empty: all is well
    QString lamp; // "off", "green", "amber" or "red"
    QSharedPointer<const DisplaySnapshot> picture; // null before the first
    QSharedPointer<const InputStatistics> statistics; // the same
};

// {"program", "version", "revision", "profile", "pid", "window", "uptime": seconds, "lamp", "tracks", "alerts",
// "input":
// {"state", "name", "notice", "endpoints", "messages", "octets", "undecodable", "lastMessage", "drops"}, "sources": as
// SnapshotJson::sources()}. The numbers are of the input that is open, or the last one; drops are datagrams for which
// the system had no room.
QJsonObject statusJson(const TerminalStatus &status);
