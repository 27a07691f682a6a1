#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

// One connection to an SQLite file, closed with the object. Belongs to the thread that made it, but may be destroyed on
// another once that one no longer uses it.
class SqliteConnection {
public:
    enum class Access { ReadOnly, ReadWrite }; // the latter makes the file where there is none

    SqliteConnection(const QString &path, Access access);
    ~SqliteConnection();
    Q_DISABLE_COPY_MOVE(SqliteConnection)

    bool isOpen() const { return m_database.isOpen(); }
    // Why it is not open, or what the last of run() failed with.
    const QString &error() const { return m_error; }

    QSqlQuery query() const { return QSqlQuery(m_database); }
    // A statement without values and results.
    bool run(const QString &statement);
    bool begin() { return m_database.transaction(); }
    bool commit();

private:
    QString m_name;
    QSqlDatabase m_database;
    QString m_error;
};
