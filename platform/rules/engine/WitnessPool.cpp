#include "rules/engine/WitnessPool.h"

namespace trellis {

std::span<const int> WitnessPool::FlippedBy(int variable) {
    std::vector<Entry>& entries = _flippedBy[variable];
    std::erase_if(entries,
                  [&](const Entry& entry) { return _witnesses[entry.witness].stamp != entry.stamp; });
    _found.clear();
    for (const Entry& entry : entries)
        _found.push_back(entry.witness);
    return _found;
}

void WitnessPool::Add(std::vector<int> flips) {
    if (_unused.empty()) {
        _unused.push_back(static_cast<int>(_witnesses.size()));
        _witnesses.emplace_back();
    }
    const int number = _unused.back();
    _unused.pop_back();
    Witness& witness = _witnesses[number];
    for (int variable : flips) {
        ++_coverCounts[variable];
        _flippedBy[variable].push_back({number, witness.stamp});
    }
    witness.flips = std::move(flips);
    witness.flips.shrink_to_fit();
}

void WitnessPool::Remove(int number) {
    Witness& witness = _witnesses[number];
    for (int variable : witness.flips)
        --_coverCounts[variable];
    witness.flips.clear();
    ++witness.stamp;
    _unused.push_back(number);
}

} // namespace trellis
