// Not part of the interface: reads the "ClassName" of the objects of one walk
// over a selection, the member looked up once per class. A lookup lists the
// members of the object's class, which costs more than the read itself; one
// walk reads the name of every object, often of one class. Kept for one walk
// only: members may come and go between walks.
#pragma once

#include <map>

#include "base/KyString.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

class ClassNameReader {
public:
    // The object's "ClassName"; empty without one, or when it isn't text.
    KyString read(const KyRxObject* object) {
        const KyRxClass* cls = object->isA();
        auto found = m_members.find(cls);
        if (found == m_members.end()) {
            KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
            found = m_members
                        .emplace(cls, kyrxCast<KyRxProperty>(engine->find(
                                          object, L"ClassName", engine->promotingContext())))
                        .first;
        }
        return textOf(object, found->second);
    }
    // The text `property` reads on `object`; empty for no property, a
    // failed read, or a value that isn't text.
    static KyString textOf(const KyRxObject* object, const KyRxProperty* property) {
        KyRxValue value;
        if (property == nullptr || property->getValue(object, value) != Kyro::eOk) {
            return KyString();
        }
        if (const KyString* text = valueCast<KyString>(&value)) {
            return *text;
        }
        if (const wchar_t* const* text = valueCast<const wchar_t*>(&value)) {
            return KyString(*text);
        }
        return KyString();
    }

private:
    std::map<const KyRxClass*, const KyRxProperty*> m_members;
};
