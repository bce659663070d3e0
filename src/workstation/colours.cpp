#include "workstation/colours.h"

#include "session/guards.h"

namespace velmora
{

namespace
{

const QString police = QStringLiteral("MS Sans Serif");

/// A field for a colour and the colour that it has at first, or that of the window text in use.
struct Couleur {
    std::optional<int> Affichage::*champ;
    int defaut;
};
constexpr int texteFenetres = -1;

constexpr Couleur couleurs[] = {
    {&Affichage::cclbp, 0xE0E0E0},       {&Affichage::cclbnp, 0xFFFFFF},
    {&Affichage::cclfp, 0x000040},       {&Affichage::cclfnp, 0x000040},
    {&Affichage::cclbpi, 0xE0E0E0},      {&Affichage::cclbnpi, 0xFFFFFF},
    {&Affichage::cclfpi, 0x800000},      {&Affichage::cclfnpi, 0x800000},
    {&Affichage::cclfgrid, 0x000040},    {&Affichage::cclbgrid, 0xC0C0C0},
    {&Affichage::cclfsd, 0x000080},      {&Affichage::cclff, 0x800000},
    {&Affichage::cclfform, 0x000040},    {&Affichage::cclbform, 0xE0E0E0},
    {&Affichage::cclfm, texteFenetres},  {&Affichage::cclbm1, 0xFFFFC0},
    {&Affichage::cclbm2, 0xFFE0C0},      {&Affichage::cclbsel, 0x000080},
    {&Affichage::cclbdem, 0x800000},     {&Affichage::cclbano, 0x008000},
    {&Affichage::cclberr, 0x00C000},     {&Affichage::cclbsais, 0xFF0000},
    {&Affichage::cclfm1, texteFenetres}, {&Affichage::cclfm2, texteFenetres},
    {&Affichage::cclfsel, 0xFFFFFF},     {&Affichage::cclfdem, 0xFFFFFF},
    {&Affichage::cclfano, 0xFFFFFF},     {&Affichage::cclferr, 0xFFFFFF},
    {&Affichage::cclfsais, 0xFFFFFF},    {&Affichage::cclfnom, 0x000080},
};

/// A colour that begins as another one of the same row.
struct Suite {
    std::optional<int> Affichage::*champ;
    std::optional<int> Affichage::*modele;
};

constexpr Suite suites[] = {
    {&Affichage::cclbnpp, &Affichage::cclbp},
    {&Affichage::cclbnpip, &Affichage::cclbpi},
    {&Affichage::cclfnpp, &Affichage::cclfp},
    {&Affichage::cclfnpip, &Affichage::cclfpi},
};

/// A measure of the three sizes and its values at first.
struct Mesure {
    int Affichage::*champs[3];
    int defauts[3];
};

constexpr Mesure mesures[] = {
    {{&Affichage::taill1, &Affichage::taill2, &Affichage::taill3}, {10, 8, 6}},
    {{&Affichage::haut1, &Affichage::haut2, &Affichage::haut3}, {350, 325, 280}},
    {{&Affichage::largn1, &Affichage::largn2, &Affichage::largn3}, {600, 500, 365}},
    {{&Affichage::larg01, &Affichage::larg02, &Affichage::larg03}, {1300, 1000, 850}},
};

/// A comparison as text: true is -1, as in the tables.
QString texteBooleen(bool value)
{
    return value ? QStringLiteral("-1") : QStringLiteral("0");
}

/// Gives the user's row these settings. A failure is passed over. Written without a batch on purpose: one row
/// needs no lock that is taken beforehand.
void ecrit(Session &session, const Affichage &affichage)
{
    auto &agent = session.base.agent;
    if (!editgarde(session, agent).ok()) return;
    agent.values().affichage = affichage;
    agent.update().ignore();
}

} // namespace

Affichage affichageParDefaut(QRgb texteFenetre, const QString &fontSession)
{
    Affichage affichage;
    for (const auto &[champ, defaut] : couleurs)
        affichage.*champ = defaut == texteFenetres ? static_cast<int>(texteFenetre & RGB_MASK) : defaut;
    for (const auto &[champ, modele] : suites)
        affichage.*champ = affichage.*modele;
    // The answer of the comparison is stored, not the font's name: wanted so, and nothing uses the value.
    affichage.font1 = texteBooleen(police == fontSession);
    affichage.font2 = police;
    affichage.font3 = QStringLiteral("MS Serif");
    for (const Mesure &mesure : mesures)
        for (std::size_t i = 0; i < std::size(mesure.champs); ++i)
            affichage.*mesure.champs[i] = mesure.defauts[i];
    return affichage;
}

bool affichageComplet(const Affichage &affichage)
{
    return affichage.cclfm && affichage.cclbnpp && !affichage.font2.isNull() && affichage.larg02 != 0 &&
           affichage.largn2 != 0 && affichage.cclferr;
}

void gescolor(Session &session, QRgb texteFenetre)
{
    const auto &agent = session.base.agent;
    if (!agent.hasRow()) return;
    if (!affichageComplet(agent.row().affichage))
        ecrit(session, affichageParDefaut(texteFenetre, session.affichage.font1));
    session.affichage = agent.row().affichage;
}

void ecritAffichage(Session &session)
{
    ecrit(session, session.affichage);
}

} // namespace velmora
