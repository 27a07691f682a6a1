#include "widgets/window_opening.h"

#include <QDialog>

void openOver(QDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void bringUp(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}
