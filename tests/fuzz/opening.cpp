#include "fuzz/input.h"

#include "store/databases.h"
#include "store/verification.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

using namespace velmora;
using namespace velmora::store;

namespace
{

/// A sound file of each kind, made once.
const QByteArray &sound(FileKind kind)
{
    static const auto make = [](FileKind one) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("f"));
        fuzz::require(createDatabase(path, one).ok(), "a new file can be made");
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    static const QByteArray main = make(FileKind::Main);
    static const QByteArray journal = make(FileKind::Journal);
    return kind == FileKind::Main ? main : journal;
}

/// The first byte says what the bytes are: a whole file, or changes of a sound one, three bytes each: a place
/// and what stands there.
QByteArray content(FileKind kind, const std::uint8_t *data, std::size_t size)
{
    if (data[0] % 4 == 0) return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
    QByteArray changed = sound(kind);
    for (std::size_t i = 1; i + 3 < size; i += 4) {
        const std::size_t place = data[i] | (data[i + 1] << 8) | (data[i + 2] << 16);
        changed[static_cast<qsizetype>(place) % changed.size()] = static_cast<char>(data[i + 3]);
    }
    if (data[0] % 4 == 1) changed.truncate(changed.size() * data[0] / 256);
    return changed;
}

} // namespace

/// Opening both files, and checking them, ends by itself whatever they hold.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    static const bool quiet = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("velmora.store=false"));
        return true;
    }();
    if (size == 0 || !quiet) return 0;
    for (const FileKind kind : {FileKind::Main, FileKind::Journal}) {
        const QString name = kind == FileKind::Main ? fichierBase : fichierJournal;
        QFile file(folder.filePath(name));
        fuzz::require(file.open(QIODevice::WriteOnly), "the work file can be written");
        file.write(content(kind, data, size));
    }
    static_cast<void>(verifieFichiers(folder.path() + QLatin1Char('/')));
    MainDatabase base;
    base.open(folder.filePath(fichierBase)).ignore();
    JournalDatabase journal;
    journal.open(folder.filePath(fichierJournal)).ignore();
    return 0;
}
