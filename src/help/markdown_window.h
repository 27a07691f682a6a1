#pragma once

#include "widgets/geometry_dialog.h"

// A text that is compiled in, to read.
class MarkdownWindow : public GeometryDialog {
    Q_OBJECT

public:
    MarkdownWindow(const QString &stateGroup, const QString &title, const QString &file, QWidget *parent);
};
