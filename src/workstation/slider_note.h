#pragma once

namespace velmora
{

/// What a slider of the main window last did to the grid: a move stretches by the way from there. Every note
/// begins at 50. The slider of the widths begins at 100, so its first move jumps by the difference: wanted.
class SliderNote
{
public:
    /// Twips that a row or a column gains by a move to `value`.
    [[nodiscard]] int stretch(int value) const { return (value - m_value) * twipsPerStep; }
    [[nodiscard]] int value() const { return m_value; }
    /// The grid has taken the move.
    void take(int value) { m_value = value; }

private:
    static constexpr int twipsPerStep = 5;
    int m_value = 50;
};

} // namespace velmora
