#include "raw_stream.h"
#include "raw_view/raw_export.h"
#include "raw_view/raw_record_model.h"
#include "test_program.h"

#include "astfile/file_reader.h"
#include "sirm/alenia_sir_m_radar_decoder.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using Fate = RawFilter::Fate;
Q_DECLARE_METATYPE(RawFilter)

class TestRawRecordModel final : public QObject {
    Q_OBJECT

private:
    static RawStream::Batches mixture()
    {
        RawStream stream;
        stream.add(48, "161/TRN=7 040/RHO=50.5 220=0x3c6444 240=DLH4AB 070/MODE3A=07421");
        stream.add(48, "040/RHO=5", ReportOutcome::Plot);
        stream.add(62, "040=9 060/MODE3A=01234", ReportOutcome::NoPosition);
        stream.add(QByteArray::fromHex("300006e01900"));
        stream.add(34, "000=1", ReportOutcome::SourceStatus);
        return stream.batches();
    }

    static QStringList column(const RawRecordModel &model, int column)
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            texts += model.index(row, column).data().toString();
        }
        return texts;
    }

    static QString toldBy(const AleniaSirMRadarMessage &message)
    {
        if (const auto *marker = dynamic_cast<const AleniaSirMRadarNorthMarkerMessage *>(&message)) {
            return QStringLiteral("turn %1").arg(marker->rotationPeriod());
        }
        const auto &data = dynamic_cast<const AleniaSirMRadarDataMessage &>(message);
        QString text = QStringLiteral("%1: sector %2").arg(data.radarId()).arg(data.sector());
        for (const auto &plot : data.plotRecords()) {
            text += QStringLiteral(", plot at %1").arg(qRound(plot.azimuth()));
        }
        for (const auto &track : data.trackRecords()) {
            text += QStringLiteral(", track %1").arg(track.trackNumber());
        }
        return text;
    }

private Q_SLOTS:
    void saysWhatARecordIs()
    {
        RawRecordModel model;
        model.append(mixture());
        QCOMPARE(column(model, RawRecordModel::Time).first(), QStringLiteral("12:00:00.001"));
        QCOMPARE(column(model, RawRecordModel::Form), QStringList({"CAT048", "CAT048", "CAT062", "CAT048", "CAT034"}));
        QCOMPARE(column(model, RawRecordModel::Source), QStringList({"25/0", "25/0", "25/0", "", "25/0"}));
        QCOMPARE(column(model, RawRecordModel::Identity), QStringList({"DLH4AB 7421 3C6444", "", "1234", "", ""}));
        QCOMPARE(column(model, RawRecordModel::Contents),
            QStringList({"010 040 070 220 240 161", "010 040", "010 060 040", "", "010 000"}));
        QVERIFY(column(model, RawRecordModel::Outcome)[3].endsWith("item runs past the end of the block, at octet 6"));
    }

    void filters_data()
    {
        QTest::addColumn<RawFilter>("filter");
        QTest::addColumn<QList<int>>("listed"); // of the mixture, from 0
        const auto row = [](const char *tag, const RawFilter &filter, const QList<int> &listed) {
            QTest::newRow(tag) << filter << listed;
        };
        row("nothing", {}, {0, 1, 2, 3, 4});
        row("category", {.category = 48}, {0, 1, 3});
        row("source", {.source = quint16(25 * 256)}, {0, 1, 2, 4});
        row("another source", {.source = quint16(25 * 256 + 1)}, {});
        row("used", {.fate = Fate::Used}, {0, 1, 4});
        row("dropped", {.fate = Fate::Dropped}, {2, 3});
        row("malformed", {.fate = Fate::Malformed}, {3});
        row("part of a call sign", {.identity = "lh4"}, {0});
        row("address", {.identity = "3c6444"}, {0});
        row("code of another category", {.category = 62, .identity = "1234"}, {2});
    }

    void filters()
    {
        QFETCH(RawFilter, filter);
        QFETCH(QList<int>, listed);
        RawRecordModel before;
        RawRecordModel after;
        before.setFilter(filter);
        before.append(mixture());
        after.append(mixture());
        after.setFilter(filter);
        for (const RawRecordModel *model : {&before, &after}) {
            QList<int> numbers;
            for (const RawRecord &record : model->listed()) {
                numbers += static_cast<int>(record.number) - 1;
                QCOMPARE(model->rowOf(record.number), numbers.size() - 1);
            }
            QCOMPARE(numbers, listed);
        }
    }

    // The oldest go, and what stays keeps its number, its row and its contents.
    void holdsTheNewest()
    {
        RawRecordModel model;
        model.setFilter({.category = 48});
        QPersistentModelIndex early;
        QPersistentModelIndex late;
        const QByteArray plot = encodedReport(48, "161/TRN=7");
        const auto damaged = [](qsizetype number) {
            return QByteArray::fromHex("2203e8") + QByteArray(996, '\xff') + static_cast<char>(number);
        };
        std::vector<RawRecord> lookedAt; // by somebody who takes his time
        const auto most = static_cast<qsizetype>(RawRecordModel::MostRecords);
        for (qsizetype sent = 0; sent < most * 3 / 2; sent += 1000) {
            RawStream stream;
            for (int i = 0; i < 500; ++i) {
                stream.add(plot).add(damaged(sent / 1000));
            }
            model.append(stream.batches());
            if (sent == 0) {
                model.setFilter({.category = 34});
                lookedAt = model.listed();
                model.setFilter({.category = 48});
                early = model.index(3, 0);
            } else if (sent == most) {
                late = model.index(model.rowCount() - 1, 0);
                QCOMPARE(late.data(Qt::DisplayRole).isValid(), true);
            }
        }
        QVERIFY(model.held() >= RawRecordModel::MostRecords && model.held() < RawRecordModel::MostRecords * 12 / 10);
        QCOMPARE(model.rowCount(), static_cast<int>(model.held() / 2));
        QVERIFY(!early.isValid() && late.isValid());
        const RawRecord &kept = model.record(late.row());
        QCOMPARE(model.rowOf(kept.number), late.row());
        QCOMPARE(int(kept.facts.category), 48);
        QCOMPARE(kept.number, quint64(most + 999));
        QCOMPARE(model.rowOf(1), -1);
        model.setFilter({.category = 34});
        QCOMPARE(model.record(model.rowCount() - 1).kept().octets, damaged(most * 3 / 2000 - 1));
        QCOMPARE(model.record(0).kept().octets, damaged((model.record(0).number - 1) / 1000));
        QVERIFY(std::all_of(lookedAt.begin(), lookedAt.end(),
            [&damaged](const RawRecord &record) { return record.kept().octets == damaged(0); }));
    }

    void exports()
    {
        RawRecordModel model;
        model.append(mixture());
        QTemporaryDir folder;
        const auto written = [&folder, &model](const QString &name) {
            const QString path = folder.filePath(name);
            const QString fault = exportRecords(model.listed(), path);
            QFile file(path);
            return fault.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : fault.toUtf8();
        };
        const QByteArray json = written("a.ndjson");
        QCOMPARE(json.count('\n'), 4); // all but the malformed one
        QVERIFY2(json.contains("\"240\":\"DLH4AB\"") && json.startsWith("{\"cat\":48,"), json.constData());
        const QByteArray hex = written("a.txt");
        QVERIFY2(hex.contains("2024-05-01 12:00:00.004 CAT048 - 30 00 06 e0 19 00\n"), hex.constData());
        QVERIFY(!exportRecords(model.listed(), folder.filePath("none/a.txt")).isEmpty());

        written("a.pcap");
        const auto reader = korvane::astfile::FileReader::create(korvane::astfile::RecFile::Pcap);
        QVERIFY(reader->open(folder.filePath("a.pcap"), korvane::astfile::RecFile::Pcap));
        korvane::astfile::DataPacket packet;
        reader->read(&packet);
        QCOMPARE(packet.data, encodedReport(48, "161/TRN=7 040/RHO=50.5 220=0x3c6444 240=DLH4AB 070/MODE3A=07421"));
        for (int i = 0; i < 3; ++i) {
            reader->read(&packet);
        }
        QCOMPARE(packet.data, QByteArray::fromHex("300006e01900"));
    }

    // Each record as if its message had no other, so that other programs read it.
    void capturesOfSirMCanBePlayed()
    {
        AleniaSirMRadarDataMessage data;
        data.setRadarId(3);
        data.setTimeOfDay(43200000);
        data.setSector(5);
        for (const double azimuth : {10.0, 20.0}) {
            AleniaSirMRadarPlotRecord plot;
            plot.setPolar(50.0, azimuth);
            data.addPlotRecord(plot);
        }
        AleniaSirMRadarTrackRecord track;
        track.setTrackNumber(77);
        data.addTrackRecord(track);
        AleniaSirMRadarNorthMarkerMessage marker;
        marker.setRotationPeriod(4000);
        RawStream stream;
        RawRecordModel model;
        model.append(stream.add(data).add(marker, ReportOutcome::SourceStatus).batches());
        const QTemporaryDir folder;
        QCOMPARE(exportRecords(model.listed(), folder.filePath("a.pcap")), QString());

        const auto reader = korvane::astfile::FileReader::create(korvane::astfile::RecFile::Pcap);
        QVERIFY(reader->open(folder.filePath("a.pcap"), korvane::astfile::RecFile::Pcap));
        QStringList told;
        for (auto packet = reader->read(); !reader->atEnd(); packet = reader->read()) {
            const auto decoded =
                AleniaSirMRadarDecoder::decode(reinterpret_cast<const unsigned char *>(packet.data.constData()),
                    static_cast<std::size_t>(packet.data.size()));
            QCOMPARE(decoded.size, static_cast<std::size_t>(packet.data.size()));
            told += toldBy(*decoded.message);
        }
        QCOMPARE(told,
            QStringList({"3: sector 5, plot at 10", "3: sector 5, plot at 20", "3: sector 5, track 77", "turn 4000"}));
    }
};

VYX_TEST(TestRawRecordModel)
#include "tst_raw_record_model.moc"
