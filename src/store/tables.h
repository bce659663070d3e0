#pragma once

#include "store/agent_row.h"
#include "store/journal_rows.h"
#include "store/rows.h"
#include "store/table.h"

// The tables of both databases. What they are made of is compiled once, in tables.cpp.
namespace velmora::store
{

extern template const Schema &schemaOf<Agent>();
extern template const std::vector<ColumnAccess<Agent>> &accessOf<Agent>();
extern template const Schema &schemaOf<Tnum>();
extern template const std::vector<ColumnAccess<Tnum>> &accessOf<Tnum>();
extern template const Schema &schemaOf<Veloption>();
extern template const std::vector<ColumnAccess<Veloption>> &accessOf<Veloption>();
extern template const Schema &schemaOf<JourFerie>();
extern template const std::vector<ColumnAccess<JourFerie>> &accessOf<JourFerie>();
extern template const Schema &schemaOf<JeuParam>();
extern template const std::vector<ColumnAccess<JeuParam>> &accessOf<JeuParam>();
extern template const Schema &schemaOf<JourSit>();
extern template const std::vector<ColumnAccess<JourSit>> &accessOf<JourSit>();
extern template const Schema &schemaOf<Ligne>();
extern template const std::vector<ColumnAccess<Ligne>> &accessOf<Ligne>();
extern template const Schema &schemaOf<AbsenceSaisie>();
extern template const std::vector<ColumnAccess<AbsenceSaisie>> &accessOf<AbsenceSaisie>();
extern template const Schema &schemaOf<CodeAbsence>();
extern template const std::vector<ColumnAccess<CodeAbsence>> &accessOf<CodeAbsence>();
extern template const Schema &schemaOf<Dossier>();
extern template const std::vector<ColumnAccess<Dossier>> &accessOf<Dossier>();
extern template const Schema &schemaOf<Chemin>();
extern template const std::vector<ColumnAccess<Chemin>> &accessOf<Chemin>();
extern template const Schema &schemaOf<Operation>();
extern template const std::vector<ColumnAccess<Operation>> &accessOf<Operation>();
extern template const Schema &schemaOf<ImageSit>();
extern template const std::vector<ColumnAccess<ImageSit>> &accessOf<ImageSit>();
extern template const Schema &schemaOf<ImageAbs>();
extern template const std::vector<ColumnAccess<ImageAbs>> &accessOf<ImageAbs>();
extern template const Schema &schemaOf<JourCopie>();
extern template const std::vector<ColumnAccess<JourCopie>> &accessOf<JourCopie>();

} // namespace velmora::store
