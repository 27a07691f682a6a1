#include "app/theme_library.h"
#include "display/geo_track_display.h"
#include "display/track_display_format.h"
#include "static_map_scene.h"
#include "test_program.h"
#include "view/contrast.h"

#include <QTest>

#include <map>

// What an operator can read in each dark or bright theme, from the pixels that were painted.
class TestThemeContrast : public QObject, private StaticMapScene {
    Q_OBJECT

private Q_SLOTS:
    void tracksStandOut_data() { addGrounds(); }
    void tracksStandOut();
    void mapTextIsReadAndMapLinesStayBehind_data() { addGrounds(); }
    void mapTextIsReadAndMapLinesStayBehind();
    void trafficStandsOutFromWeatherAndVideo_data() { addGrounds(); }
    void trafficStandsOutFromWeatherAndVideo();

private:
    static void addGrounds();
    void takeTheme();
    QColor ground() const;

    Config m_config;
    TrackDisplayFormat m_format;
    MapStyleSheet m_sheet;
};

namespace {

constexpr double Scale = 100.0; // metres per pixel
// Where one track or text stands, far enough apart that none touches another.
constexpr std::array Places{QPoint(100, 110), QPoint(300, 110), QPoint(100, 320), QPoint(300, 320)};
constexpr int Normal = 0, Selected = 1, Coasting = 2, Alerting = 3;

QPointF planeAt(const QPoint &pixel)
{
    const QPoint offset = pixel - PaintedView::Middle;
    return QPointF(offset.x(), -offset.y()) * Scale;
}

QSharedPointer<const DisplaySnapshot> fourTracks()
{
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    for (std::size_t i = 0; i < Places.size(); ++i) {
        TrackSnapshot track;
        track.incarnationId = i + 1;
        track.type = Track::Psr;
        track.carCoordinate = planeAt(Places[i]);
        track.carCoordinateValid = true;
        track.callsign = QStringLiteral("HMN%1").arg(80 + i);
        track.callsignValid = true;
        track.level = 31000;
        track.levelValid = true;
        track.groundSpeed = 450.0;
        track.groundSpeedValid = true;
        track.lastUpdate = QDateTime::currentDateTimeUtc();
        snapshot->tracks.append(track);
    }
    snapshot->tracks[Coasting].coasting = true;
    snapshot->tracks[Coasting].state = Track::Coasting;
    snapshot->tracks[Alerting].alertsString = QStringLiteral("STCA");
    return snapshot;
}

QColor mostCommon(const QImage &image, const QRect &rect)
{
    std::map<QRgb, int> counts;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const auto most = std::max_element(
        counts.begin(), counts.end(), [](const auto &a, const auto &b) { return a.second < b.second; });
    return QColor(most->first);
}

// Of the pixel that stands out most: strokes are as thin as a pixel, and their edges are smoothed.
double strongest(const QImage &image, const QRect &rect, const QColor &ground)
{
    double best = 1.0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            best = std::max(best, contrastRatio(image.pixelColor(x, y), ground));
        }
    }
    return best;
}

QRect labelOf(const GeoTrackDisplay &display, const PaintedView &view, quint64 id)
{
    QRect label;
    for (int i = 0; i < PaintedView::Size * PaintedView::Size; ++i) {
        const QPoint pixel(i % PaintedView::Size, i / PaintedView::Size);
        if (display.findTrackByLabelPosition(view.view().screenTransform(), pixel.x(), pixel.y()) == id) {
            label |= QRect(pixel, QSize(1, 1));
        }
    }
    return label;
}

QColor blended(const QColor &over, int opacity, const QColor &under)
{
    const auto mixed = [opacity](int a, int b) { return (a * opacity + b * (255 - opacity)) / 255; };
    return QColor(mixed(over.red(), under.red()), mixed(over.green(), under.green()), mixed(over.blue(), under.blue()));
}

} // namespace

void TestThemeContrast::addGrounds()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("land");
    for (const char *theme : {"Night", "Dusk", "Day"}) {
        QTest::addRow("%s, land", theme) << theme << true;
        QTest::addRow("%s, sea", theme) << theme << false;
    }
}

void TestThemeContrast::takeTheme()
{
    QFETCH(const QString, theme);
    const ThemeLibrary library(QStringLiteral("none"));
    library.find(theme)->applyTo(m_config);
    m_format.readFrom(GeoTrackDisplay());
    m_format.takeLook(library.find(theme)->trackFormat());
    QString error;
    m_sheet = MapStyleSheet();
    QVERIFY2(m_sheet.load(QStringLiteral(MAPS_FOLDER "/") + m_config.mapStyleSheet, &error), qPrintable(error));
    QCOMPARE(m_sheet.style("water").brush.color(), m_config.mapBackgroundColor);
}

QColor TestThemeContrast::ground() const
{
    QFETCH(const bool, land);
    return m_sheet.style(land ? "land" : "water").brush.color();
}

void TestThemeContrast::tracksStandOut()
{
    takeTheme();
    GeoTrackDisplay display;
    display.applyConfig(m_config);
    m_format.applyTo(display);
    display.setSnapshot(fourTracks());
    display.setSelected(Selected + 1);
    PaintedView view(Scale);
    view.paint([&](QPainter &painter, const GeoView &geoView) {
        painter.save();
        painter.resetTransform();
        painter.fillRect(QRect(0, 0, PaintedView::Size, PaintedView::Size), ground());
        painter.restore();
        display.paint(&painter, geoView);
    });
    for (int track = Normal; track <= Alerting; ++track) {
        const QRect symbol(Places[track] - QPoint(5, 5), QSize(11, 11));
        const double seen = strongest(view.image(), symbol, ground());
        QVERIFY2(seen >= 3.0, qPrintable(QString("symbol %1: %2").arg(track).arg(seen)));

        const QRect label = labelOf(display, view, track + 1);
        QVERIFY(label.height() > 15);
        // Each line by itself, on its own ground: a head in the alert colour, or the veil.
        const int lines = qRound(label.height() / QFontMetricsF(display.labelFont()).height());
        for (int line = 0; line < lines; ++line) {
            const QRect row(
                label.left(), label.top() + line * label.height() / lines, label.width(), label.height() / lines);
            const double read = strongest(view.image(), row, mostCommon(view.image(), row));
            QVERIFY2(read >= 4.5, qPrintable(QString("label %1, line %2: %3").arg(track).arg(line).arg(read)));
        }
    }
}

void TestThemeContrast::mapTextIsReadAndMapLinesStayBehind()
{
    takeTheme();
    for (const QString &name : m_sheet.names()) {
        const MapStyleClass style = m_sheet.style(name);
        if (name == "land" || name == "water") {
            continue; // as lines they are coasts, between the two grounds
        }
        MapElementGroup text = group(name);
        text.labels = {{{}, QStringLiteral("HMNEL"), {0.0, 0.0}}};
        MapElementGroup line = group(name);
        line.polylines = {{{}, {{0.3, -1.0}, {0.3, 1.0}}}};
        GeoStaticMap layer(&projector);
        layer.setStyleSheet(m_sheet);
        layer.setMaps({mapOf({text, line})});
        PaintedView view(200.0);
        view.paint([&](QPainter &painter, const GeoView &geoView) {
            painter.save();
            painter.resetTransform();
            painter.fillRect(QRect(0, 0, PaintedView::Size, PaintedView::Size), ground());
            painter.restore();
            layer.paint(painter, geoView);
        });
        const double read = strongest(view.image(), QRect(150, 170, 100, 60), ground());
        QVERIFY2(read >= 2.9, qPrintable(QString("text of %1: %2").arg(name).arg(read)));
        const double seen = strongest(view.image(), QRect(0, 0, 400, 100), ground());
        QVERIFY2(seen >= 1.1, qPrintable(QString("line of %1: %2").arg(name).arg(seen)));
        QVERIFY2(seen <= 3.5, qPrintable(QString("line of %1: %2").arg(name).arg(seen)));
    }
}

// Weather and video are areas, so that their colours stand under whole tracks.
void TestThemeContrast::trafficStandsOutFromWeatherAndVideo()
{
    takeTheme();
    QList<std::pair<QColor, int>> areas{{m_config.mapVideoHighColor, m_config.mapVideoHighOpacity},
        {m_config.mapVideoLowColor, m_config.mapVideoLowOpacity}};
    for (const QColor &level : std::as_const(m_config.mapWeatherColor)) {
        areas.append({level, m_config.mapWeatherOpacity});
    }
    for (const auto &[color, opacity] : std::as_const(areas)) {
        const QColor area = blended(color, opacity, ground());
        const QColor veil =
            blended(m_config.trackLabelBackgroundColor, m_config.trackLabelBackgroundOpacity * 255 / 100, area);
        QVERIFY2(contrastRatio(m_config.trackSymbolColor, area) >= 3.0, qPrintable(color.name()));
        QVERIFY2(contrastRatio(m_config.trackLabelAlertColor, area) >= 2.5, qPrintable(color.name()));
        QVERIFY2(contrastRatio(m_config.trackLabelColor, veil) >= 4.5, qPrintable(color.name()));
        QVERIFY2(contrastRatio(m_config.trackLabelDetailColor, veil) >= 4.5, qPrintable(color.name()));
        QVERIFY2(contrastRatio(area, ground()) <= 2.7, qPrintable(color.name()));
    }
}

VYX_TEST(TestThemeContrast)
#include "tst_theme_contrast.moc"
