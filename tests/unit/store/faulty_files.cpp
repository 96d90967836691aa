#include "faulty_files.h"

#include <sqlite3.h>

#include <memory>

namespace nimb::test
{
namespace
{

// SQLite knows a layer by one fixed structure, so there is one layer per process.
sqlite3_vfs layer;

struct File {
    sqlite3_file base;
    FaultyFiles *faults;

    // SQLite sets aside one block per file: ours, and the real one behind it.
    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

File &own(sqlite3_file *file)
{
    return *reinterpret_cast<File *>(file);
}

FaultyFiles &faultsOf(sqlite3_vfs *vfs)
{
    return *static_cast<FaultyFiles *>(vfs->pAppData);
}

int closeFile(sqlite3_file *file)
{
    sqlite3_file *real = own(file).real();
    return real->pMethods != nullptr ? real->pMethods->xClose(real) : SQLITE_OK;
}

int readFile(sqlite3_file *file, void *bytes, int size, sqlite3_int64 offset)
{
    if (own(file).faults->mustFail())
        return SQLITE_IOERR_READ;
    sqlite3_file *real = own(file).real();
    return real->pMethods->xRead(real, bytes, size, offset);
}

int writeFile(sqlite3_file *file, const void *bytes, int size, sqlite3_int64 offset)
{
    sqlite3_file *real = own(file).real();
    FaultyFiles &faults = *own(file).faults;
    if (faults.mustFail([&] { real->pMethods->xWrite(real, bytes, size / 2, offset); }))
        return faults.writeCode();
    return real->pMethods->xWrite(real, bytes, size, offset);
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    if (own(file).faults->mustFail())
        return SQLITE_IOERR_TRUNCATE;
    sqlite3_file *real = own(file).real();
    return real->pMethods->xTruncate(real, size);
}

int syncFile(sqlite3_file *file, int flags)
{
    if (own(file).faults->mustFail())
        return SQLITE_IOERR_FSYNC;
    sqlite3_file *real = own(file).real();
    return real->pMethods->xSync(real, flags);
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    if (own(file).faults->mustFail())
        return SQLITE_IOERR_FSTAT;
    sqlite3_file *real = own(file).real();
    return real->pMethods->xFileSize(real, size);
}

int lockFile(sqlite3_file *file, int level)
{
    if (own(file).faults->mustFail())
        return SQLITE_IOERR_LOCK;
    sqlite3_file *real = own(file).real();
    return real->pMethods->xLock(real, level);
}

int unlockFile(sqlite3_file *file, int level)
{
    sqlite3_file *real = own(file).real();
    return real->pMethods->xUnlock(real, level);
}

int checkReservedLock(sqlite3_file *file, int *held)
{
    if (own(file).faults->mustFail())
        return SQLITE_IOERR_CHECKRESERVEDLOCK;
    sqlite3_file *real = own(file).real();
    return real->pMethods->xCheckReservedLock(real, held);
}

int fileControl(sqlite3_file *file, int operation, void *argument)
{
    if (operation == SQLITE_FCNTL_LAST_ERRNO && own(file).faults->systemError() != 0) {
        *static_cast<int *>(argument) = own(file).faults->systemError();
        return SQLITE_OK;
    }
    sqlite3_file *real = own(file).real();
    return real->pMethods->xFileControl(real, operation, argument);
}

int sectorSize(sqlite3_file *file)
{
    sqlite3_file *real = own(file).real();
    return real->pMethods->xSectorSize(real);
}

int deviceCharacteristics(sqlite3_file *file)
{
    sqlite3_file *real = own(file).real();
    return real->pMethods->xDeviceCharacteristics(real);
}

constexpr sqlite3_io_methods fileMethods
    = {1,          closeFile,         readFile,    writeFile,  truncateFile,          syncFile, fileSize, lockFile,
       unlockFile, checkReservedLock, fileControl, sectorSize, deviceCharacteristics, nullptr,  nullptr,  nullptr,
       nullptr,    nullptr,           nullptr};

int openFile(sqlite3_vfs *vfs, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    FaultyFiles &faults = faultsOf(vfs);
    file->pMethods = nullptr; // SQLite then does not close it
    if (faults.mustFail())
        return SQLITE_CANTOPEN;
    own(file).faults = &faults;
    sqlite3_file *real = own(file).real();
    const int code = faults.real()->xOpen(faults.real(), name, real, flags, outFlags);
    if (code == SQLITE_OK)
        file->pMethods = &fileMethods;
    return code;
}

int deleteFile(sqlite3_vfs *vfs, const char *name, int syncFolder)
{
    FaultyFiles &faults = faultsOf(vfs);
    if (faults.mustFail())
        return SQLITE_IOERR_DELETE;
    return faults.real()->xDelete(faults.real(), name, syncFolder);
}

int accessFile(sqlite3_vfs *vfs, const char *name, int flags, int *result)
{
    FaultyFiles &faults = faultsOf(vfs);
    if (faults.mustFail())
        return SQLITE_IOERR_ACCESS;
    return faults.real()->xAccess(faults.real(), name, flags, result);
}

} // namespace

FaultyFiles::FaultyFiles() : m_real(sqlite3_vfs_find(nullptr))
{
    layer = *m_real; // what is not about files stays as it is
    layer.iVersion = 1;
    layer.zName = "faulty";
    layer.pNext = nullptr;
    layer.pAppData = this;
    layer.szOsFile = static_cast<int>(sizeof(File)) + m_real->szOsFile;
    layer.xOpen = openFile;
    layer.xDelete = deleteFile;
    layer.xAccess = accessFile;
    // These three look their own data up in the structure they are given.
    layer.xGetLastError = [](sqlite3_vfs *vfs, int size, char *text) {
        if (const int error = faultsOf(vfs).systemError(); error != 0)
            return error;
        sqlite3_vfs *real = faultsOf(vfs).real();
        return real->xGetLastError(real, size, text);
    };
    layer.xFullPathname = [](sqlite3_vfs *vfs, const char *name, int size, char *path) {
        sqlite3_vfs *real = faultsOf(vfs).real();
        return real->xFullPathname(real, name, size, path);
    };
    layer.xCurrentTime = [](sqlite3_vfs *vfs, double *time) {
        sqlite3_vfs *real = faultsOf(vfs).real();
        return real->xCurrentTime(real, time);
    };
    sqlite3_vfs_register(&layer, 1);
}

FaultyFiles::~FaultyFiles()
{
    sqlite3_vfs_unregister(&layer);
    sqlite3_vfs_register(m_real, 1);
}

void FaultyFiles::failAt(int n, Lasting lasting, int writeCode, int systemError)
{
    heal();
    m_at = n;
    m_lasting = lasting;
    m_writeCode = writeCode;
    m_systemError = systemError;
}

void FaultyFiles::doAt(int n, std::function<void()> action)
{
    heal();
    m_at = n;
    m_action = std::move(action);
}

void FaultyFiles::heal()
{
    m_calls = 0;
    m_at = 0;
    m_systemError = 0;
    m_action = nullptr;
}

bool FaultyFiles::mustFail(const std::function<void()> &halfOfIt)
{
    ++m_calls;
    if (m_action) {
        if (m_calls != m_at)
            return false;
        if (halfOfIt)
            halfOfIt();
        m_action();
        return false;
    }
    return m_at > 0 && (m_calls == m_at || (m_calls > m_at && m_lasting == Lasting::forGood));
}

} // namespace nimb::test
