#include "output/print_job.h"

#include <QPdfWriter>
#include <QSaveFile>

namespace velmora
{

bool lanceImpression(QPagedPaintDevice &peripherique, const Impression &impression, const QString &police,
                     const QDateTime &moment, const Progres &progres)
{
    Imprimante imprimante(peripherique, police, moment);
    const Progres dit = progres ? progres : [](int, int) {};
    const bool lu = impression.corps(imprimante, dit).ok();
    return imprimante.termine() && lu;
}

IssuePdf ecritPdf(const QString &fichier, const Impression &impression, const QString &police,
                  const QDateTime &moment, const Progres &progres)
{
    const IssuePdf nonEcrit{QStringLiteral("Le fichier %1 ne peut pas être écrit.").arg(fichier)};
    QSaveFile sortie(fichier);
    if (!sortie.open(QIODevice::WriteOnly)) return nonEcrit;
    store::Status lu;
    const Impression suivie{impression.document, [&](Imprimante &imprimante, const Progres &dit) {
                                return lu = impression.corps(imprimante, dit);
                            }};
    bool complet = false;
    {
        QPdfWriter pdf(&sortie);
        pdf.setTitle(impression.document);
        pdf.setCreator(QStringLiteral("Velmora"));
        complet = lanceImpression(pdf, suivie, police, moment, progres);
    }
    if (!lu.ok()) return {QStringLiteral("Le planning n'a pas pu être lu en entier.")};
    return complet && sortie.commit() ? IssuePdf{} : nonEcrit;
}

} // namespace velmora
