#include "planted_base.h"

#include "output/line_print.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QPdfWriter>

// What a set print costs, one page for each of 996 lines over June, beside the painter's own cost of writing
// as many texts on as many pages of a file of the same kind. The bare painter draws no frame and measures
// nothing.
namespace velmora::bench
{
namespace
{

constexpr int lignes = 996;
constexpr int jours = 30;
constexpr int resolution = 1200;
const QDate premier(2026, 6, 1);

PlantedBase &base()
{
    static PlantedBase planted(lignes);
    return planted;
}

void BM_PrintSet(benchmark::State &state)
{
    Session &session = base().session;
    const Impression impression = impressionEnsemble(session, premier, premier.addDays(jours - 1), {});
    for (auto _ : state) {
        QBuffer sortie;
        sortie.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&sortie);
        if (!lanceImpression(pdf, impression, {}, session.host.now())) state.SkipWithError("not printed");
    }
    state.SetItemsProcessed(state.iterations() * lignes);
}
BENCHMARK(BM_PrintSet)->Unit(benchmark::kMillisecond);

/// The texts of a page as the print writes them: head and titles, the days with their hours, the sums of the
/// five weeks and the totals.
QStringList textesDePage()
{
    QStringList textes{"  [imprimé le 15/06/2026  à 8h00]", "Page : 100 - 996",
                       "PLANNING DU 01/06/2026 AU 30/06/2026", "Agent 100"};
    for (int jour = 0; jour < jours; ++jour) {
        textes << QStringLiteral("Lun ") + Foncgen::dtoc(premier.addDays(jour));
        textes << (jour % 2 ? QStringLiteral("8h15 - 12h00  et  12h45 - 16h30")
                            : QStringLiteral("8h15        -       16h30"));
    }
    for (int semaine = 0; semaine < 5; ++semaine)
        textes << QStringLiteral("( 56h15 )");
    return textes << QStringLiteral("Total des heures:") << QStringLiteral("240h00")
                  << QStringLiteral("( dont 56h15 d'absence)");
}

void BM_BareTexts(benchmark::State &state)
{
    const QStringList textes = textesDePage();
    for (auto _ : state) {
        QBuffer sortie;
        sortie.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&sortie);
        pdf.setResolution(resolution);
        QPainter peintre(&pdf);
        peintre.setFont(QFont(policeParDefaut, 9, QFont::Bold));
        for (int page = 0; page < lignes; ++page) {
            if (page > 0) pdf.newPage();
            for (int rang = 0; rang < textes.size(); ++rang)
                peintre.drawText(QPointF(500, 150 * (rang + 1)), textes[rang]);
        }
    }
    state.SetItemsProcessed(state.iterations() * lignes);
}
BENCHMARK(BM_BareTexts)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora::bench
