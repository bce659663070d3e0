#pragma once

#include "store/sqlite_engine.h"

#include <functional>

namespace velmora::test
{

/// When a write of a table fails, and as what.
struct Faults {
    int writesBefore = -1; ///< writes that still succeed before the one that fails; below 0 none fails
    store::Status status{store::Status::Code::Full, QStringLiteral("the disk is full")};

    std::function<void()> whenStruck{}; ///< what else the fault does, such as ending the transaction
    bool commitFails = false;           ///< the next commit fails, once

    bool strike()
    {
        const bool now = writesBefore >= 0 && writesBefore-- == 0;
        if (now && whenStruck) whenStruck();
        return now;
    }
};

/// A statement that writes rows, unless a fault strikes.
class FaultyStatement : public store::Statement
{
public:
    FaultyStatement(std::unique_ptr<Statement> real, Faults &faults)
        : m_real(std::move(real)), m_faults(faults)
    {
    }

    void bindInt(int position, std::int64_t value) override { m_real->bindInt(position, value); }
    void bindReal(int position, double value) override { m_real->bindReal(position, value); }
    void bindText(int position, std::string_view utf8) override { m_real->bindText(position, utf8); }
    void bindNull(int position) override { m_real->bindNull(position); }
    Step step() override
    {
        m_struck = m_faults.strike();
        return m_struck ? Step::Failed : m_real->step();
    }
    store::Status status() const override { return m_struck ? m_faults.status : m_real->status(); }
    void reset() override
    {
        m_struck = false;
        m_real->reset();
    }
    bool columnIsNull(int column) const override { return m_real->columnIsNull(column); }
    std::int64_t columnInt(int column) const override { return m_real->columnInt(column); }
    double columnReal(int column) const override { return m_real->columnReal(column); }
    std::string_view columnText(int column) const override { return m_real->columnText(column); }

private:
    std::unique_ptr<Statement> m_real;
    Faults &m_faults;
    bool m_struck = false;
};

/// The embedded engine with faults in the writes of rows.
class FaultyEngine : public store::SqliteEngine
{
public:
    explicit FaultyEngine(Faults &faults) : m_faults(faults) {}

    std::unique_ptr<store::Statement> prepare(const QString &sql) override
    {
        auto real = SqliteEngine::prepare(sql);
        const bool writes =
            sql.startsWith(u"INSERT") || sql.startsWith(u"UPDATE") || sql.startsWith(u"DELETE");
        if (!real || !writes) return real;
        return std::make_unique<FaultyStatement>(std::move(real), m_faults);
    }

    store::Status commit() override
    {
        if (!std::exchange(m_faults.commitFails, false)) return SqliteEngine::commit();
        rollback();
        return m_faults.status;
    }

private:
    Faults &m_faults;
};

} // namespace velmora::test
