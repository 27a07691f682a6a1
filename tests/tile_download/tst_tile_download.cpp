#include "test_program.h"
#include "tile_download/tile_download.h"
#include "tile_download/tile_downloader.h"
#include "tile_download/tile_trial.h"
#include "tile_server.h"
#include "tiles/mb_tiles_reader.h"

#include <QDirIterator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using State = TileDownloadProgress::State;

namespace {

constexpr TileArea Area{51.0, 8.0, 49.0, 11.0};

qsizetype filesIn(const QString &directory)
{
    qsizetype count = 0;
    QDirIterator files(directory, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        ++count;
    }
    return count;
}

} // namespace

class TestTileDownload : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesTheFilesThatLayersRead();
    void goesOnWhereItWasBrokenOff();
    void pausesAndResumes();
    void writesOneFile();
    void leavesOutWhatTheServiceLacks();
    void waitsForAServiceInTrouble();
    void needsConsentAndRight();
    void cancelForgets();
    void sparesOneThreadTheOther();
    void triesAService_data();
    void triesAService();

private:
    TileDownloadJob job() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TileServer> m_server;
    Config m_config;
};

void TestTileDownload::init()
{
    TileDownloadJob::forget();
    m_dir = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<TileServer>();
    m_config = Config();
    m_config.mapTileConsent = true;
    m_config.mapTileCacheDir = m_dir->filePath("cache");
    m_config.mapOpenAipApiKey = QStringLiteral("secret");
    m_config.mapOpenAipTileServer = m_server->address();
    m_config.mapOpenAipTileDir = m_dir->filePath("tiles");
}

TileDownloadJob TestTileDownload::job() const
{
    TileDownloadJob job;
    job.service = TileService::OpenAip;
    job.area = Area;
    job.firstLevel = 6;
    job.lastLevel = 10;
    job.termsConfirmed = true;
    return job;
}

void TestTileDownload::writesTheFilesThatLayersRead()
{
    TileDownload download(job(), m_config);
    download.start();
    QTRY_COMPARE(download.progress().state, State::Finished);
    const qint64 count = job().plan().count();
    QCOMPARE(download.progress().fetched, count);
    QCOMPARE(filesIn(m_config.mapOpenAipTileDir), count);
    QCOMPARE(m_server->count(), count);
    QVERIFY(m_server->mostConcurrent() <= 6);
    QVERIFY(!TileDownloadJob::stored());
    // What is there is not fetched again.
    TileDownload again(job(), m_config);
    again.start();
    QTRY_COMPARE(again.progress().state, State::Finished);
    QCOMPARE(again.progress().present, count);
    QCOMPARE(m_server->count(), count);
}

void TestTileDownload::goesOnWhereItWasBrokenOff()
{
    m_server->setLatency(5);
    const qint64 count = job().plan().count();
    {
        TileDownload download(job(), m_config);
        download.start();
        QTRY_VERIFY(download.progress().fetched > 10);
    }
    const auto stored = TileDownloadJob::stored();
    QVERIFY(stored && stored->position > 0);
    QCOMPARE(stored->area, Area);
    TileDownload rest(*stored, m_config);
    QCOMPARE(rest.progress().done(), stored->position);
    rest.start();
    QTRY_COMPARE(rest.progress().state, State::Finished);
    QCOMPARE(rest.progress().done(), count);
    QCOMPARE(filesIn(m_config.mapOpenAipTileDir), count);
}

void TestTileDownload::pausesAndResumes()
{
    m_server->setLatency(5);
    TileDownload download(job(), m_config);
    download.start();
    QTRY_VERIFY(download.progress().fetched > 5);
    download.pause();
    QCOMPARE(download.progress().state, State::Paused);
    const qint64 fetched = download.progress().fetched;
    QTest::qWait(50);
    QCOMPARE(download.progress().fetched, fetched);
    download.resume();
    QTRY_COMPARE(download.progress().state, State::Finished);
    QCOMPARE(download.progress().done(), job().plan().count());
    QCOMPARE(download.progress().fetched, filesIn(m_config.mapOpenAipTileDir));
}

void TestTileDownload::writesOneFile()
{
    TileDownloadJob archived = job();
    archived.archive = m_dir->filePath("area.mbtiles");
    TileDownload download(archived, m_config);
    download.start();
    QTRY_COMPARE(download.progress().state, State::Finished);
    MbTilesReader reader;
    QVERIFY2(reader.open(archived.archive), qPrintable(reader.error()));
    const TilePlan plan = archived.plan();
    for (qint64 position = 0; position < plan.count(); ++position) {
        QCOMPARE(reader.tile(plan.at(position)), TileServer::tile(plan.at(position)));
    }
    QCOMPARE(filesIn(m_config.mapOpenAipTileDir), 0);
}

void TestTileDownload::leavesOutWhatTheServiceLacks()
{
    const TileIndex absent = job().plan().at(3);
    const TileIndex damaged = job().plan().at(5);
    m_server->setAnswers([=](const QByteArray &target) -> std::optional<ServerAnswer> {
        const auto index = TileServer::indexOf(target);
        return index == absent ? std::optional(TileServer::status(404))
            : index == damaged ? std::optional(TileServer::content("no image"))
                               : std::nullopt;
    });
    TileDownload download(job(), m_config);
    download.start();
    QTRY_COMPARE(download.progress().state, State::Finished);
    QCOMPARE(download.progress().unavailable, 2);
    QCOMPARE(filesIn(m_config.mapOpenAipTileDir), job().plan().count() - 2);
}

void TestTileDownload::waitsForAServiceInTrouble()
{
    m_server->setAnswer(TileServer::status(503, "1"));
    TileDownload download(job(), m_config);
    download.start();
    QTRY_COMPARE(download.progress().state, State::Waiting);
    QVERIFY(!download.progress().reason.isEmpty());
    QVERIFY(!download.progress().reason.contains("secret"));
    QVERIFY(m_server->count() <= 6);
    m_server->behave();
    QTRY_COMPARE_WITH_TIMEOUT(download.progress().state, State::Finished, 10000);
    QCOMPARE(filesIn(m_config.mapOpenAipTileDir), job().plan().count());
}

void TestTileDownload::needsConsentAndRight()
{
    TileDownloadJob forbidden = job();
    forbidden.service = TileService::GoogleMaps;
    forbidden.termsConfirmed = false;
    m_config.mapGoogleTileServer = m_server->address();
    TileDownload unconfirmed(forbidden, m_config);
    unconfirmed.start();
    QCOMPARE(unconfirmed.progress().state, State::Failed);
    QVERIFY(unconfirmed.progress().reason.contains("Google Maps"));

    m_config.mapTileConsent = false;
    TileDownload unasked(job(), m_config);
    unasked.start();
    QTest::qWait(50);
    QCOMPARE(m_server->count(), 0);
}

void TestTileDownload::cancelForgets()
{
    m_server->setLatency(5);
    TileDownloadJob archived = job();
    archived.archive = m_dir->filePath("area.mbtiles");
    TileDownload download(archived, m_config);
    download.start();
    QTRY_VERIFY(download.progress().fetched > 5);
    download.cancel();
    QCOMPARE(download.progress().state, State::Cancelled);
    QVERIFY(!TileDownloadJob::stored());
    QCOMPARE(QDir(m_dir->path()).entryList({"area*"}), QStringList());
}

// The window's side: its download runs elsewhere, and is kept when the program ends.
void TestTileDownload::sparesOneThreadTheOther()
{
    m_server->setLatency(5);
    {
        TileDownloader downloader;
        QSignalSpy progress(&downloader, &TileDownloader::progressed);
        downloader.start(job(), m_config);
        QVERIFY(downloader.active());
        downloader.pause();
        QTRY_COMPARE(downloader.progress().state, State::Paused);
        downloader.resume();
        QTRY_VERIFY(downloader.progress().fetched > 0);
    }
    QVERIFY(TileDownloadJob::stored());
    TileDownloader downloader;
    downloader.start(*TileDownloadJob::stored(), m_config);
    QTRY_COMPARE_WITH_TIMEOUT(downloader.progress().state, State::Finished, 10000);
    QVERIFY(!downloader.active());
    QCOMPARE(filesIn(m_config.mapOpenAipTileDir), job().plan().count());
}

void TestTileDownload::triesAService_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("words");
    QTest::newRow("a tile") << 200 << "256 x 256";
    QTest::newRow("none there") << 404 << "has no tile";
    QTest::newRow("key rejected") << 401 << "rejected";
    QTest::newRow("trouble") << 500 << "500";
}

void TestTileDownload::triesAService()
{
    QFETCH(const int, status);
    QFETCH(const QString, words);
    if (status != 200) {
        m_server->setAnswer(TileServer::status(status));
    }
    m_config.mapTileConsent = false; // to try is to agree to one request
    TileTrial trial;
    QSignalSpy finished(&trial, &TileTrial::finished);
    trial.start(TileService::OpenAip, m_config);
    QVERIFY(finished.isEmpty());
    QTRY_COMPARE(finished.size(), 1);
    const QString said = finished.first().first().toString();
    QVERIFY2(said.contains(words), qPrintable(said));
    QVERIFY(!said.contains("secret"));
    QCOMPARE(m_server->count(), 1);
}

VYX_TEST(TestTileDownload)
#include "tst_tile_download.moc"
