#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace velmora::cli
{

/// An option of the command line and the words for its values in the help; without a word it takes none.
struct Option {
    const char *nom;
    const char *valeur = nullptr;
    bool repetee = false; ///< may be given more than once
    bool requise = false; ///< the command can't do without
    int nombre = 1;       ///< values that it takes, one after the other
};

/// The command line taken apart: the words that are no options, in order, and the options with their values.
class Arguments
{
public:
    /// Takes options before, between and after the words, as "--nom valeur" or "--nom=valeur", with further
    /// values behind; what follows "--" is words. `erreur` then tells an unknown option, a missing or
    /// unwanted value or a repetition.
    Arguments(const QStringList &ligne, const std::vector<Option> &connues);

    /// A sentence about the first fault; empty when there is none.
    [[nodiscard]] const QString &erreur() const { return m_erreur; }
    [[nodiscard]] const QStringList &mots() const { return m_mots; }
    [[nodiscard]] bool a(const char *option) const { return m_valeurs.contains(QLatin1String(option)); }
    /// The option's value, or `sinon` when it isn't given.
    [[nodiscard]] QString valeur(const char *option, const QString &sinon = {}) const;
    [[nodiscard]] QStringList valeurs(const char *option) const;
    /// Names of the options given, sorted.
    [[nodiscard]] QStringList options() const { return m_valeurs.keys(); }

private:
    void lit(const QStringList &ligne, const std::vector<Option> &connues);
    void litOption(const QString &texte, const QStringList &ligne, qsizetype &i,
                   const std::vector<Option> &connues);
    void refuse(const QString &erreur);

    QStringList m_mots;
    QMap<QString, QStringList> m_valeurs;
    QString m_erreur;
};

/// A whole number written in digits only, within two bounds; nothing for any other text.
[[nodiscard]] std::optional<int> entier(const QString &texte, int mini, int maxi);

} // namespace velmora::cli
