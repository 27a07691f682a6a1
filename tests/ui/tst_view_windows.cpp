#include "app/ui_state.h"
#include "test_program.h"
#include "ui/range_ring_window.h"
#include "ui/rotation_window.h"
#include "ui/set_center_window.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>

// The small windows: rotation, centre and range rings.
class TestViewWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void goesToWhatIsTyped();
    void keepsTheCentreUnlessEdited();
    void ringsApplyAndStayOpen();
    void comesBackAsLargeAsItWas();
};

namespace {

bool refuses(const QWidget &window)
{
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [&window](const QLabel *label) {
        return label->text().startsWith(QLatin1String("INVALID COORDINATE")) && label->isVisibleTo(&window);
    });
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

void TestViewWindows::goesToWhatIsTyped()
{
    const QList<std::pair<QString, QString>> entries{// an empty result is a refusal
        {"395427s1162317w", "395427S1162317W"}, {"895959N1795959W", "895959N1795959W"}, {"395427N116", ""}, {"", ""},
        {"050000N010000E", ""}, {"39x54 27n1162317e", ""}, {"39 54 27 n, 116,5 w", "395427N1163000W"}};
    for (const auto &[typed, center] : entries) {
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
        QCOMPARE(refuses(window), center.isEmpty());
        if (!center.isEmpty()) {
            QCOMPARE(entered.first().first().value<GeoCoordinate>(), GeoCoordinate::fromATCString(center));
        }
    }
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

void TestViewWindows::ringsApplyAndStayOpen()
{
    RangeRingWindow window;
    const QSignalSpy entered(&window, &RangeRingWindow::ringsEntered);
    window.setRings(GeoCoordinate(), 5, 50.0);
    window.show();
    window.accept();
    QVERIFY(window.isVisible() && refuses(window) && entered.isEmpty());
    window.setRings(GeoCoordinate(10.0, 20.0), 80, 0.0); // both beyond what rings may be
    QVERIFY(window.apply());
    QVERIFY(window.isVisible());
    QCOMPARE(entered.first().mid(1), QList<QVariant>({50, 0.1}));
    window.findChild<QSpinBox *>(QStringLiteral("ringNumber"))->setValue(3);
    window.findChild<QDoubleSpinBox *>(QStringLiteral("ringDistance"))->setValue(7.25);
    window.accept();
    QVERIFY(!window.isVisible());
    QCOMPARE(entered.last().mid(1), QList<QVariant>({3, 7.25}));
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

VYX_TEST(TestViewWindows)
#include "tst_view_windows.moc"
