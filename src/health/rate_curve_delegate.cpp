#include "health/rate_curve_delegate.h"

#include "health/source_table_model.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr int CurveWidth = 130; // pixels
constexpr int CurveMargin = 3;
} // namespace

void RateCurveDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto history = index.data(SourceTableModel::HistoryRole).value<QList<quint32>>();
    const quint32 largest = history.isEmpty() ? 0 : *std::max_element(history.begin(), history.end());
    if (largest == 0) {
        return;
    }
    const QRectF area = QRectF(option.rect).adjusted(CurveMargin, CurveMargin, -CurveMargin, -CurveMargin);
    const double step = area.width() / static_cast<double>(history.size());
    const bool selected = option.state & QStyle::State_Selected;
    QColor color = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    color.setAlpha(170);
    for (qsizetype i = 0; i < history.size(); ++i) {
        const double height = area.height() * history[i] / largest;
        painter->fillRect(
            QRectF(area.left() + step * static_cast<double>(i), area.bottom() - height, step, height), color);
    }
}

QSize RateCurveDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {CurveWidth, QStyledItemDelegate::sizeHint(option, index).height()};
}
