#include "vyxdisplay/restart.h"

#include "app/app_paths.h"

#ifdef Q_OS_UNIX
#include <unistd.h>

#include <vector>
#else
#include <QProcess>

#include <cstdlib>
#endif

QStringList restartArguments(QStringList arguments, bool withInput)
{
    arguments.removeAll(QStringLiteral("--start"));
    if (withInput) {
        arguments.append(QStringLiteral("--start"));
    }
    return arguments;
}

void restartProgram(const QStringList &arguments)
{
#ifdef Q_OS_UNIX
    QByteArrayList octets;
    for (const QString &argument : arguments) {
        octets.append(argument.toLocal8Bit());
    }
    std::vector<char *> pointers;
    for (QByteArray &argument : octets) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    execv(AppPaths::exeFile().toLocal8Bit().constData(), pointers.data());
#else
    if (QProcess::startDetached(AppPaths::exeFile(), arguments.mid(1))) {
        std::exit(0);
    }
#endif
}
