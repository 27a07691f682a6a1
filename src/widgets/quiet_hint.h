#pragma once

class QLabel;
class QString;
class QWidget;

// A quiet word where there is nothing to show, saying what to do about it. Owned by the parent.
QLabel *makeQuietHint(const QString &text, QWidget *parent);
