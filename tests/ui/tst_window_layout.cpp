#include "layout_faults.h"
#include "test_program.h"
#include "ui/theme_menu.h"
#include "widgets/widget_style.h"
#include "window_fixture.h"
#include "window_tour.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

// Every window as it is seen: in dark and light, in each language, with small and large text.
class TestWindowLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void keyboardGoesWhereItIsSeen_data();
    void keyboardGoesWhereItIsSeen();

private:
    void speak(const QString &language);
    std::unique_ptr<MainWindow> openWindow(const QString &theme, int textSize);

    std::unique_ptr<WindowFixture> m_fixture;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

namespace {

constexpr QSize SmallScreen(1280, 720);

// VYX_TEST_PICTURES: a folder that the pictures of all windows are written to.
void savePicture(const QString &look, const QString &name, QWidget *window)
{
    static int number = 0;
    const QString folder = qEnvironmentVariable("VYX_TEST_PICTURES");
    if (!folder.isEmpty()) {
        QDir().mkpath(folder + u'/' + look);
        const QString file = QStringLiteral("%1 %2.png").arg(++number, 4, 10, QLatin1Char('0')).arg(name);
        window->grab().save(folder + u'/' + look + u'/' + file.simplified().replace(u' ', u'_'));
    }
}

// All of them: the test frame cuts long texts.
void report(const QStringList &faults)
{
    for (const QString &fault : faults) {
        QTest::qFail(qPrintable(fault), __FILE__, __LINE__);
    }
}

QString sizeFault(const QWidget *window, int textSize)
{
    const QSize size = window->size().expandedTo(window->minimumSizeHint());
    const bool fits = size.width() <= SmallScreen.width() && size.height() <= SmallScreen.height();
    return fits || textSize > 100 || qobject_cast<const MainWindow *>(window)
        ? QString()
        : QStringLiteral("%1 x %2 pixels").arg(size.width()).arg(size.height());
}

} // namespace

void TestWindowLayout::cleanup()
{
    speak({});
    applyFontScale(100);
    QApplication::setPalette(QPalette());
}

void TestWindowLayout::speak(const QString &language)
{
    m_translators.clear();
    for (const QString &file : {"qtbase_" + language, "vyxdisplay_" + language}) {
        auto translator = std::make_unique<QTranslator>();
        if (!language.isEmpty()
            && (translator->load(file, QLibraryInfo::path(QLibraryInfo::TranslationsPath))
                || translator->load(file, ":/translations"))) {
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    }
}

std::unique_ptr<MainWindow> TestWindowLayout::openWindow(const QString &theme, int textSize)
{
    m_fixture = std::make_unique<WindowFixture>();
    applyFontScale(textSize); // as the program does before it makes a window
    auto window = WindowFixture::makeWindow([textSize](Config &config) { config.displayFontScale = textSize; });
    window->themes()->choose(theme);
    window->resizeMainWindow(SmallScreen);
    return WindowFixture::openInput(*window) ? std::move(window) : nullptr;
}

// VYX_TEST_LOOKS: all of them, instead of those that ask most of a window.
void TestWindowLayout::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("textSize");
    const bool all = qEnvironmentVariableIsSet("VYX_TEST_LOOKS");
    for (const char *theme : {"Night", "Day"}) {
        for (const char *language : {"en", "de", "zh_CN"}) {
            for (const int textSize : {100, 150}) {
                const QByteArray name = QByteArray(theme) + '-' + language + '-' + QByteArray::number(textSize);
                if (all || name == "Night-en-100" || name == "Night-de-150" || name == "Day-zh_CN-100") {
                    QTest::newRow(name.constData()) << theme << language << textSize;
                }
            }
        }
    }
}

void TestWindowLayout::nothingIsCutOff()
{
    QFETCH(QString, theme);
    QFETCH(QString, language);
    QFETCH(int, textSize);
    speak(language);
    const auto window = openWindow(theme, textSize);
    QVERIFY(window);
    WindowTour tour(*window, m_fixture->port);
    QVERIFY(tour.fillScope());
    QStringList faults;
    tour.run([&](const QString &name, QWidget *visited) {
        savePicture(QTest::currentDataTag(), name, visited);
        QStringList found = LayoutFaults::clipped(visited);
        if (const QString large = sizeFault(visited, textSize); !large.isEmpty()) {
            found += large;
        }
        for (const QString &fault : std::as_const(found)) {
            faults += name + ": " + fault;
        }
    });
    faults += tour.problems();
    report(faults);
    QVERIFY(WindowFixture::close(*window));
}

void TestWindowLayout::keyboardGoesWhereItIsSeen_data()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"Classic", "Night", "Dusk", "Day"}) {
        QTest::newRow(theme) << theme;
    }
}

void TestWindowLayout::keyboardGoesWhereItIsSeen()
{
    QFETCH(QString, theme);
    const auto window = openWindow(theme, 100);
    QVERIFY(window);
    WindowTour tour(*window, m_fixture->port);
    QVERIFY(tour.fillScope());
    QStringList faults;
    tour.run([&](const QString &name, QWidget *visited) {
        if (visited == window.get() || visited->windowType() == Qt::Popup) {
            return;
        }
        visited->activateWindow();
        if (!QTest::qWaitForWindowActive(visited)) {
            faults += name + ": does not become active";
            return;
        }
        const QStringList found = LayoutFaults::tabOrder(visited) + LayoutFaults::unseenFocus(visited);
        for (const QString &fault : found) {
            faults += name + ": " + fault;
        }
    });
    report(faults);
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestWindowLayout)

#include "tst_window_layout.moc"
