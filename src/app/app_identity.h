#pragma once

#include <QString>

// Gives the application its organisation, names and version, which everything else reads from QCoreApplication. Needs
// no application object: the first thing in main, because file locations follow from the name.
void setApplicationIdentity();

// The revision that the program was built from: "0x" and the abbreviated commit, "unknown" outside a checkout.
QString buildRevision();
