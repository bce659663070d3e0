#include "store/collation.h"

#include <sqlite3.h>
#include <unicode/ucol.h>
#include <unicode/uiter.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace velmora::store
{

namespace
{

struct CloseCollator {
    void operator()(UCollator *collator) const { ucol_close(collator); }
};
using Collator = std::unique_ptr<UCollator, CloseCollator>;

Collator openCollator()
{
    UErrorCode error = U_ZERO_ERROR;
    Collator collator(ucol_open("fr", &error));
    return U_SUCCESS(error) ? std::move(collator) : nullptr;
}

int compareUtf8(const UCollator *collator, int leftSize, const void *left, int rightSize, const void *right)
{
    UErrorCode error = U_ZERO_ERROR;
    const auto order = ucol_strcollUTF8(collator, static_cast<const char *>(left), leftSize,
                                        static_cast<const char *>(right), rightSize, &error);
    if (U_SUCCESS(error) && order != UCOL_EQUAL) return order == UCOL_LESS ? -1 : 1;
    const int bytes = std::memcmp(left, right, static_cast<std::size_t>(std::min(leftSize, rightSize)));
    return bytes != 0 ? bytes : leftSize - rightSize;
}

int collate(void *collator, int leftSize, const void *left, int rightSize, const void *right)
{
    return compareUtf8(static_cast<const UCollator *>(collator), leftSize, left, rightSize, right);
}

} // namespace

Status registerCollation(sqlite3 *database)
{
    Collator collator = openCollator();
    if (!collator) return {Status::Code::Misuse, QStringLiteral("no French collation in ICU")};
    const int result =
        sqlite3_create_collation_v2(database, collationFrancais, SQLITE_UTF8, collator.release(), collate,
                                    [](void *owned) { ucol_close(static_cast<UCollator *>(owned)); });
    if (result == SQLITE_OK) return {};
    return {Status::Code::Misuse, QString::fromUtf8(sqlite3_errmsg(database))};
}

int compareFrancais(const QString &left, const QString &right)
{
    thread_local const Collator collator = openCollator();
    const QByteArray first = left.toUtf8();
    const QByteArray second = right.toUtf8();
    return compareUtf8(collator.get(), static_cast<int>(first.size()), first.constData(),
                       static_cast<int>(second.size()), second.constData());
}

} // namespace velmora::store
