#pragma once

#include "store/agent_row.h"
#include "store/journal_rows.h"
#include "store/rows.h"
#include "store/table.h"

// The tables of both databases: their names and indexes.
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

} // namespace velmora::store
