#pragma once

#include "lines/line_dialog.h"

namespace velmora
{

/// Closes a line from a date on. It bears the caption of the dialog that opens one, which is wanted.
class Fligf : public DialogueLigne
{
    Q_OBJECT

public:
    Fligf(Session &session, Ligne ligne, QWidget *parent = nullptr);

protected:
    [[nodiscard]] IssueLigne execute() override;

private:
    Ligne m_ligne;
    QLineEdit *m_text2 = nullptr; // "Fermer cette ligne à partir du :"
};

} // namespace velmora
