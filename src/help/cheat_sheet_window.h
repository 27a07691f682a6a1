#pragma once

#include "help/cheat_sheet.h"
#include "widgets/geometry_dialog.h"

class QLineEdit;
class QTextBrowser;

// Shows, searches, copies and prints the cheat sheet.
class CheatSheetWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The menus are read, not kept.
    explicit CheatSheetWindow(const QMenuBar &menus, QWidget *parent = nullptr);

    // For a sheet of paper. False, and error says why, when it cannot be written.
    bool savePdf(const QString &file, QString *error) const;

private:
    void showRows();
    void copy();
    void askForPdf();

    CheatSheet m_sheet;
    QLineEdit *m_search = nullptr;
    QTextBrowser *m_text = nullptr;
};
