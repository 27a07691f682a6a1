#include "help/cheat_sheet_window.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSize>
#include <QPdfWriter>
#include <QPushButton>
#include <QSaveFile>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {

QPalette inkOnPaper()
{
    QPalette colors(Qt::white);
    colors.setColor(QPalette::AlternateBase, QColor(0xe8, 0xe8, 0xe8));
    return colors;
}

} // namespace

CheatSheetWindow::CheatSheetWindow(const QMenuBar &menus, QWidget *parent)
    : GeometryDialog(QStringLiteral("CheatSheetWindow"), parent), m_sheet(menus), m_search(new QLineEdit(this)),
      m_text(new QTextBrowser(this))
{
    setWindowTitle(tr("Cheat Sheet"));
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setPlaceholderText(tr("Search all commands, also those without a key"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_text->setAccessibleName(tr("Keys and mouse gestures"));
    connect(m_search, &QLineEdit::textChanged, this, &CheatSheetWindow::showRows);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    const auto addButton = [this, buttons](const QString &text, void (CheatSheetWindow::*slot)()) {
        QPushButton *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    };
    addButton(tr("C&opy"), &CheatSheetWindow::copy);
    addButton(tr("Save as &PDF..."), &CheatSheetWindow::askForPdf);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &CheatSheetWindow::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_text, 1);
    layout->addWidget(buttons);
    showRows();
    const int line = fontMetrics().height();
    resize(60 * line, 46 * line);
}

void CheatSheetWindow::showRows()
{
    const QString words = m_search->text();
    const QList<CheatSheet::Group> groups = m_sheet.groups(words);
    m_text->setHtml(groups.isEmpty() ? tr("No command and no gesture has these words.").toHtmlEscaped()
                                     : CheatSheet::html(groups, palette(), words.trimmed().isEmpty()));
}

void CheatSheetWindow::copy()
{
    QGuiApplication::clipboard()->setText(CheatSheet::text(m_sheet.groups(m_search->text())));
}

void CheatSheetWindow::askForPdf()
{
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Save Cheat Sheet"), QStringLiteral("vyxdisplay-cheat-sheet.pdf"), tr("PDF (*.pdf)"));
    QString error;
    if (!file.isEmpty() && !savePdf(file, &error)) {
        QMessageBox::warning(this, windowTitle(), error);
    }
}

bool CheatSheetWindow::savePdf(const QString &file, QString *error) const
{
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly)) {
        QPdfWriter paper(&target);
        paper.setPageSize(QPageSize(QPageSize::A4));
        paper.setTitle(windowTitle());
        QTextDocument document;
        document.setDefaultFont(QFont(font().family(), 8));
        document.setHtml(CheatSheet::html(m_sheet.groups(), inkOnPaper(), true));
        document.print(&paper);
    }
    if (!target.commit()) {
        *error = tr("Cannot write %1: %2").arg(file, target.errorString());
        return false;
    }
    return true;
}
