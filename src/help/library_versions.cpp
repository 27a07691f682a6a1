#include "help/library_versions.h"

#include "map_import/map_import.h"

#include "airdb/lib_air_db.h"
#include "asterix/asterix.h"
#include "modes/lib_mode_s.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <pcap/pcap.h>
#include <zlib.h>

namespace {

// Empty without the driver.
QString sqliteVersion()
{
    const QString name = QStringLiteral("version");
    QString version;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(QStringLiteral(":memory:"));
        if (database.open()) {
            QSqlQuery query(database);
            version = query.exec(QStringLiteral("SELECT sqlite_version()")) && query.next() ? query.value(0).toString()
                                                                                            : QString();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return version;
}

QString versionLine(const QString &name, const QString &version)
{
    return version.isEmpty() ? LibraryVersions::tr("%1 is missing").arg(name)
                             : LibraryVersions::tr("%1 %2").arg(name, version);
}

} // namespace

QStringList LibraryVersions::lines()
{
    return {
        versionLine(tr("ASTERIX library"), QString::fromLatin1(ast_library_version())),
        versionLine(tr("Mode S library"), QString::fromStdString(korvane::modes::LibModeS::version())),
        versionLine(tr("Aircraft database library"), QString::fromLatin1(korvane::airdb::LibAirDB::version())),
        tr("Qt %1 (built with %2)").arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR)),
        versionLine(QStringLiteral("GDAL"), MapImport::libraryVersion()),
        versionLine(QStringLiteral("SQLite"), sqliteVersion()),
        versionLine(QStringLiteral("zlib"), QString::fromLatin1(zlibVersion())),
        QString::fromLatin1(pcap_lib_version()), // begins with its name
    };
}
