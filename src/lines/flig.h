#pragma once

#include "lines/line_dialog.h"

namespace velmora
{

class CadreControles;

/// "Ouvrir une ligne de planning": the name, the first date and the controls of a new line.
class Flig : public DialogueLigne
{
    Q_OBJECT

public:
    explicit Flig(Session &session, QWidget *parent = nullptr);

protected:
    [[nodiscard]] IssueLigne execute() override;
    [[nodiscard]] QLineEdit *champ(ChampLigne lequel) const override;

private:
    QLineEdit *m_text1; // "Appellation de la ligne"
    QLineEdit *m_text2; // "Ligne débutant le"
    CadreControles *m_controles;
};

} // namespace velmora
