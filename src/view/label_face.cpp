#include "view/label_face.h"

#include <QFile>
#include <QFontDatabase>

// A static library's resources are linked in only when something asks for them by name; the macro behind that must
// stand outside any namespace.
static bool loadFontResources()
{
    Q_INIT_RESOURCE(fonts);
    for (const char *weight : {"regular", "bold"}) {
        QFile file(QStringLiteral(":/resource/local/fonts/cascadia-code-%1.ttf").arg(QLatin1String(weight)));
        if (!file.open(QIODevice::ReadOnly) || QFontDatabase::addApplicationFontFromData(file.readAll()) < 0) {
            return false;
        }
    }
    return true;
}

void loadLabelFace()
{
    [[maybe_unused]] static const bool Loaded = loadFontResources();
}
