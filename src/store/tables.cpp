#include "store/tables.h"

#include "store/column_types.h"
#include "store/row_fields.h"

#include <type_traits>

namespace velmora::store
{

/// A table that is only walked in the order of its rows.
struct Unindexed : TableDefaults {
    static std::vector<IndexDef> indexes() { return {{"", {}}}; }
};

template <> struct TableDef<Agent> : Unindexed {
    static constexpr const char *name = "agent";
};

template <> struct TableDef<Tnum> : Unindexed {
    static constexpr const char *name = "tnum";
};

template <> struct TableDef<Veloption> : Unindexed {
    static constexpr const char *name = "veloption";
};

template <> struct TableDef<JourFerie> : TableDefaults {
    static constexpr const char *name = "ferie";
    static std::vector<IndexDef> indexes() { return {{"ferie01", {"datedeb"}}}; }
};

template <> struct TableDef<JeuParam> : TableDefaults {
    static constexpr const char *name = "parcg";
    static std::vector<IndexDef> indexes() { return {{"parcg01", {"dat"}, true}}; }
};

template <> struct TableDef<JourSit> : TableDefaults {
    static constexpr const char *name = "sitper";
    static constexpr bool clustered = true;
    static std::vector<IndexDef> indexes()
    {
        return {{"sitper01", {"nump", "dat"}, true}, {"sitper02", {"dat", "nump"}, true}};
    }
};

template <> struct TableDef<Ligne> : TableDefaults {
    static constexpr const char *name = "ligmois";
    static constexpr bool sortsAsFrench(std::string_view field) { return field == "nom"; }
    static std::vector<IndexDef> indexes() { return {{"ligmois01", {"nump"}, true}, {"ligmois02", {"nom"}}}; }
};

template <> struct TableDef<AbsenceSaisie> : TableDefaults {
    static constexpr const char *name = "absences";
    static std::vector<IndexDef> indexes() { return {{"abs01", {"nump", "datedeb"}}}; }
};

template <> struct TableDef<CodeAbsence> : TableDefaults {
    static constexpr const char *name = "codabs";
    static std::vector<IndexDef> indexes() { return {{"codabs01", {"codabs"}, true}}; }
};

template <> struct TableDef<Dossier> : TableDefaults {
    static constexpr const char *name = "groupe";
    static constexpr bool sortsAsFrench(std::string_view field) { return field == "groupe"; }
    static std::vector<IndexDef> indexes()
    {
        return {{"groupegn", {"groupe", "nump"}, true}, {"groupeng", {"nump", "groupe"}, true}};
    }
};

template <> struct TableDef<Chemin> : TableDefaults {
    static constexpr const char *name = "chemin";
    static std::vector<IndexDef> indexes() { return {{"chemin01", {"nor"}}}; }
};

/// The key isn't unique: a table of 1 to 5 rows gets the ring's 31 rows beside them.
template <> struct TableDef<Operation> : TableDefaults {
    static constexpr const char *name = "logop";
    static std::vector<IndexDef> indexes() { return {{"logop01", {"numop"}}}; }
};

/// `babs` is a column of the images, but recording leaves it empty.
template <> struct TableDef<ImageSit> : TableDefaults {
    static constexpr const char *name = "sitlog";
    static constexpr bool clustered = true;
    static std::vector<IndexDef> indexes() { return {{"sitlog1", {"numop", "nivop"}, true}}; }
};

template <> struct TableDef<ImageAbs> : TableDefaults {
    static constexpr const char *name = "logabs";
    static constexpr bool clustered = true;
    static std::vector<IndexDef> indexes() { return {{"logabs1", {"numop", "nivop"}, true}}; }
};

template <> struct TableDef<JourCopie> : TableDefaults {
    static constexpr const char *name = "sitco";
    static constexpr bool keeps(std::string_view field)
    {
        return field != "sit" && field != "numv" && field != "babs";
    }
    static std::vector<IndexDef> indexes() { return {{"sitco01", {"nump", "dat"}}}; }
};

namespace
{

/// Calls `visit(field, std::type_identity<T>{})` for each field of the row that the table keeps, in order.
template <class Row, class Visit> void forEachColumn(Visit &&visit)
{
    std::apply(
        [&visit](const auto &...field) {
            auto one = [&visit](const auto &kept) {
                using Value = std::remove_cvref_t<decltype(kept.get(std::declval<Row &>()))>;
                if (TableDef<Row>::keeps(kept.name)) visit(kept, std::type_identity<Value>{});
            };
            (one(field), ...);
        },
        fieldsOf<Row>);
}

template <class Row, std::size_t I> void appendAccess(std::vector<ColumnAccess<Row>> &list)
{
    static const Row probe{};
    constexpr const auto &listed = std::get<I>(fieldsOf<Row>);
    using Value = std::remove_cvref_t<decltype(listed.get(std::declval<Row &>()))>;
    if (!TableDef<Row>::keeps(listed.name)) return;
    list.push_back(
        {[](Row &row, const Statement &statement, int column) {
             std::get<I>(fieldsOf<Row>).get(row) = ColumnType<Value>::read(statement, column);
         },
         [](const Row &row, Statement &statement, int position) {
             ColumnType<Value>::bind(statement, position, std::get<I>(fieldsOf<Row>).get(row));
         },
         reinterpret_cast<const char *>(&listed.get(probe)) - reinterpret_cast<const char *>(&probe)});
}

} // namespace

template <class Row> const Schema &schemaOf()
{
    static const Schema schema = [] {
        Schema made;
        made.table = QString::fromLatin1(TableDef<Row>::name);
        made.clustered = TableDef<Row>::clustered;
        forEachColumn<Row>([&made](const auto &field, auto type) {
            using Type = ColumnType<typename decltype(type)::type>;
            made.columns.push_back({QString::fromLatin1(field.name), QString::fromLatin1(Type::sql),
                                    Type::nature, TableDef<Row>::sortsAsFrench(field.name), false});
        });
        addIndexes(made, TableDef<Row>::indexes());
        return made;
    }();
    return schema;
}

template <class Row> const std::vector<ColumnAccess<Row>> &accessOf()
{
    static const auto list = []<std::size_t... I>(std::index_sequence<I...>)
    {
        std::vector<ColumnAccess<Row>> made;
        (appendAccess<Row, I>(made), ...);
        return made;
    }
    (std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(fieldsOf<Row>)>>>{});
    return list;
}

template const Schema &schemaOf<Agent>();
template const std::vector<ColumnAccess<Agent>> &accessOf<Agent>();
template const Schema &schemaOf<Tnum>();
template const std::vector<ColumnAccess<Tnum>> &accessOf<Tnum>();
template const Schema &schemaOf<Veloption>();
template const std::vector<ColumnAccess<Veloption>> &accessOf<Veloption>();
template const Schema &schemaOf<JourFerie>();
template const std::vector<ColumnAccess<JourFerie>> &accessOf<JourFerie>();
template const Schema &schemaOf<JeuParam>();
template const std::vector<ColumnAccess<JeuParam>> &accessOf<JeuParam>();
template const Schema &schemaOf<JourSit>();
template const std::vector<ColumnAccess<JourSit>> &accessOf<JourSit>();
template const Schema &schemaOf<Ligne>();
template const std::vector<ColumnAccess<Ligne>> &accessOf<Ligne>();
template const Schema &schemaOf<AbsenceSaisie>();
template const std::vector<ColumnAccess<AbsenceSaisie>> &accessOf<AbsenceSaisie>();
template const Schema &schemaOf<CodeAbsence>();
template const std::vector<ColumnAccess<CodeAbsence>> &accessOf<CodeAbsence>();
template const Schema &schemaOf<Dossier>();
template const std::vector<ColumnAccess<Dossier>> &accessOf<Dossier>();
template const Schema &schemaOf<Chemin>();
template const std::vector<ColumnAccess<Chemin>> &accessOf<Chemin>();
template const Schema &schemaOf<Operation>();
template const std::vector<ColumnAccess<Operation>> &accessOf<Operation>();
template const Schema &schemaOf<ImageSit>();
template const std::vector<ColumnAccess<ImageSit>> &accessOf<ImageSit>();
template const Schema &schemaOf<ImageAbs>();
template const std::vector<ColumnAccess<ImageAbs>> &accessOf<ImageAbs>();
template const Schema &schemaOf<JourCopie>();
template const std::vector<ColumnAccess<JourCopie>> &accessOf<JourCopie>();

} // namespace velmora::store
