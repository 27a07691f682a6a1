#pragma once

#include <QByteArray>
#include <QString>

// The window states that outlive a run, in an INI file of their own: one group a window or dialog. GUI thread only.
namespace UiState {

QString filePath();

// Each call opens and closes the file; what it writes is on disk when it returns. Nothing is written while another
// process keeps the settings, or while the state is frozen.
void saveValue(const QString &group, const QString &key, const QByteArray &bytes);
// Empty when nothing was saved.
QByteArray value(const QString &group, const QString &key);

// A position whose settings are locked keeps its windows too.
void setFrozen(bool frozen);

void saveGeometry(const QString &group, const QByteArray &bytes);
QByteArray geometry(const QString &group);

} // namespace UiState
