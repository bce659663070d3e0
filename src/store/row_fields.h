#pragma once

#include "store/agent_row.h"
#include "store/fields.h"
#include "store/journal_rows.h"
#include "store/rows.h"

// The fields of every row, listed once: schema, statements and copies come from here. Only the table
// definitions include this, since the lists are costly to compile.
namespace velmora::store
{

template <>
inline constexpr auto fieldsOf<JourSit> = fields(
    field("nump", &JourSit::nump), field("dat", &JourSit::dat), field("Type", &JourSit::Type),
    field("numri", &JourSit::numri), field("numi", &JourSit::numi), field("numimp", &JourSit::numimp),
    field("numv", &JourSit::numv), field("sit", &JourSit::sit), field("Val", &JourSit::Val),
    field("heurdeb", &JourSit::heurdeb), field("heurfin", &JourSit::heurfin), field("hideb", &JourSit::hideb),
    field("hifin", &JourSit::hifin), field("hideb2", &JourSit::hideb2), field("hifin2", &JourSit::hifin2),
    field("heurtrav", &JourSit::heurtrav), field("heurpaye", &JourSit::heurpaye),
    field("hdeb1", &JourSit::hdeb1), field("hfin1", &JourSit::hfin1), field("hdeb2", &JourSit::hdeb2),
    field("hfin2", &JourSit::hfin2), field("hdeb3", &JourSit::hdeb3), field("hfin3", &JourSit::hfin3),
    field("hdeb4", &JourSit::hdeb4), field("hfin4", &JourSit::hfin4), field("hdeb5", &JourSit::hdeb5),
    field("hfin5", &JourSit::hfin5), field("hdeb6", &JourSit::hdeb6), field("hfin6", &JourSit::hfin6),
    field("datj", &JourSit::datj), field("horaire", &JourSit::horaire), field("babs", &JourSit::babs));

template <>
inline constexpr auto fieldsOf<Ligne> = fields(
    field("nump", &Ligne::nump), field("nom", &Ligne::nom), field("datedeb", &Ligne::datedeb),
    field("datefin", &Ligne::datefin), field("bcontrolh", &Ligne::bcontrolh), field("maxs", &Ligne::maxs),
    field("maxj", &Ligne::maxj), field("ampj", &Ligne::ampj), field("reposmin", &Ligne::reposmin),
    field("b6j", &Ligne::b6j), field("bcontrolr", &Ligne::bcontrolr), field("nrep", &Ligne::nrep),
    field("nrepd", &Ligne::nrepd), field("bcontrolp", &Ligne::bcontrolp), field("pause", &Ligne::pause));

template <>
inline constexpr auto fieldsOf<AbsenceSaisie> = fields(field("nump", &AbsenceSaisie::nump),
                                                       field("numi", &AbsenceSaisie::numi),
                                                       field("codabs", &AbsenceSaisie::codabs),
                                                       field("datedeb", &AbsenceSaisie::datedeb),
                                                       field("datefin", &AbsenceSaisie::datefin));

template <>
inline constexpr auto fieldsOf<CodeAbsence> =
    fields(field("codabs", &CodeAbsence::codabs), field("libecour", &CodeAbsence::libecour),
           field("libelong", &CodeAbsence::libelong), field("modabs", &CodeAbsence::modabs),
           field("bcouleur", &CodeAbsence::bcouleur), field("backc", &CodeAbsence::backc),
           field("forec", &CodeAbsence::forec), field("barc", &CodeAbsence::barc),
           field("classe", &CodeAbsence::classe), field("larr", &CodeAbsence::larr));

template <>
inline constexpr auto
    fieldsOf<JeuParam> = fields(field("dat", &JeuParam::dat), field("fdomtom", &JeuParam::fdomtom),
                                field("convcol", &JeuParam::convcol), field("nometab", &JeuParam::nometab));

template <>
inline constexpr auto
    fieldsOf<JourFerie> = fields(field("datedeb", &JourFerie::datedeb), field("datefin", &JourFerie::datefin),
                                 field("lib", &JourFerie::lib), field("act", &JourFerie::act),
                                 field("Val", &JourFerie::Val));

template <>
inline constexpr auto fieldsOf<Dossier> = fields(field("groupe", &Dossier::groupe),
                                                 field("nump", &Dossier::nump), field("sel", &Dossier::sel));

template <>
inline constexpr auto fieldsOf<Tnum> = fields(field("chemin", &Tnum::chemin),
                                              field("Version", &Tnum::Version), field("num", &Tnum::num));

template <> inline constexpr auto fieldsOf<Veloption> = fields(field("num", &Veloption::num));

template <>
inline constexpr auto fieldsOf<Affichage> = fields(
    field("cclbp", &Affichage::cclbp), field("cclbnp", &Affichage::cclbnp), field("cclfp", &Affichage::cclfp),
    field("cclfnp", &Affichage::cclfnp), field("cclbpi", &Affichage::cclbpi),
    field("cclbnpi", &Affichage::cclbnpi), field("cclfpi", &Affichage::cclfpi),
    field("cclfnpi", &Affichage::cclfnpi), field("cclfgrid", &Affichage::cclfgrid),
    field("cclbgrid", &Affichage::cclbgrid), field("cclfsd", &Affichage::cclfsd),
    field("cclff", &Affichage::cclff), field("cclfform", &Affichage::cclfform),
    field("cclbform", &Affichage::cclbform), field("cclfm", &Affichage::cclfm),
    field("cclbm1", &Affichage::cclbm1), field("cclbm2", &Affichage::cclbm2),
    field("cclbsel", &Affichage::cclbsel), field("cclbdem", &Affichage::cclbdem),
    field("cclbano", &Affichage::cclbano), field("cclberr", &Affichage::cclberr),
    field("cclbsais", &Affichage::cclbsais), field("cclfm1", &Affichage::cclfm1),
    field("cclfm2", &Affichage::cclfm2), field("cclfsel", &Affichage::cclfsel),
    field("cclfdem", &Affichage::cclfdem), field("cclfano", &Affichage::cclfano),
    field("cclferr", &Affichage::cclferr), field("cclfsais", &Affichage::cclfsais),
    field("cclfnom", &Affichage::cclfnom), field("cclbnpp", &Affichage::cclbnpp),
    field("cclbnpip", &Affichage::cclbnpip), field("cclfnpp", &Affichage::cclfnpp),
    field("cclfnpip", &Affichage::cclfnpip), field("font1", &Affichage::font1),
    field("font2", &Affichage::font2), field("font3", &Affichage::font3), field("taill1", &Affichage::taill1),
    field("taill2", &Affichage::taill2), field("taill3", &Affichage::taill3),
    field("fontb1", &Affichage::fontb1), field("fontb2", &Affichage::fontb2),
    field("fontb3", &Affichage::fontb3), field("haut1", &Affichage::haut1), field("haut2", &Affichage::haut2),
    field("haut3", &Affichage::haut3), field("largn1", &Affichage::largn1),
    field("largn2", &Affichage::largn2), field("largn3", &Affichage::largn3),
    field("larg01", &Affichage::larg01), field("larg02", &Affichage::larg02),
    field("larg03", &Affichage::larg03));

template <>
inline constexpr auto
    fieldsOf<Agent> = std::tuple_cat(fields(field("pseudo", &Agent::pseudo), field("nom", &Agent::nom),
                                            field("droit", &Agent::droit), field("mes", &Agent::mes),
                                            field("bss", &Agent::bss)),
                                     fieldsWithin(&Agent::affichage, fieldsOf<Affichage>));

template <>
inline constexpr auto fieldsOf<Chemin> = fields(field("nor", &Chemin::nor),
                                                field("Version", &Chemin::Version),
                                                field("chemin", &Chemin::chemin));

template <>
inline constexpr auto
    fieldsOf<Operation> = fields(field("numop", &Operation::numop), field("ordop", &Operation::ordop),
                                 field("nivop", &Operation::nivop), field("ficop", &Operation::ficop),
                                 field("libop", &Operation::libop), field("valop", &Operation::valop));

template <>
inline constexpr auto fieldsOf<Rang> = fields(field("numop", &Rang::numop), field("nivop", &Rang::nivop),
                                              field("avap", &Rang::avap), field("foncop", &Rang::foncop));

template <>
inline constexpr auto fieldsOf<ImageSit> = std::tuple_cat(fieldsWithin(&ImageSit::rang, fieldsOf<Rang>),
                                                          fieldsWithin(&ImageSit::jour, fieldsOf<JourSit>));

template <>
inline constexpr auto fieldsOf<ImageAbs> = std::tuple_cat(fieldsWithin(&ImageAbs::rang, fieldsOf<Rang>),
                                                          fieldsWithin(&ImageAbs::absence,
                                                                       fieldsOf<AbsenceSaisie>));

template <> inline constexpr auto fieldsOf<JourCopie> = fieldsWithin(&JourCopie::jour, fieldsOf<JourSit>);

} // namespace velmora::store
