#include "help/changelog_window.h"

#include "app/ui_state.h"

#include <QCoreApplication>

// The file is compiled into a static library, which loads its resources only when asked to.
static QString changelogFile()
{
    Q_INIT_RESOURCE(changelog);
    return QStringLiteral(":/changelog/CHANGELOG.md");
}

namespace {

constexpr auto StateGroup = "ChangelogWindow";
constexpr auto VersionKey = "versionSeen";

} // namespace

ChangelogWindow::ChangelogWindow(QWidget *parent)
    : MarkdownWindow(QString::fromLatin1(StateGroup), tr("What's New?"), changelogFile(), parent)
{
}

bool ChangelogWindow::noteVersion()
{
    const QString group = QString::fromLatin1(StateGroup);
    const QString key = QString::fromLatin1(VersionKey);
    const QByteArray seen = UiState::value(group, key);
    const QByteArray version = QCoreApplication::applicationVersion().toUtf8();
    if (seen != version) {
        UiState::saveValue(group, key, version);
    }
    return !seen.isEmpty() && seen != version;
}
