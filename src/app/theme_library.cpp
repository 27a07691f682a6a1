#include "app/theme_library.h"

#include "app/app_paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

// A static library's resources are linked in only when something asks for them by name; the macro behind that must
// stand outside any namespace.
static void loadThemeResource()
{
    Q_INIT_RESOURCE(themes);
}

namespace {

constexpr qint64 MaxFileSize = 1 << 20; // far beyond any theme

// Every name makes a file name of its own on every file system.
QString fileNameOf(const QString &theme)
{
    return QString::fromLatin1(theme.toLower().toUtf8().toPercentEncoding(" ")) + QStringLiteral(".json");
}

} // namespace

QString ThemeLibrary::userFolder()
{
    return QFileInfo(AppPaths::configFile()).absolutePath() + QStringLiteral("/themes");
}

ThemeLibrary::ThemeLibrary(const QString &folder) : m_folder(folder)
{
    loadThemeResource();
    m_themes.append(Theme());
    for (const char *name : {"night", "dusk", "day"}) {
        readFile(QStringLiteral(":/themes/%1.json").arg(QLatin1String(name)), true);
    }
    m_ofTheProgram = m_themes.size();
    const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        readFile(file.absoluteFilePath(), false);
    }
    std::sort(m_themes.begin() + m_ofTheProgram, m_themes.end(),
        [](const Theme &a, const Theme &b) { return a.name().localeAwareCompare(b.name()) < 0; });
}

void ThemeLibrary::readFile(const QString &path, bool ofTheProgram)
{
    const QString place = tr("Theme file %1: %2").arg(QDir::toNativeSeparators(path));
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        m_problems.append(place.arg(file.errorString()));
        return;
    }
    QStringList problems;
    const std::optional<Theme> theme = Theme::fromJson(file.read(MaxFileSize), &problems);
    if (theme && find(theme->name())) {
        problems.append(tr("there is a theme \"%1\" already").arg(theme->name()));
    } else if (theme) {
        m_themes.append(*theme);
    }
    Q_ASSERT_X(!ofTheProgram || problems.isEmpty(), "ThemeLibrary", qPrintable(problems.join(u'\n')));
    for (const QString &problem : std::as_const(problems)) {
        m_problems.append(place.arg(problem));
    }
}

QStringList ThemeLibrary::names() const
{
    QStringList names;
    for (const Theme &theme : m_themes) {
        names.append(theme.name());
    }
    return names;
}

const Theme *ThemeLibrary::find(const QString &name) const
{
    const auto found = std::find_if(m_themes.begin(), m_themes.end(),
        [&name](const Theme &theme) { return theme.name().compare(name, Qt::CaseInsensitive) == 0; });
    return found == m_themes.end() ? nullptr : &*found;
}

bool ThemeLibrary::isOfTheProgram(const QString &name) const
{
    const Theme *theme = find(name);
    return theme && theme - m_themes.data() < m_ofTheProgram;
}

bool ThemeLibrary::save(const Theme &theme, QString *error) const
{
    if (isOfTheProgram(theme.name())) {
        *error = tr("\"%1\" is a theme of the program's own.").arg(theme.name());
        return false;
    }
    QSaveFile file(QDir(m_folder).filePath(fileNameOf(theme.name())));
    const QByteArray json = theme.toJson();
    if (QDir().mkpath(m_folder) && file.open(QFile::WriteOnly) && file.write(json) == json.size() && file.commit()) {
        return true;
    }
    *error = tr("Cannot write %1: %2").arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
    return false;
}
