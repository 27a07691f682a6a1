#pragma once

#include "assessment_report/assessment_charts.h"

#include <QWidget>

// One chart of a sensor's report, in the colours of the window.
class ChartView final : public QWidget {
    Q_OBJECT

public:
    explicit ChartView(assessment::Chart chart, QWidget *parent = nullptr);

    assessment::Chart chart() const { return m_chart; }
    void setReport(const SensorReport &report);

    QSize sizeHint() const override { return {520, 380}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    assessment::Chart m_chart;
    SensorReport m_report;
};
