#include "workstation/colours.h"

#include "session/guards.h"

namespace velmora
{

namespace
{

const QString police = QStringLiteral("MS Sans Serif");

constexpr int fondPair = 0xE0E0E0;
constexpr int fondImpair = 0xFFFFFF;
constexpr int encreBleue = 0x000040;
constexpr int encreRouge = 0x800000;

/// A comparison as text: true is -1, as in the tables.
QString texteBooleen(bool value)
{
    return value ? QStringLiteral("-1") : QStringLiteral("0");
}

} // namespace

Affichage affichageParDefaut(QRgb texteFenetre, const QString &fontSession)
{
    const int encreFenetre = static_cast<int>(texteFenetre & RGB_MASK);
    return {
        .cclbp = fondPair,
        .cclbnp = fondImpair,
        .cclfp = encreBleue,
        .cclfnp = encreBleue,
        .cclbpi = fondPair,
        .cclbnpi = fondImpair,
        .cclfpi = encreRouge,
        .cclfnpi = encreRouge,
        .cclfgrid = 0x000040,
        .cclbgrid = 0xC0C0C0,
        .cclfsd = 0x000080,
        .cclff = 0x800000,
        .cclfform = 0x000040,
        .cclbform = 0xE0E0E0,
        .cclfm = encreFenetre,
        .cclbm1 = 0xFFFFC0,
        .cclbm2 = 0xFFE0C0,
        .cclbsel = 0x000080,
        .cclbdem = 0x800000,
        .cclbano = 0x008000,
        .cclberr = 0x00C000,
        .cclbsais = 0xFF0000,
        .cclfm1 = encreFenetre,
        .cclfm2 = encreFenetre,
        .cclfsel = 0xFFFFFF,
        .cclfdem = 0xFFFFFF,
        .cclfano = 0xFFFFFF,
        .cclferr = 0xFFFFFF,
        .cclfsais = 0xFFFFFF,
        .cclfnom = 0x000080,
        // The last four follow the even line's colours, field by field.
        .cclbnpp = fondPair,
        .cclbnpip = fondPair,
        .cclfnpp = encreBleue,
        .cclfnpip = encreRouge,
        // The answer of the comparison is stored, not the font's name: wanted so, and nothing uses the value.
        .font1 = texteBooleen(police == fontSession),
        .font2 = police,
        .font3 = QStringLiteral("MS Serif"),
        .taill1 = 10,
        .taill2 = 8,
        .taill3 = 6,
        .fontb1 = false,
        .fontb2 = false,
        .fontb3 = false,
        .haut1 = 350,
        .haut2 = 325,
        .haut3 = 280,
        .largn1 = 600,
        .largn2 = 500,
        .largn3 = 365,
        .larg01 = 1300,
        .larg02 = 1000,
        .larg03 = 850,
    };
}

bool affichageComplet(const Affichage &affichage)
{
    return affichage.cclfm && affichage.cclbnpp && !affichage.font2.isNull() && affichage.larg02 != 0 &&
           affichage.largn2 != 0 && affichage.cclferr;
}

void gescolor(Session &session, QRgb texteFenetre)
{
    auto &agent = session.base.agent;
    if (!agent.hasRow()) return;
    if (!affichageComplet(agent.row().affichage) && editgarde(session, agent).ok()) {
        agent.values().affichage = affichageParDefaut(texteFenetre, session.affichage.font1);
        agent.update().ignore();
    }
    session.affichage = agent.row().affichage;
}

void ecritAffichage(Session &session)
{
    auto &agent = session.base.agent;
    if (!editgarde(session, agent).ok()) return;
    agent.values().affichage = session.affichage;
    agent.update().ignore();
}

} // namespace velmora
