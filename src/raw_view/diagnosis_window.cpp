#include "raw_view/diagnosis_window.h"

#include "widgets/text_colors.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

using Level = DiagnosisRemark::Level;

QString levelText(Level level)
{
    switch (level) {
    case Level::Fine:
        return DiagnosisWindow::tr("Fine");
    case Level::Note:
        return DiagnosisWindow::tr("Note");
    case Level::Wrong:
        break;
    }
    return DiagnosisWindow::tr("Wrong");
}

QColor levelColor(Level level, const QPalette &palette)
{
    return level == Level::Wrong ? alarmTextColor(palette)
        : level == Level::Note   ? warningTextColor(palette)
                                 : palette.color(QPalette::Text);
}

QString rowHtml(const DiagnosisRemark &remark, const QPalette &palette)
{
    const QString evidence = remark.evidence.isEmpty()
        ? QString()
        : QStringLiteral("<br><span style=\"color:%1\">%2</span>")
              .arg(quietTextColor(palette).name(), remark.evidence.toHtmlEscaped());
    return QStringLiteral("<tr><td style=\"color:%1; padding:4px 16px 4px 0\"><b>%2</b></td>"
                          "<td style=\"padding:4px 0\">%3%4</td></tr>")
        .arg(levelColor(remark.level, palette).name(), levelText(remark.level), remark.sentence.toHtmlEscaped(),
            evidence);
}

} // namespace

DiagnosisWindow::DiagnosisWindow(EngineHost *host, InputSettings settings, QWidget *parent)
    : GeometryDialog("DiagnosisWindow", parent), m_settings(std::move(settings)), m_diagnosis(host),
      m_state(new QLabel(this)), m_text(new QTextBrowser(this))
{
    setWindowTitle(tr("Diagnose Input"));
    m_state->setObjectName("state");
    m_state->setWordWrap(true);
    m_text->setObjectName("remarks");
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    m_again = buttons->addButton(tr("&Look Again"), QDialogButtonBox::ActionRole);
    auto *copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copy->setToolTip(tr("Copy the sentences to the clipboard"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_state);
    layout->addWidget(m_text, 1);
    layout->addWidget(buttons);
    resize(720, 420);
    connect(m_again, &QPushButton::clicked, this, &DiagnosisWindow::look);
    connect(copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(plainText()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &DiagnosisWindow::reject);
    connect(&m_diagnosis, &LiveDiagnosis::found, this, &DiagnosisWindow::showResult);
}

void DiagnosisWindow::setVisible(bool visible)
{
    const bool isOpened = visible && !isVisible();
    GeometryDialog::setVisible(visible);
    if (isOpened) {
        look();
    } else if (!visible) {
        m_diagnosis.stop();
    }
}

void DiagnosisWindow::look()
{
    m_remarks.clear();
    m_text->clear();
    const Config *settings = m_settings();
    if (!settings) {
        m_diagnosis.stop();
        m_state->setText(tr("No input is open. Start one or replay a recording, then look again."));
        return;
    }
    m_state->setText(tr("Listening..."));
    m_diagnosis.start(*settings);
}

void DiagnosisWindow::showResult(const LiveDiagnosis::Result &result)
{
    m_remarks = result.remarks;
    const QString count = result.messages == 1 ? tr("1 message") : tr("%1 messages").arg(result.messages);
    m_state->setText(!result.isFinal ? tr("Listening... %1 so far.").arg(count)
            : isAnyWrong(m_remarks)  ? tr("Something is wrong in what arrived (%1).").arg(count)
                                     : tr("Nothing is wrong in what arrived (%1).").arg(count));
    QString rows;
    for (const DiagnosisRemark &remark : m_remarks) {
        rows += rowHtml(remark, m_text->palette());
    }
    m_text->setHtml(QStringLiteral("<table>%1</table>").arg(rows));
}

QString DiagnosisWindow::plainText() const
{
    QStringList lines;
    for (const DiagnosisRemark &remark : m_remarks) {
        lines += QStringLiteral("%1: %2").arg(levelText(remark.level), remarkText(remark));
    }
    return lines.join(u'\n');
}
