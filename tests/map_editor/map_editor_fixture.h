#pragma once

#include "display/geo_map_display.h"
#include "geo/mercator_projector.h"
#include "map_editor/map_editor_window.h"
#include "plan_view/geo_widget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

inline constexpr MapElementRef ChosenLine{0, MapElementKind::Polyline, 0};
inline constexpr MapElementRef FixSymbol{0, MapElementKind::Symbol, 0};

// A map editor with a small map in a file, and a plan view beside it.
class MapEditorFixture {
protected:
    // A line and a fix in a plan view of 400 by 300 pixels, and the line chosen.
    void setUp()
    {
        m_asked.clear();
        m_dir = std::make_unique<QTemporaryDir>();
        m_map = std::make_unique<GeoMapDisplay>(&m_projector);
        m_plan = std::make_unique<GeoWidget>();
        m_plan->resize(400, 300);
        m_plan->setMapDisplay(m_map.get());
        double x = 0.0;
        double y = 0.0;
        m_projector.toCartesian(&x, &y, 48.5, 16.5);
        m_plan->setView(x, y, 1000.0);
        m_window = std::make_unique<MapEditorWindow>();
        MapElementGroup group;
        group.name = group.className = QStringLiteral("route");
        group.polylines = {{QStringLiteral("A1"), {{48.5, 16.0}, {48.5, 16.5}, {48.5, 17.0}}}};
        group.symbols = {{QStringLiteral("FIX"), QStringLiteral("waypoint"), {48.0, 16.0}}};
        MapData map;
        map.groups = {group};
        m_window->document().store().reset(map);
        QVERIFY(saved(m_dir->filePath("m.xml")));
        m_window->setGeoWidget(m_plan.get(), &m_projector);
        m_window->show();
        m_window->select(ChosenLine);
    }

    void tearDown()
    {
        m_window.reset();
        m_plan.reset();
        m_map.reset();
    }

    // Presses the button of the message box that comes up next.
    void answer(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(5, m_window.get(), [this, button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box) {
                answer(button);
                return;
            }
            m_asked = box->text() + u'\n' + box->informativeText();
            box->button(button)->click();
        });
    }

    bool saved(const QString &path)
    {
        QSignalSpy spy(m_window.get(), &MapEditorWindow::saved);
        m_window->saveFile(path);
        return spy.wait();
    }

    // What is in the file.
    MapData written() const
    {
        const MapLoad loaded = loadMap(m_dir->filePath("m.xml"), MapFile::Xml, {});
        return loaded.data ? *loaded.data : MapData();
    }

    void mouse(QEvent::Type type, const QPointF &place, Qt::MouseButtons held = Qt::NoButton)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, place, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(m_plan.get(), &event);
    }

    void click(const QPointF &place)
    {
        mouse(QEvent::MouseButtonPress, place, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, place);
    }

    QPointF pixelOf(qsizetype point) const
    {
        const GeoCoordinate place = m_window->document().store().point(ChosenLine, point);
        double x = 0.0;
        double y = 0.0;
        MercatorProjector().toCartesian(&x, &y, place.latitude(), place.longitude());
        return m_plan->screenTransform().map(QPointF(x, y));
    }

    GeoCoordinate placeOf(const QPointF &pixel) const
    {
        const QPointF point = m_plan->screenTransform().inverted().map(pixel);
        double latitude = 0.0;
        double longitude = 0.0;
        MercatorProjector().toWgs84(&latitude, &longitude, point.x(), point.y());
        return GeoCoordinate(latitude, longitude);
    }

    MapEditorStore &store() { return m_window->document().store(); }
    const QList<GeoCoordinate> &linePoints() { return store().map().groups[0].polylines[0].points; }
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    MercatorProjector m_projector;
    std::unique_ptr<GeoMapDisplay> m_map;
    std::unique_ptr<GeoWidget> m_plan;
    std::unique_ptr<MapEditorWindow> m_window;
    QString m_asked; // texts of the last message box
};
