#pragma once

#include "session/opening.h"
#include "store/databases.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>

namespace velmora::test
{

/// A workstation's folder before its start: both files new and closed.
class DataFolder
{
public:
    DataFolder()
    {
        EXPECT_TRUE(store::createDatabase(mainFile(), store::FileKind::Main).ok());
        EXPECT_TRUE(store::createDatabase(journalFile(), store::FileKind::Journal).ok());
    }

    [[nodiscard]] QString path() const { return m_directory.path() + QLatin1Char('/'); }
    [[nodiscard]] QString mainFile() const { return path() + store::fichierBase; }
    [[nodiscard]] QString journalFile() const { return path() + store::fichierJournal; }

    /// Points a session at the folder, as a launcher does. The second folder is this one too if not given.
    void give(Session &session, const QString &second = {}) const
    {
        session.foncgen = std::make_unique<Foncgen>();
        session.cheminjournal = path();
        session.cheminbase = second.isNull() ? path() : second;
    }

private:
    QTemporaryDir m_directory;
};

/// The file's bytes. Only for files that no session has open: reading beside the engine lets go of its locks.
inline QByteArray contentAt(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The same as a digest, to see whether a refused file was written to.
inline QByteArray digest(const QString &path)
{
    return QCryptographicHash::hash(contentAt(path), QCryptographicHash::Sha256);
}

inline void replaceContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// The words of the start's refusals.
inline QString sansJournal(const QString &folder)
{
    return QStringLiteral("base de données %1velmoralog.mdb non retrouvée ! relancer Velmora").arg(folder);
}
inline QString sansBase(const QString &folder)
{
    return QStringLiteral("la base de données %1velmora.mdb n'est pas retouvée, relancer Velmora")
        .arg(folder);
}
inline QString journalInouvrable(const QString &folder)
{
    return QStringLiteral(
               "Velmora ne peut ouvrir la base de données %1velmoralog.mdb, relancez l'application!")
        .arg(folder);
}

} // namespace velmora::test
