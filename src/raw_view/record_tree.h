#pragma once

#include "explanation/report_view.h"

#include <QHash>
#include <QSet>
#include <QTreeWidget>

// One record taken apart: its items, what they consist of, values and units. Says which bits the current or pointed at
// line stands in.
class RecordTree final : public QTreeWidget {
    Q_OBJECT

public:
    explicit RecordTree(QWidget *parent = nullptr);

    // What was opened or closed stays so for the items of the same names.
    void showReport(const ReportView &view);
    // Makes the line current that the bit belongs to.
    void selectBit(int bit);

Q_SIGNALS:
    // No bits: none any more.
    void bitsChosen(const BitRange &bits);

protected:
    void leaveEvent(QEvent *event) override;

private:
    QTreeWidgetItem *branchFor(const QStringList &path, const ReportField &field);
    void chooseBits(const QTreeWidgetItem *item);

    ReportView m_view;
    QHash<QString, QTreeWidgetItem *> m_branches; // by path
    QSet<QString> m_closed; // paths that the operator closed
    bool m_filling = false;
};
