#include "map_samples.h"

#include "maps/map_layout.h"
#include "test_program.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

class TestMapLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void returnsWhatItSaved()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("layouts.conf");
        MapLayout layout;
        layout.addLayout("b", QTransform(0.00123456789, 0.5, -0.5, 0.25, -123456.789, 7.0), true);
        layout.addLayout("a", QTransform(1, 0, 0, 1, 2, 3), false);
        layout.addLayout("gone", {}, false);
        QVERIFY(layout.save(path));
        layout.removeLayout("gone");
        QVERIFY(layout.save(path));
        QSettings settings(path, QSettings::IniFormat);
        QCOMPARE(settings.value("defaultLayout").toString(), QString("2"));
        QCOMPARE(settings.value("layouts/2/transform").toString(), QString("0.00123457,0.5,-0.5,0.25,-123457,7"));
        QVERIFY(!settings.contains("layouts/3/name"));

        MapLayout loaded;
        QSignalSpy announced(&loaded, &MapLayout::currentLayoutChanged);
        loaded.load(path);
        QCOMPARE(loaded.layoutNames(), QStringList({"a", "b"}));
        QCOMPARE(loaded.currentLayoutName(), QString("b"));
        QCOMPARE(
            announced.value(0).value(0).value<QTransform>(), QTransform(0.00123457, 0.5, -0.5, 0.25, -123457.0, 7.0));
    }

    void loads_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("current");

        const QByteArray entry = "1\\name=a\n1\\transform=\"1,0,0,1,,5\"\n2\\name=b\n2\\transform=1,0,0,1,0,5\n";
        const QStringList both{"a", "b"};
        const auto row = [](const char *name, const QByteArray &contents, const QStringList &names,
                             const char *current) { QTest::newRow(name) << contents << names << QString(current); };
        row("nothing", "", {}, "default");
        row("current by position", "[General]\ndefaultLayout=1\n[layouts]\nsize=2\n" + entry, both, "a");
        row("current by name", "[General]\ndefaultLayout=b\n[layouts]\nsize=2\n" + entry, both, "b");
        row("false size", "[layouts]\nsize=2000000000\n" + entry, both, "default");
        row("five and seven numbers",
            "[layouts]\nsize=2\n1\\name=a\n1\\transform=1,2,3,4,5\n2\\name=b\n"
            "2\\transform=\"1,2,3,4,5,6,7\"\n",
            {}, "default");
        row("the built-in name", "[layouts]\nsize=1\n1\\name=default\n1\\transform=\"1,0,0,1,0,0\"\n", {}, "default");
        row("one key a layout", "[General]\ndefaultLayout=x\n[layouts]\nx=\"1,0,0,1,0,0\"\ny=1\n", {"x"}, "x");
    }

    void loads()
    {
        QFETCH(const QByteArray, contents);
        QTemporaryDir folder;
        MapLayout layout;
        layout.addLayout("former", {}, true);
        layout.load(writtenTo(folder.filePath("l"), contents));
        QTEST(layout.layoutNames(), "names");
        QTEST(layout.currentLayoutName(), "current");
        if (layout.layoutNames().contains("a")) {
            layout.setCurrentLayout("a");
            QCOMPARE(layout.currentLayout(), QTransform(1, 0, 0, 1, 0, 5));
        }
    }

    void fallsBackToTheDefault()
    {
        MapLayout layout;
        layout.setDefaultLayout(1000.0, 2000.0);
        QCOMPARE(layout.defaultlayout(), QTransform(0.00302231, 0, 0, 0.00302231, -3.02231, 6.04462));
        connect(&layout, &MapLayout::saveViewport, this, [](QTransform &view) { view.translate(4, 5); });
        for (const char *ignored : {"", "default"}) {
            layout.saveCurrentView(ignored, true);
        }
        QVERIFY(layout.layoutNames().isEmpty());
        layout.saveCurrentView("kept", false);
        QCOMPARE(layout.currentLayout(), layout.defaultlayout());
        layout.saveCurrentView("kept", true);
        QCOMPARE(layout.currentLayout(), QTransform::fromTranslate(4, 5));
        layout.removeLayout("kept");
        QCOMPARE(layout.currentLayout(), layout.defaultlayout());
    }
};

VYX_TEST(TestMapLayout)
#include "tst_map_layout.moc"
