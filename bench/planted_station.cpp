#include "planted_station.h"

#include "session/opening.h"

#include <QFileInfo>

namespace velmora::bench
{

Poste::Poste()
{
    planted.host.answer = true;
    const QString dossier = QFileInfo(planted.file()).path() + QLatin1Char('/');
    session.cheminjournal = session.cheminbase = dossier;
    const QString journal = dossier + store::fichierJournal;
    if (!store::createDatabase(journal, store::FileKind::Journal).ok() || !ouvrejournal(session))
        std::abort();
}

} // namespace velmora::bench
