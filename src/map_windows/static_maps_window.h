#pragma once

#include "geo/geo_coordinate.h"
#include "map_import/map_import.h"
#include "maps/map_file.h"
#include "widgets/geometry_dialog.h"

#include <QHash>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>

#include <functional>

class MapConversion;
class MapLibrary;
class QBoxLayout;
class QLabel;
class QProgressDialog;
class QPushButton;
class QTableView;
class StaticMapsModel;

// The maps of the index: which are shown, over which others and at which zoom, how their loading goes. Changes are seen
// on the scope at once; the index is written only on request, and closing with unsaved changes asks.
class StaticMapsWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The library must outlive the window.
    explicit StaticMapsWindow(MapLibrary *library, QWidget *parent = nullptr);

    // Files of our formats are added; for one of a foreign format the operator is asked how to import it.
    void addFiles(const QStringList &files);
    // 0: none.
    quint64 selectedMap() const;
    void selectMap(quint64 id);
    // False when the index could not be written, of which the operator was told.
    bool save();
    // Asks what to do with changes that the index does not have; false when the operator cancels or saving fails.
    bool settleChanges();
    // Stays open when they are not settled.
    void reject() override;

    // Replaces the question what to do with unsaved changes: save, discard or cancel.
    void setUnsavedQuestion(std::function<QMessageBox::StandardButton()> question);

public Q_SLOTS:
    void chooseFiles();
    void removeSelected();
    void moveSelected(int rows);
    void chooseStyleSheet();

Q_SIGNALS:
    void editRequested(const QString &path, MapFile::Format format);
    void centerRequested(const GeoCoordinate &center);
    void styleSheetChosen(const QString &fileName);
    // The index was written to another file than it was read from.
    void indexFileChanged(const QString &fileName);

private:
    QPushButton *addButton(QBoxLayout *layout, const QString &text, const QString &name);
    void makeTable();
    void fitColumns();
    QBoxLayout *makeButtons();
    void makeLayout();
    void connectLibrary();
    void updateState();
    void updateButtons();
    void updateFiles();
    void showDetails(const QString &refusal = {});
    QString importFolder() const;
    QStringList unstyledClasses(const MapData &map) const;
    quint64 addMap(const QString &file);
    void importNext();
    void convert(const QString &source, const QString &target, const MapImport::Options &options);
    void conversionFinished(const QString &target, const QString &error, const QStringList &notes);
    void editSelected();
    void reloadOrCancel();
    void centerOn(quint64 id);
    QMessageBox::StandardButton askAboutChanges();
    void reportFailure(const QString &text, const QString &reason);

    MapLibrary *m_library;
    StaticMapsModel *m_model = nullptr;
    MapConversion *m_conversion = nullptr;
    std::function<QMessageBox::StandardButton()> m_unsavedQuestion;
    quint64 m_selected = 0; // to be selected again after the rows have changed
    QTableView *m_table = nullptr;
    QLabel *m_indexLabel = nullptr;
    QLabel *m_details = nullptr;
    QLabel *m_styleLabel = nullptr;
    QPointer<QProgressDialog> m_conversionProgress;
    QPointer<QDialog> m_importWindow;
    QStringList m_toImport; // waiting for the import under way to end
    QHash<quint64, QString> m_importNotes; // what was left out of a map, in words
    QPushButton *m_editButton = nullptr;
    QPushButton *m_removeButton = nullptr;
    QPushButton *m_upButton = nullptr;
    QPushButton *m_downButton = nullptr;
    QPushButton *m_reloadButton = nullptr;
    QPushButton *m_saveButton = nullptr;
};
