#pragma once

#include "explanation/absence.h"
#include "widgets/geometry_dialog.h"

#include <QTimer>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

// Asks for a callsign, code, address or track number, and says where that target is and why it is not seen, with a
// button for what helps. The answer is kept up to date while the window is open.
class AbsenceWindow final : public GeometryDialog {
    Q_OBJECT

public:
    static constexpr int MaximumFindings = 12; // more say the same

    explicit AbsenceWindow(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    void showFindings(const QList<AbsenceFinding> &findings, const QDateTime &now);

Q_SIGNALS:
    // Look again: the text has changed, or some time has passed.
    void asked(const QString &text);
    void cureChosen(const AbsenceFinding &finding);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Row {
        QWidget *holder = nullptr;
        QLabel *who = nullptr;
        QLabel *sentence = nullptr;
        QPushButton *cure = nullptr;
    };

    void addRow();
    void fillRow(const Row &row, const AbsenceFinding &finding, const QDateTime &now);

    QLineEdit *m_text = nullptr;
    QLabel *m_hint = nullptr;
    QVBoxLayout *m_list = nullptr;
    QList<Row> m_rows; // as many as there were findings at most
    QList<AbsenceFinding> m_findings;
    QTimer m_timer;
};
