#include "app/app_identity.h"
#include "app/app_paths.h"
#include "profiles/profile_window.h"
#include "test_program.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

class TestProfileWindow final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_directory;

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", m_directory.path().toUtf8());
        setApplicationIdentity();
        for (const char *profile : {"tower", "approach", "demo"}) {
            AppPaths::setProfile(profile);
            AppPaths::configDir();
        }
        AppPaths::setProfile("tower"); // the one of this program
    }

    void cleanupTestCase() { AppPaths::setProfile({}); }

    // By keys alone.
    void aNameIsTypedOrChosen()
    {
        ProfileWindow window;
        QSignalSpy chosen(&window, &ProfileWindow::profileChosen);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto *name = window.findChild<QComboBox *>("profileName");
        QVERIFY(name->hasFocus() || name->lineEdit()->hasFocus());
        QCOMPARE(name->count(), 1);
        QCOMPARE(name->itemText(0), QString("approach"));

        for (const auto &[typed, problem] :
            {std::pair{"", "A name has"}, {"../x", "A name has"}, {"tower", "This window has"}}) {
            name->lineEdit()->selectAll();
            QTest::keyClick(name, Qt::Key_Delete);
            QTest::keyClicks(name, typed);
            QTest::keyClick(name, Qt::Key_Return);
            QVERIFY2(window.isVisible(), typed);
            const auto labels = window.findChildren<QLabel *>();
            const auto note = std::find_if(labels.begin(), labels.end(),
                [problem](const QLabel *label) { return label->isVisible() && label->text().startsWith(problem); });
            QVERIFY2(note != labels.end(), typed);
            QTRY_VERIFY2((*note)->height() >= (*note)->heightForWidth((*note)->width()), typed); // nothing is cut off
        }
        name->lineEdit()->selectAll();
        QTest::keyClicks(name, "apron-2");
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(!window.isVisible());
        window.show();
        QTest::keyClick(name, Qt::Key_Down);
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(chosen.size(), 2);
        QCOMPARE(chosen[0][0].toString() + ' ' + chosen[1][0].toString(), QString("apron-2 approach"));
    }
};

VYX_TEST(TestProfileWindow)
#include "tst_profile_window.moc"
