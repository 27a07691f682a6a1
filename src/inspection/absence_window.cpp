#include "inspection/absence_window.h"

#include "widgets/quiet_hint.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {
constexpr int RefreshIntervalMs = 1000;
constexpr QSize FirstSize(520, 320);
} // namespace

AbsenceWindow::AbsenceWindow(QWidget *parent) : GeometryDialog("absenceWindow", parent)
{
    setWindowTitle(tr("Why Is It Not Shown?"));
    m_text = new QLineEdit(this);
    m_text->setObjectName("absenceText");
    m_text->setPlaceholderText(tr("Callsign, squawk, address or track number"));
    m_text->setClearButtonEnabled(true);
    m_text->setAccessibleName(m_text->placeholderText());
    m_text->setMinimumWidth(m_text->fontMetrics().horizontalAdvance(m_text->placeholderText() + "MMM"));
    m_hint = makeQuietHint(tr("Type whom you miss, such as VYX123, 7000, 4B1A2C or #42."), this);
    auto *content = new QWidget(this);
    m_list = new QVBoxLayout(content);
    m_list->addStretch(1);
    auto *scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(content);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_hint);
    layout->addWidget(scroll, 1);
    layout->addWidget(buttons);
    for (QAbstractButton *button : buttons->buttons()) {
        static_cast<QPushButton *>(button)->setAutoDefault(false); // Enter belongs to the field
    }
    resize(FirstSize);
    const auto ask = [this] { Q_EMIT asked(text()); };
    connect(m_text, &QLineEdit::textChanged, this, ask);
    connect(&m_timer, &QTimer::timeout, this, ask);
}

QString AbsenceWindow::text() const
{
    return m_text->text().trimmed();
}

void AbsenceWindow::setText(const QString &text)
{
    m_text->setText(text);
}

void AbsenceWindow::showFindings(const QList<AbsenceFinding> &findings, const QDateTime &now)
{
    m_findings = findings.first(std::min<qsizetype>(findings.size(), MaximumFindings));
    m_hint->setVisible(m_findings.isEmpty());
    while (m_rows.size() < m_findings.size()) {
        addRow();
    }
    for (int i = 0; i < m_rows.size(); ++i) {
        m_rows[i].holder->setVisible(i < m_findings.size());
        if (i < m_findings.size()) {
            fillRow(m_rows[i], m_findings[i], now);
        }
    }
}

void AbsenceWindow::addRow()
{
    Row row;
    row.holder = new QWidget(this);
    row.who = new QLabel(row.holder);
    row.who->setTextFormat(Qt::PlainText);
    QFont bold = row.who->font();
    bold.setBold(true);
    row.who->setFont(bold);
    row.sentence = new QLabel(row.holder);
    row.sentence->setObjectName("absenceSentence");
    row.sentence->setTextFormat(Qt::PlainText);
    row.sentence->setWordWrap(true);
    row.sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row.cure = new QPushButton(row.holder);
    row.cure->setObjectName("absenceCure");
    row.cure->setAutoDefault(false);
    const auto number = m_rows.size();
    connect(row.cure, &QPushButton::clicked, this, [this, number] {
        if (number < m_findings.size()) {
            Q_EMIT cureChosen(m_findings[number]);
        }
    });
    auto *texts = new QVBoxLayout;
    texts->addWidget(row.who);
    texts->addWidget(row.sentence);
    auto *layout = new QHBoxLayout(row.holder);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->addLayout(texts, 1);
    layout->addWidget(row.cure, 0, Qt::AlignTop);
    m_list->insertWidget(m_list->count() - 1, row.holder);
    m_rows.append(row);
}

void AbsenceWindow::fillRow(const Row &row, const AbsenceFinding &finding, const QDateTime &now)
{
    QString who = finding.who;
    if (finding.seenMs != 0) {
        const auto time = QDateTime::fromMSecsSinceEpoch(finding.seenMs, Qt::UTC);
        const qint64 seconds = std::max<qint64>(0, time.msecsTo(now)) / 1000;
        who += tr("   last received %1 UTC, %2 s ago").arg(time.toString("HH:mm:ss")).arg(seconds);
    }
    row.who->setText(who);
    row.sentence->setText(finding.sentence);
    row.cure->setText(cureText(finding.cure));
    row.cure->setVisible(finding.cure != Cure::None);
}

void AbsenceWindow::showEvent(QShowEvent *event)
{
    GeometryDialog::showEvent(event);
    m_text->setFocus();
    m_text->selectAll();
    m_timer.start(RefreshIntervalMs);
    Q_EMIT asked(text());
}

void AbsenceWindow::hideEvent(QHideEvent *event)
{
    GeometryDialog::hideEvent(event);
    m_timer.stop();
}
