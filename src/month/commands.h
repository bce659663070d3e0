#pragma once

#include <QString>

namespace velmora
{

/// Which commands of the open month can be used: what its menus and the toolbar both read.
struct EtatCommandes {
    bool couper = false;
    bool copier = false;
    bool coller = false; ///< the cell takes a paste and something is held
    bool absence = false;
    bool supprimer = false; ///< the day is one of the line's
    bool annuler = false;
    bool refaire = false;
    bool fermerLigne = false;   ///< the current line is open
    bool reouvrirLigne = false; ///< the current line is closed
    bool renommerLigne = false;
    QString ligneCourante; ///< name of the current line, for "Planning de "
};

} // namespace velmora
