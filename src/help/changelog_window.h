#pragma once

#include "help/markdown_window.h"

// What is new: the change log, compiled in, as a formatted text.
class ChangelogWindow final : public MarkdownWindow {
    Q_OBJECT

public:
    explicit ChangelogWindow(QWidget *parent = nullptr);

    // True once after each update: when another version than this one was noted last. Notes this one; a first start is
    // no update.
    static bool noteVersion();
};
