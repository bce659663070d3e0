#pragma once

#include "session/session.h"

#include <QTemporaryDir>

namespace velmora::bench
{

/// A host with a fixed clock and the same answer to every question.
class MeasureHost : public Host
{
public:
    void message(const QString &, const QString &) override {}
    bool question(const QString &, const QString &) override { return answer; }
    QDate today() const override { return {2026, 6, 15}; }
    QDateTime now() const override { return {today(), QTime(8, 0)}; }
    bool open(const QString &) override { return true; }
    [[noreturn]] void endProcess() override { std::abort(); }

    bool answer = false; ///< to every question
};

/// A main database in a temporary folder, opened by a session: each line has a row on every day of the 15
/// months from 1 October 2025 on, every other one with a cut, and a week of absence in June 2026.
class PlantedBase
{
public:
    explicit PlantedBase(int lines);

    [[nodiscard]] int lines() const { return m_lines; }
    [[nodiscard]] QString file() const;

    MeasureHost host;
    Session session{host};

private:
    void plant();
    void forEachLine(const QString &sql);

    QTemporaryDir m_folder;
    int m_lines;
};

} // namespace velmora::bench
