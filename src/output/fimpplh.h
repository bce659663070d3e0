#pragma once

#include "output/print_dialog.h"

#include <QDate>

class QCheckBox;
class QLabel;
class QScrollBar;

namespace velmora
{

class ListeDossiers;

/// "  Velmora Impression planning hebdomadaire": prints seven days of the lines of a folder. The first of
/// them starts at `impdate` and stays within the grid's dates, `impdeb` and `impfin`.
class Fimpplh : public DialogueImpression
{
    Q_OBJECT

public:
    explicit Fimpplh(Session &session, QWidget *parent = nullptr);

protected:
    [[nodiscard]] Impression impression() const override;

private:
    void construit();
    void dispose();
    void relie();
    [[nodiscard]] QDate premier() const;
    void montreDate();
    void dateTapee();

    QLabel *m_titreDate = nullptr; ///< "7 jours à dater de:"
    QLineEdit *m_text1 = nullptr;  ///< first date
    QScrollBar *m_vs1 = nullptr;   ///< moves it day by day
    ListeDossiers *m_list1 = nullptr;
    QCheckBox *m_check1 = nullptr; ///< "Absences valorisées"
    QCheckBox *m_check2 = nullptr; ///< "Absences en couleur"
};

} // namespace velmora
