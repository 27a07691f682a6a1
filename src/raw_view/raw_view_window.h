#pragma once

#include "app/background_pass.h"
#include "raw_view/raw_record_model.h"
#include "widgets/geometry_dialog.h"

#include <QElapsedTimer>
#include <QTimer>

class EngineHost;
class OctetView;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class RawFilterBar;
class RecordTree;

// The stream as it comes: a list of records, the one that is chosen taken apart, its octets beside. Listens as long as
// it is on the screen and not paused; the engine hands over nothing otherwise. GUI thread.
class RawViewWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The host must outlive the window.
    explicit RawViewWindow(EngineHost *host, QWidget *parent = nullptr);
    ~RawViewWindow() override;

    const RawRecordModel &model() const { return m_model; }

public Q_SLOTS:
    // What has been received since, as ten times a second.
    void pull();
    // Another input begins: what was listed is of the one before.
    void clear();
    void setPaused(bool paused);

Q_SIGNALS:
    void diagnosisRequested();

protected:
    void setVisible(bool visible) override;
    void changeEvent(QEvent *event) override;

private:
    void makeList();
    QWidget *makeBar();
    QWidget *makeDetails();
    QPushButton *addButton(const QString &name, const QString &text, const QString &toolTip);
    void takeFilter(const RawFilter &filter);
    void listen();
    void follow(bool on);
    void showChosen();
    void showState();
    QString stateText() const;
    void find(bool forward);
    void showFound(quint64 found); // 0: nothing
    void exportListed();

    EngineHost *m_host;
    std::shared_ptr<StreamTap> m_tap; // null while it does not listen
    RawRecordModel m_model;
    QTimer m_pullTimer;
    BackgroundPass m_search;
    BackgroundPass m_export;

    RawFilterBar *m_filterBar = nullptr;
    QTableView *m_list = nullptr;
    RecordTree *m_tree = nullptr;
    OctetView *m_octets = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_state = nullptr;
    QLineEdit *m_searchText = nullptr;
    QPushButton *m_pause = nullptr;
    QPushButton *m_follow = nullptr;

    quint64 m_missed = 0;
    QElapsedTimer m_rateClock;
    quint64 m_sinceRate = 0; // records since the rate was last worked out
    double m_rate = 0.0; // records a second
    QString m_note; // of the last search or export
};
