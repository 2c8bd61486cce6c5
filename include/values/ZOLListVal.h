#pragma once

#include "values/ContractBreach.h"
#include "values/ZOLCollec.h"

#include <algorithm>
#include <functional>
#include <unordered_set>
#include <utility>
#include <vector>

template <class T>
concept ZOLHashable = requires(const T& value) {
    {std::hash<T>{}(value)};
};

// ZOLListVal: a list of values, counted from 1. An index outside 1..Size() ends the process with function and
// reason. New code walks it with begin() and end().
template <class T>
class ZOLListVal {
public:
    using value_type = T;
    using CompareFunction = int (*)(const T*, const T*);

    ZOLListVal() = default;
    // An empty list with room for that many elements; a capacity below 1 reserves nothing.
    explicit ZOLListVal(int capacity) {
        if (capacity > 0)
            _values.reserve(static_cast<std::size_t>(capacity));
    }
    ZOLListVal(std::initializer_list<T> values) : _values(values) {}

    int Size() const { return static_cast<int>(_values.size()); }

    T& operator[](int position) { return _values[Checked(position, "ZOLListVal::operator[]")]; }
    const T& operator[](int position) const { return _values[Checked(position, "ZOLListVal::operator[]")]; }

    void Append(const T& value) { _values.push_back(value); }
    void Append(T&& value) { _values.push_back(std::move(value)); }
    // Adds all of a list at the end; a list may be appended to itself.
    void Append(const ZOLListVal& list) {
        const std::size_t count = list._values.size();
        _values.reserve(_values.size() + count);
        for (std::size_t i = 0; i < count; ++i)
            _values.push_back(list._values[i]);
    }

    // Position of the first equal element at or behind `from`, or 0 when there is none. A `from` below 1 counts
    // as 1.
    int Locate(const T& value, int from = 1) const {
        for (int i = std::max(from, 1); i <= Size(); ++i)
            if (_values[static_cast<std::size_t>(i - 1)] == value)
                return i;
        return 0;
    }

    // Takes out the first equal element; nothing happens when there is none.
    void RemoveValue(const T& value) {
        if (const int position = Locate(value); position > 0)
            RemovePosition(position);
    }
    void RemovePosition(int position) {
        _values.erase(_values.begin() +
                      static_cast<std::ptrdiff_t>(Checked(position, "ZOLListVal::RemovePosition")));
    }
    void RemoveAll(ZOLCollec::MemoryHandling memory = ZOLCollec::KeepMemory) {
        _values.clear();
        if (memory == ZOLCollec::FreeMemory)
            _values.shrink_to_fit();
    }
    // Keeps the first of equal elements, in order.
    void RemoveDuplicates() {
        std::vector<T> kept;
        kept.reserve(_values.size());
        if constexpr (ZOLHashable<T>) {
            std::unordered_set<T> seen;
            for (T& value : _values)
                if (seen.insert(value).second)
                    kept.push_back(std::move(value));
        } else {
            for (T& value : _values)
                if (std::find(kept.begin(), kept.end(), value) == kept.end())
                    kept.push_back(std::move(value));
        }
        _values = std::move(kept);
    }
    // Takes out every element that equals one of the given list.
    void Remove(const ZOLListVal& list) {
        if (&list == this)
            return RemoveAll();
        if constexpr (ZOLHashable<T>) {
            const std::unordered_set<T> out(list.begin(), list.end());
            std::erase_if(_values, [&](const T& value) { return out.contains(value); });
        } else {
            std::erase_if(_values, [&](const T& value) { return list.Locate(value) > 0; });
        }
    }
    // Sorts by a function that answers below 0, 0 or above 0. Stable: equal names of several dictionaries keep
    // their order.
    void QuickSort(CompareFunction compare) {
        std::stable_sort(_values.begin(), _values.end(),
                         [compare](const T& a, const T& b) { return compare(&a, &b) < 0; });
    }

    auto begin() { return _values.begin(); }
    auto end() { return _values.end(); }
    auto begin() const { return _values.begin(); }
    auto end() const { return _values.end(); }

private:
    std::size_t Checked(int position, const char* function) const {
        if (position < 1 || position > Size())
            ContractBreach(function, "position outside 1..Size()");
        return static_cast<std::size_t>(position - 1);
    }

    std::vector<T> _values;
};
