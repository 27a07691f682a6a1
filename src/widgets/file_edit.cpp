#include "widgets/file_edit.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

FileEdit::FileEdit(const QString &title, const QString &filter, QWidget *parent)
    : QWidget(parent), m_title(title), m_filter(filter), m_edit(new QLineEdit(this))
{
    auto *button = new QPushButton(tr("Browse..."), this);
    button->setAutoDefault(false);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_edit, 1);
    row->addWidget(button);
    m_edit->setAccessibleName(title); // until somebody names it better
    setFocusProxy(m_edit);
    connect(button, &QPushButton::clicked, this, &FileEdit::browse);
}

QString FileEdit::path() const
{
    return QDir::fromNativeSeparators(m_edit->text().trimmed());
}

void FileEdit::setPath(const QString &path)
{
    m_edit->setText(QDir::toNativeSeparators(path));
}

void FileEdit::browse()
{
    const QString path = chosen();
    if (!path.isEmpty()) {
        setPath(path);
    }
}

// Empty: the dialog was cancelled.
QString FileEdit::chosen()
{
    const QString start = QDir(m_baseDir).absoluteFilePath(path());
    if (m_choosingDirectory) {
        return QFileDialog::getExistingDirectory(this, m_title, start);
    }
    if (m_saving) {
        return QFileDialog::getSaveFileName(this, m_title, start, m_filter, nullptr, QFileDialog::DontConfirmOverwrite);
    }
    return QFileDialog::getOpenFileName(this, m_title, start, m_filter);
}
