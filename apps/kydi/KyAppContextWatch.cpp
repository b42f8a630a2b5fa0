#include "KyAppContextWatch.h"

#include "base/KyString.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiManager.h"

KyAppContextWatch::KyAppContextWatch(std::string name, std::ostream& out)
    : m_name(std::move(name)), m_out(out) {
    KyDiManager::getContextManager()->addReactor(this);
}

KyAppContextWatch::~KyAppContextWatch() {
    if (KyDiContextManager* manager = KyDiManager::getContextManager()) {
        manager->removeReactor(this);
    }
}

void KyAppContextWatch::contextChanged(const KyDiContextChange* change) {
    const wchar_t* raw = KyDiManager::getContextManager()->getName(change->context);
    const std::string name = raw != nullptr ? KyString(raw).utf8() : std::string("?");
    if (!m_name.empty() && name != m_name) {
        return;
    }
    std::string names;
    for (int i = 0; i < change->propertyNames.length(); ++i) {
        names += (i > 0 ? ", " : "") + change->propertyNames[i].utf8();
    }
    m_out << "contextChanged " << name << " [" << names << "]\n";
}

void KyAppContextWatch::activeContextsChanged() {
    if (m_name.empty()) {
        m_out << "activeContextsChanged\n";
    }
}
