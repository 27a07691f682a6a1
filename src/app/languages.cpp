#include "app/languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QMap>
#include <QTranslator>

#include <memory>

namespace {

const QString English = QStringLiteral("en");
const QString OwnTexts = QStringLiteral("vyxdisplay_");
const QString ResourceFolder = QStringLiteral(":/translations");

std::optional<QString> installedCode;
QString spokenCode = English;

// Of the folders the first wins that has the file, or one for the same language of no particular country. Returns the
// language of what was found.
QString installFirst(const QString &file, const QStringList &folders)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    for (const QString &folder : folders) {
        if (translator->load(file, folder)) {
            QCoreApplication::installTranslator(translator.get());
            return translator.release()->language();
        }
    }
    return {};
}

} // namespace

QList<Languages::Language> Languages::available()
{
    QMap<QString, QString> names;
    for (const QDir &folder : {QDir::current(), QDir(ResourceFolder)}) {
        const QStringList files = folder.entryList({OwnTexts + "*.qm"}, QDir::Files);
        for (const QString &file : files) {
            const QString code = file.mid(OwnTexts.size()).chopped(3);
            names.insert(code, QLocale(code).nativeLanguageName());
        }
    }
    names.remove(English); // its file holds nothing but plurals
    QList<Language> languages{{English, QStringLiteral("English")}};
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        languages.append({name.key(), name.value().isEmpty() ? name.key() : name.value()});
    }
    return languages;
}

const std::optional<QString> &Languages::installed()
{
    return installedCode;
}

const QString &Languages::spoken()
{
    return spokenCode;
}

void Languages::install(const QString &code)
{
    installedCode = code;
    const QString language = code.isEmpty() ? QLocale::system().name() : code;
    const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    installFirst("qtbase_" + language, {QString(), toolkit, ResourceFolder});
    installFirst("qt_" + language, {QString()});
    const QString found = installFirst(OwnTexts + language, {QString(), ResourceFolder});
    spokenCode = found.isEmpty() ? English : found;
}
