#pragma once

#include "foncgen/foncgen.h"
#include "store/row_fields.h"

#include <QStringList>

namespace velmora::cli
{

// A field as the commands print it: numbers in decimal, true as the -1 of the file, dates as they are typed.
inline QString texteChamp(int valeur)
{
    return QString::number(valeur);
}
inline QString texteChamp(bool valeur)
{
    return valeur ? QStringLiteral("-1") : QStringLiteral("0");
}
inline QString texteChamp(const QDate &valeur)
{
    return Foncgen::dtoc(valeur);
}
inline QString texteChamp(const QString &valeur)
{
    return valeur;
}

/// A null is an empty field.
inline QString texteChamp(const std::optional<int> &valeur)
{
    return valeur ? texteChamp(*valeur) : QString();
}

/// Every field of a row, in the order of its table.
template <class Row> QStringList textesRangee(const Row &row)
{
    return std::apply([&row](const auto &...champ) { return QStringList{texteChamp(champ.get(row))...}; },
                      store::fieldsOf<Row>);
}

} // namespace velmora::cli
