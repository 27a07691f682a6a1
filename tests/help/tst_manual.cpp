#include "help/help_topics.h"
#include "help/manual.h"
#include "test_program.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

// The manual as it is written, and how it is read.
class TestManual : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsThePagesOfTheIndex();
    void findsSections_data();
    void findsSections();
    void linksLeadSomewhere();
    void readsTranslatedPages();
    void translationsFollowTheirOriginals();
    void hasAPlaceForEveryWindow();
};

namespace {

void write(const QString &file, const char *text)
{
    QFile page(file);
    QVERIFY(page.open(QIODevice::WriteOnly));
    page.write(text);
}

QStringList translationsOfTheManual()
{
    QStringList folders = QDir(":/manual").entryList(QDir::Dirs);
    folders.removeAll("pictures");
    return folders;
}

// In order of their targets: sentences may have them in another one.
QStringList linksOf(const Manual::Page &page)
{
    static const QRegularExpression link(QStringLiteral(R"(\]\(([^)\s]+)\))"));
    QStringList targets;
    QRegularExpressionMatchIterator links = link.globalMatch(page.markdown);
    while (links.hasNext()) {
        targets.append(links.next().captured(1));
    }
    targets.sort();
    return targets;
}

// Headings, rows of tables, items of lists and examples.
QStringList outlineOf(const Manual::Page &page)
{
    QStringList outline{page.file};
    for (const QString &line : page.markdown.split('\n')) {
        static const QRegularExpression marked(QStringLiteral(R"(^(#+ |\|--|\||- |\d\. |    \S|```))"));
        const QString mark = marked.match(line).captured(1);
        if (!mark.isEmpty()) {
            outline.append(mark);
        }
    }
    return outline;
}

// Classes of windows, panes and pages of settings, as the sources declare them.
QSet<QString> windowsOfTheProgram()
{
    static const QRegularExpression window(QStringLiteral(
        R"(class (\w+)(?: final)? : public (?:QDialog|QMainWindow|QDockWidget|GeometryDialog|MarkdownWindow|ConfigPage)\b)"));
    QSet<QString> classes;
    QDirIterator files(
        QStringLiteral(SOURCE_FOLDER "/src"), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        QRegularExpressionMatchIterator found = window.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            classes.insert(found.next().captured(1));
        }
    }
    // Not opened as they are, or with the help itself.
    return classes - QSet<QString>{"GeometryDialog", "ConfigPage", "HelpWindow", "MainWindow"};
}

} // namespace

void TestManual::readsThePagesOfTheIndex()
{
    QTemporaryDir folder;
    write(folder.filePath("index.md"),
        "# Manual\n\n## First\n\n- [A](a.md)\n- [Gone](gone.md)\n\n## Second\n\n- [B](b.md): x\n");
    write(folder.filePath("a.md"),
        "# The **first** page\n\nWords.\n\n```\n# no heading\n```\n\n## Range & `rings`\n\nMore.\n");
    write(folder.filePath("b.md"), "# Other\n");
    const Manual manual({}, "en", folder.path());
    QCOMPARE(manual.pages().size(), 3);
    QVERIFY(!manual.pages().at(0).markdown.contains("gone.md"));
    const Manual::Page *page = manual.page("a.md");
    QVERIFY(page);
    QCOMPARE(page->chapter, "First");
    QCOMPARE(page->title(), "The first page");
    QCOMPARE(page->sections.size(), 2);
    QCOMPARE(page->sections.at(1).anchor, "range-rings");
    QCOMPARE(manual.page("b.md")->chapter, "Second");
    QVERIFY(manual.has("a.md#range-rings"));
    QVERIFY(!manual.has("a.md#rings"));
    QVERIFY(!manual.has("gone.md"));
}

void TestManual::findsSections_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("places");
    QTest::newRow("the heading before the text") << "rose" << QStringList{"a.md#rose", "a.md"};
    QTest::newRow("every word, upper and lower case alike") << "LINK wind" << QStringList{"a.md#rose"};
    QTest::newRow("no marks") << "b.md" << QStringList{};
    QTest::newRow("how a word begins") << "ward" << QStringList{"a.md"};
    QTest::newRow("not how it ends") << "robe" << QStringList{};
    QTest::newRow("nothing looked for") << "  " << QStringList{};
}

void TestManual::findsSections()
{
    QFETCH(QString, words);
    QTemporaryDir folder;
    write(folder.filePath("index.md"), "# Rose\n\n- [A](a.md)\n");
    write(folder.filePath("a.md"), "# Scope\n\nA rose and a **ward**robe.\n\n## Rose\n\nThe [link](b.md) of\nwind.\n");
    QStringList places;
    for (const Manual::Hit &hit : Manual({}, "en", folder.path()).search(words)) {
        places.append(hit.place);
    }
    QTEST(places, "places");
}

void TestManual::linksLeadSomewhere()
{
    const Manual manual({{"settings-reference.md", "# All Settings\n"}});
    QVERIFY(manual.pages().size() > 20);
    QSet<QString> shown;
    for (const Manual::Page &page : manual.pages()) {
        for (const QString &target : linksOf(page)) {
            const QString place = target.startsWith(u'#') ? page.file + target : target;
            if (target.endsWith(".png")) {
                QVERIFY2(QImageReader(":/manual/" + target).canRead(), qPrintable(page.file + ": " + target));
            } else if (!target.contains("://")) {
                QVERIFY2(manual.has(place), qPrintable(page.file + ": " + target));
            }
            shown.insert(target);
        }
    }
    // What nobody can come to, need not be in the program.
    QDirIterator files(QStringLiteral(":/manual"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QString file = files.next().mid(static_cast<int>(qstrlen(":/manual/")));
        file.remove(QRegularExpression("^(" + translationsOfTheManual().join('|') + ")/"));
        QVERIFY2(file == Manual::IndexPage || shown.contains(file), qPrintable(file));
    }
}

void TestManual::readsTranslatedPages()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("de"));
    write(folder.filePath("index.md"), "# Manual\n\n## First\n\n- [A](a.md)\n- [B](b.md)\n- [Made](made.md)\n");
    write(folder.filePath("a.md"), "# Scope\n\n## Range rings\n");
    write(folder.filePath("b.md"), "# Other\n");
    write(folder.filePath("de/a.md"), "# Lagebild\n\n[B](../b.md#x), ![P](../pictures/p.png)\n\n## Ringe\n");
    const Manual manual({{"made.md", "# Gemacht\n"}}, "de", folder.path());
    QCOMPARE(manual.pages().size(), 4);
    const Manual::Page *page = manual.page("a.md");
    QCOMPARE(page->title(), "Lagebild");
    QCOMPARE(page->language, "de");
    QCOMPARE(page->chapter, "First");
    QVERIFY2(manual.has("a.md#range-rings"), "windows and other pages name sections as they are in the original");
    QVERIFY2(
        page->markdown.contains("(b.md#x)") && page->markdown.contains("(pictures/p.png)"), qPrintable(page->markdown));
    QCOMPARE(manual.page("b.md")->language, "en");
    QCOMPARE(manual.page("made.md")->language, "de");
}

void TestManual::translationsFollowTheirOriginals()
{
    const Manual originals;
    for (const QString &language : translationsOfTheManual()) {
        const Manual translated({}, language);
        for (const Manual::Page &page : translated.pages()) {
            const Manual::Page *original = originals.page(page.file);
            QVERIFY2(original, qPrintable(page.file));
            QCOMPARE(outlineOf(page), outlineOf(*original));
            QCOMPARE(linksOf(page), linksOf(*original));
        }
        const QStringList files = QDir(":/manual/" + language).entryList();
        for (const QString &file : files) {
            QVERIFY2(translated.page(file), qPrintable(language + '/' + file));
        }
    }
}

void TestManual::hasAPlaceForEveryWindow()
{
    const Manual manual({{"settings-reference.md", "# All Settings\n"}});
    QSet<QString> known;
    for (const HelpTopic &topic : helpTopics()) {
        QVERIFY2(manual.has(topic.place), topic.place);
        known.insert(topic.subject);
    }
    const QSet<QString> windows = windowsOfTheProgram();
    QVERIFY(windows.contains("RotationWindow"));
    const QSet<QString> without = windows - known;
    QVERIFY2(without.isEmpty(), qPrintable(QStringList(without.values()).join(' ')));
}

VYX_TEST(TestManual)
#include "tst_manual.moc"
