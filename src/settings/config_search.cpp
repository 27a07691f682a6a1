#include "settings/config_search.h"

#include "settings/config_page.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

ConfigSearch::ConfigSearch(QWidget *parent)
    : QWidget(parent), m_line(new QLineEdit(this)),
      m_differingOnly(new QCheckBox(tr("Only what is &not default"), this)), m_answer(new QLabel(this))
{
    m_line->setObjectName(QStringLiteral("searchLine"));
    m_line->setPlaceholderText(tr("Search"));
    m_line->setAccessibleName(tr("Search in all settings"));
    m_line->setToolTip(tr("Words of names and explanations on all pages; Return goes to the next hit."));
    m_line->setClearButtonEnabled(true);
    m_line->installEventFilter(this);
    m_differingOnly->setObjectName(QStringLiteral("differingOnly"));
    m_differingOnly->setToolTip(tr("Shows what has been set in another way than the program or the theme has it."));
    m_answer->setObjectName(QStringLiteral("searchAnswer"));
    m_answer->setWordWrap(true);
    m_answer->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *part : QList<QWidget *>{m_line, m_differingOnly, m_answer}) {
        layout->addWidget(part);
    }
    connect(m_line, &QLineEdit::textChanged, this, &ConfigSearch::search);
    connect(m_differingOnly, &QCheckBox::toggled, this, &ConfigSearch::search);
    const auto *key = new QShortcut(QKeySequence::Find, parent);
    connect(key, &QShortcut::activated, this, &ConfigSearch::begin);
}

void ConfigSearch::begin()
{
    m_line->setFocus(Qt::ShortcutFocusReason);
    m_line->selectAll();
}

void ConfigSearch::end()
{
    m_line->clear();
    m_differingOnly->setChecked(false);
}

bool ConfigSearch::active() const
{
    return !m_line->text().trimmed().isEmpty() || m_differingOnly->isChecked();
}

void ConfigSearch::setDiffering(const QSet<QString> &keys)
{
    m_differing = keys;
    if (m_differingOnly->isChecked()) {
        search();
    }
}

void ConfigSearch::search()
{
    const QStringList words = m_line->text().toLower().split(u' ', Qt::SkipEmptyParts);
    m_hits.clear();
    for (const ConfigPage *page : std::as_const(m_pages)) {
        for (QWidget *field : active() ? page->form()->fields() : QList<QWidget *>()) {
            if (matches(page, field, words)) {
                m_hits[page].append(field);
            }
        }
    }
    const QList<Hit> hits = allHits();
    if (!hits.contains(m_current)) {
        m_current = {};
    }
    m_answer->setText(hits.isEmpty() ? tr("Nothing found.") : tr("%n hit(s)", nullptr, static_cast<int>(hits.size())));
    m_answer->setVisible(active());
    mark();
    Q_EMIT searched();
}

bool ConfigSearch::matches(const ConfigPage *page, const QWidget *field, const QStringList &words) const
{
    if (qobject_cast<const QLabel *>(field)) {
        return false; // an answer of the page
    }
    if (m_differingOnly->isChecked() && !m_differing.contains(field->objectName())) {
        return false;
    }
    return page->says(field, words);
}

QList<ConfigSearch::Hit> ConfigSearch::allHits() const
{
    QList<Hit> hits;
    for (ConfigPage *page : m_pages) {
        const QList<QWidget *> fields = m_hits.value(page);
        for (QWidget *field : fields) {
            hits.append({page, field});
        }
    }
    return hits;
}

void ConfigSearch::go(int step)
{
    const QList<Hit> hits = allHits();
    if (hits.isEmpty()) {
        return;
    }
    const qsizetype before = hits.indexOf(m_current);
    const qsizetype first = step > 0 ? 0 : hits.size() - 1;
    const qsizetype next = before < 0 ? first : (before + step + hits.size()) % hits.size();
    m_current = hits.at(next);
    m_answer->setText(tr("Hit %1 of %2").arg(next + 1).arg(hits.size()));
    showHit(m_current);
}

void ConfigSearch::showHit(const Hit &hit)
{
    const auto &[page, field] = hit;
    QWidget *shown = page->reveal(field);
    if (shown != field) {
        m_answer->setText(tr("\"%1\" is there with another choice of \"%2\".")
                              .arg(page->form()->title(field), page->form()->title(shown)));
    }
    mark();
    page->markFound(m_hits.value(page), shown);
    Q_EMIT reached(page, shown);
}

void ConfigSearch::mark() const
{
    for (ConfigPage *page : m_pages) {
        page->markFound(m_hits.value(page), page == m_current.first ? m_current.second : nullptr);
    }
}

bool ConfigSearch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        return takeKey(key->key(), key->modifiers());
    }
    return QWidget::eventFilter(watched, event);
}

// The window would take Return for its OK and Esc for its Cancel.
bool ConfigSearch::takeKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        go(modifiers & Qt::ShiftModifier ? -1 : 1);
        return true;
    }
    if (key == Qt::Key_Escape && active()) {
        end();
        return true;
    }
    if (key == Qt::Key_Tab && m_current.first) {
        m_current.first->reveal(m_current.second)->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}
