#pragma once

#include "display/alert_board.h"
#include "display/conflict_line_painter.h"
#include "display/edge_arrow_painter.h"
#include "display/track_frame.h"
#include "display/track_highlight_painter.h"
#include "display/track_label_cache.h"
#include "display/track_label_painter.h"
#include "display/track_label_places.h"
#include "display/track_label_visibility.h"
#include "display/track_leader_painter.h"
#include "display/track_look.h"
#include "display/track_symbol_painter.h"
#include "display/track_trail_painter.h"
#include "display/track_vector_painter.h"
#include "engine/display_snapshot.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSharedPointer>
#include <QTransform>

class Config;
class GeoView;
class QPainter;
class SensorInfo;

// The air picture: for each track of the newest snapshot its trail, speed vector, label and symbol, and the label
// places that the operator chose. Track keys are TrackSnapshot::incarnationId, 0 is none. GUI thread only.
class GeoTrackDisplay final : public QObject {
    Q_OBJECT

public:
    // Above this zoom, in metres per pixel, nothing but symbols is drawn.
    static constexpr double DetailLimit = TrackFrame::DetailLimit;

    explicit GeoTrackDisplay(QObject *parent = nullptr);
    ~GeoTrackDisplay() override;

    // Does not ask for a repaint: the widget's beat shows it. What the display kept for tracks that are gone is
    // dropped.
    void setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot);

    // The painter comes with the transform from plane to screen as its world transform and leaves with it.
    void paint(QPainter *painter);
    void paint(QPainter *painter, const GeoView &view);

    struct SymbolMeaning {
        QString meaning;
        QPixmap picture; // carries the ratio
    };
    // The symbols that the last frame showed, each once.
    std::vector<SymbolMeaning> shownSymbols(double devicePixelRatio);

    // The track whose symbol, or label as last painted, holds the widget pixel; the first in snapshot order, or 0.
    unsigned long long findTrackBySymbolPosition(const QTransform &screenTransform, int x, int y) const;
    unsigned long long findTrackByLabelPosition(const QTransform &screenTransform, int x, int y) const;

    // All tracks under a widget pixel: those by their symbols, then those by their labels, each in the order of their
    // keys, which stays the same from snapshot to snapshot.
    QList<unsigned long long> findTracks(const QTransform &screenTransform, int x, int y) const;

    bool hasTrack(unsigned long long id) const;
    // In the newest snapshot, until the next; null when it is not there.
    const TrackSnapshot *findTrack(unsigned long long id) const { return m_tracksById.value(id); }
    // False, and nothing written, when no track with a position is selected.
    bool selectedTrackCarCoordinate(QPointF &planePoint) const;

    // Label offsets are in pixels from the track to the label's upper left corner, y upwards.
    bool trackLabelOffsetDefault(unsigned long long id) const;
    QPoint trackLabelOffset(unsigned long long id) const;
    void setTrackLabelOffset(unsigned long long id, int x, int y);
    bool anyTrackLabelOffset() const { return m_places.anyPinned(); }
    // Gives up the place that the operator gave a label, or all of them.
    void resetTrackLabelOffset(unsigned long long id);
    void resetTrackLabelOffsets();
    // Places, in pixels, that labels that arrange themselves leave to the map's read-outs and to what lies over the
    // scope.
    void keepFree(const QList<QRect> &places) { m_keptFree = places; }
    // While the view is being dragged labels that arrange themselves keep to their tracks.
    void setViewHeld(bool held);

    // What of the newest snapshot asks for the operator's attention.
    const AlertBoard &alertBoard() const { return m_alerts; }
    // Of another display on the same picture, where something has been acknowledged.
    void takeAlertBoardOf(const GeoTrackDisplay &other);

    // Of what blinks: the widget's beat says when it is on. Asks for no repaint.
    void setBlinkOn(bool on) { m_blinkOn = on; }
    // The track that the pointer is on, here or in a list.
    unsigned long long hoveredTrackId() const { return m_hoveredTrack; }

    // Whose reports make the tracks: says after how long a silence a coasting track needs a look. May be null.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);
    // Takes what the settings say of tracks.
    void applyConfig(const Config &config);

    void setColors(const TrackColors &colors, Config::TrackLabelLayout layout);

    const TrackLook &look() const { return m_look; }
    // What was painted last; without tracks from a new snapshot, font or settings to the next paint.
    const TrackFrame &frame() const { return m_frame; }

    bool targetTypeSymbol() const { return m_look.targetTypeSymbol; }
    bool sensorTypeSymbol() const { return m_look.sensorTypeSymbol; }
    QColor symbolColor() const { return m_look.colors.symbol; }
    int symbolSize() const { return m_look.symbolSize; } // pixels
    QFont labelFont() const { return m_look.labelFont; }
    QColor labelColor() const { return m_look.colors.label; }
    QColor labelSelectedColor() const { return m_look.colors.labelSelected; }
    QColor labelAlertColor() const { return m_look.colors.labelAlert; }
    QColor labelBackgroundColor() const { return m_look.colors.labelBackground; } // with its opacity
    int labelOffsetX() const { return m_look.labelOffset.x(); }
    int labelOffsetY() const { return m_look.labelOffset.y(); }
    // The default offset as length in pixels and direction in degrees clockwise from the top of the screen, [0, 360).
    double labelOffset() const;
    double labelAngle() const;
    bool labelVisible() const { return m_look.labelVisible; }
    bool alertIndicatorVisible() const { return m_look.fields.alertIndicator; }
    bool trackNumVisible() const { return m_look.fields.trackNum; }
    bool callsignVisible() const { return m_look.fields.callsign; }
    bool icaoAddrVisible() const { return m_look.fields.icaoAddr; }
    bool squawkVisible() const { return m_look.fields.squawk; }
    bool levelVisible() const { return m_look.fields.level; }
    bool selectedAltitudeVisible() const { return m_look.fields.selectedAltitude; }
    bool verticalRateVisible() const { return m_look.fields.verticalRate; }
    bool groundSpeedVisible() const { return m_look.fields.groundSpeed; }
    bool headingVisible() const { return m_look.fields.heading; }
    bool backGroundVisible() const { return m_look.backgroundVisible; }
    int backgroundPadding() const { return m_look.backgroundPadding; }
    bool trailVisible() const { return m_look.trailVisible; }
    int trailDots() const { return m_look.trailDots; }
    bool vectorVisible() const { return m_look.vectorVisible; }
    bool vectorTimeMode() const { return m_look.vectorTimeMode; }
    int vectorRange() const { return m_look.vectorRange; } // minutes in time mode, else nautical miles
    bool vectorTicksVisible() const { return m_look.vectorTicksVisible; }
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
    void setHovered(unsigned long long id);

    // Alerts and emergencies; see AlertBoard.
    void acknowledge(quint64 key);
    void acknowledgeTrack(unsigned long long id);
    void acknowledgeAll();

Q_SIGNALS:
    // A setting changed: paint again.
    void polluted();
    // 0: none is.
    void selectedChanged(unsigned long long id);
    // The operator did; what the lists show of it has changed.
    void acknowledged();
    // What the snapshots should carry for the trails: the dots shown, 0 while trails are hidden.
    void shownTrailDotsChanged(int dots);
    // How many labels in view show less than they have to say, for want of room. Comes while painting.
    void shortenedLabelsChanged(int count);

private:
    template <typename Value, typename Given>
    void change(Value *value, const Given &given);
    void noteAcknowledgement(bool any);
    void setField(bool TrackLabelFields::*field, bool visible);

    void arrange();
    void placeLabels();
    void noteShortenedLabels();
    void paintDetails(QPainter *painter);
    void paintCompactDetails(QPainter *painter);
    void paintSymbols(QPainter *painter);
    void paintRaisedLabel(QPainter *painter, const ShownTrack &shown);
    bool isUnderRaisedLabel(const QPoint &place) const;

    QSharedPointer<const DisplaySnapshot> m_snapshot;
    QHash<unsigned long long, const TrackSnapshot *> m_tracksById; // into m_snapshot
    TrackLook m_look;
    unsigned long long m_selectedTrack = 0;
    unsigned long long m_hoveredTrack = 0;
    AlertBoard m_alerts;
    bool m_blinkOn = true;

    TrackLabelPlaces m_places;
    QList<QRect> m_keptFree;
    int m_shortenedLabels = 0;
    QHash<unsigned long long, QRect> m_labelRects; // of the last paint, pixels from the track's place
    TrackLabelCache m_labels;
    TrackFrame m_frame;

    TrackTrailPainter m_trailPainter;
    TrackVectorPainter m_vectorPainter;
    TrackLabelVisibility m_labelVisibility;
    TrackLabelPainter m_labelPainter;
    TrackLeaderPainter m_leaderPainter;
    TrackSymbolPainter m_symbolPainter;
    ConflictLinePainter m_conflictLinePainter;
    TrackHighlightPainter m_highlightPainter;
    EdgeArrowPainter m_edgeArrowPainter;
};
