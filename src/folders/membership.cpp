#include "folders/membership.h"

namespace velmora
{

bool dansDossier(Session &session, int nump, const QString &dossier)
{
    if (dossier.isEmpty()) return true;
    auto &groupe = session.base.groupe;
    groupe.setIndex("groupeng");
    return groupe.seek(store::Cmp::Eq, {nump, dossier});
}

} // namespace velmora
