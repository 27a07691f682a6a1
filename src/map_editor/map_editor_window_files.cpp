// The files of the map and of its style sheet.

#include "app/map_places.h"
#include "map_editor/map_editor_element_pane.h"
#include "map_editor/map_editor_meta_pane.h"
#include "map_editor/map_editor_window.h"
#include "maps/map_library.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>

namespace {

QString openFilter()
{
    return MapEditorWindow::tr("Maps (*.xml *.map *.mapx);;All files (*)");
}

QString styleFilter()
{
    return MapEditorWindow::tr("Map Style Sheet (*.mss)");
}

} // namespace

void MapEditorWindow::commitFields()
{
    m_element->commit();
    m_meta->commit();
}

void MapEditorWindow::newMap()
{
    commitFields();
    if (!settleChanges(true, false)) {
        return;
    }
    m_document.newMap();
    updateTitle();
}

void MapEditorWindow::openChosenFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Static Map"), m_document.path(), openFilter());
    if (!path.isEmpty()) {
        openFile(path);
    }
}

bool MapEditorWindow::openFile(const QString &path, MapFile::Format format)
{
    commitFields();
    if (!settleChanges(true, false)) {
        return false;
    }
    QProgressDialog progress(tr("Reading %1").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(500);
    const auto show = [&progress](qint64 read, qint64 total) {
        progress.setValue(total > 0 ? static_cast<int>(99 * read / total) : 0);
        return !progress.wasCanceled();
    };
    QString reason;
    const bool opened = m_document.open(path, &reason, format, show);
    progress.reset();
    if (!opened) {
        reportFailure(tr("The map could not be opened."), path, reason);
    }
    updateTitle();
    return opened;
}

bool MapEditorWindow::openStyleSheet(const QString &path)
{
    commitFields();
    if (!settleChanges(false, true)) {
        return false;
    }
    MapStyleSheet sheet;
    QString reason;
    if (!sheet.load(path, &reason)) {
        reportFailure(tr("The style sheet could not be opened."), path, reason);
        return false;
    }
    m_document.setStyleSheet(sheet, path);
    Q_EMIT stylePreview(sheet);
    updateTitle();
    return true;
}

void MapEditorWindow::openChosenStyleSheet()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Select Map Style Sheet"), m_document.styles().file(), styleFilter());
    if (!path.isEmpty()) {
        openStyleSheet(path);
    }
}

bool MapEditorWindow::save()
{
    commitFields();
    bool complete = true;
    if (m_document.isModified()) {
        complete = m_document.canSave() ? saveFile(m_document.path()) : saveAs();
    }
    if (complete && m_document.styles().isModified()) {
        const QString file = m_document.styles().file();
        complete = file.isEmpty() ? saveStyleSheetAs() : saveStyleSheet(MapPlaces::writable(file));
    }
    return complete;
}

bool MapEditorWindow::saveAs()
{
    commitFields();
    const QFileInfo former(m_document.path());
    QString suggested = m_document.path();
    if (!suggested.isEmpty() && !m_document.canSave()) {
        suggested = former.dir().filePath(former.completeBaseName() + QStringLiteral(".xml"));
    }
    QString filter;
    QString path = QFileDialog::getSaveFileName(
        this, tr("Save Static Map"), suggested, tr("XML map (*.xml);;Binary map (*.map)"), &filter);
    if (path.isEmpty()) {
        return false;
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += filter.contains(QStringLiteral("*.map")) ? QStringLiteral(".map") : QStringLiteral(".xml");
    }
    return saveFile(path);
}

bool MapEditorWindow::saveFile(const QString &path)
{
    QString reason;
    const bool same = path == m_document.path();
    const MapFile::Format format = same ? m_document.format() : MapFile::formatFromFileName(path);
    const bool written = m_document.saveAs(path, format, &reason);
    updateTitle();
    if (!written) {
        reportFailure(tr("The map could not be saved."), path, reason);
        return false;
    }
    tell(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
    Q_EMIT saved(path);
    return true;
}

bool MapEditorWindow::saveStyleSheetAs()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Style Sheet"), m_document.styles().file(), styleFilter());
    return !path.isEmpty() && saveStyleSheet(path);
}

bool MapEditorWindow::saveStyleSheet(const QString &path)
{
    QString reason;
    const bool written = m_document.styles().save(path, &reason);
    updateTitle();
    if (!written) {
        reportFailure(tr("The style sheet could not be saved."), path, reason);
        return false;
    }
    tell(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
    Q_EMIT styleSheetSaved(path);
    return true;
}

bool MapEditorWindow::settleChanges(bool ofMap, bool ofStyles)
{
    const bool map = ofMap && m_document.isModified();
    if (!map && !(ofStyles && m_document.styles().isModified())) {
        return true;
    }
    QMessageBox question(QMessageBox::Question, tr("Static Map Editor"),
        map ? tr("The map has been changed.") : tr("The styles have been changed."),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setInformativeText(tr("Save the changes?"));
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void MapEditorWindow::discardChanges()
{
    const MapEditorStyles &styles = m_document.styles();
    const bool foreign = m_library && m_library->styleSheetFile() != styles.file();
    const bool restyle = foreign || styles.isModified();
    const MapStyleSheet former = foreign ? m_librarySheet : styles.savedSheet();
    const QString file = foreign ? m_library->styleSheetFile() : styles.file();
    m_document.newMap();
    m_document.setStyleSheet(former, file);
    if (restyle) {
        Q_EMIT stylePreview(former);
    }
}

void MapEditorWindow::closeEvent(QCloseEvent *event)
{
    commitFields();
    if (!settleChanges(true, true)) {
        event->ignore();
        return;
    }
    discardChanges();
    QMainWindow::closeEvent(event);
}

void MapEditorWindow::reportFailure(const QString &text, const QString &fileName, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Static Map Editor"), text, QMessageBox::Ok, this);
    box.setInformativeText(QStringLiteral("%1\n%2").arg(QDir::toNativeSeparators(fileName), reason));
    box.exec();
}
