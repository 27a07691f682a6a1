#include "window_fixture.h"

#include "help/manual.h"
#include "settings/config_window.h"
#include "test_program.h"
#include "ui/actions.h"

#include <QAction>
#include <QCoreApplication>
#include <QListWidget>
#include <QMap>
#include <QMenu>
#include <QRegularExpression>
#include <QTranslator>

// The manual names commands and pages of the settings as the windows do.
class TestManualCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesThemAsTheyAre_data();
    void namesThemAsTheyAre();
};

namespace {

// As the manual writes it.
QString nameOf(QString text)
{
    static const QRegularExpression dots(QStringLiteral(R"(\s*\.\.\.$)"));
    return text.remove('&').replace(dots, QStringLiteral("…"));
}

// "File → Settings…", with the keys.
QMap<QString, QKeySequence> commandsOf(const MainWindow &window)
{
    QMap<QString, QKeySequence> commands;
    for (int menu = 0; menu <= static_cast<int>(MenuId::Help); ++menu) {
        const QMenu *holder = window.findChild<Actions *>()->menu(static_cast<MenuId>(menu));
        for (const QAction *command : holder->actions()) {
            commands.insert(nameOf(holder->title()) + " → " + nameOf(command->text()), command->shortcut());
        }
    }
    return commands;
}

QStringList pagesOf(MainWindow &window)
{
    (*window.findChild<Actions *>())[ActionId::Settings]->trigger();
    auto *settings = window.findChild<ConfigWindow *>();
    const auto *list = settings->findChild<QListWidget *>("pageList");
    QStringList pages;
    for (int row = 0; row < list->count(); ++row) {
        pages.append(list->item(row)->text());
    }
    settings->reject();
    return pages;
}

} // namespace

void TestManualCommands::namesThemAsTheyAre_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page"); // as it is written before the name of one
    QTest::newRow("English") << "en"
                             << "page";
    QTest::newRow("German") << "de"
                            << "Seite";
}

void TestManualCommands::namesThemAsTheyAre()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    QTranslator translator;
    QVERIFY(translator.load(":/translations/vyxdisplay_" + language));
    QCoreApplication::installTranslator(&translator);
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    const QMap<QString, QKeySequence> commands = commandsOf(*window);
    const QStringList pages = pagesOf(*window);
    const QRegularExpression command(
        QStringLiteral(R"(\*\*([^*→]+ → [^*→]+?)(?: → [^*]+)?\*\*(?: \(([A-Z][A-Za-z]*\+[^)]+|F\d+)\))?)"));
    const QRegularExpression settings(page + QStringLiteral(R"( \*([A-Z][^*]+)\*)"));
    const Manual manual({}, language);
    int named = 0;
    for (const Manual::Page &read : manual.pages()) {
        const QString text = read.language == language ? read.markdown.simplified() : QString();
        for (auto found = command.globalMatch(text); found.hasNext(); ++named) {
            const QRegularExpressionMatch match = found.next();
            QVERIFY2(commands.contains(match.captured(1)), qPrintable(read.file + ": " + match.captured(1)));
            QString written = match.captured(2);
            const QKeySequence keys(written.replace("Strg", "Ctrl").replace("Umschalt", "Shift"));
            QVERIFY2(keys.isEmpty() || keys == commands.value(match.captured(1)),
                qPrintable(read.file + ": " + match.captured()));
        }
        for (auto found = settings.globalMatch(text); found.hasNext(); ++named) {
            const QString name = found.next().captured(1);
            QVERIFY2(pages.contains(name), qPrintable(read.file + ": " + name));
        }
    }
    QVERIFY2(named > 10, qPrintable(QString::number(named)));
    QVERIFY(WindowFixture::close(*window));
    QCoreApplication::removeTranslator(&translator);
}

VYX_TEST(TestManualCommands)
#include "tst_manual_commands.moc"
