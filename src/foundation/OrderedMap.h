#pragma once

#include "foundation/Error.h"

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace k7deval
{

/// A map that keeps the order of insertion and hands out its keys as an indexable list.
template <class Key, class Value> class OrderedMap
{
public:
    [[nodiscard]] bool Exists(const Key& key) const { return positions_.contains(key); }
    [[nodiscard]] std::size_t Count() const { return entries_.size(); }
    [[nodiscard]] bool isEmpty() const { return entries_.empty(); }

    /// Error 457 when the key is there already.
    void Add(Key key, Value value)
    {
        if (!positions_.emplace(key, entries_.size()).second)
            throw Error(errors::kDuplicateKey);
        entries_.emplace_back(std::move(key), std::move(value));
    }

    /// Error 5 for a key that is not there.
    [[nodiscard]] const Value& Item(const Key& key) const { return entries_[position(key)].second; }
    [[nodiscard]] Value& Item(const Key& key) { return entries_[position(key)].second; }

    [[nodiscard]] std::vector<Key> Keys() const
    {
        std::vector<Key> keys;
        keys.reserve(entries_.size());
        for (const auto& entry : entries_)
            keys.push_back(entry.first);
        return keys;
    }

    /// Pairs of key and value in the order of insertion.
    [[nodiscard]] auto begin() const { return entries_.begin(); }
    [[nodiscard]] auto end() const { return entries_.end(); }

private:
    [[nodiscard]] std::size_t position(const Key& key) const
    {
        const auto found = positions_.find(key);
        if (found == positions_.end())
            throw Error(errors::kInvalidCall);
        return found->second;
    }

    std::vector<std::pair<Key, Value>> entries_;
    std::unordered_map<Key, std::size_t> positions_;
};

} // namespace k7deval
