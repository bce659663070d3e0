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

bool ecritPdf(const QString &fichier, const Impression &impression, const QString &police,
              const QDateTime &moment, const Progres &progres)
{
    QSaveFile sortie(fichier);
    if (!sortie.open(QIODevice::WriteOnly)) return false;
    bool complet = false;
    {
        QPdfWriter pdf(&sortie);
        pdf.setTitle(impression.document);
        pdf.setCreator(QStringLiteral("Velmora"));
        complet = lanceImpression(pdf, impression, police, moment, progres);
    }
    return complet && sortie.commit();
}

} // namespace velmora
