#pragma once

#include "help/manual.h"

#include <QTextBrowser>
#include <QTimer>

// Shows pages of the manual in the colours of the palette: headings that links lead to, tables with lines, pictures no
// wider than the view. Links to other pages are followed, with a way back; others are opened outside.
class ManualView final : public QTextBrowser {
    Q_OBJECT

public:
    // The manual must outlive the view.
    explicit ManualView(const Manual *manual, QWidget *parent = nullptr);

    // What the manual has no place for is shown as its index.
    void showPlace(const QString &place);
    // As showPlace() takes it.
    QString place() const { return placeOf(source()); }
    static QString placeOf(const QUrl &url);
    // Marks every place of what these find, on this page and on those that are shown afterwards.
    void highlight(const QList<QRegularExpression> &words);

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void dress(const QUrl &url);
    void markHeadings(const Manual::Page *page);
    void drawTables();
    void markWords();
    // At the same place, for another width or palette.
    void lay();
    int textWidth() const;

    const Manual *m_manual;
    QList<QRegularExpression> m_words;
    QTimer m_relay;
    int m_laidWidth = 0;
};
