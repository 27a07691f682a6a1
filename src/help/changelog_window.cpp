#include "help/changelog_window.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

// The file is compiled into a static library, which loads its resources only when asked to.
static void loadChangelogResource()
{
    Q_INIT_RESOURCE(changelog);
}

ChangelogWindow::ChangelogWindow(QWidget *parent) : GeometryDialog(QStringLiteral("ChangelogWindow"), parent)
{
    loadChangelogResource();
    setWindowTitle(tr("What's New?"));
    auto *text = new QTextBrowser(this);
    text->setOpenExternalLinks(true);
    QFile file(QStringLiteral(":/changelog/CHANGELOG.md"));
    if (file.open(QIODevice::ReadOnly)) {
        text->setMarkdown(QString::fromUtf8(file.readAll()));
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &ChangelogWindow::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text, 1);
    layout->addWidget(buttons);
    resize(640, 480);
}
