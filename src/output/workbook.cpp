#include "output/workbook.h"

#include <QCoreApplication>
#include <QFile>

#include <xlsxwriter.h>

#include <cstdio>
#include <utility>

namespace velmora
{

namespace
{

constexpr lxw_row_t rangeeTitre = 1;
constexpr lxw_row_t rangeeJours = 6;
constexpr lxw_row_t rangeesEntete = 8;
constexpr lxw_col_t premierJour = 2;

// Widths in characters, heights in points.
constexpr double largeurNom = 26;
constexpr double largeurTitre = 13;
constexpr double largeurJour = 11.5;
constexpr double hauteurVide = 4;
constexpr double corpsTitre = 14;
constexpr lxw_color_t fondEntete = 0xECEFF3;
constexpr lxw_color_t fondFaites = 0xF4F6F8;
constexpr lxw_color_t encreSeparation = 0xA0A8B0;

/// The file in the making stands beside its place, so that it takes it in one step.
QByteArray enCours(const QString &fichier)
{
    return QFile::encodeName(fichier + QStringLiteral(".%1").arg(QCoreApplication::applicationPid()));
}

} // namespace

struct Classeur::Feuille {
    explicit Feuille(const QByteArray &leNom) : nom(leNom)
    {
        // Rows go straight to a passing file: a large planning takes no room in memory.
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        classeur = workbook_new_opt(nom.constData(), &options);
        feuille = workbook_add_worksheet(classeur, "Feuil1");
        construitFormats();
    }
    ~Feuille()
    {
        if (classeur) lxw_workbook_free(classeur);
    }
    Feuille(const Feuille &) = delete;
    Feuille &operator=(const Feuille &) = delete;

    lxw_format *nouveauFormat(bool gras) const
    {
        lxw_format *format = workbook_add_format(classeur);
        if (gras) format_set_bold(format);
        return format;
    }
    void construitFormats()
    {
        titre = nouveauFormat(true);
        format_set_font_size(titre, corpsTitre);
        jour = nouveauFormat(true);
        format_set_num_format(jour, "dd/mm/yyyy");
        format_set_align(jour, LXW_ALIGN_CENTER);
        format_set_bg_color(jour, fondEntete);
        nomLigne = nouveauFormat(true);
        heures = nouveauFormat(false);
        faites = nouveauFormat(true);
        format_set_bg_color(faites, fondFaites);
        for (lxw_format *format : {heures, faites}) {
            format_set_num_format(format, "0.00");
            format_set_align(format, LXW_ALIGN_RIGHT);
        }
        separation = nouveauFormat(false);
        format_set_font_color(separation, encreSeparation);
    }

    void texte(lxw_row_t ou, lxw_col_t colonne, const QString &valeur, lxw_format *format) const
    {
        worksheet_write_string(feuille, ou, colonne, valeur.toUtf8().constData(), format);
    }
    void jours(lxw_row_t ou, const QDate &debut, const QDate &fin) const
    {
        texte(ou, 0, QStringLiteral("NOM "), jour);
        worksheet_write_blank(feuille, ou, 1, jour);
        lxw_col_t colonne = premierJour;
        for (QDate un = debut; un <= fin; un = un.addDays(1)) {
            lxw_datetime date{un.year(), un.month(), un.day(), 0, 0, 0};
            worksheet_write_datetime(feuille, ou, colonne++, &date, jour);
        }
    }
    void ecrit(lxw_row_t ou, lxw_col_t colonne, const CaseExport &une, lxw_format *format) const
    {
        switch (une.sorte) {
        case CaseExport::Sorte::Heures:
            worksheet_write_number(feuille, ou, colonne, heuresDecimales(une.minutes), format);
            break;
        case CaseExport::Sorte::Aucune: worksheet_write_number(feuille, ou, colonne, 0, format); break;
        case CaseExport::Sorte::Tiret: worksheet_write_string(feuille, ou, colonne, " - ", format); break;
        case CaseExport::Sorte::Vide: break;
        }
    }

    QByteArray nom;
    lxw_workbook *classeur = nullptr;
    lxw_worksheet *feuille = nullptr; ///< null when there is no room for its passing file
    lxw_format *titre = nullptr;
    lxw_format *jour = nullptr;
    lxw_format *nomLigne = nullptr;
    lxw_format *heures = nullptr;
    lxw_format *faites = nullptr; ///< the row of the worked hours
    lxw_format *separation = nullptr;
    lxw_row_t rangee = rangeesEntete; ///< the next one to write
};

Classeur::Classeur(const QString &fichier, const QDate &debut, const QDate &fin)
    : m_fichier(fichier), m_feuille(std::make_unique<Feuille>(enCours(fichier)))
{
    lxw_worksheet *feuille = m_feuille->feuille;
    if (!feuille) return;
    const auto dernierJour = static_cast<lxw_col_t>(premierJour + debut.daysTo(fin));
    worksheet_set_column(feuille, 0, 0, largeurNom, nullptr);
    worksheet_set_column(feuille, 1, 1, largeurTitre, nullptr);
    worksheet_set_column(feuille, premierJour, dernierJour, largeurJour, nullptr);
    worksheet_freeze_panes(feuille, rangeesEntete, premierJour);
    worksheet_set_landscape(feuille);
    worksheet_set_paper(feuille, 9); // A4
    worksheet_repeat_rows(feuille, rangeeJours, rangeeJours);
    worksheet_repeat_columns(feuille, 0, 1);
    ecritEntete(debut, fin);
}

Classeur::~Classeur() = default;

/// The rows of the head one after the other: a row can't be gone back to. Those without text are thin.
void Classeur::ecritEntete(const QDate &debut, const QDate &fin)
{
    const Feuille &f = *m_feuille;
    for (lxw_row_t rangee = 0; rangee < rangeesEntete; ++rangee) {
        if (rangee == rangeeTitre)
            f.texte(rangee, premierJour, titreExport(debut, fin), f.titre);
        else if (rangee == rangeeJours)
            f.jours(rangee, debut, fin);
        else
            worksheet_set_row(f.feuille, rangee, hauteurVide, nullptr);
    }
}

void Classeur::ajouteBloc(const BlocExport &bloc)
{
    Feuille &f = *m_feuille;
    if (!f.feuille) return;
    f.texte(f.rangee, 0, bloc.nom, f.nomLigne);
    for (std::size_t rangee = 0; rangee < rangeesHeures; ++rangee, ++f.rangee) {
        f.texte(f.rangee, 1, titresRangees()[rangee], nullptr);
        lxw_format *format = rangee == 0 ? f.faites : f.heures;
        lxw_col_t colonne = premierJour;
        for (const JourExport &jour : bloc.jours)
            f.ecrit(f.rangee, colonne++, jour[rangee], format);
    }
    f.texte(f.rangee, 0, separationNom, f.separation);
    f.texte(f.rangee++, 1, separationTitre, f.separation);
}

bool Classeur::termine()
{
    // The library tells a failure of its own on the standard error, so it is kept from one.
    if (!m_feuille->feuille || !QFile(QFile::decodeName(m_feuille->nom)).open(QIODevice::WriteOnly))
        return false;
    const bool ecrit = workbook_close(std::exchange(m_feuille->classeur, nullptr)) == LXW_NO_ERROR;
    const QByteArray &passager = m_feuille->nom;
    if (ecrit && std::rename(passager.constData(), QFile::encodeName(m_fichier).constData()) == 0)
        return true;
    std::remove(passager.constData());
    return false;
}

} // namespace velmora
