#include "map_samples.h"

#include "maps/map_style_sheet.h"
#include "test_program.h"

#include <QTemporaryDir>

class TestMapStyleSheet : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<QByteArray>("children");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QPen>("pen");
        QTest::addColumn<QBrush>("brush");

        const QColor black(Qt::black);
        const QColor red(Qt::red);
        const QColor blue(Qt::blue);
        const auto row = [](const char *name, const char *children, const QColor &color, const QPen &pen,
                             const QBrush &brush) {
            QTest::newRow(name) << QByteArray(children) << color << pen << brush;
        };
        row("nothing", "", black, QPen(black, 1), QBrush(black));
        row("colour for all", "<color>#FF0000</color>", red, QPen(red, 1), QBrush(red));
        row("later colour wins", "<pen><color>blue</color></pen><color>red</color>", red, QPen(red, 1), QBrush(red));
        row("no colour", "<color>red</color><color>reddish</color>", red, QPen(red, 1), QBrush(red));
        row("dashes", "<pen><line>dashdotdot</line><width>3</width></pen>", black, QPen(black, 3, Qt::DashDotDotLine),
            QBrush(black));
        row("unknown line and width", "<pen><x><line>dot</line></x><line>Dash</line><width>wide</width></pen>", black,
            QPen(black, 0), QBrush(black));
        row("cross", "<brush><pattern>cross</pattern></brush>", black, QPen(black, 1), QBrush(black, Qt::CrossPattern));
    }

    void reads()
    {
        QFETCH(const QByteArray, children);
        QFETCH(const QColor, color);
        QTemporaryDir folder;
        MapStyleSheet sheet;
        QVERIFY(sheet.load(
            writtenTo(folder.filePath("s.mss"), "<map><style><class name='c'>" + children + "</class></style></map>"),
            nullptr));
        QVERIFY(sheet.isValid() && sheet.names() == QStringList("c"));
        QCOMPARE(sheet.style("c").color, color);
        QTEST(sheet.style("c").pen, "pen");
        QTEST(sheet.style("c").brush, "brush");
        QVERIFY(sheet.style("d") == defaultStyleClass("d"));
    }

    void returnsWhatItSaved()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("new/s.mss");
        MapStyleSheet sheet;
        sheet.title = "a <title>";
        sheet.comment = "c";
        for (const auto style : {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine}) {
            sheet.setStyle({QString("&%1").arg(style), QColor(1, 2, 3, 4), QPen(QColor(5, 6, 7), style, style),
                QBrush(QColor(8, 9, 10, 0), style % 2 ? Qt::CrossPattern : Qt::SolidPattern),
                QFont("Sans", 7 + style)});
        }
        QString error;
        QVERIFY2(sheet.save(path, &error), qPrintable(error));
        QVERIFY(!QFile::exists(path + ".bak"));
        MapStyleSheet loaded;
        QVERIFY2(loaded.load(path, &error), qPrintable(error));
        QCOMPARE(loaded.names(), sheet.names());
        for (const QString &name : sheet.names()) {
            QVERIFY2(loaded.style(name) == sheet.style(name), qPrintable(name));
        }
        QVERIFY(loaded.title == sheet.title && loaded.comment == sheet.comment);

        const QByteArray former = contentsOf(path);
        for (int i = 0; i < 2; ++i) { // over an older backup, too
            QCOMPARE(writtenTo(path, former), path);
            loaded.removeStyle("&1");
            QVERIFY(loaded.save(path, &error));
            QCOMPARE(contentsOf(path + ".bak"), former);
            QVERIFY(contentsOf(path) != former);
        }
    }

    void tellsFailures()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("s.mss");
        MapStyleSheet sheet;
        QString error;
        QVERIFY(!sheet.load(path, &error) && !sheet.isValid());
        QCOMPARE(error, QString("Style sheet \"%1\" does not exist or is not readable.").arg(path));
        for (const char *document : {"", "<sheet/>", "<map><style><class name='c'>", "<map/><map/>"}) {
            QVERIFY(!sheet.load(writtenTo(path, document), &error) && sheet.isEmpty() && !error.isEmpty());
        }
        QVERIFY(!sheet.save(path + "/sub/s.mss", &error));
        QCOMPARE(error, QString("Cannot create directory \"%1/sub\".").arg(path));
        QVERIFY(QDir(folder.path()).mkpath("s.mss.bak/full"));
        QVERIFY(!sheet.save(path, &error));
        QCOMPARE(error, QString("Cannot write backup file \"%1.bak\".").arg(path));
        QCOMPARE(contentsOf(path), "<map/><map/>");
    }
};

VYX_TEST(TestMapStyleSheet)
#include "tst_map_style_sheet.moc"
