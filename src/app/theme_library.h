#pragma once

#include "app/theme.h"

#include <QList>
#include <QString>
#include <QStringList>

// The themes to choose from: those that come with the program, and the user's own, a file each.
class ThemeLibrary {
    Q_DECLARE_TR_FUNCTIONS(ThemeLibrary)

public:
    // The folder "themes" beside the settings file, which need not exist.
    static QString userFolder();

    // Reads all files. Those that cannot be read, or not all of them, are told in problems(), the others are there.
    explicit ThemeLibrary(const QString &folder = userFolder());

    // The program's own first, the others by name.
    const QList<Theme> &themes() const { return m_themes; }
    QStringList names() const;
    // Upper and lower case do not matter. Null when there is none.
    const Theme *find(const QString &name) const;
    bool isOfTheProgram(const QString &name) const;
    // A line each.
    const QStringList &problems() const { return m_problems; }

    // As a file of the user's, whole or not at all, in the place of his theme of that name. False, and error says why,
    // when it cannot be written, or when the name is one of the program's own.
    bool save(const Theme &theme, QString *error) const;

private:
    void readFile(const QString &file, bool ofTheProgram);

    QString m_folder;
    QList<Theme> m_themes;
    qsizetype m_ofTheProgram = 0; // how many, in front
    QStringList m_problems;
};
