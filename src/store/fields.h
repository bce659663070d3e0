#pragma once

#include <tuple>
#include <utility>

namespace velmora::store
{

/// One field of a row: its column name and how to reach it in the struct. The list of a struct's fields,
/// `fieldsOf<Row>`, is the only place where they are named: schema, statements and copies come from it.
template <class Get> struct Field {
    const char *name;
    Get get; ///< Row & -> reference to the field, const or not with the row
};

template <class Row, class T> constexpr auto field(const char *name, T Row::*member)
{
    auto get = [member](auto &row) -> auto &
    {
        return row.*member;
    };
    return Field<decltype(get)>{name, get};
}

template <class... Fields> constexpr auto fields(Fields... list)
{
    return std::make_tuple(list...);
}

/// The fields of a struct that is held as a member of another, as fields of the outer one.
template <class Row, class Inner, class... Fields>
constexpr auto fieldsWithin(Inner Row::*member, const std::tuple<Fields...> &list)
{
    return std::apply(
        [member](const auto &...inner) {
            auto lift = [member](const auto &one) {
                auto get = [ member, reach = one.get ](auto &row) -> auto &
                {
                    return reach(row.*member);
                };
                return Field<decltype(get)>{one.name, get};
            };
            return std::make_tuple(lift(inner)...);
        },
        list);
}

/// The fields of a row type, specialised beside each row.
template <class Row> inline constexpr auto fieldsOf = std::tuple<>{};

} // namespace velmora::store
