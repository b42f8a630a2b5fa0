#include "KyAppEffectiveWatch.h"

#include "base/KyString.h"
#include "kydi/KyDiEffectiveProperty.h"

KyAppEffectiveWatch::KyAppEffectiveWatch(KyDiEffectiveProperty* effective, std::ostream& out)
    : m_effective(effective), m_out(out) {
    m_effective->addReactor(this);
}

KyAppEffectiveWatch::~KyAppEffectiveWatch() {
    m_effective->removeReactor(this);
}

void KyAppEffectiveWatch::propertyChanged(const wchar_t* key) {
    m_out << "propertyChanged EFFECTIVE " << KyString(key).utf8() << '\n';
}

void KyAppEffectiveWatch::allPropertiesChanged() {
    m_out << "allPropertiesChanged EFFECTIVE\n";
}
