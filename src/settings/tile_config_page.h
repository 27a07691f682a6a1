#pragma once

#include "settings/config_page.h"

#include <QHash>

class FileEdit;
class TileTrial;

// Settings of the map tiles: which services lie under and over the static maps, what each of them needs, and how the
// network is reached. Of the services' own fields only those of one service are shown at a time.
class TileConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit TileConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override;
    QWidget *reveal(QWidget *field) override;
    // Nothing is tried with a service from now on.
    void barServices() { m_barred = true; }

protected:
    QString context(const QWidget *field) const override;

private:
    void addLayerRows();
    void addServiceRows();
    void addBingRows();
    void addOpenAipRows();
    void addGoogleRows();
    void addTiandituRows();
    void addFaaRows();
    void addCustomRows();
    void addNetworkRows();

    // Rows of the service under way, see addServiceRows().
    template <typename Field>
    Field *ofService(Field *field)
    {
        m_serviceFields[m_service].append(field);
        return field;
    }
    QLineEdit *addText(const QString &label, QString Config::*member, const QString &toolTip = {});
    QLineEdit *addSecret(const QString &label, QString Config::*member, const QString &toolTip = {});
    FileEdit *addDirectory(const QString &label, QString Config::*member, const QString &toolTip);
    void addTileFileRows(QString Config::*directory, bool Config::*save, bool Config::*priority, bool Config::*only);
    void addServerRow(QString Config::*member);

    void showService();
    void addTrialRow();
    void tryService();
    void showRefused();
    bool validateCustom();
    bool checkServer(QLineEdit *field);
    // What has been typed; what stands in the file keeps nobody from changing other settings.
    bool edited(const QLineEdit *field) const;

    QComboBox *m_shownService = nullptr; // whose fields are shown
    QComboBox *m_bottom = nullptr;
    TileService m_service = TileService::None; // whose rows are being added
    QHash<TileService, QList<QWidget *>> m_serviceFields;
    QList<QLineEdit *> m_servers;
    QLineEdit *m_template = nullptr;
    QLineEdit *m_header = nullptr;
    QLabel *m_trialWords = nullptr;
    TileTrial *m_trial = nullptr;
    bool m_barred = false;
    QHash<const QLineEdit *, QString> m_loadedTexts;
    Config m_loaded; // what the fields of other pages have stays as it was
};
