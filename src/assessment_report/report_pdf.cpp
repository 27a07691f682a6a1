#include "assessment/assessment_text.h"
#include "assessment_report/assessment_charts.h"
#include "assessment_report/report_document.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace {

constexpr int UnitsPerInch = 96; // of the painter; the paper holds many dots in each
constexpr double Margin = 15.0; // millimetres
constexpr double LineHeight = 15.0;
constexpr double ChartHeight = 235.0;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Assessment)
};

// Fills pages from the top; begins another where something does not fit any more.
class PageFlow {
public:
    explicit PageFlow(QPdfWriter &writer) : m_writer(writer), m_painter(&writer)
    {
        const double scale = writer.resolution() / static_cast<double>(UnitsPerInch);
        m_painter.scale(scale, scale);
        m_size = QSizeF(writer.width() / scale, writer.height() / scale);
    }

    void heading(const QString &text, int pixels)
    {
        need(pixels * 3.0);
        m_y += pixels * 0.7;
        setFont(pixels, true);
        line(text, QRectF(0, m_y, m_size.width(), pixels * 1.5), Qt::AlignLeft);
        m_y += pixels * 1.6;
    }

    void paragraph(const QString &text)
    {
        setFont(11, false);
        const QRectF room(0, 0, m_size.width(), 1e4);
        const double height = m_painter.boundingRect(room, Qt::TextWordWrap, text).height();
        need(height);
        m_painter.drawText(QRectF(0, m_y, m_size.width(), height + 2), Qt::TextWordWrap, text);
        m_y += height + 5;
    }

    void row(const assessment::Row &row)
    {
        need(LineHeight);
        setFont(11, false);
        line(row.name, QRectF(8, m_y, 190, LineHeight), Qt::AlignLeft);
        line(row.remark, QRectF(360, m_y, m_size.width() - 360, LineHeight), Qt::AlignLeft);
        setFont(11, true);
        line(row.value, QRectF(200, m_y, 155, LineHeight), Qt::AlignLeft);
        m_y += LineHeight;
    }

    void cells(const QStringList &texts, bool isHeading)
    {
        need(LineHeight);
        setFont(11, isHeading);
        const double width = std::min(m_size.width() / static_cast<double>(texts.size()), 105.0);
        for (qsizetype i = 0; i < texts.size(); ++i) {
            line(texts[i], QRectF(width * static_cast<double>(i), m_y, width - 8, LineHeight), Qt::AlignRight);
        }
        m_y += LineHeight;
    }

    // Two beside each other.
    void charts(const SensorReport &report)
    {
        const QList<assessment::Chart> all = assessment::chartsOf(report);
        const double width = (m_size.width() - 16) / 2;
        for (qsizetype i = 0; i < all.size(); ++i) {
            if (i % 2 == 0) {
                need(ChartHeight + 24);
                m_y += 8;
            }
            const double x = i % 2 == 0 ? 0.0 : width + 16;
            setFont(10, true);
            line(assessment::chartTitle(all[i]), QRectF(x, m_y, width, LineHeight), Qt::AlignLeft);
            setFont(8, false);
            assessment::paintChart(
                m_painter, QRectF(x, m_y + LineHeight, width, ChartHeight - LineHeight), all[i], report, ChartLook());
            m_y += i % 2 == 1 || i + 1 == all.size() ? ChartHeight + 8 : 0.0;
        }
    }

private:
    void need(double height)
    {
        if (m_y + height > m_size.height()) {
            m_writer.newPage();
            m_y = 0.0;
        }
    }

    void setFont(int pixels, bool isBold)
    {
        QFont font(QStringLiteral("sans-serif"));
        font.setPixelSize(pixels);
        font.setBold(isBold);
        m_painter.setFont(font);
        m_painter.setPen(ChartLook().ink);
    }

    void line(const QString &text, const QRectF &place, Qt::Alignment alignment)
    {
        m_painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter), text);
    }

    QPdfWriter &m_writer;
    QPainter m_painter;
    QSizeF m_size;
    double m_y = 0.0;
};

void writeSensor(PageFlow &flow, const SensorReport &sensor)
{
    flow.heading(sensor.title(), 17);
    if (!sensor.trouble.isEmpty()) {
        flow.paragraph(sensor.trouble);
    }
    for (const assessment::Table &table : assessment::tablesOf(sensor)) {
        flow.heading(table.title, 12);
        for (const assessment::Row &row : table.rows) {
            flow.row(row);
        }
    }
    flow.charts(sensor);
    const QList<assessment::RangeRow> rows = assessment::rangeRows(sensor.detection);
    if (rows.isEmpty()) {
        return;
    }
    flow.heading(Text::tr("Detection by range"), 12);
    flow.cells(assessment::rangeHeadings(), true);
    for (const assessment::RangeRow &row : rows) {
        flow.cells({row.range, row.looks, row.any, row.primary, row.secondary, row.falsePlots}, false);
    }
}

} // namespace

QByteArray assessment::toPdf(const AssessmentReport &report)
{
    QByteArray document;
    QBuffer buffer(&document);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(Text::tr("Sensor check of %1").arg(report.source));
    writer.setCreator(QStringLiteral("Vyx Display"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Millimeter);
    writer.setResolution(600);
    {
        PageFlow flow(writer);
        flow.heading(Text::tr("Sensor check of %1").arg(report.source), 20);
        flow.paragraph(describeData(report));
        if (report.sensors.isEmpty()) {
            flow.paragraph(Text::tr("It holds no reports of radars (CAT001, CAT002, CAT034, CAT048)."));
        }
        for (const SensorReport &sensor : report.sensors) {
            writeSensor(flow, sensor);
        }
        flow.heading(Text::tr("Methods"), 12);
        for (const QString &method : methods()) {
            flow.paragraph(method);
        }
    }
    return document;
}
