#pragma once

#include "workstation/toolbar_state.h"

#include <QIcon>

namespace velmora
{

/// The picture of a toolbar button: the desktop's icon theme's when it has one for every button, else the
/// bundled one, so that the bar never mixes two hands.
[[nodiscard]] QIcon iconeBouton(Bouton bouton);

/// The program's own picture.
[[nodiscard]] QIcon iconeVelmora();

} // namespace velmora
