#include "assessment_report/report_document.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

QString assessment::writeReport(const AssessmentReport &report, const QString &fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    const bool isPdf = ending == QLatin1String("pdf");
    if (!isPdf && ending != QLatin1String("html") && ending != QLatin1String("htm")) {
        return QCoreApplication::translate("Assessment", "%1: a report is written as .html or .pdf.").arg(fileName);
    }
    const QByteArray document = isPdf ? toPdf(report) : toHtml(report);
    QSaveFile file(fileName);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.commit();
    return isWritten ? QString() : QStringLiteral("%1: %2").arg(fileName, file.errorString());
}
