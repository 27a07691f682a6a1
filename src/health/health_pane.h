#pragma once

#include "health/source_table_model.h"
#include "health/source_window.h"

#include <QPointer>
#include <QWidget>

class InputHealth;
class QEvent;
class QLabel;
class QTableView;

// The sources of the input with a light each; a click opens one of them. GUI thread.
class HealthPane final : public QWidget {
    Q_OBJECT

public:
    // The health must outlive the pane.
    explicit HealthPane(const InputHealth *health, QWidget *parent = nullptr);

    // Shows the sources as the health has them now.
    void refresh();
    // What was found out about the stream as a whole, a sentence each; none: nothing is remarkable.
    void setDiagnosis(const QStringList &sentences);
    // A source's own window is open.
    bool isWatched() const { return !m_window.isNull(); }

Q_SIGNALS:
    // The operator wants what the judgement of this source proposes.
    void cureRequested(const SourceHealth &source);

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitColumns();
    void makeTable();
    void open(int row);

    const InputHealth *m_health;
    SourceTableModel *m_model;
    QLabel *m_remarks;
    QLabel *m_diagnosis;
    QTableView *m_table;
    QPointer<SourceWindow> m_window;
};
