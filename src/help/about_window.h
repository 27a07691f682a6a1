#pragma once

#include "widgets/geometry_dialog.h"

// Name, version, revision, libraries and copyright, and the notices of what others have made.
class AboutWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit AboutWindow(QWidget *parent = nullptr);

    // The text that "Copy" puts on the clipboard for fault reports: one line a component.
    static QString versionText();
};
