#include "help/help_window.h"

#include "app/ui_state.h"
#include "help/manual_view.h"

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int SmallestText = -4;
constexpr int LargestText = 12;
constexpr auto TextSizeKey = "textSize";
constexpr int PlaceRole = Qt::UserRole;

QTreeWidgetItem *makeItem(const QString &text, const QString &place)
{
    auto *item = new QTreeWidgetItem(QStringList{text});
    item->setData(0, PlaceRole, place);
    item->setToolTip(0, text);
    return item;
}

} // namespace

HelpWindow::HelpWindow(const Manual::MadePages &made, const QString &language)
    : GeometryDialog(QStringLiteral("HelpWindow")), m_manual(made, language), m_view(new ManualView(&m_manual, this)),
      m_notTranslated(new QLabel(tr("This page is available in English only."), this))
{
    setWindowTitle(tr("%1 Manual").arg(QGuiApplication::applicationDisplayName()));
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    QBoxLayout *bar = makeBar(); // these in the order of the tab key
    auto *split = new QSplitter(this);
    split->addWidget(makeNavigation());
    split->addWidget(m_view);
    split->setStretchFactor(1, 1);
    split->setSizes({260, 700});
    split->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_notTranslated);
    layout->addWidget(split, 1);
    m_notTranslated->setObjectName(QStringLiteral("notTranslated"));
    m_notTranslated->setWordWrap(true);
    makeContents();
    connect(m_view, &QTextBrowser::sourceChanged, this, &HelpWindow::markPlace);
    changeTextSize(UiState::value(objectName(), QString::fromLatin1(TextSizeKey)).toInt());
    showPlace(QString::fromLatin1(Manual::IndexPage));
    resize(1000, 720);
    m_view->setFocus();
}

HelpWindow::~HelpWindow()
{
    UiState::saveValue(objectName(), QString::fromLatin1(TextSizeKey), QByteArray::number(m_textSize));
}

QToolButton *HelpWindow::makeButton(const QString &text, const QString &toolTip, const QList<QKeySequence> &keys)
{
    auto *button = new QToolButton(this);
    auto *action = new QAction(text, button);
    action->setToolTip(toolTip);
    action->setShortcuts(keys);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setAccessibleName(toolTip);
    return button;
}

QBoxLayout *HelpWindow::makeBar()
{
    QToolButton *back = makeButton(tr("◀ Back"), tr("The page before"), {QKeySequence(Qt::ALT | Qt::Key_Left)});
    QToolButton *forward = makeButton(tr("Forward ▶"), tr("The next page"), {QKeySequence(Qt::ALT | Qt::Key_Right)});
    QToolButton *index = makeButton(tr("Contents"), tr("The index page"), {QKeySequence(Qt::ALT | Qt::Key_Home)});
    QToolButton *smaller = makeButton(tr("A−"), tr("Smaller text"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)});
    QToolButton *larger = makeButton(
        tr("A+"), tr("Larger text"), {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    connect(back->defaultAction(), &QAction::triggered, m_view, &QTextBrowser::backward);
    connect(forward->defaultAction(), &QAction::triggered, m_view, &QTextBrowser::forward);
    connect(index->defaultAction(), &QAction::triggered, this,
        [this] { showPlace(QString::fromLatin1(Manual::IndexPage)); });
    connect(smaller->defaultAction(), &QAction::triggered, this, [this] { changeTextSize(-1); });
    connect(larger->defaultAction(), &QAction::triggered, this, [this] { changeTextSize(1); });
    connect(m_view, &QTextBrowser::backwardAvailable, back->defaultAction(), &QAction::setEnabled);
    connect(m_view, &QTextBrowser::forwardAvailable, forward->defaultAction(), &QAction::setEnabled);
    back->defaultAction()->setEnabled(false);
    forward->defaultAction()->setEnabled(false);
    auto *bar = new QHBoxLayout;
    for (QToolButton *button : {back, forward, index}) {
        bar->addWidget(button);
    }
    bar->addStretch(1);
    bar->addWidget(smaller);
    bar->addWidget(larger);
    return bar;
}

QWidget *HelpWindow::makeNavigation()
{
    auto *side = new QWidget(this);
    m_search = new QLineEdit(side);
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setPlaceholderText(tr("Search all pages (Ctrl+F)"));
    m_search->setAccessibleName(tr("Search all pages"));
    m_search->setToolTip(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_contents = new QTreeWidget(side);
    m_contents->setObjectName(QStringLiteral("contents"));
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->header()->hide();
    m_hits = new QListWidget(side);
    m_hits->setObjectName(QStringLiteral("hits"));
    m_hits->setAccessibleName(tr("What the search has found"));
    m_hits->setWordWrap(true);
    m_hits->setAlternatingRowColors(true);
    m_navigation = new QStackedWidget(side);
    m_navigation->addWidget(m_contents);
    m_navigation->addWidget(m_hits);
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { m_hits->setFocus(); });
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (item && !item->data(0, PlaceRole).toString().isEmpty()) {
            showPlace(item->data(0, PlaceRole).toString());
        }
    });
    connect(m_hits, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item && !item->data(PlaceRole).toString().isEmpty()) {
            showPlace(item->data(PlaceRole).toString());
        }
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_navigation, 1);
    return side;
}

void HelpWindow::makeContents()
{
    QTreeWidgetItem *chapter = nullptr;
    for (const Manual::Page &page : m_manual.pages().mid(1)) {
        if (!chapter || chapter->text(0) != page.chapter) {
            chapter = makeItem(page.chapter, {});
            chapter->setFlags(Qt::ItemIsEnabled);
            m_contents->addTopLevelItem(chapter);
            chapter->setExpanded(true);
        }
        QTreeWidgetItem *item = makeItem(page.title(), page.file);
        chapter->addChild(item);
        for (const Manual::Section &section : page.sections) {
            if (section.level == 2) {
                item->addChild(makeItem(section.title, page.file + u'#' + section.anchor));
            }
        }
    }
}

void HelpWindow::search(const QString &words)
{
    m_hits->clear();
    const QList<QRegularExpression> wanted = Manual::patternsOf(words);
    m_view->highlight(wanted);
    m_navigation->setCurrentWidget(wanted.isEmpty() ? static_cast<QWidget *>(m_contents) : m_hits);
    for (const Manual::Hit &hit : m_manual.search(words)) {
        auto *item = new QListWidgetItem(hit.title + u'\n' + hit.excerpt, m_hits);
        item->setData(PlaceRole, hit.place);
    }
    if (m_hits->count() == 0) {
        auto *none = new QListWidgetItem(tr("No page has all of these words."), m_hits);
        none->setFlags(Qt::NoItemFlags);
    }
}

// The contents follow the pages, whichever way they were reached.
void HelpWindow::markPlace(const QUrl &url)
{
    const QSignalBlocker blocker(m_contents);
    const QString shown = ManualView::placeOf(url);
    const QString page = shown.section(u'#', 0, 0);
    const Manual::Page *found = m_manual.page(page);
    m_notTranslated->setVisible(found && found->language != m_manual.language());
    QTreeWidgetItem *mark = nullptr;
    for (QTreeWidgetItemIterator item(m_contents); *item; ++item) {
        const QString at = (*item)->data(0, PlaceRole).toString();
        if (at == shown || at == page) {
            mark = *item; // the section comes after its page
        }
    }
    m_contents->setCurrentItem(mark);
}

void HelpWindow::changeTextSize(int steps)
{
    const int wanted = std::clamp(m_textSize + steps, SmallestText, LargestText);
    m_view->zoomIn(wanted - m_textSize);
    m_textSize = wanted;
}

void HelpWindow::showPlace(const QString &place)
{
    m_view->showPlace(place);
}

QString HelpWindow::place() const
{
    return m_view->place();
}
