#include "raw_view/raw_filter_bar.h"

#include "recognition/stream_findings.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace {

constexpr int Any = -1;
constexpr int MostSources = 500; // that are offered: made up ones could be any number

} // namespace

RawFilterBar::RawFilterBar(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    m_category = addChoice("category", tr("All categories"), tr("List records of this category only"));
    m_source = addChoice("source", tr("All sources"), tr("List records of this SAC/SIC only"));
    m_fate = addChoice("fate", tr("Whatever became of them"), tr("List records of which this became only"));
    m_fate->addItem(tr("Used"), static_cast<int>(RawFilter::Fate::Used));
    m_fate->addItem(tr("Dropped"), static_cast<int>(RawFilter::Fate::Dropped));
    m_fate->addItem(tr("Cannot be decoded"), static_cast<int>(RawFilter::Fate::Malformed));
    m_identity = new QLineEdit(this);
    m_identity->setObjectName("identity");
    m_identity->setPlaceholderText(tr("Call sign, code, address, #track"));
    m_identity->setClearButtonEnabled(true);
    m_identity->setAccessibleName(m_identity->placeholderText());
    layout->addWidget(m_identity, 1);
    connect(m_identity, &QLineEdit::textChanged, this, [this] { Q_EMIT filterChanged(filter()); });
}

QComboBox *RawFilterBar::addChoice(const QString &name, const QString &any, const QString &toolTip)
{
    auto *choice = new QComboBox(this);
    choice->setObjectName(name);
    choice->setToolTip(toolTip);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    choice->addItem(any, Any);
    layout()->addWidget(choice);
    connect(choice, &QComboBox::currentIndexChanged, this, [this] { Q_EMIT filterChanged(filter()); });
    return choice;
}

RawFilter RawFilterBar::filter() const
{
    RawFilter filter;
    if (const int category = m_category->currentData().toInt(); category != Any) {
        filter.category = category;
    }
    if (const int source = m_source->currentData().toInt(); source != Any) {
        filter.source = static_cast<quint16>(source);
    }
    if (const int fate = m_fate->currentData().toInt(); fate != Any) {
        filter.fate = static_cast<RawFilter::Fate>(fate);
    }
    filter.identity = m_identity->text().trimmed();
    return filter;
}

// In the order of their values, after the first line.
void RawFilterBar::offer(QComboBox *choice, const QString &text, int value)
{
    int place = 1;
    while (place < choice->count() && choice->itemData(place).toInt() < value) {
        ++place;
    }
    if (place == choice->count() || choice->itemData(place).toInt() != value) {
        choice->insertItem(place, text, value);
    }
}

void RawFilterBar::noteHeard(const std::vector<std::shared_ptr<const StreamBatch>> &batches)
{
    for (const auto &batch : batches) {
        for (const StreamBatch::Record &record : batch->records) {
            const bool isAsterix = record.form == TakenReport::Form::Asterix;
            if (isAsterix && !m_categories.contains(record.category)) {
                m_categories.insert(record.category);
                offer(m_category, categoryName(record.category), record.category);
            }
            const int source = record.sac * 256 + record.sic;
            if (record.identified && m_sources.size() < MostSources && !m_sources.contains(source)) {
                m_sources.insert(source);
                offer(m_source, QStringLiteral("%1/%2").arg(record.sac).arg(record.sic), source);
            }
        }
    }
}

void RawFilterBar::clear()
{
    for (QComboBox *choice : {m_category, m_source}) {
        for (int place = choice->count() - 1; place > 0; --place) {
            if (place != choice->currentIndex()) {
                choice->removeItem(place);
            }
        }
    }
    m_categories.clear();
    m_sources.clear();
}
