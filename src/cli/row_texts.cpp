#include "cli/row_texts.h"

#include "foncgen/foncgen.h"
#include "store/row_fields.h"

namespace velmora::cli
{

namespace
{

QString texte(int valeur)
{
    return QString::number(valeur);
}

QString texte(bool valeur)
{
    return texte(valeur ? -1 : 0);
}

QString texte(const QString &valeur)
{
    return valeur;
}

QString texte(const std::optional<int> &valeur)
{
    return valeur ? texte(*valeur) : QString();
}

} // namespace

template <class Row> QStringList champsDe(const Row &row)
{
    QStringList champs;
    std::apply([&](const auto &...field) { (champs.append(texte(field.get(row))), ...); },
               store::fieldsOf<Row>);
    return champs;
}

template QStringList champsDe(const CodeAbsence &);

} // namespace velmora::cli
