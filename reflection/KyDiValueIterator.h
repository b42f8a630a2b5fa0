// Not part of the interface: an iterator over values gathered up front (the
// values of a collection property, converted to data items). Owns them.
#pragma once

#include "base/KyArray.h"
#include "rx/KyRxProperty.h"

class KyDiValueIterator : public KyRxValueIterator {
public:
    KyDiValueIterator() : m_values(0, 8) {}

    void append(const KyRxValue& value) { m_values.append(value); }
    int count() const { return m_values.length(); }

    bool done() const override { return m_index >= m_values.length(); }
    bool next() override {
        ++m_index;
        return done();
    }
    Kyro::ErrorStatus current(KyRxValue& value) const override {
        value = m_values[m_index];
        return Kyro::eOk;
    }

private:
    KyArray<KyRxValue, KyArrayObjectCopyReallocator<KyRxValue>> m_values;
    int m_index = 0;
};
