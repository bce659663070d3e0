#pragma once

#include "lines/line_dialog.h"

namespace velmora
{

class CadreControles;

/// Redefines the controls of a line.
class Fligc : public DialogueLigne
{
    Q_OBJECT

public:
    Fligc(Session &session, Ligne ligne, QWidget *parent = nullptr);

protected:
    [[nodiscard]] IssueLigne execute() override;
    [[nodiscard]] QLineEdit *champ(ChampLigne lequel) const override;

private:
    Ligne m_ligne;
    CadreControles *m_controles;
};

} // namespace velmora
