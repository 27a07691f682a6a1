#pragma once

#include <QList>
#include <QString>

#include <optional>

// The languages that the program speaks. English is the language of the sources; each of the others is a file
// "vyxdisplay_<code>.qm", in the working directory or among the resources.
class Languages {
public:
    struct Language {
        QString code; // "de", "zh_CN", as the setting displayLanguage holds it
        QString name; // in the language itself
    };

    // English first, then by their codes.
    static QList<Language> available();

    // Installs the texts of the chosen language, this program's and the toolkit's, into the application object; an
    // empty code stands for the system's language. What is not translated stays English. Called once, before the first
    // window.
    static void install(const QString &code);
    // The code that was installed last; nothing before.
    static const std::optional<QString> &installed();
    // The code of the language that the texts are in since then: English where the chosen one is not there.
    static const QString &spoken();
};
