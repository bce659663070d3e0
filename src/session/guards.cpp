#include "session/guards.h"

#include "session/batch.h"

namespace velmora
{

namespace
{

constexpr int tours = 1000;
constexpr int toursAVide = 100;

} // namespace

void pauseSeche()
{
    for (volatile int i = 0; i < toursAVide;)
        i = i + 1;
}

QString questionBloquage()
{
    return QStringLiteral("Bloquage par autre utilisateur! réessayer ?");
}

void attendlibre(Session &session, store::TableBase &table, const QString &question, void (*pause)())
{
    for (int attempt = 1;; ++attempt) {
        for (int i = 0; i < tours; ++i) {
            if (table.editMode() == store::EditMode::None) return;
            pause();
        }
        const Batch::Pause released(session.batch);
        if (!session.host.retry(question, titre, attempt)) session.host.endProcess();
        if (table.updatePending()) table.update().ignore();
    }
}

} // namespace velmora
