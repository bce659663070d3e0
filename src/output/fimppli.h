#pragma once

#include "output/print_dialog.h"
#include "output/printed_days.h"

namespace velmora
{

class CadreDates;

/// " Velmora Impression: planning individuel]": prints the line that the session holds in `saisligne`, over
/// dates within the month from `impdeb` to `impfin`.
class Fimppli : public DialogueImpression
{
    Q_OBJECT

public:
    explicit Fimppli(Session &session, QWidget *parent = nullptr);

protected:
    [[nodiscard]] Impression impression() const override;

private:
    LigneImprimee m_ligne;
    CadreDates *m_dates;
};

} // namespace velmora
