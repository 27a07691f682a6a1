#include "vyxdisplay/window_control.h"

#include "engine/snapshot_json.h"
#include "plan_view/geo_widget.h"
#include "ui/input_session.h"
#include "ui/main_window.h"
#include "vyxdisplay/picture_json.h"
#include "vyxdisplay/terminal_status.h"

#include <QImageWriter>
#include <QSaveFile>

namespace {

// The scope has its centre on a whole pixel.
QPointF planeCenter(const GeoWidget &scope)
{
    return scope.screenTransform().inverted().map(QPointF(scope.width() / 2, scope.height() / 2));
}

// What is wrong with the values of a view; empty when they can be shown.
QString viewProblem(const QJsonObject &view)
{
    const auto outside = [&view](const char *key, double least, double greatest) {
        const double value = view[QLatin1String(key)].toDouble();
        return view.contains(QLatin1String(key)) && !(value >= least && value <= greatest)
            ? WindowControl::tr("\"%1\" has to lie between %2 and %3.").arg(QLatin1String(key)).arg(least).arg(greatest)
            : QString();
    };
    for (const QString &problem :
        {outside("latitude", -85.0, 85.0), outside("longitude", -180.0, 180.0), outside("rotation", -360.0, 360.0),
            outside("metresPerPixel", GeoWidget::MinimumZoom, GeoWidget::MaximumZoom)}) {
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return view.contains("latitude") == view.contains("longitude")
        ? QString()
        : WindowControl::tr("\"latitude\" and \"longitude\" belong together.");
}

} // namespace

QJsonObject windowSnapshot(const MainWindow &window)
{
    const QSharedPointer<const DisplaySnapshot> newest = window.newestSnapshot();
    QJsonObject picture = SnapshotJson::toJson(newest ? *newest : DisplaySnapshot());
    if (const auto statistics = window.engineHost().shared().statistics.read().value) {
        picture.insert("sources", SnapshotJson::sources(*statistics));
    }
    const QJsonObject painted = pictureJson(*window.geoWidget());
    for (auto part = painted.begin(); part != painted.end(); ++part) {
        picture.insert(part.key(), part.value());
    }
    return picture;
}

WindowControl::WindowControl(MainWindow *window) : m_window(window)
{
    m_uptime.start();
}

QJsonObject WindowControl::status() const
{
    TerminalStatus status;
    status.window = true;
    status.uptime = std::chrono::seconds(m_uptime.elapsed() / 1000);
    status.picture = m_window->newestSnapshot();
    status.statistics = m_window->engineHost().shared().statistics.read().value;
    describeInput(m_window->session(), m_window->health(), status);
    return statusJson(status);
}

QJsonObject WindowControl::snapshot() const
{
    return windowSnapshot(*m_window);
}

QString WindowControl::start()
{
    if (m_window->session().state() != InputSession::State::Closed) {
        return WindowControl::tr("The input is open already.");
    }
    m_window->openInput();
    return {};
}

QString WindowControl::stop()
{
    const InputSession &session = m_window->session();
    if (session.state() == InputSession::State::Closed && !session.waiting()) {
        return WindowControl::tr("No input is open.");
    }
    m_window->closeInput();
    return {};
}

QString WindowControl::saveScreenshot(const QString &path)
{
    QSaveFile file(path);
    QImageWriter writer(&file, "png");
    if (!file.open(QIODevice::WriteOnly)) {
        return WindowControl::tr("%1 cannot be written: %2").arg(path, file.errorString());
    }
    if (!writer.write(m_window->grab().toImage())) {
        return WindowControl::tr("%1 cannot be written: %2").arg(path, writer.errorString());
    }
    return file.commit() ? QString() : WindowControl::tr("%1 cannot be written: %2").arg(path, file.errorString());
}

QJsonObject WindowControl::view() const
{
    const GeoWidget &scope = *m_window->geoWidget();
    const GeoCoordinate center = m_window->engineHost().shared().projector.toWgs84(planeCenter(scope));
    const auto known = [&center](double degrees) { return center.isValid() ? QJsonValue(degrees) : QJsonValue(); };
    return {{"latitude", known(center.latitude())}, {"longitude", known(center.longitude())},
        {"metresPerPixel", scope.currentZoom()}, {"rotation", scope.currentRotation()}};
}

QString WindowControl::setView(const QJsonObject &view)
{
    const QString problem = viewProblem(view);
    if (!problem.isEmpty()) {
        return problem;
    }
    GeoWidget &scope = *m_window->geoWidget();
    QPointF center = planeCenter(scope);
    if (view.contains("latitude")) {
        center = m_window->engineHost().shared().projector.toCartesian(
            GeoCoordinate(view["latitude"].toDouble(), view["longitude"].toDouble()));
    }
    const double rotation = view["rotation"].toDouble(scope.currentRotation());
    scope.setView(center.x(), center.y(), view["metresPerPixel"].toDouble(scope.currentZoom()));
    scope.rotate(rotation);
    return {};
}
