#include "output/windows1252.h"

#include <unicode/ucnv.h>

namespace velmora
{

QByteArray enWindows1252(const QString &texte)
{
    // An accent that stands apart from its letter has no place of its own in the encoding.
    const QString compose = texte.normalized(QString::NormalizationForm_C);
    UErrorCode erreur = U_ZERO_ERROR;
    const icu::LocalUConverterPointer table(ucnv_open("windows-1252", &erreur));
    ucnv_setSubstChars(table.getAlias(), "?", 1, &erreur);
    QByteArray octets(compose.size() + 1, Qt::Uninitialized);
    const auto longueur = ucnv_fromUChars(table.getAlias(), octets.data(), static_cast<int>(octets.size()),
                                          reinterpret_cast<const UChar *>(compose.utf16()),
                                          static_cast<int>(compose.size()), &erreur);
    octets.truncate(U_SUCCESS(erreur) ? longueur : 0);
    return octets;
}

} // namespace velmora
