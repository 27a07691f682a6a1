#include "map_import/watched_files.h"

#ifdef VYX_WITH_GDAL

#include <cpl_vsi.h>
#include <mutex>

namespace {

constexpr auto Prefix = "/vsivyx/";

thread_local WatchedFiles *current = nullptr;

VSILFILE *fileOf(void *handle)
{
    return static_cast<VSILFILE *>(handle);
}

void *openFile(void *, const char *path, const char *access)
{
    return VSIFOpenL(path, access);
}

int statFile(void *, const char *path, VSIStatBufL *status, int flags)
{
    return VSIStatExL(path, status, flags);
}

char **readFolder(void *, const char *path, int maxFiles)
{
    return VSIReadDirEx(path, maxFiles);
}

size_t readFile(void *handle, void *buffer, size_t size, size_t count)
{
    if (current && !current->mayRead(static_cast<qint64>(size * count))) {
        return 0;
    }
    return VSIFReadL(buffer, size, count, fileOf(handle));
}

// Files are only ever read through this.
void install()
{
    VSIFilesystemPluginCallbacksStruct *callbacks = VSIAllocFilesystemPluginCallbacksStruct();
    callbacks->open = openFile;
    callbacks->stat = statFile;
    callbacks->read_dir = readFolder;
    callbacks->read = readFile;
    callbacks->tell = [](void *handle) { return VSIFTellL(fileOf(handle)); };
    callbacks->seek = [](void *handle, vsi_l_offset offset, int whence) {
        return VSIFSeekL(fileOf(handle), offset, whence);
    };
    callbacks->eof = [](void *handle) { return VSIFEofL(fileOf(handle)); };
    callbacks->close = [](void *handle) { return VSIFCloseL(fileOf(handle)); };
    VSIInstallPluginHandler(Prefix, callbacks);
    VSIFreeFilesystemPluginCallbacksStruct(callbacks);
}

} // namespace

WatchedFiles::WatchedFiles(Watch watch) : m_watch(std::move(watch))
{
    static std::once_flag installed;
    std::call_once(installed, install);
    current = this;
}

WatchedFiles::~WatchedFiles()
{
    current = nullptr;
}

QByteArray WatchedFiles::nameOf(const QString &path)
{
    return Prefix + path.toUtf8();
}

QString WatchedFiles::withPaths(const QString &message)
{
    return QString(message).remove(QLatin1String(Prefix));
}

bool WatchedFiles::mayRead(qint64 octets)
{
    m_octetsRead += octets;
    m_ended = m_ended || !m_watch(m_octetsRead);
    return !m_ended;
}

#endif
