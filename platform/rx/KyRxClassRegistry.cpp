// The class registry: runtime classes by name in the "ClassDictionary" of the
// system registry. A class names its parent; the link is made as soon as the
// parent is registered and kyrxBuildClassHierarchy is called, so classes may
// be registered in any order.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxPlatformInit.h"

class KyRxClassRegistry {
public:
    static KyRxClass* make(const wchar_t* className, const wchar_t* parentClassName,
                           int fileVersion, int maintenanceVersion, int proxyFlags,
                           KyRxPseudoConstructor constructor, const wchar_t* dxfName,
                           const wchar_t* appName, KyRxAppChangeCallback callback,
                           KyRxMemberCollectionConstructorPtr memberBuilder, void* userData) {
        return new KyRxClass(className, parentClassName, fileVersion, maintenanceVersion,
                             proxyFlags, constructor, dxfName, appName, callback, memberBuilder,
                             userData);
    }
    static void link(KyRxClass* cls, KyRxClass* parent) { cls->m_parent = parent; }
    static bool waitsForParent(const KyRxClass* cls) {
        return cls->m_parent == nullptr && !cls->m_parentName.isEmpty();
    }
};

namespace {

// The platform's own classes and value types are made known by name once,
// before the first lookup or registration by name.
void ensurePlatformClasses() {
    static bool s_done = false;
    if (!s_done) {
        s_done = true;
        kyrxRegisterRuntimeClasses();
        kyrxRegisterValueTypes();
        kyrxRegisterDatabaseClasses();
    }
}

KyRxClass* registeredClass(const wchar_t* name) {
    if (name == nullptr || name[0] == L'\0') {
        return nullptr;
    }
    return kyrxCast<KyRxClass>(kyrxClassDictionary()->at(name));
}

// Links `cls` to its parent when the parent is registered; true when linked.
bool linkToParent(KyRxClass* cls) {
    if (!KyRxClassRegistry::waitsForParent(cls)) {
        return true;
    }
    KyRxClass* parent = registeredClass(cls->parentName());
    if (parent == nullptr || parent == cls) {
        return false;
    }
    KyRxClassRegistry::link(cls, parent);
    return true;
}

KyRxClass* registerClass(const wchar_t* className, const wchar_t* parentClassName, int fileVersion,
                         int maintenanceVersion, int proxyFlags, KyRxPseudoConstructor constructor,
                         const wchar_t* dxfName, const wchar_t* appName,
                         KyRxAppChangeCallback callback,
                         KyRxMemberCollectionConstructorPtr memberBuilder, void* userData) {
    if (className == nullptr || className[0] == L'\0') {
        return nullptr;
    }
    ensurePlatformClasses();
    KyRxDictionary* classes = kyrxClassDictionary();
    if (KyRxObject* existing = classes->at(className)) {
        return kyrxCast<KyRxClass>(existing);
    }
    KyRxClass* cls = KyRxClassRegistry::make(className, parentClassName, fileVersion,
                                             maintenanceVersion, proxyFlags, constructor, dxfName,
                                             appName, callback, memberBuilder, userData);
    classes->atPut(className, cls);
    linkToParent(cls);
    return cls;
}

}  // namespace

KyRxClass* newKyRxClass(const wchar_t* className, const wchar_t* parentClassName, int proxyFlags,
                        KyRxPseudoConstructor constructor, const wchar_t* dxfName,
                        const wchar_t* appName) {
    return registerClass(className, parentClassName, 0, 0, proxyFlags, constructor, dxfName,
                         appName, nullptr, nullptr, nullptr);
}

KyRxClass* newKyRxClass(const wchar_t* className, const wchar_t* parentClassName, int fileVersion,
                        int maintenanceVersion, int proxyFlags, KyRxPseudoConstructor constructor,
                        const wchar_t* dxfName, const wchar_t* appName,
                        KyRxAppChangeCallback callback,
                        KyRxMemberCollectionConstructorPtr memberBuilder, void* userData) {
    return registerClass(className, parentClassName, fileVersion, maintenanceVersion, proxyFlags,
                         constructor, dxfName, appName, callback, memberBuilder, userData);
}

void deleteKyRxClass(KyRxClass* cls) {
    if (cls == nullptr) {
        return;
    }
    KyRxDictionary* classes = kyrxClassDictionary();
    if (classes->at(cls->name()) == cls) {
        classes->remove(cls->name());
    }
    // Classes derived from this one wait for a parent of that name again.
    std::unique_ptr<KyRxDictionaryIterator> it(classes->newIterator());
    for (; !it->done(); it->next()) {
        if (KyRxClass* child = kyrxCast<KyRxClass>(it->object());
            child && child->myParent() == cls) {
            KyRxClassRegistry::link(child, nullptr);
        }
    }
    delete cls;
}

KyRxClass* kyrxFindKyRxClass(const wchar_t* className) {
    ensurePlatformClasses();
    return registeredClass(className);
}

bool kyrxBuildClassHierarchy() {
    ensurePlatformClasses();
    bool allLinked = true;
    std::unique_ptr<KyRxDictionaryIterator> it(kyrxClassDictionary()->newIterator());
    for (; !it->done(); it->next()) {
        if (KyRxClass* cls = kyrxCast<KyRxClass>(it->object())) {
            allLinked = linkToParent(cls) && allLinked;
        }
    }
    return allLinked;
}

void kyrx_abort(const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    KyString message;
    message.formatV(format, args);
    va_end(args);
    std::fprintf(stderr, "fatal: %s\n", message.utf8().c_str());
    std::fflush(stderr);
    std::abort();
}

KyRxClass* kyrxRegisterBuiltinClass(const wchar_t* className, KyRxClass* parent,
                                    KyRxPseudoConstructor constructor,
                                    KyRxMemberCollectionConstructorPtr builder,
                                    const wchar_t* dxfName) {
    KyRxDictionary* classes = kyrxClassDictionary();
    if (classes->at(className) != nullptr) {
        // Only a client that took the name first can cause this.
        kyrx_abort(L"Class mismatch: %ls", className);
    }
    KyRxClass* cls =
        KyRxClassRegistry::make(className, parent != nullptr ? parent->name() : nullptr, 0, 0, 0,
                                constructor, dxfName, nullptr, nullptr, builder, nullptr);
    KyRxClassRegistry::link(cls, parent);
    classes->atPut(className, cls);
    return cls;
}
