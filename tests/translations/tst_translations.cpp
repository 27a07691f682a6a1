#include "test_program.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

// The files of translations against the sources, and against what a translation must keep of its text.
class TestTranslations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sourcesNameTheirContexts();
    void noFunctionHidesTexts();
    void filesHoldTheTextsOfTheSources_data() { languages(); }
    void filesHoldTheTextsOfTheSources();
    void translationsKeepWhatTheTextsPromise_data() { languages(); }
    void translationsKeepWhatTheTextsPromise();

private:
    void languages();

    QTemporaryDir m_fresh; // what lupdate makes of the sources alone
    QString m_complaints; // of lupdate
};

namespace {

struct Message {
    QString source;
    QStringList translations; // one for each grammatical number
    bool finished = true;
};

using Messages = QMap<QString, Message>; // by context, text and what tells it from the same text elsewhere

Message readMessage(QXmlStreamReader &xml, QString *key)
{
    Message message;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
            key->append('\n' + message.source);
        } else if (xml.name() == QLatin1String("comment")) {
            key->append('\n' + xml.readElementText());
        } else if (xml.name() == QLatin1String("translation")) {
            message.finished = !xml.attributes().hasAttribute("type");
            QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (message.source.contains("%n")) {
                message.translations = text.split(QRegularExpression("\\n\\s+"), Qt::SkipEmptyParts);
            } else {
                message.translations.append(text);
            }
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

Messages readMessages(const QString &path)
{
    QFile file(path);
    Messages messages;
    if (!file.open(QIODevice::ReadOnly)) {
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            QString key = context;
            const Message message = readMessage(xml, &key);
            messages.insert(key, message);
        }
    }
    return xml.hasError() ? Messages() : messages;
}

QString folder()
{
    return QStringLiteral(VYX_TRANSLATIONS);
}

QString fileOf(const QString &language)
{
    return QString("vyxdisplay_%1.ts").arg(language);
}

QStringList placeHolders(const QString &text)
{
    static const QRegularExpression pattern("%(?:[1-9]|n)|\\\\n|\\n");
    QStringList found;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        found.append(match.next().captured());
    }
    found.removeDuplicates();
    found.sort();
    return found;
}

bool hasAccelerator(const QString &text)
{
    static const QRegularExpression pattern("&[^& ]");
    return pattern.match(text).hasMatch();
}

// Words, with letters only, that the language writes as English does.
QSet<QString> wordsWrittenAlike(const QString &language)
{
    QFile file(folder() + QString("/written_alike_%1.txt").arg(language));
    QSet<QString> words;
    if (file.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
        for (const QString &line : lines) {
            if (!line.startsWith('#')) {
                const QStringList inLine = line.split(' ', Qt::SkipEmptyParts);
                words.unite(QSet<QString>(inLine.begin(), inLine.end()));
            }
        }
    }
    return words;
}

bool isMadeOf(const QSet<QString> &words, QString text)
{
    static const QRegularExpression word("\\p{L}{2,}");
    text.remove('&').remove(QRegularExpression("%n|%\\d|\\*\\.\\w+"));
    for (auto match = word.globalMatch(text); match.hasNext();) {
        if (!words.contains(match.next().captured())) {
            return false;
        }
    }
    return true;
}

// What is wrong with the translation, or nothing.
QString problemOf(const Message &message, const QString &translation)
{
    const QString &source = message.source;
    QStringList expected = placeHolders(source);
    QStringList found = placeHolders(translation);
    if (source.contains("%n")) { // "one message" needs no number
        expected.removeAll("%n");
        found.removeAll("%n");
    }
    if (translation.trimmed().isEmpty() && !source.trimmed().isEmpty()) {
        return "is empty";
    }
    if (found != expected) {
        return "has other place holders";
    }
    if (hasAccelerator(source) != hasAccelerator(translation)) {
        return "has an accelerator and its text has none, or the other way round";
    }
    if (source.endsWith("...") != translation.endsWith("...")) {
        return "loses or gains the dots that promise a dialog";
    }
    if (source.startsWith(' ') != translation.startsWith(' ') || source.endsWith(' ') != translation.endsWith(' ')) {
        return "loses or gains the blank at its edge";
    }
    return {};
}

} // namespace

void TestTranslations::initTestCase()
{
    QVERIFY2(
        !QStringLiteral(VYX_LUPDATE).contains("NOTFOUND"), "Qt's lupdate is not installed (package qt6-l10n-tools)");
    QVERIFY(m_fresh.isValid());
    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LUPDATE", VYX_LUPDATE);
    update.setProcessEnvironment(environment);
    update.setProcessChannelMode(QProcess::MergedChannels);
    update.start("bash", {folder() + "/update.sh", m_fresh.path()});
    QVERIFY(update.waitForFinished(60000));
    m_complaints = QString::fromUtf8(update.readAll());
    QVERIFY2(update.exitStatus() == QProcess::NormalExit && update.exitCode() == 0, qPrintable(m_complaints));
}

void TestTranslations::languages()
{
    QTest::addColumn<QString>("language");
    const QStringList files = QDir(folder()).entryList({fileOf("*")});
    QVERIFY(files.size() >= 3);
    for (const QString &file : files) {
        const QString language = file.section('.', 0, 0).section('_', 1);
        QTest::newRow(qPrintable(language)) << language;
    }
}

// A text whose context lupdate cannot tell never reaches those who translate.
void TestTranslations::sourcesNameTheirContexts()
{
    const QStringList lines = m_complaints.split('\n');
    for (const QString &line : lines) {
        QVERIFY2(!line.contains("without context") && !line.contains("Q_OBJECT"), qPrintable(line));
    }
}

// A function of a file that translates what it is handed: lupdate knows nothing of it.
void TestTranslations::noFunctionHidesTexts()
{
    static const QRegularExpression function(
        R"(QString (\w+)\(const char \*\w+[^)]*\)\s*(?:const )?\{\s*return (?:QCoreApplication::translate|\w+::tr)\()");
    QDirIterator files(folder() + "/../src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const QString name = function.match(text).captured(1);
        const QRegularExpression call(R"(\b)" + name + R"(\(\s*")");
        QVERIFY2(name.isEmpty() || !text.contains(call), qPrintable(file.fileName() + ": " + name));
    }
}

void TestTranslations::filesHoldTheTextsOfTheSources()
{
    QFETCH(const QString, language);
    const Messages fresh = readMessages(m_fresh.filePath(fileOf(language)));
    const Messages kept = readMessages(folder() + '/' + fileOf(language));
    QVERIFY(!fresh.isEmpty());
    QStringList problems;
    for (auto message = fresh.cbegin(); message != fresh.cend(); ++message) {
        if (!kept.contains(message.key())) {
            problems.append("not translated: " + message.key());
        }
    }
    for (auto message = kept.cbegin(); message != kept.cend(); ++message) {
        if (!fresh.contains(message.key())) {
            problems.append("no longer in the sources: " + message.key());
        } else if (!message->finished) {
            problems.append("unfinished: " + message.key());
        }
    }
    QVERIFY2(problems.isEmpty(),
        qPrintable(problems.join("\n\n") + "\n\nRun translations/update.sh and translate what is new."));
}

void TestTranslations::translationsKeepWhatTheTextsPromise()
{
    QFETCH(const QString, language);
    const bool foreign = language != "en"; // whose file is of its own plurals
    const QSet<QString> alike = wordsWrittenAlike(language);
    const Messages messages = readMessages(folder() + '/' + fileOf(language));
    QVERIFY(!messages.isEmpty());
    QStringList problems;
    for (const Message &message : messages) {
        for (const QString &translation : message.translations) {
            QString problem = message.finished ? problemOf(message, translation) : QString();
            if (foreign && translation == message.source && !isMadeOf(alike, message.source)) {
                problem = "is the English text";
            }
            if (!problem.isEmpty()) {
                problems.append(QString("\"%1\" %2: \"%3\"").arg(translation, problem, message.source));
            }
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

VYX_TEST(TestTranslations)

#include "tst_translations.moc"
