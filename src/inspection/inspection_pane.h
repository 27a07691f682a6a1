#pragma once

#include "explanation/track_explanation.h"

#include <QWidget>

#include <optional>

class OctetView;
class QLabel;
class QMenu;
class QScrollArea;
class QStackedWidget;
class ReportTable;

// Where the values of one symbol come from: the values with their items and rules, the reports that are kept, and the
// octets of one of them. What is pointed at on one side is marked on the other.
class InspectionPane final : public QWidget {
    Q_OBJECT

public:
    explicit InspectionPane(QWidget *parent = nullptr);

    // What is explained: its name, its values and its reports. These are its last ones, newest first, unless it is said
    // what each of them is. The report that was chosen stays chosen while it is there.
    void explain(const QString &name, const QList<ExplainedValue> &values, const QList<KeptReport> &reports,
        const QList<ReportView> &views, const QDateTime &now, const QStringList &kinds = {});
    // A sentence in the place of it all.
    void showHint(const QString &text);

    // The report that is shown: the chosen one, else the newest; -1: none.
    int shownReport() const;

private:
    enum class Place { Nowhere, Values, Fields, Octets };

    QWidget *makeExplanation();
    QWidget *makeReportSide();
    QMenu *makeCopyMenu();
    void fillReports(const QDateTime &now);
    void keepChoice(const QList<KeptReport> &reports);
    void chooseReport(int row);
    void pointAt(Place place, int index);
    void markPointed();
    void markValue(int row);
    void markField(int row);
    void markBit(int bit);
    void lightValuesAt(int bit);
    void clearMarks();
    void markBits(const QList<BitRange> &bits);
    void showReport(int report);
    QString kindOf(int report) const;
    void copy(const QString &text) const;
    QString allAsJson() const;

    QStackedWidget *m_stack = nullptr; // the hint or the explanation
    QLabel *m_hint = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_reportTitle = nullptr;
    QLabel *m_rule = nullptr; // of the value that is pointed at, in full
    ReportTable *m_values = nullptr;
    ReportTable *m_reports = nullptr;
    ReportTable *m_fields = nullptr;
    OctetView *m_octets = nullptr;
    QScrollArea *m_octetScroll = nullptr;

    QList<ExplainedValue> m_explained;
    QList<KeptReport> m_kept;
    QList<ReportView> m_views;
    QStringList m_kinds; // of the reports; empty: the last ones
    std::optional<int> m_chosen; // by the operator; else the newest
    int m_shown = -1; // whose octets and fields are seen
    Place m_pointedPlace = Place::Nowhere; // where the pointer is
    int m_pointedIndex = -1; // the row, or the bit, there
};
