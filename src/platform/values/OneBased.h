// Arrays that count from 1, are redimensioned as a whole, and raise error 9 for an index outside.
#pragma once

#include "platform/values/RuntimeError.h"

#include <vector>

/// Elements 1 to Size().
template <class Element>
class OneBased
{
public:
    OneBased() = default;
    OneBased(std::initializer_list<Element> elements) : m_elements(elements) {}
    static OneBased OfSize(int count)
    {
        OneBased array;
        array.Redim(count);
        return array;
    }

    Element &operator()(int index) { return m_elements[Checked(index)]; }
    const Element &operator()(int index) const { return m_elements[Checked(index)]; }
    int Size() const { return int(m_elements.size()); }

    /// New bounds 1 to count, all elements as they start. A negative count raises error 9 and changes nothing.
    void Redim(int count) { m_elements.assign(CheckedCount(count), Element{}); }
    /// New bounds 1 to count, the elements that fit kept.
    void RedimPreserve(int count) { m_elements.resize(CheckedCount(count)); }

    auto begin() { return m_elements.begin(); }
    auto end() { return m_elements.end(); }
    auto begin() const { return m_elements.begin(); }
    auto end() const { return m_elements.end(); }
    bool operator==(const OneBased &) const = default;

private:
    std::size_t Checked(int index) const
    {
        if (index < 1 || index > Size())
            RaiseError(RuntimeError::SubscriptOutOfRange);
        return std::size_t(index - 1);
    }
    static std::size_t CheckedCount(int count)
    {
        if (count < 0)
            RaiseError(RuntimeError::SubscriptOutOfRange);
        return std::size_t(count);
    }
    std::vector<Element> m_elements;
};

/// Elements 0 to Last, all there from the start; one that was never written costs no memory. Reading leaves the array
/// as it is, so that looking at a record never makes it grow; At() is for writing.
template <class Element, int Last>
class FixedArray
{
public:
    const Element &operator()(int index) const
    {
        static const Element untouched{};
        Check(index);
        return index < int(m_elements.size()) ? m_elements[std::size_t(index)] : untouched;
    }
    /// The element to write to.
    Element &At(int index)
    {
        Check(index);
        if (index >= int(m_elements.size()))
            m_elements.resize(std::size_t(index) + 1);
        return m_elements[std::size_t(index)];
    }
    static void Check(int index)
    {
        if (index < 0 || index > Last)
            RaiseError(RuntimeError::SubscriptOutOfRange);
    }

private:
    std::vector<Element> m_elements;
};
