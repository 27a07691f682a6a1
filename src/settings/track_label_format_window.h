#pragma once

#include "display/track_display_format.h"
#include "widgets/geometry_dialog.h"

#include <QColor>

class GeoTrackDisplay;
class TrackFormatForm;
class TrackFormatPreview;

// Edits the format of labels, symbols, trails and vectors beside a preview that the track layer itself paints.
// Non-modal: Apply shows the format on the plan view, so that a controller can judge it there.
class TrackLabelFormatWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The display must outlive the window.
    explicit TrackLabelFormatWindow(GeoTrackDisplay *display, QWidget *parent = nullptr);

    TrackDisplayFormat format() const;
    // The colour of the map under the preview.
    void setGround(const QColor &ground);
    // Fills the fields, and the preview's colours, from the display anew.
    void readDisplay();
    void apply();
    void accept() override;

private:
    void updatePreview();

    GeoTrackDisplay *m_display;
    QColor m_ground = QColor(173, 173, 173);
    TrackFormatForm *m_form = nullptr;
    TrackFormatPreview *m_preview = nullptr;
};
