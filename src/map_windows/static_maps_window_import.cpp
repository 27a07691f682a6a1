// Files in foreign formats, one after the other.

#include "app/app_paths.h"
#include "app/map_places.h"
#include "map_windows/map_conversion.h"
#include "map_windows/map_import_window.h"
#include "map_windows/static_maps_window.h"
#include "maps/map_library.h"

#include <QDir>
#include <QFileInfo>
#include <QProgressDialog>

// Beside the user's index, so that both can be moved together; among his data where that is not possible.
QString StaticMapsWindow::importFolder() const
{
    const QFileInfo folder(QFileInfo(MapPlaces::writable(m_library->indexFile())).absolutePath());
    return folder.isWritable() ? folder.absoluteFilePath() : AppPaths::appDataDir();
}

void StaticMapsWindow::importNext()
{
    if (m_toImport.isEmpty()) {
        return;
    }
    if (!MapImport::available()) {
        m_toImport.clear();
        reportFailure(tr("The file is in a format that has to be converted."), MapImport::missingText());
        return;
    }
    const QString source = m_toImport.takeFirst();
    auto *window = new MapImportWindow(source, {importFolder(), m_library->styleSheet().names()}, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(window, &MapImportWindow::importRequested, this,
        [this, source](const QString &target, const MapImport::Options &options) { convert(source, target, options); });
    connect(window, &MapImportWindow::rejected, this, &StaticMapsWindow::importNext);
    m_importWindow = window;
    window->open();
}

void StaticMapsWindow::convert(const QString &source, const QString &target, const MapImport::Options &options)
{
    QDir().mkpath(QFileInfo(target).absolutePath());
    m_conversionProgress =
        new QProgressDialog(tr("Converting %1").arg(QFileInfo(source).fileName()), tr("Cancel"), 0, 100, this);
    m_conversionProgress->setWindowModality(Qt::WindowModal);
    m_conversionProgress->setMinimumDuration(300);
    m_conversionProgress->setAutoClose(false);
    m_conversionProgress->setAutoReset(false);
    connect(m_conversion, &MapConversion::progressed, m_conversionProgress, &QProgressDialog::setValue);
    connect(m_conversionProgress, &QProgressDialog::canceled, this, [this] {
        m_conversion->cancel();
        m_conversionProgress->deleteLater();
        importNext();
    });
    m_conversion->start(source, target, options);
}

void StaticMapsWindow::conversionFinished(const QString &target, const QString &error, const QStringList &notes)
{
    if (m_conversionProgress) {
        m_conversionProgress->disconnect(this);
        m_conversionProgress->deleteLater();
    }
    if (!error.isEmpty()) {
        reportFailure(tr("The file could not be converted."), error);
    } else {
        const quint64 id = addMap(target);
        m_importNotes.remove(id);
        if (!notes.isEmpty()) {
            m_importNotes.insert(id, notes.join(u' '));
        }
        showDetails();
    }
    importNext();
}
