#include "db/KyDbStateFiler.h"

KyDbStateFiler::KyDbStateFiler() = default;

KyDbStateFiler::~KyDbStateFiler() = default;

void KyDbStateFiler::rewind() {
    m_position = 0;
    m_status = Kyro::eOk;
}

void KyDbStateFiler::clear() {
    m_values.clear();
    rewind();
}
