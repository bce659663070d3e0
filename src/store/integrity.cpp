#include "store/integrity.h"

namespace velmora::store
{

Status checkIntegrity(Engine &engine)
{
    const auto check = engine.prepare(QStringLiteral("PRAGMA integrity_check(1)"));
    if (!check) return engine.status();
    const auto step = check->step();
    if (step == Statement::Step::Failed) return check->status();
    if (step == Statement::Step::Row && check->columnText(0) == "ok") return {};
    return {Status::Code::Damaged, QStringLiteral("the file's structure is damaged")};
}

} // namespace velmora::store
