#pragma once

#include "store/fields.h"

#include <QString>

#include <optional>

namespace velmora
{

/// A user's display settings, carried from the user's row to the session and back. Colours are 0xRRGGBB and
/// null until they get their defaults. By their names: background (`cclb`) and text (`cclf`) of even and odd
/// lines, selection (`sel`), request (`dem`), anomaly (`ano`), error (`err`), entry (`sais`).
struct Affichage {
    std::optional<int> cclbp;
    std::optional<int> cclbnp;
    std::optional<int> cclfp;
    std::optional<int> cclfnp;
    std::optional<int> cclbpi;
    std::optional<int> cclbnpi;
    std::optional<int> cclfpi;
    std::optional<int> cclfnpi;
    std::optional<int> cclfgrid;
    std::optional<int> cclbgrid;
    std::optional<int> cclfsd;
    std::optional<int> cclff;
    std::optional<int> cclfform;
    std::optional<int> cclbform;
    std::optional<int> cclfm;
    std::optional<int> cclbm1;
    std::optional<int> cclbm2;
    std::optional<int> cclbsel;
    std::optional<int> cclbdem;
    std::optional<int> cclbano;
    std::optional<int> cclberr;
    std::optional<int> cclbsais;
    std::optional<int> cclfm1;
    std::optional<int> cclfm2;
    std::optional<int> cclfsel;
    std::optional<int> cclfdem;
    std::optional<int> cclfano;
    std::optional<int> cclferr;
    std::optional<int> cclfsais;
    std::optional<int> cclfnom;
    std::optional<int> cclbnpp;
    std::optional<int> cclbnpip;
    std::optional<int> cclfnpp;
    std::optional<int> cclfnpip;
    QString font1; ///< font name of the three sizes
    QString font2;
    QString font3;
    int taill1 = 0; ///< font size
    int taill2 = 0;
    int taill3 = 0;
    bool fontb1 = false; ///< bold
    bool fontb2 = false;
    bool fontb3 = false;
    int haut1 = 0; ///< row height, twips
    int haut2 = 0;
    int haut3 = 0;
    int largn1 = 0; ///< width of a name column, twips
    int largn2 = 0;
    int largn3 = 0;
    int larg01 = 0; ///< width of a day column, twips
    int larg02 = 0;
    int larg03 = 0;
};

/// `agent`: one row per user.
struct Agent {
    QString pseudo;
    QString nom;
    int droit = 0;
    QString mes; ///< may be null
    bool bss = false;
    Affichage affichage;
};

} // namespace velmora

namespace velmora::store
{

template <>
inline constexpr auto fieldsOf<Affichage> = fields(
    field("cclbp", &Affichage::cclbp), field("cclbnp", &Affichage::cclbnp), field("cclfp", &Affichage::cclfp),
    field("cclfnp", &Affichage::cclfnp), field("cclbpi", &Affichage::cclbpi),
    field("cclbnpi", &Affichage::cclbnpi), field("cclfpi", &Affichage::cclfpi),
    field("cclfnpi", &Affichage::cclfnpi), field("cclfgrid", &Affichage::cclfgrid),
    field("cclbgrid", &Affichage::cclbgrid), field("cclfsd", &Affichage::cclfsd),
    field("cclff", &Affichage::cclff), field("cclfform", &Affichage::cclfform),
    field("cclbform", &Affichage::cclbform), field("cclfm", &Affichage::cclfm),
    field("cclbm1", &Affichage::cclbm1), field("cclbm2", &Affichage::cclbm2),
    field("cclbsel", &Affichage::cclbsel), field("cclbdem", &Affichage::cclbdem),
    field("cclbano", &Affichage::cclbano), field("cclberr", &Affichage::cclberr),
    field("cclbsais", &Affichage::cclbsais), field("cclfm1", &Affichage::cclfm1),
    field("cclfm2", &Affichage::cclfm2), field("cclfsel", &Affichage::cclfsel),
    field("cclfdem", &Affichage::cclfdem), field("cclfano", &Affichage::cclfano),
    field("cclferr", &Affichage::cclferr), field("cclfsais", &Affichage::cclfsais),
    field("cclfnom", &Affichage::cclfnom), field("cclbnpp", &Affichage::cclbnpp),
    field("cclbnpip", &Affichage::cclbnpip), field("cclfnpp", &Affichage::cclfnpp),
    field("cclfnpip", &Affichage::cclfnpip), field("font1", &Affichage::font1),
    field("font2", &Affichage::font2), field("font3", &Affichage::font3), field("taill1", &Affichage::taill1),
    field("taill2", &Affichage::taill2), field("taill3", &Affichage::taill3),
    field("fontb1", &Affichage::fontb1), field("fontb2", &Affichage::fontb2),
    field("fontb3", &Affichage::fontb3), field("haut1", &Affichage::haut1), field("haut2", &Affichage::haut2),
    field("haut3", &Affichage::haut3), field("largn1", &Affichage::largn1),
    field("largn2", &Affichage::largn2), field("largn3", &Affichage::largn3),
    field("larg01", &Affichage::larg01), field("larg02", &Affichage::larg02),
    field("larg03", &Affichage::larg03));

template <>
inline constexpr auto
    fieldsOf<Agent> = std::tuple_cat(fields(field("pseudo", &Agent::pseudo), field("nom", &Agent::nom),
                                            field("droit", &Agent::droit), field("mes", &Agent::mes),
                                            field("bss", &Agent::bss)),
                                     fieldsWithin(&Agent::affichage, fieldsOf<Affichage>));

} // namespace velmora::store
