#pragma once

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
    QString mes;      ///< may be null
    bool bss = false; ///< nothing reads or writes it; the files have it
    Affichage affichage;
};

} // namespace velmora
