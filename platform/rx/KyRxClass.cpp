#include "rx/KyRxClass.h"

#include "rx/KyRxMember.h"

KyRxClass* KyRxClass::desc() {
    static KyRxClass* s_class =
        kyrxRegisterBuiltinClass(L"KyRxClass", KyRxObject::desc(), nullptr, nullptr);
    return s_class;
}

KyRxClass* KyRxClass::isA() const {
    return KyRxClass::desc();
}

KyRxClass::KyRxClass(const wchar_t* name, const wchar_t* parentName, int fileVersion,
                     int maintenanceVersion, int proxyFlags, KyRxPseudoConstructor constructor,
                     const wchar_t* dxfName, const wchar_t* appName, KyRxAppChangeCallback callback,
                     KyRxMemberCollectionConstructorPtr memberBuilder, void* userData)
    : m_name(name),
      m_parentName(parentName),
      m_dxfName(dxfName),
      m_appName(appName),
      m_fileVersion(fileVersion),
      m_maintenanceVersion(maintenanceVersion),
      m_proxyFlags(proxyFlags),
      m_constructor(constructor),
      m_appCallback(callback),
      m_memberBuilder(memberBuilder),
      m_userData(userData) {}

KyRxClass::~KyRxClass() {
    delete m_members;
}

bool KyRxClass::isDerivedFrom(const KyRxClass* other) const {
    for (const KyRxClass* cls = this; cls != nullptr; cls = cls->m_parent) {
        if (cls == other) {
            return true;
        }
    }
    return false;
}

bool KyRxClass::isDerivedFrom(const KyRxClass* a, const KyRxClass* b) {
    return a != nullptr && a->isDerivedFrom(b);
}

KyRxObject* KyRxClass::create() const {
    return m_constructor != nullptr ? m_constructor() : nullptr;
}

const KyRxMemberCollection* KyRxClass::members() const {
    if (m_members == nullptr && !m_buildingMembers) {
        // A builder may ask for the members of its own class while it runs
        // (a sub-property looking at its type); it then sees what exists so far.
        m_buildingMembers = true;
        auto* collection = new KyRxMemberCollection(this);
        m_members = collection;
        if (m_memberBuilder != nullptr) {
            KyRxMemberCollectionBuilder builder(*collection, this);
            m_memberBuilder(builder, m_userData);
        }
        m_buildingMembers = false;
    }
    return m_members;
}

void KyRxClass::setMemberBuilder(KyRxMemberCollectionConstructorPtr builder, void* userData) {
    m_memberBuilder = builder;
    m_userData = userData;
}

KyRxObject* KyRxClass::addX(const KyRxClass* protocolClass, KyRxObject* object) {
    if (protocolClass == nullptr) {
        return nullptr;
    }
    KyRxObject*& slot = m_extensions[protocolClass];
    KyRxObject* previous = slot;
    slot = object;
    if (object == nullptr) {
        m_extensions.erase(protocolClass);
    }
    return previous;
}

KyRxObject* KyRxClass::getX(const KyRxClass* protocolClass) const {
    auto it = m_extensions.find(protocolClass);
    return it != m_extensions.end() ? it->second : nullptr;
}

KyRxObject* KyRxClass::delX(const KyRxClass* protocolClass) {
    auto it = m_extensions.find(protocolClass);
    if (it == m_extensions.end()) {
        return nullptr;
    }
    KyRxObject* previous = it->second;
    m_extensions.erase(it);
    return previous;
}

KyRxObject* KyRxClass::queryX(const KyRxClass* protocolClass) const {
    for (const KyRxClass* cls = this; cls != nullptr; cls = cls->m_parent) {
        if (KyRxObject* extension = cls->getX(protocolClass)) {
            return extension;
        }
    }
    return nullptr;
}
