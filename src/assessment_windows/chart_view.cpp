#include "assessment_windows/chart_view.h"

#include <QPainter>

namespace {

constexpr double Margin = 12.0;

ChartLook lookOf(const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Base);
    const bool isDark = ground.lightness() < 128;
    ChartLook look;
    look.ground = ground;
    look.ink = palette.color(QPalette::Text);
    look.grid = isDark ? QColor(0x46, 0x4e, 0x56) : ground.darker(115);
    if (isDark) {
        look.first = QColor(0x6c, 0xb2, 0xf0);
        look.second = QColor(0xff, 0xa0, 0x50);
        look.third = QColor(0x5c, 0xd0, 0xa8);
    }
    return look;
}

} // namespace

ChartView::ChartView(assessment::Chart chart, QWidget *parent) : QWidget(parent), m_chart(chart)
{
    setMinimumSize(320, 240);
}

void ChartView::setReport(const SensorReport &report)
{
    m_report = report;
    update();
}

void ChartView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const ChartLook look = lookOf(palette());
    painter.fillRect(rect(), look.ground);
    painter.setPen(look.ink);
    const QRectF area = QRectF(rect()).adjusted(Margin, Margin, -Margin, -Margin);
    if (!assessment::chartsOf(m_report).contains(m_chart)) {
        painter.drawText(area, static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap),
            tr("There are no data for this yet."));
        return;
    }
    assessment::paintChart(painter, area, m_chart, m_report, look);
}
