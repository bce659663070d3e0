#include "support/test_disk.h"

#include <QFile>
#include <QFileInfo>

namespace velmora::test
{

namespace
{

constexpr int sector = 512;

/// A file as the engine holds it; the real one's data follow.
struct DiskFile {
    sqlite3_file base;
    TestDisk *disk;
    QString *name;

    static DiskFile &of(sqlite3_file *file) { return *reinterpret_cast<DiskFile *>(file); }
    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

sqlite3_file *realOf(sqlite3_file *file)
{
    return DiskFile::of(file).real();
}

int closeFile(sqlite3_file *file)
{
    delete DiskFile::of(file).name;
    return realOf(file)->pMethods->xClose(realOf(file));
}

int readFile(sqlite3_file *file, void *target, int count, sqlite3_int64 offset)
{
    return realOf(file)->pMethods->xRead(realOf(file), target, count, offset);
}

/// Runs a change on the real file unless the fault strikes, and notes it.
template <class Act>
int change(sqlite3_file *file, TestDisk::Change::Kind kind, qint64 offset, QByteArray data, Act &&act)
{
    DiskFile &held = DiskFile::of(file);
    int result = held.disk->strike(*held.name);
    if (result == SQLITE_OK) result = act(held.real());
    if (result == SQLITE_OK) held.disk->note({kind, *held.name, offset, std::move(data)});
    return result;
}

int writeFile(sqlite3_file *file, const void *source, int count, sqlite3_int64 offset)
{
    return change(file, TestDisk::Change::Kind::Write, offset, {static_cast<const char *>(source), count},
                  [&](sqlite3_file *real) { return real->pMethods->xWrite(real, source, count, offset); });
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    return change(file, TestDisk::Change::Kind::Truncate, size, {},
                  [&](sqlite3_file *real) { return real->pMethods->xTruncate(real, size); });
}

/// The real disk is spared: what counts is that the engine asked.
int syncFile(sqlite3_file *file, int)
{
    return change(file, TestDisk::Change::Kind::Sync, 0, {}, [](sqlite3_file *) { return SQLITE_OK; });
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    return realOf(file)->pMethods->xFileSize(realOf(file), size);
}

int lockFile(sqlite3_file *file, int level)
{
    return realOf(file)->pMethods->xLock(realOf(file), level);
}

int unlockFile(sqlite3_file *file, int level)
{
    return realOf(file)->pMethods->xUnlock(realOf(file), level);
}

int reservedLock(sqlite3_file *file, int *held)
{
    return realOf(file)->pMethods->xCheckReservedLock(realOf(file), held);
}

int controlFile(sqlite3_file *file, int code, void *argument)
{
    return realOf(file)->pMethods->xFileControl(realOf(file), code, argument);
}

int sectorSize(sqlite3_file *file)
{
    return realOf(file)->pMethods->xSectorSize(realOf(file));
}

int characteristics(sqlite3_file *file)
{
    return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
}

/// The first version of the methods: no memory map, so that every change is seen.
const sqlite3_io_methods methods{1,           closeFile,  readFile,        writeFile,  truncateFile,
                                 syncFile,    fileSize,   lockFile,        unlockFile, reservedLock,
                                 controlFile, sectorSize, characteristics, nullptr,    nullptr,
                                 nullptr,     nullptr,    nullptr,         nullptr};

TestDisk &diskOf(sqlite3_vfs *vfs)
{
    return *static_cast<TestDisk *>(vfs->pAppData);
}

QString nameOf(const char *path)
{
    return path ? QFileInfo(QFile::decodeName(path)).fileName() : QString();
}

int openFile(sqlite3_vfs *vfs, const char *path, sqlite3_file *file, int flags, int *outFlags)
{
    TestDisk &disk = diskOf(vfs);
    DiskFile &held = DiskFile::of(file);
    held.base.pMethods = nullptr;
    const QString name = nameOf(path);
    const bool made = path && (flags & SQLITE_OPEN_CREATE) && !QFileInfo::exists(QFile::decodeName(path));
    if (made && disk.strike(name) != SQLITE_OK) return SQLITE_CANTOPEN;
    const int result = disk.real()->xOpen(disk.real(), path, held.real(), flags, outFlags);
    if (result != SQLITE_OK) return result;
    held.base.pMethods = &methods;
    held.disk = &disk;
    held.name = new QString(name);
    return SQLITE_OK;
}

int removeFile(sqlite3_vfs *vfs, const char *path, int syncFolder)
{
    TestDisk &disk = diskOf(vfs);
    int result = disk.strike(nameOf(path));
    if (result == SQLITE_OK) result = disk.real()->xDelete(disk.real(), path, syncFolder);
    if (result == SQLITE_OK) disk.note({TestDisk::Change::Kind::Remove, nameOf(path)});
    return result;
}

void applyWhole(QByteArray &content, const TestDisk::Change &change)
{
    const qsizetype end = change.offset + change.data.size();
    if (change.kind == TestDisk::Change::Kind::Truncate) return content.resize(change.offset);
    if (content.size() < end) content.append(QByteArray(end - content.size(), '\0'));
    content.replace(change.offset, change.data.size(), change.data);
}

/// A change that was not synchronised: there, not there, or there in some of its sectors.
void applyByChance(QByteArray &content, const TestDisk::Change &change, std::mt19937 &random)
{
    const auto chance = random() % 3;
    if (chance == 0) return;
    if (chance == 1 || change.kind == TestDisk::Change::Kind::Truncate) return applyWhole(content, change);
    for (qsizetype at = 0; at < change.data.size(); at += sector) {
        if (random() % 2 == 0) continue;
        applyWhole(content, {change.kind, change.file, change.offset + at, change.data.mid(at, sector)});
    }
}

} // namespace

TestDisk::TestDisk() : m_real(sqlite3_vfs_find(nullptr)), m_vfs(*m_real)
{
    m_vfs.zName = "velmora-test-disk";
    m_vfs.pNext = nullptr;
    m_vfs.pAppData = this;
    m_vfs.szOsFile = static_cast<int>(sizeof(DiskFile)) + m_real->szOsFile;
    m_vfs.xOpen = openFile;
    m_vfs.xDelete = removeFile;
    sqlite3_vfs_register(&m_vfs, 1);
}

TestDisk::~TestDisk()
{
    sqlite3_vfs_unregister(&m_vfs);
    sqlite3_vfs_register(m_real, 1);
}

void TestDisk::failAfter(int changes, int result, const QString &file, bool lasts)
{
    m_left = changes;
    m_result = result;
    m_target = file;
    m_lasts = lasts;
    m_struck = false;
}

int TestDisk::strike(const QString &file)
{
    if (m_result == SQLITE_OK || !file.startsWith(m_target)) return SQLITE_OK;
    if (m_left-- > 0) return SQLITE_OK;
    m_struck = true;
    const int result = m_result;
    if (!m_lasts) heal();
    return result;
}

void TestDisk::remember(const QStringList &paths)
{
    m_remembers = true;
    m_start.clear();
    m_changes.clear();
    for (const QString &path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) m_start[QFileInfo(path).fileName()] = file.readAll();
    }
}

void TestDisk::note(Change change)
{
    if (m_remembers) m_changes.push_back(std::move(change));
}

QMap<QString, QByteArray> TestDisk::afterCut(int moment, std::mt19937 &random) const
{
    QMap<QString, QByteArray> kept = m_start;
    QMap<QString, std::vector<const Change *>> loose;
    for (int i = 0; i < moment; ++i) {
        const Change &change = m_changes[static_cast<std::size_t>(i)];
        auto &waiting = loose[change.file];
        if (change.kind == Change::Kind::Sync) {
            for (const Change *one : waiting)
                applyWhole(kept[change.file], *one);
            waiting.clear();
        } else if (change.kind == Change::Kind::Remove) {
            kept.remove(change.file);
            waiting.clear();
        } else {
            waiting.push_back(&change);
        }
    }
    for (auto file = loose.cbegin(); file != loose.cend(); ++file)
        for (const Change *one : file.value())
            applyByChance(kept[file.key()], *one, random);
    return kept;
}

} // namespace velmora::test
