#include "output/export_text.h"

#include "foncgen/foncgen.h"
#include "session/day_hours.h"

#include <cmath>

namespace velmora
{

namespace
{

constexpr int decimales = 2;
constexpr float minutesParHeure = 60;

const QLatin1Char tabulation('\t');
const QLatin1String finDeRangee("\r\n");

double arrondi(double valeur, int n)
{
    const double unite = std::pow(10.0, n);
    return std::floor(valeur * unite + 0.5) / unite;
}

/// A number in its plainest form, with a comma and nothing before it below 1.
QString nombreSansZero(double x)
{
    QString texte = QString::number(x, 'f', QLocale::FloatingPointShortest);
    const qsizetype chiffres = texte.startsWith(QLatin1Char('-')) ? 1 : 0;
    if (QStringView(texte).mid(chiffres).startsWith(QLatin1String("0."))) texte.remove(chiffres, 1);
    return texte.replace(QLatin1Char('.'), QLatin1Char(','));
}

CaseExport heures(int minutes)
{
    return {CaseExport::Sorte::Heures, minutes};
}

QString texteCase(const CaseExport &une)
{
    switch (une.sorte) {
    case CaseExport::Sorte::Heures: return heurexport(une.minutes);
    case CaseExport::Sorte::Aucune: return QStringLiteral("0");
    case CaseExport::Sorte::Tiret: return QStringLiteral(" - ");
    case CaseExport::Sorte::Vide: break;
    }
    return {};
}

} // namespace

QString arrondit(double valeur, int n)
{
    if (n <= 0) return QString::number(std::floor(valeur + 0.5), 'f', 0);
    QString texte = nombreSansZero(arrondi(valeur, n));
    if (!texte.contains(QLatin1Char(','))) texte += QLatin1Char(',');
    const qsizetype longueur = texte.indexOf(QLatin1Char(',')) + 1 + n;
    return texte.leftJustified(longueur, QLatin1Char('0'), true);
}

double heuresDecimales(int minutes)
{
    auto x = static_cast<float>(minutes);
    if (x >= minutesParJour) x -= minutesParJour;
    return arrondi(static_cast<double>(x / minutesParHeure), decimales);
}

QString heurexport(int minutes)
{
    return arrondit(heuresDecimales(minutes), decimales);
}

const std::array<QString, rangeesHeures> &titresRangees()
{
    static const std::array<QString, rangeesHeures> titres{
        QStringLiteral("Heures F."),   QStringLiteral("H.Début"),    QStringLiteral("H.Fin"),
        QStringLiteral("Coupe1 Déb."), QStringLiteral("Coupe1 Fin"), QStringLiteral("Coupe2 Déb."),
        QStringLiteral("Coupe2 Fin")};
    return titres;
}

JourExport casesDuJour(const JourSit *jour)
{
    if (!jour || !jour->Val)
        return {CaseExport{CaseExport::Sorte::Aucune}, CaseExport{CaseExport::Sorte::Tiret}};
    JourExport cases{heures(horaireDuJour(*jour).minutes), heures(jour->heurdeb), heures(jour->heurfin)};
    if (jour->hideb != jour->hifin) {
        cases[3] = heures(jour->hideb);
        cases[4] = heures(jour->hifin);
    }
    if (jour->hideb2 != jour->hifin2) {
        cases[5] = heures(jour->hideb2);
        cases[6] = heures(jour->hifin2);
    }
    return cases;
}

QString titreExport(const QDate &debut, const QDate &fin)
{
    return QStringLiteral("PLANNING Du ") + Foncgen::dtoc(debut) + QStringLiteral(" au ") +
           Foncgen::dtoc(fin);
}

QString texteEntete(const QDate &debut, const QDate &fin)
{
    QString jours;
    for (QDate jour = debut; jour <= fin; jour = jour.addDays(1))
        jours += Foncgen::dtoc(jour) + tabulation;
    const QStringList rangees{QStringLiteral("\t"),
                              QStringLiteral("\t\t") + titreExport(debut, fin) + tabulation,
                              QStringLiteral("\t"),
                              QStringLiteral("\t\t\t"),
                              QStringLiteral("\t"),
                              QStringLiteral("\t"),
                              QStringLiteral("NOM \t\t") + jours + tabulation,
                              QStringLiteral("\t")};
    return rangees.join(finDeRangee) + finDeRangee;
}

QString texteBloc(const BlocExport &bloc)
{
    QString texte = bloc.nom;
    for (std::size_t rangee = 0; rangee < rangeesHeures; ++rangee) {
        texte += tabulation + titresRangees()[rangee] + tabulation;
        for (const JourExport &jour : bloc.jours)
            texte += texteCase(jour[rangee]) + tabulation;
        texte += finDeRangee;
    }
    texte += separationNom + tabulation + separationTitre + tabulation;
    return texte + QString(static_cast<qsizetype>(bloc.jours.size()), tabulation) + finDeRangee;
}

QString surUneCellule(QString texte)
{
    // Row ends of their own for some programs, and two characters that no workbook can hold.
    for (QChar &c : texte)
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
            c.category() == QChar::Separator_Paragraph || c.unicode() >= 0xfffe)
            c = QLatin1Char(' ');
    return texte;
}

QString sansFormule(const QString &texte)
{
    static const QString debuts = QStringLiteral("=+-@\"");
    return !texte.isEmpty() && debuts.contains(texte.front()) ? QLatin1Char(' ') + texte : texte;
}

} // namespace velmora
