#pragma once

#include "display/cover_mask.h"
#include "display/track_label_lines.h"
#include "display/track_symbols.h"
#include "engine/display_snapshot.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QLineF>
#include <QObject>
#include <QPen>
#include <QPoint>
#include <QRect>
#include <QSharedPointer>
#include <QStaticText>
#include <QTransform>

#include <vector>

class Config;
class GeoView;
class QFontMetricsF;
class QPainter;

// The air picture: for each track of the newest snapshot its trail, speed vector, label and symbol, and the label
// places that the operator chose. Track keys are TrackSnapshot::incarnationId, 0 is none. GUI thread only.
class GeoTrackDisplay final : public QObject {
    Q_OBJECT

public:
    // Above this zoom, in metres per pixel, nothing but symbols is drawn.
    static constexpr double DetailLimit = 5000.0;

    explicit GeoTrackDisplay(QObject *parent = nullptr);
    ~GeoTrackDisplay() override;

    // Does not ask for a repaint: the widget's beat shows it. What the display kept for tracks that are gone is
    // dropped.
    void setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot);

    // The painter comes with the transform from plane to screen as its world transform and leaves with it.
    void paint(QPainter *painter);
    void paint(QPainter *painter, const GeoView &view);

    // The track whose symbol, or label as last painted, holds the widget pixel; the first in snapshot order, or 0.
    unsigned long long findTrackBySymbolPosition(const QTransform &screenTransform, int x, int y) const;
    unsigned long long findTrackByLabelPosition(const QTransform &screenTransform, int x, int y) const;

    bool hasTrack(unsigned long long id) const;
    // False, and nothing written, when no track with a position is selected.
    bool selectedTrackCarCoordinate(QPointF &planePoint) const;

    // Label offsets are in pixels from the track to the label's upper left corner, y upwards.
    bool trackLabelOffsetDefault(unsigned long long id) const;
    QPoint trackLabelOffset(unsigned long long id) const;
    void setTrackLabelOffset(unsigned long long id, int x, int y);

    // Takes the track colours.
    void applyConfig(const Config &config);

    bool targetTypeSymbol() const { return m_targetTypeSymbol; }
    bool sensorTypeSymbol() const { return m_sensorTypeSymbol; }
    QColor symbolColor() const { return m_symbolPen.color(); }
    int symbolSize() const { return m_symbolSize; } // pixels
    QFont labelFont() const { return m_labelFont; }
    QColor labelColor() const { return m_labelPen.color(); }
    QColor labelSelectedColor() const { return m_labelSelectedPen.color(); }
    QColor labelAlertColor() const { return m_labelAlertPen.color(); }
    QColor labelBackgroundColor() const { return m_labelBackgroundColor; } // with its opacity
    int labelOffsetX() const { return m_labelOffset.x(); }
    int labelOffsetY() const { return m_labelOffset.y(); }
    // The default offset as length in pixels and direction in degrees clockwise from the top of the screen, [0, 360).
    double labelOffset() const;
    double labelAngle() const;
    bool labelVisible() const { return m_labelVisible; }
    bool alertIndicatorVisible() const { return m_fields.alertIndicator; }
    bool trackNumVisible() const { return m_fields.trackNum; }
    bool callsignVisible() const { return m_fields.callsign; }
    bool icaoAddrVisible() const { return m_fields.icaoAddr; }
    bool squawkVisible() const { return m_fields.squawk; }
    bool levelVisible() const { return m_fields.level; }
    bool selectedAltitudeVisible() const { return m_fields.selectedAltitude; }
    bool verticalRateVisible() const { return m_fields.verticalRate; }
    bool groundSpeedVisible() const { return m_fields.groundSpeed; }
    bool headingVisible() const { return m_fields.heading; }
    bool backGroundVisible() const { return m_backgroundVisible; }
    int backgroundPadding() const { return m_backgroundPadding; }
    bool trailVisible() const { return m_trailVisible; }
    int trailDots() const { return m_trailDots; }
    bool vectorVisible() const { return m_vectorVisible; }
    bool vectorTimeMode() const { return m_vectorTimeMode; }
    int vectorRange() const { return m_vectorRange; } // minutes in time mode, else nautical miles
    bool vectorTicksVisible() const { return m_vectorTicksVisible; }
    unsigned long long selectedTrackId() const { return m_selectedTrack; }

public Q_SLOTS:
    void setTargetTypeSymbol(bool on);
    void setSensorTypeSymbol(bool on);
    void setSymbolColor(const QColor &color);
    void setSymbolSize(int pixels);
    void setLabelFont(const QFont &font);
    void setLabelColor(const QColor &color);
    void setLabelSelectedColor(const QColor &color);
    void setLabelAlertColor(const QColor &color);
    void setLabelBackgroundColor(const QColor &color);
    void setLabelOffset(int x, int y);
    // Pixels, and degrees clockwise from the top of the screen.
    void setLabelOffset(double length, double angle);
    void showLabel(bool visible);
    void showAlertIndicator(bool visible);
    void showTrackNum(bool visible);
    void showCallsign(bool visible);
    void showIcaoAddr(bool visible);
    void showSquawk(bool visible);
    void showLevel(bool visible);
    void showSelectedAltitude(bool visible);
    void showVerticalRate(bool visible);
    void showGroundSpeed(bool visible);
    void showHeading(bool visible);
    void showBackground(bool visible);
    void setBackgroundPadding(int pixels);
    void showTrail(bool visible);
    void setTrailDots(int dots);
    void showVector(bool visible);
    void setVectorTimeMode(bool timeMode);
    void setVectorRange(int range);
    void showVectorTicks(bool visible);
    void setSelected(unsigned long long id);

Q_SIGNALS:
    // A setting changed: paint again.
    void polluted();
    // What the snapshots should carry for the trails: the dots shown, 0 while trails are hidden.
    void shownTrailDotsChanged(int dots);

private:
    // What a track's label looked like when it was last laid out.
    struct LabelLine {
        QString text;
        QStaticText staticText;
        double width = 0.0; // pixels
        double y = 0.0; // pixels below the label's top
        bool alert = false;
    };
    struct LabelCacheEntry {
        quint64 contentRevision = 0; // of the snapshot and the field switches that the text was made from
        TrackLabelLines content;
        std::vector<LabelLine> lines;
        QSize size; // pixels
        int alertHeight = 0; // of the alert line, 0 without one
    };

    // One track of the frame that is being painted.
    struct Shown {
        const TrackSnapshot *track = nullptr;
        QPoint place; // on the screen
        LabelCacheEntry *label = nullptr; // null: shows none
        QRect labelRect; // on the screen, without padding
        QRect labelVisible; // bounds what other labels and the screen's edge leave to be seen
        unsigned int hiddenLines = 0; // one bit a line
    };

    void noteChange();
    void setField(bool TrackLabelFields::*field, bool visible);
    void clearLabelLayouts();

    void collectShown(const GeoView &view);
    void placeLabels();
    void findVisibleLabels(const GeoView &view);
    void scalePens(double devicePixelRatio);
    void refreshLabel(const TrackSnapshot &track);
    void layOutLabel(LabelCacheEntry &label) const;
    static LabelLine textLine(const QString &text, const QFontMetricsF &metrics);
    int shownPadding() const { return m_backgroundVisible ? m_backgroundPadding : 0; }
    QRect paddedRect(const QRect &labelRect) const;
    double vectorUnitPixels(const TrackSnapshot &track, double metresPerPixel) const;

    void paintDetails(QPainter *painter, const GeoView &view, const Shown &shown);
    void paintTrail(QPainter *painter, const GeoView &view, const TrackSnapshot &track);
    void paintVector(QPainter *painter, const GeoView &view, const Shown &shown);
    void paintLabel(QPainter *painter, const Shown &shown) const;
    void paintLabelGround(QPainter *painter, const Shown &shown) const;
    void paintLabelFrame(QPainter *painter, const Shown &shown) const;
    void paintLeader(QPainter *painter, const Shown &shown) const;
    void paintSymbol(QPainter *painter, const GeoView &view, const Shown &shown);

    QSharedPointer<const DisplaySnapshot> m_snapshot;
    QHash<unsigned long long, const TrackSnapshot *> m_tracksById; // into m_snapshot
    quint64 m_contentRevision = 1;

    bool m_targetTypeSymbol = false;
    bool m_sensorTypeSymbol = true;
    int m_symbolSize = 24;
    QPen m_symbolPen;
    QPen m_coastingPen;
    QColor m_trailColor;
    QPen m_labelPen;
    QPen m_labelSelectedPen;
    QPen m_labelAlertPen;
    QColor m_labelAlertGround; // what the alert line stands on
    QColor m_labelBackgroundColor;
    QFont m_labelFont;
    QPoint m_labelOffset;
    bool m_labelVisible = true;
    TrackLabelFields m_fields;
    bool m_backgroundVisible = true;
    int m_backgroundPadding = 3;
    bool m_trailVisible = true;
    int m_trailDots = 20;
    bool m_vectorVisible = true;
    bool m_vectorTimeMode = true;
    int m_vectorRange = 1;
    bool m_vectorTicksVisible = true;
    unsigned long long m_selectedTrack = 0;

    TrackSymbols m_symbols;
    QHash<unsigned long long, QPoint> m_labelOffsets; // chosen by the operator
    QHash<unsigned long long, LabelCacheEntry> m_labelCache;
    QHash<unsigned long long, QRect> m_labelRects; // of the last paint, pixels from the track's place

    // Of the frame that is being painted; kept from frame to frame for their memory.
    std::vector<Shown> m_shown; // the most urgent last
    CoverMask m_cover;
    std::vector<QRect> m_trailDotRects;
    std::vector<QLineF> m_vectorLines;
};
