// KyRxArrayValueIterator: walks the values of a copy of an array, for
// collection and indexed properties whose values are at hand as one array
// (the ids of a list, the points of a polyline).
#pragma once

#include <utility>

#include "base/KyArray.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxValue.h"

template <typename T>
class KyRxArrayValueIterator : public KyRxValueIterator {
public:
    explicit KyRxArrayValueIterator(KyArray<T> values) : m_values(std::move(values)) {}

    bool done() const override { return m_index >= m_values.length(); }
    bool next() override {
        if (!done()) {
            ++m_index;
        }
        return done();
    }
    Kyro::ErrorStatus current(KyRxValue& value) const override {
        if (done()) {
            return Kyro::eInvalidIndex;
        }
        value = KyRxValue(m_values[m_index]);
        return Kyro::eOk;
    }

private:
    KyArray<T> m_values;
    int m_index = 0;
};
