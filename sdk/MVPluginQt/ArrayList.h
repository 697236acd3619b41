#pragma once

#include "MVPluginQt/Handle.h"

#include <QMetaType>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace BF {

/// The host's growing array; lists of handles, ids, texts.
template <class T>
class CArrayList
{
public:
    CArrayList() = default;
    CArrayList(std::initializer_list<T> items)
        : m_items(items)
    {
    }

    std::size_t Size() const { return m_items.size(); }
    bool IsEmpty() const { return m_items.empty(); }
    void Reserve(std::size_t count) { m_items.reserve(count); }
    void Add(const T& item) { m_items.push_back(item); }
    void Clear() { m_items.clear(); }
    bool Contains(const T& item) const { return std::find(m_items.begin(), m_items.end(), item) != m_items.end(); }

    /// The item at \p index, which must be below Size().
    const T& operator[](std::size_t index) const { return m_items[index]; }
    T& operator[](std::size_t index) { return m_items[index]; }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }

    friend bool operator==(const CArrayList& a, const CArrayList& b) { return a.m_items == b.m_items; }
    friend bool operator!=(const CArrayList& a, const CArrayList& b) { return !(a == b); }

private:
    std::vector<T> m_items;
};

} // namespace BF

Q_DECLARE_METATYPE(BF::CArrayList<BF::CHandle*>)
Q_DECLARE_METATYPE(BF::CArrayList<unsigned long long>)
