#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QWidget>

#include <utility>

class ConfigPage;
class QCheckBox;
class QLabel;
class QLineEdit;

// The search over all pages of the settings window, by the texts that the pages show: the rows that have every word.
// Return goes from hit to hit, and back with Shift, Tab into the field of the hit, Esc ends the search.
class ConfigSearch final : public QWidget {
    Q_OBJECT

public:
    explicit ConfigSearch(QWidget *parent);

    // They have all their rows by now, and outlive this.
    void setPages(const QList<ConfigPage *> &pages) { m_pages = pages; }
    // Whether anything is searched for.
    bool active() const;
    int hits(const ConfigPage *page) const { return static_cast<int>(m_hits.value(page).size()); }
    // The keys of the settings that do not have their default, for whoever looks for those.
    void setDiffering(const QSet<QString> &keys);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void begin();
    void end();

Q_SIGNALS:
    void searched();
    // The row to be shown; the field is in sight already unless its page scrolls.
    void reached(ConfigPage *page, QWidget *field);

private:
    using Hit = std::pair<ConfigPage *, QWidget *>;

    void search();
    bool matches(const ConfigPage *page, const QWidget *field, const QStringList &words) const;
    void go(int step);
    void showHit(const Hit &hit);
    void mark() const;
    QList<Hit> allHits() const;
    bool takeKey(int key, Qt::KeyboardModifiers modifiers);

    QList<ConfigPage *> m_pages;
    QHash<const ConfigPage *, QList<QWidget *>> m_hits;
    QSet<QString> m_differing;
    Hit m_current{};
    QLineEdit *m_line;
    QCheckBox *m_differingOnly;
    QLabel *m_answer;
};
