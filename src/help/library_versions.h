#pragma once

#include <QCoreApplication>
#include <QStringList>

// The libraries in this program: those that run with it rather than those that it was built with.
class LibraryVersions {
    Q_DECLARE_TR_FUNCTIONS(LibraryVersions)

public:
    // A line each, with name and version.
    static QStringList lines();
};
