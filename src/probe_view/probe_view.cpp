#include "probe_view/probe_view.h"

#include "input_probe/probe_text.h"
#include "recognition/input_proposal.h"
#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr double SentenceScale = 1.25; // of the interface's font
constexpr int RowsShown = 4;
constexpr qsizetype MostTroubles = 2;

QLabel *makeTextLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->hide();
    return label;
}

void setText(QLabel *label, const QString &text)
{
    if (label->text() != text) {
        label->setText(text); // a selection in it goes with it
    }
    label->setVisible(!text.isEmpty());
}

// Lines of a list, each with its mark.
QString bulleted(const QStringList &lines)
{
    QStringList marked;
    for (const QString &line : lines) {
        marked += QStringLiteral("\u2022 ") + line;
    }
    return marked.join(u'\n');
}

} // namespace

ProbeView::ProbeView(QWidget *parent)
    : QWidget(parent), m_sentence(makeTextLabel(QStringLiteral("probeSentence"), this)),
      m_figures(makeTextLabel(QStringLiteral("probeFigures"), this)), m_table(new QTreeWidget(this)),
      m_troubles(makeTextLabel(QStringLiteral("probeTroubles"), this)),
      m_advice(makeTextLabel(QStringLiteral("probeAdvice"), this)),
      m_proposal(makeTextLabel(QStringLiteral("probeProposal"), this)), m_use(new QPushButton(this))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * SentenceScale);
    m_sentence->setFont(large);
    m_figures->setFont(figureFont());
    m_table->setObjectName(QStringLiteral("probeTable"));
    m_table->setAccessibleName(tr("What arrives, by source"));
    m_table->setHeaderLabels({tr("Source"), tr("Category"), tr("Edition"), tr("Rate"), tr("Contents")});
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->hide();
    m_use->setObjectName(QStringLiteral("useFound"));
    m_use->setText(tr("&Use What Was Found"));
    m_use->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *part : QList<QWidget *>{m_sentence, m_figures, m_table, m_troubles, m_advice, m_proposal}) {
        layout->addWidget(part);
    }
    layout->addWidget(m_use, 0, Qt::AlignLeft);
    connect(m_use, &QPushButton::clicked, this, &ProbeView::useWanted);
}

void ProbeView::showResult(const ProbeResult &result, const Config &config)
{
    setText(m_sentence, ProbeText::sentence(result));
    setText(m_figures, ProbeText::figures(result));
    setText(m_advice, bulleted(ProbeText::advice(result, config)));
    QStringList troubles;
    for (const DiagnosisRemark &remark : result.troubles.mid(0, MostTroubles)) {
        troubles += remark.sentence;
    }
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, warningTextColor(colors));
    m_troubles->setPalette(colors);
    setText(m_troubles, troubles.join(u'\n'));
    showRows(result);
    m_recognised = result.isRecognised();
    updateUse();
}

void ProbeView::showHint(const QString &hint)
{
    showResult({}, {});
    setText(m_sentence, hint);
    showProposal(nullptr);
}

void ProbeView::showProposal(const InputProposal *proposal)
{
    setText(m_proposal, proposal ? ProbeText::proposal(*proposal) : QString());
}

void ProbeView::offerUse(const QString &refusal)
{
    m_refusal = refusal;
    updateUse();
}

void ProbeView::updateUse()
{
    m_use->setVisible(m_refusal.has_value());
    m_use->setEnabled(m_refusal && m_refusal->isEmpty() && m_recognised);
    const QString reason = m_refusal && !m_refusal->isEmpty()
        ? *m_refusal
        : tr("Fills the pages Processor and Sensor; nothing is applied before you say so.");
    m_use->setToolTip(reason);
}

// In place, so that the table does not jump while somebody reads it.
void ProbeView::showRows(const ProbeResult &result)
{
    const QList<ProbeText::Row> rows = ProbeText::rows(result);
    while (m_table->topLevelItemCount() > rows.size()) {
        delete m_table->takeTopLevelItem(m_table->topLevelItemCount() - 1);
    }
    for (int i = 0; i < rows.size(); ++i) {
        if (i == m_table->topLevelItemCount()) {
            m_table->addTopLevelItem(new QTreeWidgetItem);
        }
        QTreeWidgetItem *item = m_table->topLevelItem(i);
        const ProbeText::Row &row = rows.at(i);
        const QString texts[] = {row.source, row.category, row.edition, row.rate, row.contents};
        for (int column = 0; column < static_cast<int>(std::size(texts)); ++column) {
            item->setText(column, texts[column]);
            item->setToolTip(column, texts[column]); // it may be cut
        }
    }
    m_table->setVisible(!rows.isEmpty());
    const int shown = std::min(static_cast<int>(rows.size()), RowsShown) + 1; // one more for the scroll bar
    const int height = m_table->header()->sizeHint().height() + 2 * m_table->frameWidth();
    m_table->setFixedHeight(height + shown * m_table->fontMetrics().height() * 5 / 4);
}
