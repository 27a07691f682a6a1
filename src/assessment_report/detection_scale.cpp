#include "assessment_report/detection_scale.h"

#include <QCoreApplication>

std::optional<double> detectionscale::probability(const DetectionGrid::Cell &cell, DetectionKind kind)
{
    const qint64 looks = kind == DetectionKind::Secondary ? cell.secondaryLooks : cell.looks;
    const qint64 hits = kind == DetectionKind::Any ? cell.hits
        : kind == DetectionKind::Primary           ? cell.primaryHits
                                                   : cell.secondaryHits;
    return looks >= LeastLooks ? std::optional(static_cast<double>(hits) / static_cast<double>(looks)) : std::nullopt;
}

QColor detectionscale::color(double probability)
{
    std::size_t step = Steps.size() - 1;
    while (step > 0 && probability < Steps[step].from) {
        --step;
    }
    return QColor(Steps[step].color);
}

QString detectionscale::stepText(std::size_t step)
{
    const auto percent = [](double part) { return QString::number(part * 100, 'f', 0); };
    if (step == 0) {
        return QCoreApplication::translate("DetectionScale", "below %1 %").arg(percent(Steps[1].from));
    }
    if (step + 1 == Steps.size()) {
        return QCoreApplication::translate("DetectionScale", "%1 % and more").arg(percent(Steps[step].from));
    }
    return QCoreApplication::translate("DetectionScale", "%1 to %2 %")
        .arg(percent(Steps[step].from), percent(Steps[step + 1].from));
}
