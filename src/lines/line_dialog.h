#pragma once

#include "lines/controls.h"

#include <QDialog>

class QBoxLayout;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace velmora
{

/// What the line dialogs share: their fields, the commands OK, "Annuler" and help, and the answer that they
/// leave in `dlgvalide`.
class DialogueLigne : public QDialog
{
    Q_OBJECT

public:
    /// OK and cancel. A refusal of OK leaves the dialog open, on the field that it is about.
    void accept() override;
    void reject() override;

protected:
    DialogueLigne(Session &session, const char *nom, const QString &caption, QWidget *parent);

    // The contents, from top to bottom, each in its frame. A label without a frame stands alone.
    void ajouteLabel(const char *nom, const QString &texte, const QString &cadre = {});
    /// Text1, the line's name.
    QLineEdit *ajouteNom(const QString &caption);
    /// Text2, a date that starts as today's.
    QLineEdit *ajouteDate(const QString &caption);
    void ajoute(QWidget *contenu);
    /// Puts the commands under the contents.
    void termine();

    /// What OK does: the core's command with what the fields hold.
    [[nodiscard]] virtual IssueLigne execute() = 0;
    /// The control of a field, or null.
    [[nodiscard]] virtual QLineEdit *champ(ChampLigne lequel) const;
    [[nodiscard]] QWidget *boutonOk() const;

    Session &m_session;

private:
    QBoxLayout *ajouteCadre(const QString &caption);

    QVBoxLayout *m_page;
    QLineEdit *m_text1 = nullptr; // the name
    QLineEdit *m_text2 = nullptr; // the date
    QPushButton *m_command1;      // "OK"
    QPushButton *m_command2;      // "Annuler"
    QPushButton *m_command3;      // help
};

} // namespace velmora
