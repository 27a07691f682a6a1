#pragma once

class QLabel;
class QString;
class QWidget;

// A label in subdued colour for a place with nothing to show yet; it says what to do. Owned by the parent.
QLabel *makeQuietHint(const QString &text, QWidget *parent);
