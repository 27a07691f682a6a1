#pragma once

#include "health/source_table_model.h"
#include "widgets/geometry_dialog.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

// One source: what is the matter with it and what cures it, what became of its records, and an example of each outcome
// with its octets.
class SourceWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit SourceWindow(QWidget *parent = nullptr);

    // The example that is being read stays until another outcome is chosen or it is another source.
    void setSource(const SourceHealth &source);
    const SourceHealth &source() const { return m_source; }

Q_SIGNALS:
    // The operator wants what the judgement of this source proposes.
    void cureRequested(const SourceHealth &source);

private:
    void showFigures();
    void showOutcomes(bool another);
    void showExample();

    SourceHealth m_source;
    QLabel *m_sentence;
    QPushButton *m_cure;
    QLabel *m_figures;
    QTableWidget *m_outcomes;
    QPlainTextEdit *m_decoded;
    QPlainTextEdit *m_octets;
};
