#include "display/track_label_cache.h"

#include "display/track_look.h"
#include "tracking/track_snapshot.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Line = TrackLabelLayout::Line;

Line textLine(const QString &text, const QFontMetricsF &metrics)
{
    Line line;
    line.text = text;
    line.staticText.setTextFormat(Qt::PlainText);
    line.staticText.setText(text);
    line.width = metrics.horizontalAdvance(text);
    return line;
}

// Of a line that stays the same its layout stays too: mostly it is only the speed or the level that changes. The static
// texts lay out their glyphs when they are first drawn, so labels that nobody sees cost little.
void layOut(TrackLabelLayout &label, const QFont &font)
{
    const QFontMetricsF metrics(font);
    std::vector<Line> before = std::exchange(label.lines, {});
    double width = 0.0;
    for (int i = 0; i < TrackLabelLines::Count; ++i) {
        const QString &text = label.content.text[std::size_t(i)];
        if (text.isEmpty()) {
            continue;
        }
        const auto same =
            std::find_if(before.begin(), before.end(), [&text](const Line &line) { return line.text == text; });
        Line line = same != before.end() ? std::move(*same) : textLine(text, metrics);
        line.y = double(label.lines.size()) * metrics.lineSpacing();
        line.alert = i == TrackLabelLines::Alert;
        width = std::max(width, line.width);
        label.lines.push_back(std::move(line));
    }
    const double above = (double(label.lines.size()) - 1.0) * metrics.lineSpacing();
    label.alertHeight = label.lines.empty() || !label.lines.front().alert ? 0 : qRound(metrics.lineSpacing());
    label.size = QSize(int(std::ceil(width)), int(std::ceil(above + metrics.height())));
}

} // namespace

void TrackLabelCache::refresh(const TrackSnapshot &track, const TrackLook &look)
{
    TrackLabelLayout &label = m_labels[track.incarnationId];
    if (label.contentRevision == m_contentRevision) {
        return;
    }
    TrackLabelLines content = trackLabelLines(track, look.fields);
    if (label.contentRevision == 0 || !(content == label.content)) {
        label.content = std::move(content);
        layOut(label, look.labelFont);
    }
    label.contentRevision = m_contentRevision;
}

const TrackLabelLayout *TrackLabelCache::find(unsigned long long id) const
{
    const auto label = m_labels.constFind(id);
    return label == m_labels.constEnd() || label->lines.empty() ? nullptr : &*label;
}
