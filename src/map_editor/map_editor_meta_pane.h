#pragma once

#include "map_editor/map_editor_document.h"

#include <QWidget>

#include <array>

class QLineEdit;
class QPlainTextEdit;

// The texts about the map as a whole. Fields take effect when they are left.
class MapEditorMetaPane final : public QWidget {
    Q_OBJECT

public:
    // The document must outlive the pane.
    explicit MapEditorMetaPane(MapEditorDocument *document, QWidget *parent = nullptr);

    // Takes over what stands in the fields, as leaving them does.
    void commit();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();

    MapEditorDocument *m_document;
    bool m_filling = false;
    std::array<QLineEdit *, 4> m_lines; // name, title, author, version
    std::array<QPlainTextEdit *, 2> m_texts; // description, comment
};
