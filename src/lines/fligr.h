#pragma once

#include "lines/line_dialog.h"

namespace velmora
{

/// "Renommer une ligne de planning".
class Fligr : public DialogueLigne
{
    Q_OBJECT

public:
    Fligr(Session &session, Ligne ligne, QWidget *parent = nullptr);

protected:
    [[nodiscard]] IssueLigne execute() override;

private:
    Ligne m_ligne;
    QLineEdit *m_text1 = nullptr; // "Appellation nouvelle de la ligne"
};

} // namespace velmora
