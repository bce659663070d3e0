#pragma once

#include "store/verification.h"

namespace velmora::store
{

struct Structure {
    std::vector<Constat> constats;
    bool complete = true; ///< every table is there with its columns
};

/// Checks an open file against its schemas: the engine's own check, which reads every page and every entry of
/// every index; then each table's columns and indexes; then that each value is one of its column's nature.
[[nodiscard]] Structure verifieStructure(Engine &engine, FileKind kind,
                                         const std::vector<const Schema *> &schemas);

/// The finding for a check that the engine couldn't run.
[[nodiscard]] Constat controleImpossible(const Status &status);

} // namespace velmora::store
