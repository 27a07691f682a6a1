#include "lists/list_pane.h"

#include "lists/column_choice.h"
#include "lists/list_export.h"
#include "lists/list_order.h"
#include "lists/list_view.h"
#include "widgets/text_colors.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

ListPane::ListPane(ListModel *model, const QString &name, QWidget *parent)
    : QWidget(parent), m_model(model), m_list(new ListView(model, this)), m_warning(new QLabel(this)),
      m_filterRow(new QWidget(this)), m_filter(new QLineEdit(m_filterRow)), m_count(new QLabel(m_filterRow)),
      m_menuButton(new QToolButton(m_filterRow)), m_error(new QLabel(this))
{
    m_list->setObjectName(name);
    m_warning->setObjectName(name + QLatin1String("Warning"));
    m_warning->setAlignment(Qt::AlignCenter);
    for (QLabel *label : {m_warning, m_error}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->hide();
    }
    makeFilterRow();
    makeMenu();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_warning);
    layout->addWidget(m_filterRow);
    layout->addWidget(m_error);
    layout->addWidget(m_list);
    connect(m_list, &ListView::copyRequested, this, [this] { copyRow(m_list->selectedRow()); });
}

void ListPane::makeFilterRow()
{
    m_filter->setObjectName(m_list->objectName() + QLatin1String("Filter"));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setToolTip(tr("Words that a row must hold, or columns: %1. A text with blanks stands in quotes.")
                             .arg(QStringLiteral("fl>300, type:adsb, squawk=7000")));
    m_filter->setClearButtonEnabled(true);
    m_filter->setFrame(false);
    m_filter->installEventFilter(this);
    m_count->setTextFormat(Qt::PlainText);
    auto *layout = new QHBoxLayout(m_filterRow);
    layout->setContentsMargins(2, 1, 2, 1);
    layout->setSpacing(4);
    layout->addWidget(m_filter, 1);
    layout->addWidget(m_count);
    layout->addWidget(m_menuButton);
    connect(m_filter, &QLineEdit::textChanged, this, &ListPane::applyFilter);
}

void ListPane::makeMenu()
{
    auto *menu = new QMenu(m_menuButton);
    auto *columns = new QMenu(tr("Columns"), menu);
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        ColumnChoice::fillMenu(columns, m_list);
    });
    menu->addMenu(columns);
    menu->addSeparator();
    menu->addAction(tr("Copy List"), this, &ListPane::copyList);
    menu->addAction(tr("Export CSV..."), this, &ListPane::exportCsv);
    m_menuButton->setText(QStringLiteral("\u22ee"));
    m_menuButton->setAccessibleName(tr("List Menu"));
    m_menuButton->setToolTip(tr("Columns, copy, export"));
    m_menuButton->setAutoRaise(true);
    // Set as the button's own it would bring a mark that there is no room for.
    connect(m_menuButton, &QToolButton::clicked, menu,
        [this, menu] { menu->popup(m_menuButton->mapToGlobal(m_menuButton->rect().bottomLeft())); });
    QHeaderView *header = m_list->horizontalHeader();
    connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint &position) {
        auto *choice = new QMenu(this);
        choice->setAttribute(Qt::WA_DeleteOnClose);
        ColumnChoice::fillMenu(choice, m_list);
        choice->popup(header->mapToGlobal(position));
    });
}

void ListPane::takeChange(const std::function<void()> &change)
{
    m_list->takeChange(change);
    showCount();
}

void ListPane::applyFilter()
{
    const ListFilter filter = ListFilter::parse(m_filter->text(), *m_model);
    m_error->setText(filter.error().isEmpty() ? QString() : tr("%1 All rows are shown.").arg(filter.error()));
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, warningTextColor(colors));
    m_error->setPalette(colors);
    m_error->setVisible(!filter.error().isEmpty());
    m_list->order()->setFilter(filter, m_list->shownColumns());
    m_list->arrange();
    showCount();
}

void ListPane::showCount()
{
    const int all = m_model->rowCount();
    int shown = 0;
    for (int row = 0; row < m_list->order()->rowCount(); ++row) {
        shown += m_list->order()->modelRow(row) >= 0;
    }
    m_count->setText(shown < all ? tr("%1 of %2").arg(shown).arg(all) : QString());
    m_list->setEmptyText(all > 0 ? tr("The filter lets none of the %1 rows through.").arg(all) : m_emptyText);
}

void ListPane::setEmptyText(const QString &text)
{
    m_emptyText = text;
    showCount();
}

void ListPane::setWarning(Urgency urgency, const QString &text)
{
    const QString style = urgencyStyle(urgency) + QStringLiteral("; padding: 3px; font-weight: bold");
    if (m_warning->styleSheet() != style) { // setting one costs a new layout
        m_warning->setStyleSheet(style);
    }
    m_warning->setText(text);
    m_warning->setVisible(!text.isEmpty());
}

QList<QAction *> ListPane::actionsFor(int row, QObject *menu)
{
    auto *copy = new QAction(tr("Copy"), menu);
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(row >= 0);
    // By then the row may be another's.
    const QString text = row < 0 ? QString() : ListExport::rowText(*m_list, row);
    connect(copy, &QAction::triggered, this, [text] { QGuiApplication::clipboard()->setText(text); });
    auto *copyAll = new QAction(tr("Copy List"), menu);
    connect(copyAll, &QAction::triggered, this, &ListPane::copyList);
    auto *save = new QAction(tr("Export CSV..."), menu);
    connect(save, &QAction::triggered, this, &ListPane::exportCsv);
    return {copy, copyAll, save};
}

void ListPane::copyRow(int row)
{
    if (row >= 0) {
        QGuiApplication::clipboard()->setText(ListExport::rowText(*m_list, row));
    }
}

void ListPane::copyList()
{
    QGuiApplication::clipboard()->setText(ListExport::listText(*m_list));
}

// The list goes on meanwhile: what is written is what it shows at the end.
void ListPane::exportCsv()
{
    auto *dialog = new QFileDialog(this, tr("Export CSV"), {}, tr("Comma-separated values (*.csv)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->selectFile(m_list->objectName() + QLatin1String(".csv"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &fileName) {
        const QString error = ListExport::saveCsv(*m_list, fileName);
        if (!error.isEmpty()) {
            Q_EMIT failed(error);
        }
    });
    dialog->open();
}

bool ListPane::eventFilter(QObject *watched, QEvent *event)
{
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched != m_filter || !key || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape
        || m_filter->text().isEmpty()) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress) {
        m_filter->clear();
    }
    event->accept();
    return true;
}
