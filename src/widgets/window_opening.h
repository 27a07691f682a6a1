#pragma once

class QDialog;
class QWidget;

// Blocks the window that it belongs to, not the program: the picture goes on. Goes when it is closed.
void openOver(QDialog *dialog);

// In front of the others, with the keyboard.
void bringUp(QWidget *window);
