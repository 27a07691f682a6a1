#include "tiles/sqlite_connection.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QUuid>

namespace {

const QString Driver = QStringLiteral("QSQLITE");

QString options(SqliteConnection::Access access)
{
    // A file that another program holds is an error soon, not a wait of seconds.
    const QString patience = QStringLiteral("QSQLITE_BUSY_TIMEOUT=300");
    return access == SqliteConnection::Access::ReadOnly ? patience + QStringLiteral(";QSQLITE_OPEN_READONLY")
                                                        : patience;
}

} // namespace

SqliteConnection::SqliteConnection(const QString &path, Access access)
    : m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    if (!QSqlDatabase::isDriverAvailable(Driver)) {
        m_error = QCoreApplication::translate(
            "SqliteConnection", "Qt's driver for SQLite is not installed (package libqt6sql6-sqlite).");
        return;
    }
    m_database = QSqlDatabase::addDatabase(Driver, m_name);
    m_database.setDatabaseName(path);
    m_database.setConnectOptions(options(access));
    if (!m_database.open()) {
        m_error = m_database.lastError().databaseText();
    }
}

SqliteConnection::~SqliteConnection()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

bool SqliteConnection::run(const QString &statement)
{
    QSqlQuery query(m_database);
    if (query.exec(statement)) {
        return true;
    }
    m_error = query.lastError().databaseText();
    return false;
}

bool SqliteConnection::commit()
{
    if (m_database.commit()) {
        return true;
    }
    m_error = m_database.lastError().databaseText();
    return false;
}
