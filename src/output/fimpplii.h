#pragma once

#include "output/print_dialog.h"

namespace velmora
{

class CadreDates;
class ListeDossiers;

/// "  Velmora: Impression plannings individuels (ensemble de lignes)": prints the lines of a folder, each on
/// pages of its own, over dates within the month from `impdeb` to `impfin`.
class Fimpplii : public DialogueImpression
{
    Q_OBJECT

public:
    explicit Fimpplii(Session &session, QWidget *parent = nullptr);

protected:
    [[nodiscard]] Impression impression() const override;

private:
    CadreDates *m_dates;
    ListeDossiers *m_list1;
};

} // namespace velmora
