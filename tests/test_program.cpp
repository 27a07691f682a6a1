#include "test_program.h"

#include <QFileInfo>
#include <QMap>
#include <QTest>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#elif defined(QT_GUI_LIB)
#include <QGuiApplication>
#endif

#include <cstdio>
#include <functional>

namespace {

using MakeTest = std::function<std::unique_ptr<QObject>()>;

// Filled before main(), in the order in which the files are linked.
QMap<QString, MakeTest> &tests()
{
    static QMap<QString, MakeTest> all;
    return all;
}

int run(const QString &name, const QStringList &arguments)
{
    const std::unique_ptr<QObject> test = tests().value(name)();
    return QTest::qExec(test.get(), arguments);
}

} // namespace

TestRegistration::TestRegistration(const char *file, std::unique_ptr<QObject> (*make)())
{
    tests().insert(QFileInfo(QString::fromLocal8Bit(file)).completeBaseName(), make);
}

// tests_<folder> [<file name without ending> [<arguments of Qt Test>...]]; without a name, all of the folder.
int main(int argc, char *argv[])
{
    VYX_TEST_APPLICATION application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    QTEST_SET_MAIN_SOURCE_PATH
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        int failures = 0;
        for (const QString &name : tests().keys()) {
            failures += run(name, arguments);
        }
        return failures;
    }
    const QString name = arguments.takeAt(1);
    if (!tests().contains(name)) {
        std::fprintf(stderr, "No test \"%s\" here.\n", qPrintable(name));
        return 2;
    }
    return run(name, arguments);
}
