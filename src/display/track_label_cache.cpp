#include "display/track_label_cache.h"

#include "display/track_look.h"
#include "tracking/track_snapshot.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Kind = TrackLabelLayout::Kind;
using Line = TrackLabelLayout::Line;
using Mark = TrackLabelLayout::Mark;

// One label's texts on their way to lines; of the two fonts only those that are used are measured.
class Layouter {
public:
    explicit Layouter(const TrackLook &look) : m_look(look), m_metrics(look.labelFont) { }

    void layOut(TrackLabelLayout &label);

private:
    Kind kindOf(int line) const;
    Line textLine(Kind kind, const QString &text) const;
    void takeMarks(Line &line, const QFontMetricsF &metrics) const;

    const TrackLook &m_look;
    QFontMetricsF m_metrics;
};

Kind Layouter::kindOf(int line) const
{
    if (line == TrackLabelLines::Alert) {
        return Kind::Alert;
    }
    if (line == TrackLabelLines::Mark) {
        return Kind::Caution;
    }
    if (!m_look.isCompact()) {
        return Kind::Plain;
    }
    return line == TrackLabelLines::Callsign ? Kind::Identity : Kind::Detail;
}

Line Layouter::textLine(Kind kind, const QString &text) const
{
    Line line;
    line.kind = kind;
    line.text = text;
    const bool bold = m_look.isCompact() && kind != Kind::Detail;
    const QFontMetricsF metrics = bold ? QFontMetricsF(m_look.identityFont) : m_metrics;
    takeMarks(line, metrics);
    QString shown = text;
    for (const Mark &mark : line.marks) {
        shown.replace(mark.character, QLatin1Char(' '));
    }
    line.staticText.setTextFormat(Qt::PlainText);
    line.staticText.setText(shown);
    line.width = metrics.horizontalAdvance(shown);
    return line;
}

// Another font's arrow would be wider or higher than the rest of the line.
void Layouter::takeMarks(Line &line, const QFontMetricsF &metrics) const
{
    for (qsizetype i = 0; i < line.text.size() && !m_look.drawnMarks.isEmpty(); ++i) {
        if (m_look.drawnMarks.contains(line.text[i])) {
            const double cell = metrics.horizontalAdvance(QLatin1Char(' '));
            const QString before(i, QLatin1Char(' ')); // whatever stands there, in a font of fixed width
            const double x = metrics.horizontalAdvance(before);
            line.marks.push_back({line.text[i], QRectF(x, 0.0, cell, metrics.ascent())});
        }
    }
}

// Of a line that stays the same its layout stays too: mostly it is only the speed or the level that changes. The static
// texts lay out their glyphs when they are first drawn, so labels that nobody sees cost little.
void Layouter::layOut(TrackLabelLayout &label)
{
    std::vector<Line> before = std::exchange(label.lines, {});
    double width = 0.0;
    for (int i = 0; i < TrackLabelLines::Count; ++i) {
        const QString &text = label.content.text[static_cast<std::size_t>(i)];
        if (text.isEmpty()) {
            continue;
        }
        const Kind kind = kindOf(i);
        const auto same = std::find_if(
            before.begin(), before.end(), [&](const Line &line) { return line.kind == kind && line.text == text; });
        Line line = same != before.end() ? std::move(*same) : textLine(kind, text);
        line.y = static_cast<double>(label.lines.size()) * m_metrics.lineSpacing();
        width = std::max(width, line.width);
        label.lines.push_back(std::move(line));
    }
    const bool alert = !label.lines.empty() && label.lines.front().kind == Kind::Alert;
    const double above = (static_cast<double>(label.lines.size()) - 1.0) * m_metrics.lineSpacing();
    label.alertHeight = alert ? qRound(m_metrics.lineSpacing()) : 0;
    label.size = QSize(static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(above + m_metrics.height())));
}

} // namespace

void TrackLabelCache::refresh(const TrackSnapshot &track, const TrackLook &look, const QDateTime &time)
{
    TrackLabelLayout &label = m_labels[track.incarnationId];
    if (label.contentRevision == m_contentRevision) {
        return;
    }
    TrackLabelLines content =
        look.isCompact() ? compactLabelLines(track, look.fields, time) : trackLabelLines(track, look.fields);
    if (label.contentRevision == 0 || !(content == label.content)) {
        label.content = std::move(content);
        Layouter(look).layOut(label);
    }
    label.contentRevision = m_contentRevision;
}

const TrackLabelLayout *TrackLabelCache::find(unsigned long long id) const
{
    const auto label = m_labels.constFind(id);
    return label == m_labels.constEnd() || label->lines.empty() ? nullptr : &*label;
}
