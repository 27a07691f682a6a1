#include "tile_download/tile_download_job.h"

#include "app/app_paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

QString TileDownloadJob::stateFile()
{
    return AppPaths::appDataDir() + QStringLiteral("/tile_download.json");
}

std::optional<TileDownloadJob> TileDownloadJob::stored()
{
    QFile file(stateFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray area = object["area"].toArray();
    TileDownloadJob job;
    job.service = tileServiceFromIdentifier(object["service"].toString());
    job.area = {area[0].toDouble(), area[1].toDouble(), area[2].toDouble(), area[3].toDouble()};
    job.firstLevel = object["firstLevel"].toInt();
    job.lastLevel = object["lastLevel"].toInt();
    job.archive = object["archive"].toString();
    job.termsConfirmed = object["termsConfirmed"].toBool();
    job.position = object["position"].toInteger();
    const qint64 count = job.plan().count();
    return job.service != TileService::None && job.position >= 0 && job.position < count ? std::optional(job)
                                                                                         : std::nullopt;
}

bool TileDownloadJob::store() const
{
    const QJsonObject object{{"service", tileServiceIdentifier(service)},
        {"area", QJsonArray{area.north, area.west, area.south, area.east}}, {"firstLevel", firstLevel},
        {"lastLevel", lastLevel}, {"archive", archive}, {"termsConfirmed", termsConfirmed}, {"position", position}};
    QDir().mkpath(QFileInfo(stateFile()).absolutePath());
    QSaveFile file(stateFile());
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0 && file.commit();
}

void TileDownloadJob::forget()
{
    QFile::remove(stateFile());
}
