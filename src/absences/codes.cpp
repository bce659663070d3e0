#include "absences/codes.h"

#include "session/batch.h"
#include "session/guards.h"
#include "session/records.h"

#include <algorithm>

namespace velmora
{

using store::Status;

namespace
{

constexpr int largeurMoment = 5;
constexpr int jamais = -1;

QString valeurPrevue()
{
    return QStringLiteral("7h00");
}

/// The day letters of the planning itself.
bool estReserve(const QString &code)
{
    return code == QLatin1String("RS") || code == QLatin1String("RH") || code == QLatin1String("RP");
}

/// The day's value in minutes. A text that is no hour counts as zero.
int minutesValeur(const FicheCode &fiche)
{
    const int minutes = Foncgen::valhor(fiche.valeur);
    return minutes == Foncgen::horsPlage ? 0 : minutes;
}

/// A code of blanks would show as nothing in a cell: it is as forbidden as the reserved ones.
QString refusNouveauCode(Session &session, const QString &code)
{
    if (cherchecode(session, code))
        return QStringLiteral("CODE ABSENCE INTERDIT:  code absence déjà utilisé");
    const QString lettres = code.trimmed();
    return lettres.isEmpty() || estReserve(lettres) ? QStringLiteral("CODE ABSENCE INTERDIT !") : QString();
}

/// Why what was entered can't be saved; empty when it can.
QString refusFiche(Session &session, const FicheCode &fiche)
{
    const QString refus = fiche.nouveau ? refusNouveauCode(session, fiche.codabs) : QString();
    if (!refus.isEmpty()) return refus;
    if (fiche.libecour.trimmed().isEmpty()) return QStringLiteral("libellé (court) non saisi");
    if (fiche.valorisation == Valorisation::Aucune) return QStringLiteral("Valorisation de l'absence !");
    if (fiche.valorisation == Valorisation::ValeurFixe && minutesValeur(fiche) <= 0)
        return QStringLiteral("Valeur de la journée: ne peut être zéro !");
    return {};
}

int modeDe(const FicheCode &fiche)
{
    switch (fiche.valorisation) {
    case Valorisation::ValeurFixe: return minutesValeur(fiche);
    case Valorisation::Jamais: return jamais;
    default: return 0;
    }
}

QString nonNul(const QString &texte)
{
    return texte.isNull() ? QStringLiteral("") : texte;
}

/// Without colours of its own a code keeps those that it had, unread. `classe` and `larr` are the file's:
/// nothing reads them.
void copie(const FicheCode &fiche, CodeAbsence &code)
{
    if (fiche.nouveau) code.codabs = codeAligne(fiche.codabs);
    code.libecour = fiche.libecour;
    code.libelong = nonNul(fiche.libelong);
    code.classe = QStringLiteral("");
    code.larr = QStringLiteral("");
    code.bcouleur = fiche.bcouleur;
    if (fiche.bcouleur) {
        code.backc = fiche.backc;
        code.forec = fiche.forec;
    }
    code.modabs = modeDe(fiche);
    code.barc = fiche.barc;
}

Status commence(Session &session, const FicheCode &fiche)
{
    auto &codabs = session.base.codabs;
    if (fiche.nouveau) return ajoutgarde(session, codabs);
    if (cherchecode(session, fiche.codabs)) return editgarde(session, codabs);
    return codabs.status().ok() ? Status{Status::Code::NoRow, QStringLiteral("no such code")}
                                : codabs.status();
}

Status ecrit(Session &session, const FicheCode &fiche)
{
    auto &codabs = session.base.codabs;
    Status status = commence(session, fiche);
    if (!status.ok()) return status;
    copie(fiche, codabs.values());
    status = codabs.update();
    return status.ok() && !codabs.goToModified() ? codabs.status() : status;
}

/// Walks all absences: they have no index by code, and store a single letter without its blank.
Status chercheEmploi(Session &session, const QString &code, bool &employe)
{
    auto absences = session.base.absences.range("abs01", {}, {},
                                                store::Columns<AbsenceSaisie>::of(&AbsenceSaisie::codabs));
    employe = false;
    while (!employe && absences.next())
        employe = codeAligne(absences.row().codabs) == codeAligne(code);
    return absences.status();
}

Status retire(Session &session, const QString &code)
{
    auto &codabs = session.base.codabs;
    return cherchecode(session, code) ? supprgarde(session, codabs) : codabs.status();
}

} // namespace

void FicheCode::choisit(Valorisation choix)
{
    valorisation = choix;
    if (choix == Valorisation::HorairesPrevus) valeur = valeurPrevue();
    if (choix == Valorisation::Jamais) valeur = QStringLiteral("0h00");
}

std::vector<CodeAbsence> codesDeLaTable(Session &session, store::Status *lecture)
{
    std::vector<CodeAbsence> codes;
    auto lus = session.base.codabs.range("codabs01", {}, {});
    while (lus.next())
        codes.push_back(lus.row());
    if (lecture) *lecture = lus.status();
    return codes;
}

std::vector<CodeAbsence> codesDeLaListe(Session &session, store::Status *lecture)
{
    auto codes = codesDeLaTable(session, lecture);
    std::stable_partition(codes.begin(), codes.end(), [](const CodeAbsence &code) { return !code.barc; });
    return codes;
}

QString codeSaisi(const QString &texte)
{
    const QString lettres = texte.trimmed().left(2);
    return lettres.isEmpty() ? QString() : codeAligne(lettres);
}

FicheCode ficheDe(const CodeAbsence &code)
{
    FicheCode fiche;
    fiche.nouveau = false;
    fiche.codabs = code.codabs;
    fiche.libecour = code.libecour;
    fiche.libelong = code.libelong;
    fiche.bcouleur = code.bcouleur;
    if (code.bcouleur) {
        fiche.backc = code.backc;
        fiche.forec = code.forec;
    }
    fiche.barc = code.barc;
    const int mode = code.modabs.value_or(0);
    if (mode > 0) fiche.valeur = Foncgen::fwhl(mode, largeurMoment);
    fiche.choisit(mode > 0         ? Valorisation::ValeurFixe
                  : mode == jamais ? Valorisation::Jamais
                                   : Valorisation::HorairesPrevus);
    return fiche;
}

bool enregistreCode(Session &session, const FicheCode &fiche)
{
    QString refus;
    bool ecrite = false;
    const bool fait = enLot(session, [&] {
        // A commit that the disk reported as failed may stand all the same: the next try meets its own row.
        FicheCode essai = fiche;
        essai.nouveau = fiche.nouveau && !(ecrite && cherchecode(session, fiche.codabs));
        refus = refusFiche(session, essai);
        const Status status = refus.isEmpty() ? ecrit(session, essai) : Status{};
        ecrite = ecrite || (status.ok() && refus.isEmpty());
        return status;
    });
    if (!refus.isEmpty()) session.host.message(refus, titre);
    return fait && refus.isEmpty();
}

bool supprimeCode(Session &session, const QString &code)
{
    if (!session.host.question(QStringLiteral("Supprimer ce code absence ?"), QStringLiteral("VELMORA")))
        return false;
    bool employe = false;
    const bool fait = enLot(session, [&] {
        const Status status = chercheEmploi(session, code, employe);
        return status.ok() && !employe ? retire(session, code) : status;
    });
    if (employe) {
        session.host.message(
            QStringLiteral("des absences ont été passées avec ce code! Archivez ce code absence!"), titre);
    }
    return fait && !employe;
}

} // namespace velmora
