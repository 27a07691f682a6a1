#pragma once

#include <QWidget>

class QLineEdit;

// A line edit for the path of a file or a directory, with a button that opens the file dialog.
class FileEdit final : public QWidget {
    Q_OBJECT

public:
    // Title and name filter of the dialog.
    FileEdit(const QString &title, const QString &filter, QWidget *parent = nullptr);

    // With the separators of Qt.
    QString path() const;
    void setPath(const QString &path);
    // The folder that the dialog begins in while the path is relative.
    void setBaseDir(const QString &dir) { m_baseDir = dir; }
    // The file is to be written, and need not exist; whether it may be replaced is for the owner to ask.
    void setSaving(bool saving) { m_saving = saving; }
    // It is a directory that is chosen, not a file.
    void setChoosingDirectory(bool directory) { m_choosingDirectory = directory; }

private:
    void browse();
    QString chosen();

    QString m_title;
    QString m_filter;
    QString m_baseDir;
    bool m_saving = false;
    bool m_choosingDirectory = false;
    QLineEdit *m_edit = nullptr;
};
