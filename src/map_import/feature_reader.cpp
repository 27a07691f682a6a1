#include "map_import/feature_reader.h"

#ifndef VYX_WITH_GDAL

bool FeatureReader::available()
{
    return false;
}

QString FeatureReader::libraryVersion()
{
    return {};
}

bool FeatureReader::read(const QString &, const FeatureReaderOptions &, const MapImport::Progress &, const Sink &,
    MapImport::Report &, QString *error)
{
    *error = MapImport::missingText();
    return false;
}

#else

#include "map_import/watched_files.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cpl_conv.h>
#include <cpl_error.h>
#include <gdal.h>
#include <memory>
#include <mutex>
#include <ogr_api.h>
#include <ogr_srs_api.h>
#include <type_traits>

namespace {

constexpr int OpeningPercent = 50; // drivers that read everything while opening take most of the time there
constexpr int Wgs84 = 4326;
constexpr double FarthestLongitude = 360.0; // some files continue a line beyond 180 instead of jumping to -180

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MapImport)
};

template <auto Close>
struct Closer {
    template <typename Handle>
    void operator()(Handle *handle) const
    {
        Close(handle);
    }
};

template <typename Handle, auto Close>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Closer<Close>>;

void closeDataset(GDALDatasetH dataset)
{
    GDALClose(dataset);
}

using Dataset = Owned<GDALDatasetH, closeDataset>;
using Feature = Owned<OGRFeatureH, OGR_F_Destroy>;
using Geometry = Owned<OGRGeometryH, OGR_G_DestroyGeometry>;
using ReferenceSystem = Owned<OGRSpatialReferenceH, OSRRelease>;
using Transformation = Owned<OGRCoordinateTransformationH, OCTDestroyCoordinateTransformation>;

// The library's messages are ours to report; while this lives they do not go to standard error.
class QuietErrors {
public:
    QuietErrors()
    {
        CPLErrorReset();
        CPLPushErrorHandler(CPLQuietErrorHandler);
    }
    ~QuietErrors() { CPLPopErrorHandler(); }
    Q_DISABLE_COPY_MOVE(QuietErrors)

    static QString last() { return WatchedFiles::withPaths(QString::fromUtf8(CPLGetLastErrorMsg()).simplified()); }
};

Dataset openDataset(const QString &file)
{
    static std::once_flag registered;
    std::call_once(registered, GDALAllRegister);
    // Only these drivers: others might misread a file, or download what it refers to.
    const char *const drivers[] = {"GeoJSON", "LIBKML", "KML", "ESRI Shapefile", "DXF", nullptr};
    return Dataset(GDALOpenEx(
        WatchedFiles::nameOf(file).constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers, nullptr, nullptr));
}

ReferenceSystem systemOf(int epsg)
{
    ReferenceSystem system(OSRNewSpatialReference(nullptr));
    if (OSRImportFromEPSG(system.get(), epsg) != OGRERR_NONE) {
        return nullptr;
    }
    OSRSetAxisMappingStrategy(system.get(), OAMS_TRADITIONAL_GIS_ORDER);
    return system;
}

// Joins the octets read while a file is opened and the features read after that into one figure that never falls.
class ReadingProgress {
public:
    ReadingProgress(const QString &file, const MapImport::Progress &progress)
        : m_progress(progress), m_size(std::max<qint64>(1, QFileInfo(file).size())),
          m_files([this](qint64 octets) { return reportOctets(octets); })
    {
    }

    bool cancelled() const { return m_files.ended(); }
    bool reportFeatures(int percent) { return report(OpeningPercent + (100 - OpeningPercent) * percent / 100); }

private:
    bool reportOctets(qint64 octets)
    {
        return report(static_cast<int>(OpeningPercent * std::min(octets, m_size) / m_size));
    }

    bool report(int percent)
    {
        m_percent = std::max(m_percent, percent);
        return !m_progress || m_progress(m_percent);
    }

    const MapImport::Progress &m_progress;
    const qint64 m_size;
    int m_percent = 0;
    WatchedFiles m_files;
};

// Reads the layers of one data set.
class LayerReader {
public:
    LayerReader(const MapImport::Progress &progress, const FeatureReader::Sink &sink, MapImport::Report &report)
        : m_progress(progress), m_sink(sink), m_report(report)
    {
    }

    bool read(const QList<OGRLayerH> &layers, int epsg, QString *error);

private:
    bool readLayer(OGRLayerH layer, int epsg, QString *error);
    bool setSystem(OGRLayerH layer, int epsg, QString *error);
    void take(OGRFeatureH source);
    bool addShapes(OGRGeometryH geometry, ImportFeature &feature) const;
    bool addShape(OGRGeometryH geometry, ImportFeature &feature) const;
    bool reportProgress(qint64 read, qint64 total) const;
    void reportSkipped();

    const MapImport::Progress &m_progress;
    const FeatureReader::Sink &m_sink;
    MapImport::Report &m_report;
    Transformation m_transformation; // null: the coordinates are WGS-84 degrees already
    QString m_layerName;
    int m_layer = 0;
    int m_layerCount = 1;
    int m_shapeless = 0;
    int m_offGlobe = 0;
};

bool LayerReader::read(const QList<OGRLayerH> &layers, int epsg, QString *error)
{
    m_layerCount = static_cast<int>(layers.size());
    for (m_layer = 0; m_layer < m_layerCount; ++m_layer) {
        if (!readLayer(layers[m_layer], epsg, error)) {
            return false;
        }
    }
    reportSkipped();
    return true;
}

bool LayerReader::readLayer(OGRLayerH layer, int epsg, QString *error)
{
    if (!setSystem(layer, epsg, error)) {
        return false;
    }
    m_layerName = QString::fromUtf8(OGR_L_GetName(layer));
    const qint64 total = OGR_L_GetFeatureCount(layer, true);
    qint64 read = 0;
    OGR_L_ResetReading(layer);
    const auto next = [layer] {
        CPLErrorReset(); // an error that is set after the last feature is the reason why reading stopped
        return Feature(OGR_L_GetNextFeature(layer));
    };
    while (const Feature feature = next()) {
        take(feature.get());
        if (!reportProgress(++read, total)) {
            *error = Text::tr("The import was cancelled.");
            return false;
        }
    }
    if (CPLGetLastErrorType() >= CE_Failure) {
        m_report.messages.append(Text::tr("Layer \"%1\": %2").arg(m_layerName, QuietErrors::last()));
    }
    return true;
}

// False where the system is unknown, or coordinates cannot be brought from it to degrees.
bool LayerReader::setSystem(OGRLayerH layer, int epsg, QString *error)
{
    m_transformation.reset();
    const ReferenceSystem stated = epsg > 0 ? systemOf(epsg) : nullptr;
    if (epsg > 0 && !stated) {
        *error = Text::tr("There is no reference system EPSG:%1.").arg(epsg);
        return false;
    }
    const ReferenceSystem degrees = systemOf(Wgs84);
    OGRSpatialReferenceH const source = stated ? stated.get() : OGR_L_GetSpatialRef(layer);
    if (!source || !degrees || OSRIsSame(source, degrees.get())) {
        return true;
    }
    m_transformation.reset(OCTNewCoordinateTransformation(source, degrees.get()));
    if (!m_transformation) {
        *error = Text::tr("The reference system of the coordinates cannot be used: %1").arg(QuietErrors::last());
    }
    return m_transformation != nullptr;
}

void LayerReader::take(OGRFeatureH source)
{
    ImportFeature feature;
    feature.layer = m_layerName;
    for (int i = 0; i < OGR_F_GetFieldCount(source); ++i) {
        if (OGR_F_IsFieldSetAndNotNull(source, i)) {
            feature.properties.append({QString::fromUtf8(OGR_Fld_GetNameRef(OGR_F_GetFieldDefnRef(source, i))),
                QString::fromUtf8(OGR_F_GetFieldAsString(source, i))});
        }
    }
    OGRGeometryH const shape = OGR_F_GetGeometryRef(source);
    const Geometry geometry(shape ? OGR_G_GetLinearGeometry(shape, 0, nullptr) : nullptr);
    const bool isOnGlobe = !geometry || addShapes(geometry.get(), feature);
    if (isOnGlobe && feature.hasShape()) {
        ++m_report.features;
        m_sink(feature);
        return;
    }
    ++m_report.skipped;
    ++(isOnGlobe ? m_shapeless : m_offGlobe);
}

// False where a point lies outside of the globe.
bool LayerReader::addShapes(OGRGeometryH geometry, ImportFeature &feature) const
{
    if (m_transformation && OGR_G_Transform(geometry, m_transformation.get()) != OGRERR_NONE) {
        return false;
    }
    return addShape(geometry, feature);
}

// Without repeated points; a ring without its first point at the end.
bool readPoints(OGRGeometryH geometry, bool isRing, LonLatLine &points)
{
    for (int i = 0; i < OGR_G_GetPointCount(geometry); ++i) {
        const LonLat point{OGR_G_GetX(geometry, i), OGR_G_GetY(geometry, i)};
        if (!(std::abs(point.latitude) <= 90.0 && std::abs(point.longitude) <= FarthestLongitude)) {
            return false;
        }
        if (points.isEmpty() || points.last() != point) {
            points.append(point);
        }
    }
    if (isRing && points.size() > 1 && points.last() == points.first()) {
        points.removeLast();
    }
    return true;
}

// A hole without an area is left out; an outside without one leaves out the polygon.
bool addPolygon(OGRGeometryH polygon, ImportFeature &feature)
{
    LonLatArea area;
    for (int i = 0; i < OGR_G_GetGeometryCount(polygon); ++i) {
        LonLatLine ring;
        if (!readPoints(OGR_G_GetGeometryRef(polygon, i), true, ring)) {
            return false;
        }
        if (ring.size() > 2) {
            area.append(ring);
        } else if (i == 0) {
            return true;
        }
    }
    if (!area.isEmpty()) {
        feature.areas.append(area);
    }
    return true;
}

bool LayerReader::addShape(OGRGeometryH geometry, ImportFeature &feature) const
{
    LonLatLine points;
    switch (wkbFlatten(OGR_G_GetGeometryType(geometry))) {
    case wkbPoint:
        if (!readPoints(geometry, false, points)) {
            return false;
        }
        feature.points.append(points);
        return true;
    case wkbLineString:
        if (!readPoints(geometry, false, points)) {
            return false;
        }
        if (points.size() > 1) {
            feature.lines.append(points);
        }
        return true;
    case wkbPolygon:
    case wkbTriangle:
        return addPolygon(geometry, feature);
    default:
        break;
    }
    for (int i = 0; i < OGR_G_GetGeometryCount(geometry); ++i) {
        if (!addShape(OGR_G_GetGeometryRef(geometry, i), feature)) {
            return false;
        }
    }
    return true;
}

bool LayerReader::reportProgress(qint64 read, qint64 total) const
{
    constexpr qint64 Step = 256; // features; calling back for each would take longer than reading it
    if (!m_progress || (read % Step != 0 && read != total)) {
        return true;
    }
    const double part = total > 0 ? std::min(1.0, static_cast<double>(read) / static_cast<double>(total)) : 0.0;
    return m_progress(static_cast<int>(100.0 * (m_layer + part) / m_layerCount));
}

void LayerReader::reportSkipped()
{
    if (m_shapeless > 0) {
        m_report.messages.append(Text::tr("%n feature(s) without a usable shape were left out.", nullptr, m_shapeless));
    }
    if (m_offGlobe > 0) {
        m_report.messages.append(
            Text::tr("%n feature(s) outside of the globe were left out. Are the coordinates not degrees, "
                     "and the reference system not stated?",
                nullptr, m_offGlobe));
    }
}

// Empty with an error where one of the names is unknown.
QList<OGRLayerH> chosenLayers(GDALDatasetH dataset, const QStringList &names, QString *error)
{
    QList<OGRLayerH> layers;
    QStringList known;
    QStringList missing = names;
    for (int i = 0; i < GDALDatasetGetLayerCount(dataset); ++i) {
        OGRLayerH const layer = GDALDatasetGetLayer(dataset, i);
        known.append(QString::fromUtf8(OGR_L_GetName(layer)));
        if (names.isEmpty() || names.contains(known.last())) {
            layers.append(layer);
        }
        missing.removeAll(known.last());
    }
    if (!missing.isEmpty()) {
        *error = Text::tr("There is no layer \"%1\"; the file has: %2.")
                     .arg(missing.join(QLatin1String("\", \"")), known.join(QLatin1String(", ")));
        return {};
    }
    if (layers.isEmpty()) {
        *error = Text::tr("The file has no layers.");
    }
    return layers;
}

} // namespace

bool FeatureReader::available()
{
    return true;
}

QString FeatureReader::libraryVersion()
{
    return QString::fromLatin1(GDALVersionInfo("RELEASE_NAME"));
}

bool FeatureReader::read(const QString &file, const FeatureReaderOptions &options, const MapImport::Progress &progress,
    const Sink &sink, MapImport::Report &report, QString *error)
{
    const QuietErrors quiet;
    ReadingProgress reading(file, progress);
    const Dataset dataset = openDataset(file);
    if (reading.cancelled()) {
        *error = Text::tr("The import was cancelled.");
        return false;
    }
    if (!dataset) {
        const QString reason = QuietErrors::last();
        *error = Text::tr("Cannot read \"%1\": %2")
                     .arg(QFileInfo(file).fileName(),
                         reason.isEmpty() ? Text::tr("it is not GeoJSON, KML, Shapefile or DXF.") : reason);
        return false;
    }
    const QList<OGRLayerH> layers = chosenLayers(dataset.get(), options.layers, error);
    const MapImport::Progress ofFeatures = [&reading](int percent) { return reading.reportFeatures(percent); };
    const bool good = !layers.isEmpty() && LayerReader(ofFeatures, sink, report).read(layers, options.epsg, error);
    if (good && reading.cancelled()) {
        *error = Text::tr("The import was cancelled."); // and what was read is not all
    }
    return good && !reading.cancelled();
}

#endif
