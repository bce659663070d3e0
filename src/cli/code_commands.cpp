#include "cli/families.h"

#include "absences/codes.h"
#include "cli/output.h"
#include "cli/row_text.h"
#include "cli/start.h"
#include "foncgen/gestext.h"
#include "session/records.h"

#include <algorithm>

namespace velmora::cli
{

namespace
{

constexpr qsizetype longueurCode = 2;

/// A code as its field takes it.
QString motCode(const QString &mot)
{
    return admissible(FieldType::Capitals, static_cast<int>(mot.size()), mot).trimmed();
}

QString codeInconnu(const QString &code)
{
    return QStringLiteral("Le code absence %1 n'existe pas.").arg(code);
}

/// Puts `codabs` on the code of a word. False when there is none.
bool placeCode(Session &session, const QString &mot)
{
    return cherchecode(session, motCode(mot));
}

/// A colour of six hexadecimal digits, red first.
std::optional<int> litCouleur(const QString &texte)
{
    bool lisible = false;
    const int couleur = texte.toInt(&lisible, 16);
    const bool chiffres = texte.size() == 6 && std::all_of(texte.begin(), texte.end(), [](QChar c) {
                              return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
                          });
    return chiffres && lisible ? std::optional(couleur) : std::nullopt;
}

/// Takes an option's colour into the sheet; a sentence when it can't be read.
QString prendCouleur(const Arguments &arguments, const char *option, int &couleur, bool &bcouleur)
{
    if (!arguments.a(option)) return {};
    const auto lue = litCouleur(arguments.valeur(option));
    if (!lue) return QStringLiteral("Couleur illisible : ") + arguments.valeur(option);
    couleur = *lue;
    bcouleur = true;
    return {};
}

/// Takes an option's label into the sheet; a sentence when it is longer than its field.
QString prendLibelle(const QString &texte, int longueur, QString &libelle)
{
    if (texte.size() > longueur)
        return QStringLiteral("Le libellé « %1 » dépasse %2 caractères.")
            .arg(texte, QString::number(longueur));
    libelle = admissible(FieldType::Free, longueur, texte);
    return {};
}

QString prendValorisation(const Arguments &arguments, FicheCode &fiche)
{
    constexpr int longueurValeur = 5; // of the dialog's field
    if (arguments.a("prevus")) fiche.choisit(Valorisation::HorairesPrevus);
    if (arguments.a("jamais")) fiche.choisit(Valorisation::Jamais);
    if (!arguments.a("valeur")) return {};
    fiche.choisit(Valorisation::ValeurFixe);
    fiche.valeur = arguments.valeur("valeur");
    return fiche.valeur.size() > longueurValeur ? tropLong(longueurValeur, fiche.valeur) : QString();
}

/// Takes the words and options of a call into the sheet. What isn't named stays. Returns why one can't be
/// used.
QString prend(const Appel &appel, FicheCode &fiche)
{
    const Arguments &arguments = appel.arguments;
    QString faute = prendValorisation(arguments, fiche);
    if (arguments.a("archive")) fiche.barc = true;
    if (arguments.a("actif")) fiche.barc = false;
    if (arguments.a("sans-couleur")) fiche.bcouleur = false;
    if (faute.isEmpty()) faute = prendCouleur(arguments, "fond", fiche.backc, fiche.bcouleur);
    if (faute.isEmpty()) faute = prendCouleur(arguments, "texte", fiche.forec, fiche.bcouleur);
    if (faute.isEmpty() && appel.mots.size() > 1)
        faute = prendLibelle(appel.mots[1], longueurLibecour, fiche.libecour);
    if (faute.isEmpty() && arguments.a("long"))
        faute = prendLibelle(arguments.valeur("long"), longueurLibelong, fiche.libelong);
    return faute;
}

/// Options of which only one can be meant.
QString exclusions(const Arguments &arguments)
{
    const QList<QList<const char *>> groupes{{"valeur", "jamais", "prevus"},
                                             {"archive", "actif"},
                                             {"sans-couleur", "fond"},
                                             {"sans-couleur", "texte"}};
    for (const auto &groupe : groupes) {
        QStringList donnees;
        for (const char *option : groupe)
            if (arguments.a(option)) donnees << QStringLiteral("--") + QLatin1String(option);
        if (donnees.size() > 1) return donnees.join(QStringLiteral(" et ")) + QStringLiteral(" s'excluent");
    }
    return {};
}

int enregistre(Session &session, const Appel &appel, FicheCode fiche)
{
    const QString faute = prend(appel, fiche);
    if (!faute.isEmpty()) return refus(faute);
    return enregistreCode(session, fiche) ? reussi : refuse;
}

int ajoute(Session &session, const Appel &appel)
{
    FicheCode fiche;
    fiche.codabs = motCode(appel.mots[0]);
    if (fiche.codabs.size() > longueurCode)
        return refus(QStringLiteral("Un code absence a un ou deux caractères : ") + appel.mots[0]);
    fiche.choisit(Valorisation::HorairesPrevus);
    return enregistre(session, appel, fiche);
}

int modifie(Session &session, const Appel &appel)
{
    if (!placeCode(session, appel.mots[0])) return refus(codeInconnu(appel.mots[0]));
    return enregistre(session, appel, ficheDe(session.base.codabs.row()));
}

int supprime(Session &session, const Appel &appel)
{
    if (!placeCode(session, appel.mots[0])) return refus(codeInconnu(appel.mots[0]));
    return supprimeCode(session, session.base.codabs.row().codabs) ? reussi : refuse;
}

int liste(Session &session)
{
    store::Status lecture;
    const auto codes = codesDeLaListe(session, &lecture);
    if (!lecture.ok()) return refus(QStringLiteral("Les codes absence ne peuvent pas être lus."));
    for (const CodeAbsence &code : codes)
        imprimeChamps(textesRangee(code));
    return reussi;
}

/// Runs a command that takes a code's options.
int avecOptions(const Appel &appel, int (*travail)(Session &, const Appel &))
{
    const QString faute = exclusions(appel.arguments);
    if (!faute.isEmpty()) return mauvaisUsage(faute);
    return surSession(appel, [&](Session &session) { return travail(session, appel); });
}

std::vector<Option> optionsCode()
{
    return {{"long", "TEXTE"},  {"valeur", "HEURES"}, {"jamais"}, {"prevus"},
            {"fond", "RRGGBB"}, {"texte", "RRGGBB"},  {"archive"}};
}

std::vector<Option> optionsModifier()
{
    auto options = optionsCode();
    options.push_back({"sans-couleur"});
    options.push_back({"actif"});
    return options;
}

} // namespace

std::vector<Commande> commandesCodes()
{
    return {{"code liste",
             "",
             "affiche les codes absence, les archivés à la fin",
             0,
             0,
             {},
             [](const Appel &appel) { return surSession(appel, liste); }},
            {"code ajouter", "CODE LIBELLE", "crée un code absence", 2, 2, optionsCode(),
             [](const Appel &appel) { return avecOptions(appel, ajoute); }},
            {"code modifier", "CODE [LIBELLE]", "change d'un code absence ce qui est donné", 1, 2,
             optionsModifier(), [](const Appel &appel) { return avecOptions(appel, modifie); }},
            {"code supprimer",
             "CODE",
             "supprime un code qu'aucune absence n'emploie, après une question",
             1,
             1,
             {},
             [](const Appel &appel) { return avecOptions(appel, supprime); }}};
}

} // namespace velmora::cli
