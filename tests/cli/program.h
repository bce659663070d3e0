#pragma once

#include "store/databases.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace velmora::test
{

/// What a run of the program gave back.
struct Outcome {
    int status = -1;
    QString out;
    QString err;

    [[nodiscard]] QStringList lines() const { return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    [[nodiscard]] QStringList errorLines() const { return err.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
};

/// The real program on a folder of its own, with no display, no terminal and a fixed date.
class Program
{
public:
    Outcome run(const QStringList &words, const QStringList &options) const
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        process.setProcessEnvironment(environment);
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(QStringLiteral(VELMORA_PROGRAM), words + options);
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    /// With the options of a workstation whose journal and base lie in the program's folder.
    Outcome operator()(const QStringList &words) const { return run(words, options()); }
    [[nodiscard]] QStringList options() const
    {
        return {QStringLiteral("--journal"),    folder(),
                QStringLiteral("--pseudo"),     QStringLiteral("MARIE"),
                QStringLiteral("--aujourdhui"), QStringLiteral("15/06/2026")};
    }

    void demo(const QStringList &more = {}) const
    {
        const QStringList words{QStringLiteral("demo"), QStringLiteral("--lignes"), QStringLiteral("16"),
                                QStringLiteral("--mois"), QStringLiteral("3")};
        const Outcome made = (*this)(words + more);
        ASSERT_EQ(made.status, 0) << made.err.toStdString();
    }

    [[nodiscard]] QString folder() const { return m_directory.path(); }
    [[nodiscard]] QString path(const QString &name) const { return m_directory.filePath(name); }
    [[nodiscard]] QString base() const { return path(store::fichierBase); }
    [[nodiscard]] QString journal() const { return path(store::fichierJournal); }

    /// Names and contents of everything in the folder, for "nothing has changed".
    [[nodiscard]] QByteArray fingerprint() const
    {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        QDir directory(folder());
        const auto entries = directory.entryInfoList(
            QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name);
        for (const QFileInfo &entry : entries) {
            if (entry.fileName().endsWith(QStringLiteral("-journal"))) continue;
            hash.addData(entry.fileName().toUtf8());
            QFile file(entry.filePath());
            if (entry.isFile() && file.open(QIODevice::ReadOnly)) hash.addData(file.readAll());
        }
        return hash.result();
    }

private:
    QTemporaryDir m_directory;
};

/// The rows of a query on a file, as text with "|" between the columns.
inline QStringList query(const QString &file, const QString &sql, int columns = 1)
{
    store::SqliteEngine engine;
    EXPECT_TRUE(engine.open(file, {.readOnly = true}).ok());
    const auto statement = engine.prepare(sql);
    EXPECT_TRUE(statement) << sql.toStdString();
    QStringList rows;
    while (statement && statement->step() == store::Statement::Step::Row) {
        QStringList row;
        for (int column = 0; column < columns; ++column) {
            const auto text = statement->columnText(column);
            row << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        }
        rows << row.join(QLatin1Char('|'));
    }
    return rows;
}

inline QString queryOne(const QString &file, const QString &sql)
{
    return query(file, sql).value(0);
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace velmora::test
