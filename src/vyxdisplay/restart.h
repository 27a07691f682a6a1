#pragma once

#include <QStringList>

// The arguments of this run, its name first, so that the next one begins with its input running, or not.
QStringList restartArguments(QStringList arguments, bool withInput);

// Starts the program anew with these arguments, in the place of this one, whose number and terminal it keeps. Comes
// back only where that fails.
void restartProgram(const QStringList &arguments);
