#include "app/ui_state.h"
#include "ui/range_ring_window.h"
#include "ui/rotation_window.h"
#include "ui/set_center_window.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>

// The small windows that set the view: rotation, centre and range rings.
class TestViewWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void goesToWhatIsTyped_data();
    void goesToWhatIsTyped();
    void remembersCentres();
    void keepsTheCentreUnlessEdited();
    void ringsNeedACentre();
    void ringsApplyAndStayOpen();
    void rotationIsBroughtIntoRange_data();
    void rotationIsBroughtIntoRange();
    void comesBackAsLargeAsItWas();
};

namespace {

QString visibleNote(const QWidget &window)
{
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text() == QLatin1String("INVALID COORDINATE") && label->isVisibleTo(&window))
            return label->text();
    }
    return {};
}

} // namespace

void TestViewWindows::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestViewWindows::init()
{
    QFile::remove(UiState::filePath());
}

void TestViewWindows::goesToWhatIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("center"); // empty: refused
    QTest::newRow("upper case") << "395427N1162317E"
                                << "395427N1162317E";
    QTest::newRow("lower case") << "395427s1162317w"
                                << "395427S1162317W";
    QTest::newRow("edge of the ranges") << "895959N1795959W"
                                        << "895959N1795959W";
    QTest::newRow("incomplete") << "395427N116"
                                << "";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("two digits of longitude degrees") << "050000N010000E"
                                                     << "";
    QTest::newRow("keys that fit nowhere are not taken") << "39x54 27n1162317e"
                                                         << "395427N1162317E";
}

void TestViewWindows::goesToWhatIsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, center);
    SetCenterWindow window;
    const QSignalSpy entered(&window, &SetCenterWindow::centerEntered);
    window.setCenter(GeoCoordinate(1.0, 1.0));
    window.show();
    auto *edit = window.findChild<QLineEdit *>(QStringLiteral("center"));
    edit->clear();
    QTest::keyClicks(edit, typed);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(entered.size(), center.isEmpty() ? 0 : 1);
    QCOMPARE(window.isVisible(), center.isEmpty());
    if (center.isEmpty()) {
        QCOMPARE(visibleNote(window), QStringLiteral("INVALID COORDINATE"));
        QTest::keyClicks(edit, QStringLiteral("0"));
        QVERIFY2(visibleNote(window).isEmpty() || edit->text().isEmpty(), "the note goes when the text changes");
    } else {
        QCOMPARE(entered.first().first().value<GeoCoordinate>(), GeoCoordinate::fromATCString(center));
    }
}

void TestViewWindows::remembersCentres()
{
    for (int degrees = 10; degrees < 22; ++degrees) {
        SetCenterWindow window;
        window.setCenter(GeoCoordinate(degrees, 5.0));
        window.accept();
    }
    SetCenterWindow again;
    again.setCenter(GeoCoordinate(15.0, 5.0));
    again.accept();
    const SetCenterWindow window;
    auto *recent = window.findChild<QComboBox *>(QStringLiteral("recent"));
    QCOMPARE(recent->count(), 10);
    QCOMPARE(recent->itemText(0), QStringLiteral("150000N0050000E"));
    QCOMPARE(recent->itemText(1), QStringLiteral("210000N0050000E"));
    QCOMPARE(recent->findText(QStringLiteral("100000N0050000E")), -1);
    QCOMPARE(recent->currentIndex(), -1);
}

void TestViewWindows::keepsTheCentreUnlessEdited()
{
    const GeoCoordinate exact(39.90759712, 116.38807812);
    RangeRingWindow window;
    const QSignalSpy entered(&window, &RangeRingWindow::ringsEntered);
    window.setRings(exact, 4, 12.5);
    QVERIFY(window.apply());
    QCOMPARE(entered.first().first().value<GeoCoordinate>(), exact);
    window.findChild<QLineEdit *>(QStringLiteral("center"))->setText(QStringLiteral("010203n0040506w"));
    QVERIFY(window.apply());
    QCOMPARE(entered.last().first().value<GeoCoordinate>().toATCString(), QStringLiteral("010203N0040506W"));
}

void TestViewWindows::ringsNeedACentre()
{
    RangeRingWindow window;
    const QSignalSpy entered(&window, &RangeRingWindow::ringsEntered);
    window.setRings(GeoCoordinate(), 5, 50.0);
    window.show();
    window.accept();
    QCOMPARE(entered.size(), 0);
    QVERIFY(window.isVisible());
    QCOMPARE(visibleNote(window), QStringLiteral("INVALID COORDINATE"));
}

void TestViewWindows::ringsApplyAndStayOpen()
{
    RangeRingWindow window;
    const QSignalSpy entered(&window, &RangeRingWindow::ringsEntered);
    window.setRings(GeoCoordinate(10.0, 20.0), 80, 0.0); // both beyond what rings may be
    window.show();
    QVERIFY(window.apply());
    QVERIFY(window.isVisible());
    QCOMPARE(entered.first().at(1).toInt(), 50);
    QCOMPARE(entered.first().at(2).toDouble(), 0.1);
    window.findChild<QSpinBox *>(QStringLiteral("ringNumber"))->setValue(3);
    window.findChild<QDoubleSpinBox *>(QStringLiteral("ringDistance"))->setValue(7.25);
    window.accept();
    QVERIFY(!window.isVisible());
    QCOMPARE(entered.last().at(1).toInt(), 3);
    QCOMPARE(entered.last().at(2).toDouble(), 7.25);
}

void TestViewWindows::rotationIsBroughtIntoRange_data()
{
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("entered");
    QTest::newRow("north up") << 0.0 << 0.0;
    QTest::newRow("beyond south, clockwise") << 190.0 << -170.0;
    QTest::newRow("beyond south, counter-clockwise") << -190.5 << 169.5;
    QTest::newRow("south") << 180.0 << 180.0;
}

void TestViewWindows::rotationIsBroughtIntoRange()
{
    QFETCH(double, set);
    RotationWindow window;
    const QSignalSpy rotated(&window, &RotationWindow::rotationEntered);
    window.setRotation(set);
    window.accept();
    QTEST(rotated.first().first().toDouble(), "entered");
}

void TestViewWindows::comesBackAsLargeAsItWas()
{
    const QSize chosen(431, 287);
    {
        RangeRingWindow window;
        window.show();
        window.resize(chosen);
        window.close();
    }
    RangeRingWindow again;
    again.show();
    QCOMPARE(again.size(), chosen);
    RotationWindow other;
    other.show();
    QVERIFY2(other.size() != chosen, "each window keeps its own geometry");
}

QTEST_MAIN(TestViewWindows)
#include "tst_view_windows.moc"
