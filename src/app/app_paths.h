#pragma once

#include <QString>
#include <QStringList>

// Where the files of this user are. An installation is portable when a directory "data" stands beside the executable;
// everything is then kept in there. All of it works before there is an application object, once the application's name
// is set, and on any thread, setProfile aside.
namespace AppPaths {

// Decided at the first call and kept for the life of the process.
bool isPortable();

// The executable and its directory, absolute.
QString exeFile();
QString exeDir();

// For data that the application makes, such as tile files. In a portable installation and under a profile it exists
// after the call.
QString appDataDir();

// For settings; exists after the call under the same conditions.
QString configDir();

// The file of a kind of settings: "<application>_<name>.conf" in configDir(), lower-cased application name.
QString configFile(const QString &name);
QString configFile();

// "<application>_crash.log" in configDir().
QString crashLogFile();

// The form in which a path chosen by the user goes into a settings file: relative to the executable when the
// installation is portable and the path lies in its tree, which can then be moved; otherwise the path as it is.
QString storePath(const QString &path);
// The inverse.
QString resolvePath(const QString &path);

// From now on data and settings are those of a named profile, in sub-directories of the ordinary ones; an empty name
// goes back to the ordinary ones. To be called at start-up, before other threads ask for paths.
void setProfile(const QString &name);
// Empty: the ordinary ones.
QString profile();

// Letters, digits, '-', '_' and '.', at most 64, not dots alone: a name that is safe as part of a directory's.
bool isProfileName(const QString &name);
// Those that have settings, in order, the demonstration's aside.
QStringList profiles();

} // namespace AppPaths
