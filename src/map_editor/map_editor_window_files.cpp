// The files of the map and of its style sheet.

#include "app/map_places.h"
#include "map_editor/map_editor_element_pane.h"
#include "map_editor/map_editor_meta_pane.h"
#include "map_editor/map_editor_progress.h"
#include "map_editor/map_editor_window.h"
#include "maps/map_library.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QStatusBar>

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

void MapEditorWindow::beginFileWork(const QString &text)
{
    statusBar()->clearMessage(); // of the last file
    m_progress->begin(text);
    for (QAction *action : std::as_const(m_fileActions)) {
        action->setEnabled(false);
    }
}

void MapEditorWindow::endFileWork()
{
    m_progress->end();
    for (QAction *action : std::as_const(m_fileActions)) {
        action->setEnabled(true);
    }
}

bool MapEditorWindow::afterWriting(const std::function<void()> &next)
{
    if (m_document.fileWork() != MapEditorDocument::FileWork::Writing) {
        return false;
    }
    m_afterWriting = next;
    return true;
}

void MapEditorWindow::newMap()
{
    commitFields();
    const auto again = [this] { newMap(); };
    if (afterWriting(again) || !settleChanges(true, false, again)) {
        return;
    }
    m_document.newMap();
    endFileWork();
    updateTitle();
}

void MapEditorWindow::openChosenFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Static Map"), m_document.path(), openFilter());
    if (!path.isEmpty()) {
        openFile(path);
    }
}

void MapEditorWindow::openFile(const QString &path, MapFile::Format stated)
{
    commitFields();
    const auto again = [this, path, stated] { openFile(path, stated); };
    if (afterWriting(again) || !settleChanges(true, false, again)) {
        return;
    }
    const MapFile::Format format = stated == MapFile::Unknown ? MapFile::formatFromFileName(path) : stated;
    const quint64 before = m_document.store().state().current;
    beginFileWork(tr("Reading %1").arg(QFileInfo(path).fileName()));
    m_document.load(path, format, [this, path, format, before](const MapLoad &loaded) {
        endFileWork();
        takeLoaded(loaded, path, format, before);
    });
}

void MapEditorWindow::takeLoaded(const MapLoad &loaded, const QString &path, MapFile::Format format, quint64 before)
{
    if (!loaded.data) {
        reportFailure(tr("The map could not be opened."), path, loaded.error);
        return;
    }
    commitFields();
    // What was changed while the file was being read has not been asked about.
    const auto again = [this, path, format] { openFile(path, format); };
    if (m_document.store().state().current != before && !settleChanges(true, false, again)) {
        return;
    }
    m_document.take(*loaded.data, path, format);
    updateTitle();
}

bool MapEditorWindow::openStyleSheet(const QString &path)
{
    commitFields();
    if (!settleChanges(false, true, {})) {
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

void MapEditorWindow::save()
{
    saveThen({});
}

void MapEditorWindow::saveThen(const std::function<void()> &saved)
{
    commitFields();
    const auto rest = [this, saved] {
        if (saveChangedStyles() && saved) {
            saved();
        }
    };
    if (!m_document.isModified()) {
        rest();
    } else if (m_document.canSave()) {
        saveFileThen(m_document.path(), rest);
    } else {
        saveAsThen(rest);
    }
}

bool MapEditorWindow::saveChangedStyles()
{
    if (!m_document.styles().isModified()) {
        return true;
    }
    const QString file = m_document.styles().file();
    return file.isEmpty() ? saveStyleSheetAs() : saveStyleSheet(MapPlaces::writable(file));
}

void MapEditorWindow::saveAs()
{
    saveAsThen({});
}

void MapEditorWindow::saveAsThen(const std::function<void()> &saved)
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
        return;
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += filter.contains(QStringLiteral("*.map")) ? QStringLiteral(".map") : QStringLiteral(".xml");
    }
    saveFileThen(path, saved);
}

void MapEditorWindow::saveFile(const QString &path)
{
    saveFileThen(path, {});
}

void MapEditorWindow::saveFileThen(const QString &path, const std::function<void()> &saved)
{
    if (afterWriting([this, path, saved] { saveFileThen(path, saved); })) {
        return;
    }
    const bool same = path == m_document.path();
    const MapFile::Format format = same ? m_document.format() : MapFile::formatFromFileName(path);
    m_afterWriting = saved;
    beginFileWork(tr("Saving %1").arg(QFileInfo(path).fileName()));
    m_document.saveAs(path, format, [this, path](bool done, const QString &error) { fileWritten(path, done, error); });
}

void MapEditorWindow::fileWritten(const QString &path, bool good, const QString &error)
{
    const auto next = std::exchange(m_afterWriting, {});
    endFileWork();
    updateTitle();
    if (good) {
        tell(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
        Q_EMIT saved(path);
        if (next) {
            next();
        }
        return;
    }
    m_afterClosing = {};
    if (!error.isEmpty()) {
        reportFailure(tr("The map could not be saved."), path, error);
    }
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

bool MapEditorWindow::settleChanges(bool ofMap, bool ofStyles, const std::function<void()> &settled)
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
    const int answer = question.exec();
    if (answer != QMessageBox::Save) {
        return answer == QMessageBox::Discard;
    }
    if (map) {
        saveThen(settled);
        return false;
    }
    return saveChangedStyles();
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

bool MapEditorWindow::closeThen(std::function<void()> closed)
{
    m_afterClosing = std::move(closed);
    const bool atOnce = close();
    if (atOnce || !m_afterWriting) {
        m_afterClosing = {};
    }
    return atOnce;
}

void MapEditorWindow::closeEvent(QCloseEvent *event)
{
    commitFields();
    const auto again = [this] {
        const auto closed = std::exchange(m_afterClosing, {});
        if (closeThen(closed) && closed) {
            closed();
        }
    };
    if (afterWriting(again) || !settleChanges(true, true, again)) {
        event->ignore();
        return;
    }
    discardChanges();
    endFileWork();
    QMainWindow::closeEvent(event);
}

void MapEditorWindow::reportFailure(const QString &text, const QString &fileName, const QString &reason)
{
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Static Map Editor"), text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(QStringLiteral("%1\n%2").arg(QDir::toNativeSeparators(fileName), reason));
    box->open();
}
