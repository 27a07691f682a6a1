#pragma once

#include "app/setting_group.h"

#include <QObject>
#include <QRectF>
#include <QString>

class Config;
class GeoView;
class QPainter;
class TextRoom;

inline constexpr SettingGroups AllSettings = SettingGroups::fromInt(~0u);

// One layer of the map under the tracks. GUI thread only.
class GeoLayer : public QObject {
    Q_OBJECT

public:
    // The name is for the paint times; it is not shown on the map.
    explicit GeoLayer(const QString &name, QObject *parent = nullptr);

    const QString &name() const { return m_name; }
    bool visible() const { return m_visible; }

    // Called only while visible. The painter comes with the view's screen transform as its world transform (so plane
    // coordinates can be drawn as they are) and no antialiasing; its state is restored afterwards.
    virtual void paint(QPainter &painter, const GeoView &view) = 0;

    // Called while visible, before any layer paints the frame and upper layers first: takes the places of the texts
    // that paint() is going to write.
    virtual void placeTexts(const GeoView &view, TextRoom &room);

    // Where the layer has drawn a read-out, in pixels of the last frame: labels of tracks leave it free. Empty:
    // nowhere.
    virtual QRectF readOutPlace() const { return {}; }

    // Takes over the keys that concern the layer.
    virtual void applyConfig(const Config &config);
    // The groups that those keys are in: it is left alone while others change.
    virtual SettingGroups settings() const { return AllSettings; }

public Q_SLOTS:
    void setVisible(bool visible);

Q_SIGNALS:
    // The layer looks different now and wants to be painted again.
    void polluted();

private:
    const QString m_name;
    bool m_visible = true;
};
