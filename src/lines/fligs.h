#pragma once

#include "lines/line_dialog.h"

namespace velmora
{

/// "Supprimer une ligne de planning".
class Fligs : public DialogueLigne
{
    Q_OBJECT

public:
    Fligs(Session &session, Ligne ligne, QWidget *parent = nullptr);

protected:
    [[nodiscard]] IssueLigne execute() override;

private:
    Ligne m_ligne;
};

} // namespace velmora
