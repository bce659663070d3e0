#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace velmora
{

/// Gives a control the name that tests and accessibility tools find it by.
template <class Widget> Widget *nomme(Widget *widget, const char *nom)
{
    widget->setObjectName(QLatin1String(nom));
    return widget;
}

/// A label and a button under their names. A label shows its text as it stands: names of lines and folders
/// are never read as markup.
inline QLabel *etiquette(QWidget *parent, const char *nom, const QString &texte)
{
    auto *const label = nomme(new QLabel(texte, parent), nom);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A field that only shows a text.
inline QLineEdit *affichage(QWidget *parent, const char *nom, const QString &accessible)
{
    auto *const texte = nomme(new QLineEdit(parent), nom);
    texte->setReadOnly(true);
    texte->setFocusPolicy(Qt::NoFocus);
    texte->setAccessibleName(accessible);
    return texte;
}

inline QPushButton *bouton(QWidget *parent, const char *nom, const QString &texte)
{
    return nomme(new QPushButton(texte, parent), nom);
}

} // namespace velmora
