#include "view/map_text.h"

#include "view/contrast.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QStaticText>

#include <algorithm>
#include <cmath>
#include <memory>
#include <tuple>
#include <vector>

namespace {

constexpr int PointSize = 9;
constexpr double LegibleContrast = 2.5;
constexpr double HaloWidth = 1.0; // pixels

QColor haloAgainst(const QColor &color)
{
    QColor halo = groundFor(color);
    halo.setAlpha(110);
    return halo;
}

constexpr qsizetype MostKept = 512; // texts of a font
constexpr std::size_t MostFonts = 4;

// Texts of one font with their layouts: the same few are drawn in each frame, and laying out is what they cost most.
struct LaidOutTexts {
    struct Text {
        QStaticText layout;
        double width = 0.0; // pixels
    };

    explicit LaidOutTexts(const QFont &ownFont) : font(ownFont), metrics(ownFont) { }

    Text &find(const QString &text)
    {
        const auto kept = texts.find(text);
        if (kept != texts.end()) {
            return *kept;
        }
        if (texts.size() >= MostKept) {
            texts.clear();
        }
        Text made{QStaticText(text), metrics.horizontalAdvance(text)};
        made.layout.setTextFormat(Qt::PlainText);
        return *texts.insert(text, made);
    }

    QFont font;
    QFontMetricsF metrics;
    QHash<QString, Text> texts;
};

// Each thread draws with its own.
thread_local std::vector<std::unique_ptr<LaidOutTexts>> laidOutFonts;

// Layouts hold on to what goes with the application.
void forgetTexts()
{
    laidOutFonts.clear();
}

LaidOutTexts &textsOf(const QFont &font)
{
    const auto kept = std::find_if(
        laidOutFonts.begin(), laidOutFonts.end(), [&font](const auto &texts) { return texts->font == font; });
    if (kept != laidOutFonts.end()) {
        return **kept;
    }
    if (laidOutFonts.size() >= MostFonts) {
        laidOutFonts.erase(laidOutFonts.begin());
    }
    static const bool cleans = (qAddPostRoutine(forgetTexts), true);
    Q_UNUSED(cleans)
    return *laidOutFonts.emplace_back(std::make_unique<LaidOutTexts>(font));
}

void drawOnHalo(QPainter &painter, const QPointF &center, const QString &text, const QColor &color, const QColor &halo)
{
    LaidOutTexts &texts = textsOf(painter.font());
    const QFontMetricsF &metrics = texts.metrics;
    const LaidOutTexts::Text &laidOut = texts.find(text);
    const QPointF baseline(std::round(center.x() - laidOut.width / 2.0),
        std::round(center.y() + (metrics.ascent() - metrics.descent()) / 2.0));
    const QPointF corner = baseline - QPointF(0.0, metrics.ascent());
    painter.setPen(halo);
    for (const QPointF &step :
        {QPointF(-HaloWidth, 0), QPointF(HaloWidth, 0), QPointF(0, -HaloWidth), QPointF(0, HaloWidth)}) {
        painter.drawStaticText(corner + step, laidOut.layout);
    }
    painter.setPen(color);
    painter.drawStaticText(corner, laidOut.layout);
}

// Of the ground's colour, or against the text where the text would not stand out from that.
QColor haloOn(const QColor &ground, const QColor &color)
{
    if (contrastRatio(color, ground) < LegibleContrast) {
        return haloAgainst(color);
    }
    QColor halo = ground;
    halo.setAlpha(190);
    return halo;
}

} // namespace

QFont mapFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(PointSize);
    return font;
}

void drawMapText(QPainter &painter, const QPointF &center, const QString &text, const QColor &color)
{
    drawOnHalo(painter, center, text, color, haloAgainst(color));
}

void drawMapText(
    QPainter &painter, const QPointF &center, const QString &text, const QColor &color, const QColor &ground)
{
    // Mostly it is the same pair again, and contrast takes powers to work out.
    static thread_local std::tuple<QColor, QColor, QColor> last;
    auto &[lastColor, lastGround, halo] = last;
    if (!halo.isValid() || lastColor != color || lastGround != ground) {
        last = {color, ground, haloOn(ground, color)};
    }
    drawOnHalo(painter, center, text, color, halo);
}

QRectF mapTextRect(const QPointF &center, const QString &text)
{
    LaidOutTexts &texts = textsOf(mapFont());
    const QSizeF half(texts.find(text).width / 2.0 + 2.0 * HaloWidth, texts.metrics.height() / 2.0 + HaloWidth);
    return QRectF(center - QPointF(half.width(), half.height()), center + QPointF(half.width(), half.height()));
}
