#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace trellis {

// WitnessPool: known models, each kept as the variables that it has otherwise than the current model. A variable
// that some witness flips is free: the current model has one value, the witness the other.
class WitnessPool {
public:
    explicit WitnessPool(int variableCount) : _coverCounts(variableCount), _flippedBy(variableCount) {}

    bool IsCovered(int variable) const { return _coverCounts[variable] > 0; }
    // How many witnesses flip the variable.
    int CoverCount(int variable) const { return _coverCounts[variable]; }
    std::span<const int> Flips(int witness) const { return _witnesses[witness].flips; }
    // The numbers of the witnesses that flip the variable; until the next change.
    std::span<const int> FlippedBy(int variable);

    void Add(std::vector<int> flips);
    void Remove(int witness);

    std::size_t LimitOfNumbers() const { return _witnesses.size(); }

private:
    struct Witness {
        std::vector<int> flips;
        int stamp = 0; // the number is used again for another witness, the stamp is not
    };
    struct Entry {
        int witness;
        int stamp;
    };

    std::vector<Witness> _witnesses;
    std::vector<int> _unused;
    std::vector<int> _coverCounts;
    std::vector<std::vector<Entry>> _flippedBy; // with entries of witnesses that are gone
    std::vector<int> _found;
};

} // namespace trellis
