#include "app/theme_library.h"
#include "test_program.h"
#include "view/contrast.h"
#include "widgets/text_colors.h"

#include <QTest>

// What can be read in the windows around the scope, in every theme that colours them.
class TestWindowColors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsAreRead_data() { addThemes(); }
    void textsAreRead();
    void statesAreToldApart_data() { addThemes(); }
    void statesAreToldApart();

private:
    static void addThemes();
};

void TestWindowColors::addThemes()
{
    QTest::addColumn<QPalette>("palette");
    const ThemeLibrary library(QStringLiteral("none"));
    for (const Theme &theme : library.themes()) {
        if (const std::optional<QPalette> palette = theme.palette()) {
            QTest::newRow(qPrintable(theme.name())) << *palette;
        }
    }
}

void TestWindowColors::textsAreRead()
{
    QFETCH(const QPalette, palette);
    using Role = QPalette::ColorRole;
    const QList<std::pair<Role, QList<Role>>> grounds{
        {QPalette::WindowText, {QPalette::Window}},
        {QPalette::Text, {QPalette::Base, QPalette::AlternateBase, QPalette::Window}},
        {QPalette::ButtonText, {QPalette::Button, QPalette::Window}},
        {QPalette::HighlightedText, {QPalette::Highlight}},
        {QPalette::Link, {QPalette::Base, QPalette::Window}},
        {QPalette::LinkVisited, {QPalette::Base, QPalette::Window}},
        {QPalette::ToolTipText, {QPalette::ToolTipBase}},
        {QPalette::PlaceholderText, {QPalette::Base}},
    };
    for (const auto &[text, under] : grounds) {
        for (const Role ground : under) {
            const double ratio = contrastRatio(palette.color(text), palette.color(ground));
            QVERIFY2(ratio >= 4.5, qPrintable(QString("role %1 on %2: %3").arg(text).arg(ground).arg(ratio)));
        }
    }
    for (const Role ground : {QPalette::Base, QPalette::AlternateBase, QPalette::Window}) {
        for (const auto color : {quietTextColor, warningTextColor, alarmTextColor}) {
            const double ratio = contrastRatio(color(palette), palette.color(ground));
            QVERIFY2(ratio >= 4.5, qPrintable(QString("%1: %2").arg(color(palette).name()).arg(ratio)));
        }
    }
}

void TestWindowColors::statesAreToldApart()
{
    QFETCH(const QPalette, palette);
    for (const auto &[text, ground] : {std::pair(QPalette::WindowText, QPalette::Window),
             {QPalette::Text, QPalette::Base}, {QPalette::ButtonText, QPalette::Button}}) {
        const QColor disabled = palette.color(QPalette::Disabled, text);
        const QColor under = palette.color(QPalette::Disabled, ground);
        QVERIFY2(contrastRatio(disabled, under) >= 2.0, "can be made out");
        QVERIFY2(contrastRatio(palette.color(QPalette::Active, text), disabled) >= 2.0, "is not taken for enabled");
    }
    QVERIFY(contrastRatio(palette.color(QPalette::Highlight), palette.color(QPalette::Base)) >= 2.0);
    QVERIFY(contrastRatio(palette.color(QPalette::Window), palette.color(QPalette::Base)) >= 1.1);
}

VYX_TEST(TestWindowColors)
#include "tst_window_colors.moc"
