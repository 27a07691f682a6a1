#include "ui/status_read_outs.h"

#include "geo/geo_coordinate.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "widgets/figure_font.h"
#include "widgets/urgency.h"

#include <QDateTime>
#include <QEvent>
#include <QStatusBar>

#include <cmath>

namespace {

constexpr auto RecordedLook = "color: black; background-color: #e0a030";
constexpr int OtherWidth = 130; // pixels of the bar for what stands left of the read-outs
constexpr int Spacing = 6; // of the bar between two of them

// As wide as its widest text is in the font of the moment, so that nothing jumps.
class ReadOut final : public QLabel {
public:
    ReadOut(const QString &widestText, QWidget *parent) : QLabel(parent), m_widestText(widestText)
    {
        setFont(figureFont());
        fit();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange) {
            fit();
        }
    }

private:
    void fit() { setFixedWidth(fontMetrics().horizontalAdvance(m_widestText) + 8); }

    const QString m_widestText;
};

} // namespace

StatusReadOuts::StatusReadOuts(QStatusBar *bar, Projector *projector)
    : QObject(bar), m_bar(bar), m_projector(projector),
      m_cursor(addReadOut(bar, "8959599N 17959599W", tr("Position under the pointer"))),
      m_fromSensor(addReadOut(bar, "360° 9999.9 NM", tr("Pointer from the sensor: true bearing and distance"))),
      m_scale(addReadOut(bar, tr("SCL %1").arg(14000), tr("Scale, metres per pixel"))),
      m_rotation(addReadOut(bar, tr("ROT %1%2").arg("+000", "180"), tr("Rotation of the view, degrees clockwise")))
{
    m_fromSensor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const char *const names[] = {"MSAW", "APW", "STCA"};
    const QString explanations[] = {
        tr("Minimum safe altitude warning"), tr("Area proximity warning"), tr("Short-term conflict alert")};
    for (std::size_t i = 0; i < m_alerts.size(); ++i) {
        m_alerts[i] = addReadOut(bar, " MSAW ", explanations[i]);
        m_alerts[i]->setText(names[i]);
        showAlertStatus(static_cast<int>(i) + 1, false);
    }
    const QString notHeard = tr("NOT HEARD");
    m_netsMark = addReadOut(bar, notHeard, {});
    m_netsMark->setText(notHeard);
    m_netsMark->setStyleSheet(urgencyStyle(Urgency::Caution));
    m_netsMark->hide();
    m_localClock = addReadOut(bar, "CEST 00:00:00", {});
    m_utcClock = addReadOut(bar, "REC UTC 00:00:00", {});
    setTimeZone("UTC");
    bar->installEventFilter(this);
}

bool StatusReadOuts::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_bar && (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)) {
        makeRoom();
    }
    return QObject::eventFilter(watched, event);
}

void StatusReadOuts::makeRoom()
{
    int room = m_bar->width() - OtherWidth;
    for (const QLabel *kept : {m_alerts[0], m_alerts[1], m_alerts[2], m_netsMark, m_utcClock}) {
        room -= kept->isHidden() ? 0 : kept->width() + Spacing;
    }
    for (QLabel *readOut : {m_localClock, m_cursor, m_fromSensor, m_scale, m_rotation}) {
        const bool wanted = readOut != m_localClock || m_ownZone;
        room -= wanted ? readOut->width() + Spacing : 0;
        readOut->setVisible(wanted && room >= 0);
    }
}

QLabel *StatusReadOuts::addReadOut(QStatusBar *bar, const QString &widestText, const QString &toolTip)
{
    auto *label = new ReadOut(widestText, bar);
    label->setAlignment(Qt::AlignCenter);
    label->setToolTip(toolTip);
    label->setTextFormat(Qt::PlainText);
    bar->addPermanentWidget(label);
    return label;
}

void StatusReadOuts::setSensorPlace(const GeoCoordinate &place)
{
    m_sensorPlace = place;
    m_fromSensor->clear();
}

void StatusReadOuts::showCursorPosition(const QPointF &planePoint)
{
    const GeoCoordinate place = m_projector->toWgs84(planePoint);
    m_cursor->setText(place.toATCString(GeoCoordinate::NormalPrecisionSpace));
    if (!place.isValid() || !m_sensorPlace.isValid()) {
        m_fromSensor->clear();
        return;
    }
    const int bearing = (qRound(m_sensorPlace.azimuthTo(place)) + 359) % 360 + 1; // north is 360
    const double miles = m_sensorPlace.distanceTo(place) / wgs84::MetresPerNauticalMile;
    m_fromSensor->setText(tr("%1° %2 NM").arg(bearing, 3, 10, QChar('0')).arg(miles, 0, 'f', 1));
}

void StatusReadOuts::showZoom(double metresPerPixel)
{
    m_scale->setText(tr("SCL %1").arg(std::llround(metresPerPixel), 5, 10, QChar(' ')));
}

void StatusReadOuts::showRotation(double degrees)
{
    // The view's angle comes out of its matrix with a little noise, which must show neither as figures nor as a sign.
    const double shown = std::round(degrees * 100.0) / 100.0;
    m_rotation->setText(tr("ROT %1%2").arg(shown >= 0.0 ? "+" : "-").arg(std::abs(shown), 6, 'g', -1, QChar('0')));
}

void StatusReadOuts::showAlertStatus(int type, bool on)
{
    if (type < 1 || type > static_cast<int>(m_alerts.size())) {
        return;
    }
    m_alerts[static_cast<std::size_t>(type) - 1]->setStyleSheet(
        on ? "color: white; background-color: green" : "color: white; background-color: gray");
}

void StatusReadOuts::showNetsUnheard(const QString &explanation)
{
    m_netsMark->setToolTip(explanation);
    m_netsMark->setVisible(!explanation.isEmpty());
}

void StatusReadOuts::setTimeZone(const QString &name)
{
    m_systemZone = name == "LCL";
    m_zone = m_systemZone ? QTimeZone::systemTimeZone() : QTimeZone(name.toUtf8());
    m_ownZone = m_systemZone || (m_zone.isValid() && !m_zone.id().endsWith("UTC"));
    m_localClock->setVisible(m_ownZone);
    m_localClock->setToolTip(m_ownZone ? tr("Local time, %1").arg(QString::fromUtf8(m_zone.id())) : QString());
}

void StatusReadOuts::showTime(const QDateTime &now)
{
    showClocks(now, "'UTC' HH:mm:ss", tr("Coordinated universal time"), {});
}

void StatusReadOuts::showRecordedTime(const QDateTime &time)
{
    const QString toolTip = tr("Time of the recording, %1, coordinated universal time");
    showClocks(time, "'REC UTC' HH:mm:ss", toolTip.arg(time.toUTC().date().toString(Qt::ISODate)), RecordedLook);
}

void StatusReadOuts::showClocks(
    const QDateTime &time, const QString &utcPattern, const QString &utcToolTip, const QString &look)
{
    if (m_ownZone) {
        m_localClock->setText(tr("%1 %2").arg(zoneLabel(time), time.toTimeZone(m_zone).toString("HH:mm:ss")));
    }
    m_utcClock->setText(time.toUTC().toString(utcPattern));
    m_utcClock->setToolTip(utcToolTip);
    if (m_utcClock->styleSheet() != look) { // setting one costs a new layout
        m_localClock->setStyleSheet(look);
        m_utcClock->setStyleSheet(look);
    }
}

QString StatusReadOuts::zoneLabel(const QDateTime &now) const
{
    if (m_systemZone) {
        return "LCL";
    }
    // Zones without letters of their own come as "+08"; LCL says more to whoever reads it.
    const QString letters = m_zone.abbreviation(now);
    return letters.isEmpty() || !letters[0].isLetter() || letters.size() > 4 ? QString("LCL") : letters;
}
