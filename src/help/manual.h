#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QString>

// The manual as it is compiled in: Markdown pages, which the page index.md lists by chapter. A place in it is written
// as the file of the page, with "#" and the anchor of a section behind it where one is meant: "scope.md#zooming". Pages
// that are translated stand in a folder of their language, beside the others; the places of those are theirs, too.
class Manual {
    Q_DECLARE_TR_FUNCTIONS(Manual)

public:
    static constexpr auto IndexPage = "index.md";

    struct Section {
        QString title;
        int level = 1; // 1: the page's own heading
        QString anchor;
        QString text; // without marks, in one line
    };
    struct Page {
        QString file;
        QString chapter;
        QString language; // its code, "en" where the page is not translated
        QString markdown;
        QList<Section> sections; // the first one is the page's title, with what stands before the next heading

        const QString &title() const { return sections.constFirst().title; }
    };
    struct Hit {
        QString place;
        QString title; // of the page, and of the section within it
        QString excerpt;
    };

    // Pages that are made as the program runs, in Markdown by file.
    using MadePages = QHash<QString, QString>;

    // In that language as far as it is translated; made pages are in that language. Pages that the index lists and that
    // are not there are left out, of the index too.
    explicit Manual(const MadePages &made = {}, const QString &language = QStringLiteral("en"),
        const QString &folder = QStringLiteral(":/manual"));

    const QString &language() const { return m_language; }

    // The index first, the others in its order.
    const QList<Page> &pages() const { return m_pages; }
    // Null when there is none.
    const Page *page(const QString &file) const;
    bool has(const QString &place) const;

    // Sections in which every word stands, or begins another one, upper and lower case alike; those with all of them in
    // the heading first.
    QList<Hit> search(const QString &words) const;
    // What finds each of them.
    static QList<QRegularExpression> patternsOf(const QString &words);

    // The anchor of a heading: small letters and digits with "-" for what is between them.
    static QString anchorOf(const QString &heading);

private:
    void readIndex(const MadePages &made);
    Page readPage(const QString &file) const;

    const QString m_language;
    const QString m_folder;
    QList<Page> m_pages;
};
