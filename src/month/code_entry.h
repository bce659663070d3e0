#pragma once

#include <QFrame>
#include <QLineEdit>

class QLabel;

namespace velmora
{

/// The entry of an absence code in a cell: `Text1` over the cell and `Frame2`, which says for whom and when.
/// It ends by Enter or by the second character, which ask for a check, or by Escape.
class SaisieCode : public QObject
{
    Q_OBJECT

public:
    /// `grille` is the viewport that the field is laid over; `cadre` holds the field and the frame, since the
    /// grid is disabled meanwhile.
    SaisieCode(QWidget *grille, QWidget *cadre);

    [[nodiscard]] QWidget *frame2() const { return m_frame2; }
    [[nodiscard]] bool enCours() const { return !m_text1->isHidden(); }

    /// Opens the field over a cell, with the first key in capitals.
    void commence(const QRect &cellule, const QString &touche, const QString &titreSaisie);
    /// Lays the field over its cell, which has moved or changed its size.
    void place(const QRect &cellule);
    /// Empties the field for another try.
    void recommence();
    void termine();

signals:
    /// A code is to be checked.
    void codeTape(const QString &code);
    void abandon();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_grille;
    QLineEdit *m_text1;
    QFrame *m_frame2;
    QLabel *m_labeli1;
    QLabel *m_labeli2;
};

} // namespace velmora
