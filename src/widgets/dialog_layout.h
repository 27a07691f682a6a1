#pragma once

#include <QDialogButtonBox>

class QDialog;

// Puts the contents at the top of a small dialog and the buttons at its foot. The first of Ok, Save and Close is the
// default button. Ok and Save accept; Cancel, Close and Esc reject.
QDialogButtonBox *layOutDialog(QDialog *dialog, QWidget *contents, QDialogButtonBox::StandardButtons buttons);

// Makes the dialog high enough for its contents at its width, which words that have just come in may need.
void growToContents(QDialog *dialog);
