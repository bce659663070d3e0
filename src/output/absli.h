#pragma once

#include "output/print_dialog.h"

namespace velmora
{

/// "Impression des codes absence": prints the list of absence codes.
class Absli : public DialogueImpression
{
    Q_OBJECT

public:
    explicit Absli(Session &session, QWidget *parent = nullptr);

protected:
    [[nodiscard]] Impression impression() const override;
};

/// Opens the print of the absence codes over a form, and returns once it is closed.
void ouvreImpressionCodes(Session &session, QWidget *parent);

} // namespace velmora
