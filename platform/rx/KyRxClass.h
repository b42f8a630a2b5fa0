// KyRxClass: the descriptor of a runtime class, and the class registry.
//
// Classes live in the "ClassDictionary" of kyrxSysRegistry() under their
// names. A class may be registered before its parent: it names the parent, and
// kyrxBuildClassHierarchy() links every class whose parent has come since.
#pragma once

#include <map>

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "rx/KyRxAttribute.h"
#include "rx/KyRxObject.h"

class KyRxMemberCollection;
class KyRxMemberCollectionBuilder;

using KyRxPseudoConstructor = KyRxObject* (*)();
using KyRxMemberCollectionConstructorPtr = void (*)(KyRxMemberCollectionBuilder& builder,
                                                    void* userData);
using KyRxAppChangeCallback = void (*)(const KyRxClass* cls, wchar_t*& newAppName, int saveVer);

class KYPLATFORM_API KyRxClass : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxClass);
    ~KyRxClass() override;

    const wchar_t* name() const { return m_name.kwszPtr(); }
    const wchar_t* dxfName() const { return m_dxfName.kwszPtr(); }
    const wchar_t* appName() const { return m_appName.kwszPtr(); }
    // The parent class; null for a root, or while the parent is not linked yet.
    KyRxClass* myParent() const { return m_parent; }
    // The name of the parent as registered, linked or not.
    const wchar_t* parentName() const { return m_parentName.kwszPtr(); }
    int proxyFlags() const { return m_proxyFlags; }
    int fileVersion() const { return m_fileVersion; }
    int maintenanceVersion() const { return m_maintenanceVersion; }
    void* userData() const { return m_userData; }

    KyRxAttributeCollection& attributes() { return m_attributes; }
    const KyRxAttributeCollection& attributes() const { return m_attributes; }

    // True when this class is `other` or derives from it.
    bool isDerivedFrom(const KyRxClass* other) const;
    // True when `a` is `b` or derives from it; false for a null `a`.
    static bool isDerivedFrom(const KyRxClass* a, const KyRxClass* b);

    // A new object of the class; null without a constructor.
    KyRxObject* create() const;

    // The members of this class alone (not of its parents), built by the
    // class's member builder at the first call.
    const KyRxMemberCollection* members() const;

    // Protocol extensions: `object` serves `protocolClass` for objects of this
    // class. addX answers the extension it replaces; the class owns none.
    KyRxObject* addX(const KyRxClass* protocolClass, KyRxObject* object);
    KyRxObject* getX(const KyRxClass* protocolClass) const;
    KyRxObject* delX(const KyRxClass* protocolClass);
    // getX along the parent chain.
    KyRxObject* queryX(const KyRxClass* protocolClass) const;

protected:
    KyRxClass(const wchar_t* name, const wchar_t* parentName, int fileVersion,
              int maintenanceVersion, int proxyFlags, KyRxPseudoConstructor constructor,
              const wchar_t* dxfName, const wchar_t* appName, KyRxAppChangeCallback callback,
              KyRxMemberCollectionConstructorPtr memberBuilder, void* userData);
    // Value types build their members through the same builder.
    void setMemberBuilder(KyRxMemberCollectionConstructorPtr builder, void* userData);

private:
    friend class KyRxClassRegistry;

    KyString m_name;
    KyString m_parentName;
    KyString m_dxfName;
    KyString m_appName;
    KyRxClass* m_parent = nullptr;
    int m_fileVersion = 0;
    int m_maintenanceVersion = 0;
    int m_proxyFlags = 0;
    KyRxPseudoConstructor m_constructor = nullptr;
    KyRxAppChangeCallback m_appCallback = nullptr;
    KyRxMemberCollectionConstructorPtr m_memberBuilder = nullptr;
    void* m_userData = nullptr;
    mutable KyRxMemberCollection* m_members = nullptr;
    mutable bool m_buildingMembers = false;
    KyRxAttributeCollection m_attributes;
    std::map<const KyRxClass*, KyRxObject*> m_extensions;
};

// Registers a class under `className` with the parent named `parentClassName`
// (null for a root). When the name is taken, answers the class registered
// already and makes nothing.
KYPLATFORM_API KyRxClass* newKyRxClass(const wchar_t* className, const wchar_t* parentClassName,
                                       int proxyFlags = 0,
                                       KyRxPseudoConstructor constructor = nullptr,
                                       const wchar_t* dxfName = nullptr,
                                       const wchar_t* appName = nullptr);
KYPLATFORM_API KyRxClass* newKyRxClass(const wchar_t* className, const wchar_t* parentClassName,
                                       int fileVersion, int maintenanceVersion, int proxyFlags,
                                       KyRxPseudoConstructor constructor, const wchar_t* dxfName,
                                       const wchar_t* appName, KyRxAppChangeCallback callback,
                                       KyRxMemberCollectionConstructorPtr memberBuilder,
                                       void* userData);
// Removes the class from the registry and deletes it. Classes derived from it
// lose their link and wait for the parent to come again.
KYPLATFORM_API void deleteKyRxClass(KyRxClass* cls);
// The registered class of that name, null if none.
KYPLATFORM_API KyRxClass* kyrxFindKyRxClass(const wchar_t* className);
// Links every registered class whose parent is registered now; answers false
// when some class still waits for its parent.
KYPLATFORM_API bool kyrxBuildClassHierarchy();
// Fatal stop with a message on standard error.
[[noreturn]] KYPLATFORM_API void kyrx_abort(const wchar_t* format, ...);

// Used by KYRX_DEFINE_MEMBERS: registers a class of the platform under a
// parent that exists already, with the type word a drawing file names its
// objects by (null for none).
KYPLATFORM_API KyRxClass* kyrxRegisterBuiltinClass(const wchar_t* className, KyRxClass* parent,
                                                   KyRxPseudoConstructor constructor,
                                                   KyRxMemberCollectionConstructorPtr builder,
                                                   const wchar_t* dxfName = nullptr);
