#pragma once

#include <algorithm>
#include <vector>

namespace velmora::test
{

/// What the ring means, held apart from how its rows are numbered: operations in force from the latest to
/// the oldest, operations undone from the first undone to the last, and the count of free levels.
struct RingModel {
    static constexpr int capacity = 30;
    std::vector<int> inForce;
    std::vector<int> undone;
    int free = capacity;

    [[nodiscard]] bool canUndo() const
    {
        return !inForce.empty() && capacity - free != static_cast<int>(undone.size());
    }
    int record()
    {
        const int undoneCount = static_cast<int>(undone.size());
        free = undoneCount > 1 ? undoneCount - 1 : std::max(free - 1, 0);
        undone.clear();
        int taken = 1;
        while (taken <= capacity && std::find(inForce.begin(), inForce.end(), taken) != inForce.end())
            ++taken;
        if (taken > capacity) {
            taken = inForce.back();
            inForce.pop_back();
        }
        inForce.insert(inForce.begin(), taken);
        return taken;
    }
    void undo()
    {
        undone.push_back(inForce.front());
        inForce.erase(inForce.begin());
    }
    void redo()
    {
        inForce.insert(inForce.begin(), undone.back());
        undone.pop_back();
    }
};

} // namespace velmora::test
