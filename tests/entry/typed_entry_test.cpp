#include "entry/typed_entry.h"

#include "entry/typing.h"

#include <gtest/gtest.h>

namespace velmora
{

TEST(TypedEntry, HoursAreNormalisedAsTheDialogDoes)
{
    const auto saisie = normaliseTranches({"8h00", "12h00", "10h00", "18h00"});
    ASSERT_TRUE(saisie);
    EXPECT_EQ(entrytest::ligne(saisie->textes()), "8h00 12h00 12h00 18h00 18h00 18h00");
    EXPECT_EQ(saisie->total(), "10h00");
}

TEST(TypedEntry, WhatTheDialogWouldNotStoreIsRefused)
{
    const QStringList refuses[]{
        {},
        {"8h00", "8h00"},
        {"8h00", "25h00"},
        {"huit"},
        {"8h00", "8h00", "9h00", "10h00"}, // slice 2 is closed while slice 1 is empty
        {"1h00", "2h00", "3h00", "4h00", "5h00", "6h00", "7h00"},
    };
    for (const QStringList &heures : refuses)
        EXPECT_FALSE(normaliseTranches(heures)) << heures.join(' ').toStdString();
}

} // namespace velmora
