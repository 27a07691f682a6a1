#pragma once

#include "raw_view/raw_filter.h"

#include <QSet>
#include <QWidget>

class QComboBox;
class QLineEdit;

// The fields that a filter is set by. Categories and sources are offered once they have been heard.
class RawFilterBar final : public QWidget {
    Q_OBJECT

public:
    explicit RawFilterBar(QWidget *parent = nullptr);

    RawFilter filter() const;
    void noteHeard(const std::vector<std::shared_ptr<const StreamBatch>> &batches);
    // Forgets what was heard; what is chosen stays.
    void clear();

Q_SIGNALS:
    void filterChanged(const RawFilter &filter);

private:
    QComboBox *addChoice(const QString &name, const QString &any, const QString &toolTip);
    void offer(QComboBox *choice, const QString &text, int value);

    QComboBox *m_category;
    QComboBox *m_source;
    QComboBox *m_fate;
    QLineEdit *m_identity;
    QSet<int> m_categories;
    QSet<int> m_sources; // SAC * 256 + SIC
};
