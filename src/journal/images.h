#pragma once

#include "session/session.h"

#include <algorithm>
#include <vector>

namespace velmora
{

// What an image shows (`avap`) and of which row operation (`foncop`).
inline const QString imageAvant = QStringLiteral("A");
inline const QString imageApres = QStringLiteral("P");
inline const QString ligneChangee = QStringLiteral("E");
inline const QString ligneAjoutee = QStringLiteral("A");
inline const QString ligneSupprimee = QStringLiteral("D");

/// Whether a failure is the file's and not the one row's.
[[nodiscard]] bool fichierEnPanne(const store::Status &status);

/// The order in which images are played.
enum class Marche { Enregistrement, Envers };

/// Reads the images of the operation `opcour`, in the order of their recording.
template <class Image>
[[nodiscard]] store::Status litImages(const Session &session, store::Table<Image> &table,
                                      std::vector<Image> &images)
{
    const QByteArray index = table.currentIndex().toLatin1();
    auto rangees = table.range(index.constData(), {session.opcour}, {session.opcour});
    while (rangees.next())
        images.push_back(rangees.row());
    return rangees.status();
}

/// Plays the images of the operation `opcour` one after the other by `joue`, which returns a status, and
/// starts the count of touched lines afresh. An image that can't be played is skipped and the walk goes on;
/// a file that fails ends it, with the failure.
template <class Image, class Joue>
[[nodiscard]] store::Status joueImages(Session &session, store::Table<Image> &table, Marche marche,
                                       Joue &&joue)
{
    session.rejeu.nbligrej = 0;
    std::vector<Image> images;
    const store::Status lu = litImages(session, table, images);
    if (!lu.ok()) return lu;
    if (marche == Marche::Envers) std::reverse(images.begin(), images.end());
    for (const Image &image : images) {
        const store::Status status = joue(image);
        if (status.ok()) continue;
        if (fichierEnPanne(status)) return status;
        session.base.cancelUpdates();
    }
    return {};
}

} // namespace velmora
