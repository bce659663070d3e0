#include "month/cursor.h"

#include <gtest/gtest.h>

namespace velmora::test
{
namespace
{

/// A grid of three lines and six columns, each row and column of a size of its own.
struct StretchedGrid {
    StretchedGrid()
    {
        grille.dimensionne(6);
        for (int line = 0; line < 3; ++line)
            grille.insereLigne(0);
        for (int row = 0; row < grille.lignes(); ++row)
            grille.fixeHauteur(row, 300 + row);
        for (int column = 0; column < grille.colonnes(); ++column)
            grille.fixeLargeur(column, 100 + column);
    }

    [[nodiscard]] std::vector<int> heights() const
    {
        std::vector<int> all;
        for (int row = 0; row < grille.lignes(); ++row)
            all.push_back(grille.hauteur(row));
        return all;
    }
    [[nodiscard]] std::vector<int> widths() const
    {
        std::vector<int> all;
        for (int column = 0; column < grille.colonnes(); ++column)
            all.push_back(grille.largeur(column));
        return all;
    }

    Grille grille;
};

TEST(StretchingTest, RowsGrowFromTheDayLabelsToTheLastLine)
{
    StretchedGrid grid;
    etireLignes(grid.grille, 50);
    EXPECT_EQ(grid.heights(), (std::vector{300, 301, 352, 353, 354, 355, 306}));
    etireLignes(grid.grille, -10);
    EXPECT_EQ(grid.heights(), (std::vector{300, 301, 342, 343, 344, 345, 306}));
}

TEST(StretchingTest, ColumnsShrinkToFiveAndThenNotAtAll)
{
    StretchedGrid grid;
    grid.grille.fixeLargeur(4, 105);
    grid.grille.fixeLargeur(2, 500);
    grid.grille.fixeLargeur(3, 500);
    grid.grille.fixeLargeur(5, 500);
    EXPECT_FALSE(etireColonnes(grid.grille, -101));
    EXPECT_EQ(grid.widths(), (std::vector{100, 101, 500, 500, 105, 500}));
    EXPECT_TRUE(etireColonnes(grid.grille, -100));
    EXPECT_EQ(grid.widths(), (std::vector{100, 101, 400, 400, 5, 400}));
    EXPECT_TRUE(etireColonnes(grid.grille, 250));
    EXPECT_EQ(grid.widths(), (std::vector{100, 101, 650, 650, 255, 650}));
}

} // namespace
} // namespace velmora::test
