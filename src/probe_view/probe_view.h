#pragma once

#include "input_probe/probe_result.h"

#include <QWidget>

#include <optional>

class InputProposal;
class QLabel;
class QPushButton;
class QTreeWidget;

// What a probe finds, in words: one large sentence, the figures, a row a source, and while nothing comes what to look
// at.
class ProbeView final : public QWidget {
    Q_OBJECT

public:
    explicit ProbeView(QWidget *parent = nullptr);

    // The settings are those of the input.
    void showResult(const ProbeResult &result, const Config &config);
    // Instead of a result.
    void showHint(const QString &hint);
    // What follows from the result; null: nothing does.
    void showProposal(const InputProposal *proposal);

    // Offers to take over what was found. Refusal: why that cannot be done now; empty when it can.
    void offerUse(const QString &refusal);

Q_SIGNALS:
    void useWanted();

private:
    void showRows(const ProbeResult &result);
    void updateUse();

    QLabel *m_sentence;
    QLabel *m_figures;
    QTreeWidget *m_table;
    QLabel *m_troubles;
    QLabel *m_advice;
    QLabel *m_proposal;
    QPushButton *m_use;
    std::optional<QString> m_refusal; // nothing: it is not offered
    bool m_recognised = false;
};
