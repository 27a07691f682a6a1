#include "tracking/plot_store.h"

void PlotStore::restart()
{
    m_arriving.clear();
    m_published = 0;
    m_history = {m_history.run + 1, 0, {}};
}

const PlotHistory &PlotStore::publish()
{
    if (!m_arriving.empty()) {
        closeBatch();
    }
    return m_history;
}

void PlotStore::closeBatch()
{
    const auto batch = QSharedPointer<PlotBatch>::create();
    batch->first = m_history.count;
    batch->plots.assign(m_arriving.begin(), m_arriving.end());
    m_history.batches.append(batch);
    m_history.count += m_arriving.size();
    m_published += m_arriving.size();
    m_arriving.clear();
    while (m_published > MaximumPlots || m_history.batches.size() > MaximumBatches) {
        m_published -= m_history.batches.constFirst()->plots.size();
        m_history.batches.removeFirst();
    }
}
