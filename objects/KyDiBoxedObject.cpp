#include "kydi/KyDiBoxedObject.h"

const KyRxValue* KyDiBoxedObject::value() const {
    return m_boxed != nullptr ? m_boxed->value() : nullptr;
}

KyRxValue* KyDiBoxedObject::value() {
    return m_boxed != nullptr ? m_boxed->value() : nullptr;
}
