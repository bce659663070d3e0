#include "store/structure_checks.h"

namespace velmora::store
{

namespace
{

using Constats = std::vector<Constat>;
using Step = Statement::Step;

constexpr auto faute = Constat::Gravite::Faute;

QString texte(const Statement &statement, int column)
{
    const auto utf8 = statement.columnText(column);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Calls `visit` on each row of a query. The status of the walk.
template <class Visit> Status chaqueRangee(Engine &engine, const QString &sql, Visit &&visit)
{
    const auto statement = engine.prepare(sql);
    if (!statement) return engine.status();
    Step step = statement->step();
    for (; step == Step::Row; step = statement->step())
        visit(*statement);
    return step == Step::Failed ? statement->status() : Status{};
}

/// A file without a mark may be one of ours that another tool has made.
bool estEtranger(Engine &engine, FileKind kind)
{
    const std::int64_t marque = fileMark(engine);
    return marque != 0 && marque != static_cast<std::int64_t>(kind);
}

void verifiePages(Engine &engine, Constats &constats)
{
    const Status status =
        chaqueRangee(engine, QStringLiteral("PRAGMA integrity_check"), [&](const Statement &rangee) {
            const QString dit = texte(rangee, 0);
            if (dit != QLatin1String("ok"))
                constats.push_back({faute, QStringLiteral("la structure est abîmée : %1.").arg(dit)});
        });
    if (!status.ok()) constats.push_back(controleImpossible(status));
}

QStringList colonnes(Engine &engine, const QString &pragma)
{
    QStringList noms;
    const Status status =
        chaqueRangee(engine, pragma, [&](const Statement &rangee) { noms << texte(rangee, 0); });
    return status.ok() ? noms : QStringList{};
}

/// False when values of the table can't be read by their names.
bool verifieColonnes(Engine &engine, const Schema &schema, Constats &constats)
{
    const QStringList presentes =
        colonnes(engine, QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(schema.table));
    if (presentes.isEmpty()) {
        constats.push_back({faute, QStringLiteral("la table %1 manque.").arg(schema.table)});
        return false;
    }
    bool completes = true;
    for (const Column &column : schema.columns) {
        if (presentes.contains(column.name, Qt::CaseInsensitive)) continue;
        constats.push_back(
            {faute, QStringLiteral("la colonne %1 manque à la table %2.").arg(column.name, schema.table)});
        completes = false;
    }
    return completes;
}

QStringList nomsColonnes(const Schema &schema, const Index &index)
{
    QStringList noms;
    for (const int column : index.columns)
        noms << schema.columns[static_cast<std::size_t>(column)].name;
    return noms;
}

/// The columns of an index as the file has it, last whether it is unique and whole; empty when there is none.
/// The standing index of a clustered table is its primary key.
QStringList indexPresent(Engine &engine, const Schema &schema, const Index &index, bool primaire)
{
    if (primaire) {
        return colonnes(engine,
                        QStringLiteral("SELECT name FROM pragma_table_info('%1') WHERE pk > 0 ORDER BY pk")
                            .arg(schema.table)) +
               QStringList{QStringLiteral("1")};
    }
    return colonnes(engine, QStringLiteral("SELECT name FROM pragma_index_info('%1')").arg(index.name)) +
           colonnes(engine,
                    QStringLiteral(
                        "SELECT \"unique\" + 2 * partial FROM pragma_index_list('%1') WHERE name = '%2'")
                        .arg(schema.table, index.name));
}

void verifieIndex(Engine &engine, const Schema &schema, Constats &constats)
{
    for (std::size_t i = 0; i < schema.indexes.size(); ++i) {
        const Index &index = schema.indexes[i];
        if (index.columns.empty()) continue;
        const QStringList present = indexPresent(engine, schema, index, schema.clustered && i == 0);
        const QStringList voulu =
            nomsColonnes(schema, index) + QStringList{QString::number(index.unique ? 1 : 0)};
        if (present == voulu) continue;
        const QString phrase = present.size() < 2
                                   ? QStringLiteral("l'index %1 manque à la table %2.")
                                   : QStringLiteral("l'index %1 de la table %2 n'a pas sa clé, n'a pas "
                                                    "toutes les rangées, ou n'est pas unique comme il doit.");
        constats.push_back({faute, phrase.arg(index.name, schema.table)});
    }
}

/// Colours have 32 bits, every other number 16.
bool estLarge(const Column &column)
{
    return column.name.startsWith(QLatin1String("ccl")) || column.name == QLatin1String("backc") ||
           column.name == QLatin1String("forec");
}

QString bornes(const Column &column, const QString &entre)
{
    return estLarge(column) ? QStringLiteral("-2147483648") + entre + QStringLiteral("2147483647")
                            : QStringLiteral("-32768") + entre + QStringLiteral("32767");
}

/// What a value of the nature is not, as a condition; a null is fine everywhere.
QString horsNature(const Column &column)
{
    switch (column.nature) {
    case Nature::Number:
        return QStringLiteral("typeof(%1) NOT IN ('integer', 'null') OR %1 NOT BETWEEN %2")
            .arg(column.name, bornes(column, QStringLiteral(" AND ")));
    case Nature::Truth: return QStringLiteral("%1 NOT IN (0, -1)").arg(column.name);
    case Nature::Real:
        return QStringLiteral("typeof(%1) NOT IN ('real', 'integer', 'null')").arg(column.name);
    case Nature::Text: return QStringLiteral("typeof(%1) NOT IN ('text', 'null')").arg(column.name);
    // The modifier makes 31 February another day.
    case Nature::Date: return QStringLiteral("%1 <> '' AND %1 IS NOT date(%1, '+0 days')").arg(column.name);
    case Nature::Moment: return QStringLiteral("%1 <> '' AND datetime(%1) IS NULL").arg(column.name);
    }
    return {};
}

/// The words after "autre chose".
QString nomNature(const Column &column)
{
    switch (column.nature) {
    case Nature::Number:
        return QStringLiteral("qu'un nombre entier de ") + bornes(column, QStringLiteral(" à "));
    case Nature::Truth: return QStringLiteral("que les valeurs vrai (-1) et faux (0)");
    case Nature::Real: return QStringLiteral("qu'un nombre");
    case Nature::Text: return QStringLiteral("qu'un texte");
    case Nature::Date: return QStringLiteral("qu'une date");
    case Nature::Moment: return QStringLiteral("qu'une date et une heure");
    }
    return {};
}

/// One pass over the table for all of its columns.
void verifieValeurs(Engine &engine, const Schema &schema, Constats &constats)
{
    QStringList sommes;
    for (const Column &column : schema.columns)
        sommes << QStringLiteral("total(%1)").arg(horsNature(column));
    const QString sql =
        QStringLiteral("SELECT %1 FROM %2").arg(sommes.join(QStringLiteral(", ")), schema.table);
    const Status status = chaqueRangee(engine, sql, [&](const Statement &rangee) {
        int numero = 0;
        for (const Column &column : schema.columns) {
            const std::int64_t nombre = rangee.columnInt(numero++);
            if (nombre == 0) continue;
            constats.push_back(
                {faute, QStringLiteral("la colonne %1.%2 tient autre chose %3 (nombre de rangées : %4).")
                            .arg(schema.table, column.name, nomNature(column))
                            .arg(nombre)});
        }
    });
    if (!status.ok()) constats.push_back(controleImpossible(status));
}

} // namespace

Constat controleImpossible(const Status &status)
{
    return {faute, QStringLiteral("un contrôle n'a pas pu être fait : %1.").arg(status.text())};
}

Structure verifieStructure(Engine &engine, FileKind kind, const std::vector<const Schema *> &schemas)
{
    if (estEtranger(engine, kind))
        return {{{faute, QStringLiteral("le fichier porte la marque d'un autre programme.")}}, false};
    Structure structure;
    verifiePages(engine, structure.constats);
    for (const Schema *schema : schemas) {
        if (verifieColonnes(engine, *schema, structure.constats)) {
            verifieIndex(engine, *schema, structure.constats);
            verifieValeurs(engine, *schema, structure.constats);
        } else
            structure.complete = false;
    }
    return structure;
}

} // namespace velmora::store
