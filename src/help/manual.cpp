#include "help/manual.h"

#include <QFile>

#include <algorithm>

// The pages are compiled into a static library, which loads its resources only when asked to, and not from within a
// namespace.
static void loadManualResource()
{
    Q_INIT_RESOURCE(manual);
}

namespace {

constexpr auto OriginalLanguage = "en";
constexpr qsizetype ExcerptLength = 140;
constexpr qsizetype ExcerptLead = 40; // characters before the word that was looked for

QString readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString withoutMarks(QString line)
{
    static const QRegularExpression picture(QStringLiteral(R"(!\[[^\]]*\]\([^)]*\))"));
    static const QRegularExpression link(QStringLiteral(R"(\[([^\]]*)\]\([^)]*\))"));
    static const QRegularExpression rule(QStringLiteral(R"(^[\s|:-]+$)"));
    line.remove(picture).replace(link, QStringLiteral("\\1")).remove(rule);
    line.remove(QStringLiteral("**")).remove(u'`').replace(u'|', u' ');
    return line.simplified();
}

Manual::Section sectionOf(const QString &heading)
{
    const auto level = static_cast<int>(std::min<qsizetype>(heading.indexOf(u' '), 6));
    const QString title = withoutMarks(heading.mid(level));
    return {title, level, Manual::anchorOf(title), {}};
}

QList<Manual::Section> sectionsOf(const QString &markdown)
{
    static const QRegularExpression heading(QStringLiteral("^#{1,6} "));
    static const QRegularExpression item(QStringLiteral(R"(^(\s*[-*]|\s*\d+\.|>)\s+)"));
    QList<Manual::Section> sections;
    bool literal = false;
    for (const QString &line : markdown.split(u'\n')) {
        literal = literal != line.startsWith(QLatin1String("```"));
        if (!literal && heading.match(line).hasMatch()) {
            sections.append(sectionOf(line));
        } else if (!sections.isEmpty()) {
            const QString text = literal ? line.simplified() : withoutMarks(QString(line).remove(item));
            sections.last().text += text.isEmpty() ? text : text + u' ';
        }
    }
    if (sections.isEmpty()) {
        sections.append(Manual::Section());
    }
    return sections;
}

bool holdsAll(const QString &text, const QList<QRegularExpression> &words)
{
    return std::all_of(
        words.begin(), words.end(), [&text](const QRegularExpression &word) { return text.contains(word); });
}

QString excerptOf(const QString &text, const QRegularExpression &word)
{
    const qsizetype at = std::max<qsizetype>(text.indexOf(word), 0);
    qsizetype begin = std::max<qsizetype>(at - ExcerptLead, 0);
    begin = begin == 0 ? 0 : text.indexOf(u' ', begin) + 1;
    QString excerpt = text.mid(begin, ExcerptLength).trimmed();
    if (begin > 0) {
        excerpt.prepend(QStringLiteral("… "));
    }
    return begin + ExcerptLength < text.size() ? excerpt + QStringLiteral(" …") : excerpt;
}

} // namespace

Manual::Manual(const MadePages &made, const QString &language, const QString &folder)
    : m_language(language), m_folder(folder)
{
    loadManualResource();
    readIndex(made);
}

void Manual::readIndex(const MadePages &made)
{
    static const QRegularExpression entry(QStringLiteral(R"(^- \[[^\]]*\]\(([a-z0-9-]+\.md)\))"));
    Page index = readPage(QString::fromLatin1(IndexPage));
    QString shown;
    QString chapter;
    QList<Page> pages;
    for (const QString &line : index.markdown.split(u'\n')) {
        if (line.startsWith(QLatin1String("## "))) {
            chapter = line.mid(3).trimmed();
        }
        const QString file = entry.match(line).captured(1);
        if (!file.isEmpty()) {
            const QString own = made.value(file);
            Page page = own.isEmpty() ? readPage(file) : Page{file, {}, m_language, own, sectionsOf(own)};
            if (page.markdown.isEmpty()) {
                continue;
            }
            page.chapter = chapter;
            pages.append(page);
        }
        shown += line + u'\n';
    }
    index.markdown = shown;
    m_pages.append(index);
    m_pages += pages;
}

Manual::Page Manual::readPage(const QString &file) const
{
    const QString original = readFile(m_folder + u'/' + file);
    Page page{file, {}, QString::fromLatin1(OriginalLanguage), original, sectionsOf(original)};
    QString translated = readFile(m_folder + u'/' + m_language + u'/' + file);
    if (translated.isEmpty()) {
        return page;
    }
    // From its folder, untranslated pages and all pictures are one folder up.
    translated.replace(QLatin1String("](../"), QLatin1String("]("));
    QList<Section> sections = sectionsOf(translated);
    for (qsizetype at = 0; at < std::min(sections.size(), page.sections.size()); ++at) {
        sections[at].anchor = page.sections.at(at).anchor;
    }
    return {file, {}, m_language, translated, sections};
}

const Manual::Page *Manual::page(const QString &file) const
{
    const auto found =
        std::find_if(m_pages.begin(), m_pages.end(), [&file](const Page &page) { return page.file == file; });
    return found == m_pages.end() ? nullptr : &*found;
}

bool Manual::has(const QString &place) const
{
    const Page *found = page(place.section(u'#', 0, 0));
    const QString anchor = place.section(u'#', 1);
    return found
        && (anchor.isEmpty()
            || std::any_of(found->sections.begin(), found->sections.end(),
                [&](const Section &section) { return section.anchor == anchor; }));
}

QList<Manual::Hit> Manual::search(const QString &words) const
{
    const QList<QRegularExpression> wanted = patternsOf(words);
    QList<Hit> inHeading;
    QList<Hit> inText;
    if (wanted.isEmpty()) {
        return {};
    }
    for (const Page &page : m_pages.mid(1)) {
        for (const Section &section : page.sections) {
            const bool own = section.level == 1;
            const QString title = own ? page.title() : tr("%1 › %2").arg(page.title(), section.title);
            const QString place = own ? page.file : page.file + u'#' + section.anchor;
            if (holdsAll(section.title, wanted)) {
                inHeading.append({place, title, excerptOf(section.text, wanted.constFirst())});
            } else if (holdsAll(title + u' ' + section.text, wanted)) {
                inText.append({place, title, excerptOf(section.text, wanted.constFirst())});
            }
        }
    }
    return inHeading + inText;
}

QList<QRegularExpression> Manual::patternsOf(const QString &words)
{
    QList<QRegularExpression> patterns;
    for (const QString &word : words.simplified().split(u' ', Qt::SkipEmptyParts)) {
        patterns.append(QRegularExpression(QStringLiteral("(?<!\\w)") + QRegularExpression::escape(word),
            QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption));
    }
    return patterns;
}

QString Manual::anchorOf(const QString &heading)
{
    QString anchor;
    for (const QChar character : heading.toLower()) {
        if (character.isLetterOrNumber()) {
            anchor += character;
        } else if (!anchor.isEmpty() && !anchor.endsWith(u'-')) {
            anchor += u'-';
        }
    }
    if (anchor.endsWith(u'-')) {
        anchor.chop(1);
    }
    return anchor;
}
