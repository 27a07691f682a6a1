#include "help/markdown_window.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

MarkdownWindow::MarkdownWindow(const QString &stateGroup, const QString &title, const QString &file, QWidget *parent)
    : GeometryDialog(stateGroup, parent)
{
    setWindowTitle(title);
    auto *text = new QTextBrowser(this);
    text->setOpenExternalLinks(true);
    text->setAccessibleName(title);
    QFile source(file);
    if (source.open(QIODevice::ReadOnly)) {
        text->setMarkdown(QString::fromUtf8(source.readAll()));
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &MarkdownWindow::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text, 1);
    layout->addWidget(buttons);
    resize(640, 480);
}
