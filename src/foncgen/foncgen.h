#pragma once

#include <QDate>
#include <QList>
#include <QRgb>
#include <QString>

#include <array>

namespace velmora
{

class Imprimante;
struct GrilleImprimee;

/// The general-function object: the text forms of numbers, dates and hours, and the print services. One lives
/// in each session. It has no state; its text methods are pure.
class Foncgen
{
public:
    /// `number` in decimal, zero-padded on the left to `width`: strz(5, 2) is "05". A number that is wider
    /// than `width` is written whole. A "-" counts in the width and stands before the zeros.
    [[nodiscard]] static QString strz(int number, int width);

    /// `number` with exactly `decimals` decimals and the decimal mark of the system's locale, without group
    /// separators. `decimals` is held within 0 to 15.
    [[nodiscard]] static QString strn(double number, int decimals);

    /// "dd/mm/yyyy"; empty for an invalid date and outside the years 1 to 9999.
    [[nodiscard]] static QString dtoc(const QDate &date);

    /// Reads "dd/mm/yyyy", blanks around allowed; day and month may have one digit, the year has four. An
    /// invalid date for any other text.
    [[nodiscard]] static QDate ctod(const QString &text);

    /// Minutes as hour text: "8h20", "0h00", "-0h15", not padded: a cell
    /// is centred and callers compare with "0h00", so `width` (5 for a moment, 7 for a duration) only
    /// states the widest text expected.
    [[nodiscard]] static QString fwhl(int minutes, int width);

    /// Appends what `fwhl` gives to a text, with no text of its own.
    static void appendHour(QString &text, int minutes);

    /// Minutes of an hour text, the inverse of `fwhl` for every int: "152h30" and "-0h15" come back as they
    /// went. Accepts what a person types: "8h20", "08h20", "8h", "8h2" (one digit is the minutes as such:
    /// 8h02), "8:20", "8.20", "8,20", "0820", "820", "8", an upper-case "H", blanks around, a leading "-".
    /// An hour past the day is read all the same ("24h00" is 1440, "25h00" is 1500): refusing it is the
    /// range rule's part. Returns `horsPlage` for anything else, minutes above 59 and digits of other
    /// scripts included, so that the range rules refuse it.
    [[nodiscard]] static int valhor(const QString &text);

    /// What `valhor` returns for a text that is no hour: outside 0 to 1440.
    static constexpr int horsPlage = 9999;

    /// ISO-8601 week number of the date, 1 to 53.
    [[nodiscard]] static int nosem(const QDate &date);

    /// French name of a weekday, 1 is Sunday: "dimanche", "lundi", ... Empty outside 1 to 7.
    [[nodiscard]] static QString nomjour(int weekday);

    // Print services, on the page grid (output/printer.h). Each is given its first line by reference and
    // leaves it on the last line that it has used, so that a row of any height is followed by `++ligne`.

    /// Writes a text from the left edge of a column on. "\n" goes on one line below.
    static void pprint(Imprimante &imprimante, int &ligne, int colonne, const QString &texte);
    /// The same, centred on the left edge of the column.
    static void pprintc(Imprimante &imprimante, int &ligne, int colonne, const QString &texte);
    /// The same, ending a hair before the left edge of the column: a rule may stand there.
    static void pprintd(Imprimante &imprimante, int &ligne, int colonne, const QString &texte);

    /// Draws a frame from the top of `ligne` to the bottom of `derniereLigne`, between the left edges of two
    /// columns: the sides asked for, and inside it a vertical rule at each column of `regles` that isn't 0.
    static void tabl(Imprimante &imprimante, int &ligne, int colonne, int derniereLigne, int derniereColonne,
                     bool haut, bool bas, bool gauche, bool droite, const std::array<int, 8> &regles = {});

    /// Fills the same rectangle with a colour; what is written on it comes after.
    static void remplir(Imprimante &imprimante, int &ligne, int colonne, int derniereLigne,
                        int derniereColonne, QRgb couleur);

    /// Prints some columns of a grid, page by page, under the title and the grid's own titles. `orientation`
    /// is "P" for upright pages, any other letter for lying ones. The columns are as wide as their texts; a
    /// grid wider than the page is made smaller as a whole.
    static void msfgimpr(Imprimante &imprimante, const GrilleImprimee &grille, const QString &titre,
                         const QString &nometab, QChar orientation, const QList<int> &colonnes);
};

} // namespace velmora
