#include "geo/input_validator.h"

#include <QRegularExpression>
#include <QRegularExpressionValidator>

namespace {

#define VYX_LATITUDE "([0-8][0-9])([0-5][0-9])([0-5][0-9])"
#define VYX_LONGITUDE "(0[0-9]{2}|1[0-7][0-9])([0-5][0-9])([0-5][0-9])"
#define VYX_HUNDREDTHS "(\\.[0-9]{2})"
#define VYX_OCTET "(25[0-5]|2[0-4]\\d|[01]?\\d\\d?)"

QRegularExpressionValidator ipAddr(
    QRegularExpression("(^" VYX_OCTET "\\." VYX_OCTET "\\." VYX_OCTET "\\." VYX_OCTET "$)"));
QRegularExpressionValidator icaoAddr(QRegularExpression("^[0-9a-fA-F]{0,6}$"));
QRegularExpressionValidator atcCoordinate(QRegularExpression("^" VYX_LATITUDE "[NnSs]" VYX_LONGITUDE "[EeWw]$"));
QRegularExpressionValidator atcLongitude(QRegularExpression("^" VYX_LONGITUDE "[EeWw]$"));
QRegularExpressionValidator atcLatitude(QRegularExpression("^" VYX_LATITUDE "[NnSs]$"));
QRegularExpressionValidator atcCoordinateHighPrecision(
    QRegularExpression("^" VYX_LATITUDE VYX_HUNDREDTHS "[NnSs]" VYX_LONGITUDE VYX_HUNDREDTHS "[EeWw]$"));
QRegularExpressionValidator atcLongitudeHighPrecision(QRegularExpression("^" VYX_LONGITUDE VYX_HUNDREDTHS "[EeWw]$"));
QRegularExpressionValidator atcLatitudeHighPrecision(QRegularExpression("^" VYX_LATITUDE VYX_HUNDREDTHS "[NnSs]$"));

#undef VYX_LATITUDE
#undef VYX_LONGITUDE
#undef VYX_HUNDREDTHS
#undef VYX_OCTET

} // namespace

QRegularExpressionValidator *InputValidator::ipAddrValidator()
{
    return &ipAddr;
}

QRegularExpressionValidator *InputValidator::icaoAddrValidator()
{
    return &icaoAddr;
}

QRegularExpressionValidator *InputValidator::atcCoordinateValidator()
{
    return &atcCoordinate;
}

QRegularExpressionValidator *InputValidator::atcCoordinateLongitudeValidator()
{
    return &atcLongitude;
}

QRegularExpressionValidator *InputValidator::atcCoordinateLatitudeValidator()
{
    return &atcLatitude;
}

QRegularExpressionValidator *InputValidator::atcCoordinateHighPrecisionValidator()
{
    return &atcCoordinateHighPrecision;
}

QRegularExpressionValidator *InputValidator::atcCoordinateHighPrecisionLongitudeValidator()
{
    return &atcLongitudeHighPrecision;
}

QRegularExpressionValidator *InputValidator::atcCoordinateHighPrecisionLatitudeValidator()
{
    return &atcLatitudeHighPrecision;
}
