#pragma once

#include "entry/normalisation.h"

#include <QStringList>

namespace velmora::entrytest
{

/// What leaving field `champ` with `texte` in it does.
inline void tape(SaisieHoraire &saisie, int champ, const QString &texte)
{
    saisie.focusGagne(champ);
    saisie.change(champ, texte);
    saisie.focusPerdu(champ);
}

/// A live entry whose six fields were typed in order.
inline SaisieHoraire saisieDe(const QStringList &textes)
{
    SaisieHoraire saisie;
    saisie.ouvre(std::nullopt);
    for (int i = 0; i < textes.size(); ++i)
        tape(saisie, i + 1, textes.at(i));
    return saisie;
}

/// The six texts in one line, as a reader of a failing test wants them.
inline std::string ligne(const SaisieHoraire::Textes &textes)
{
    return QStringList(textes.begin(), textes.end()).join(u' ').toStdString();
}

} // namespace velmora::entrytest
