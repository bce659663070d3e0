#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <sqlite3.h>

#include <random>
#include <vector>

namespace velmora::test
{

/// A disk under the embedded engine. While it stands, every file that an engine opens goes through it: it
/// counts the changes that the engine makes of its files (writes, truncations, synchronisations, files made
/// and removed), fails from one of them on, and remembers them, so that a power cut can be played at any
/// moment.
class TestDisk
{
public:
    TestDisk();
    ~TestDisk();
    TestDisk(const TestDisk &) = delete;
    TestDisk &operator=(const TestDisk &) = delete;

    /// Fails a change of the files whose name begins with `file`, after so many that still succeed: with
    /// `result`, and so does each change after it until `heal` when the fault lasts.
    void failAfter(int changes, int result, const QString &file, bool lasts);
    void heal() { m_result = SQLITE_OK; }
    /// Whether the fault has struck since it was set.
    [[nodiscard]] bool struck() const { return m_struck; }

    /// Starts to remember, with the content of these files as they are now.
    void remember(const QStringList &paths);
    /// Ends the remembering: what comes after isn't part of the story.
    void stopRemembering() { m_remembers = false; }
    [[nodiscard]] int moment() const { return static_cast<int>(m_changes.size()); }
    /// What a power cut after so many of the changes leaves, by the files' names: what had been synchronised,
    /// and of the rest a part that chance chooses, by sectors of 512 bytes.
    [[nodiscard]] QMap<QString, QByteArray> afterCut(int moment, std::mt19937 &random) const;

    // What the engine's calls come to.
    struct Change {
        enum class Kind { Write, Truncate, Sync, Remove };
        Kind kind;
        QString file;
        qint64 offset = 0; ///< or the new length
        QByteArray data{};
    };
    /// SQLITE_OK, or what the change fails with.
    int strike(const QString &file);
    void note(Change change);
    [[nodiscard]] sqlite3_vfs *real() const { return m_real; }

private:
    sqlite3_vfs *m_real;
    sqlite3_vfs m_vfs;
    int m_left = 0;
    int m_result = SQLITE_OK;
    bool m_lasts = false;
    bool m_struck = false;
    QString m_target;
    bool m_remembers = false;
    QMap<QString, QByteArray> m_start;
    std::vector<Change> m_changes;
};

} // namespace velmora::test
