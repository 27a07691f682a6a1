#pragma once

#include "widgets/geometry_dialog.h"

// What is new: the change log, compiled in, as a formatted text.
class ChangelogWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit ChangelogWindow(QWidget *parent = nullptr);
};
