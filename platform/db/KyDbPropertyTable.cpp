// The builder of the reflected members of the database classes, and the
// registration of the classes with their local names.
#include "db/KyDbPropertyTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbIdCollectionProperty.h"
#include "db/KyDbPointListProperty.h"
#include "db/KyDbPropertyTexts.h"
#include "db/KyDbRowProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// The attributes of a row, added to the member made from it.
void addAttributes(KyRxMember* member, const KyDbPropertyRow& row) {
    KyRxAttributeCollection& attributes = member->attributes();
    if (row.category != nullptr) {
        attributes.add(new KyRxUiPlacementAttribute(row.category, row.weight));
    }
    if (const unsigned id = KyDbPropertyTexts::nameId(row.name); id != 0) {
        attributes.add(new KyRxLocalizedNameAttribute(id));
        attributes.add(new KyRxDescriptionAttribute(KyDbPropertyTexts::descriptionId(row.name)));
    }
    if (row.refersTo != nullptr) {
        attributes.add(new KyRxRefersToAttribute(row.refersTo));
        attributes.add(new KyRxDisplayAsAttribute(L"Name"));
    }
    if (row.cumulative) {
        attributes.add(new KyRxCumulativeAttribute());
    }
}

}  // namespace

void kydbiAddProperties(KyRxMemberCollectionBuilder& builder, const KyDbPropertyRow* rows,
                        std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const KyDbPropertyRow& row = rows[i];
        KyRxMember* member = row.make != nullptr
                                 ? row.make(row.name, builder.owner())
                                 : new KyDbRowProperty(row.name, row.access, builder.owner());
        addAttributes(member, row);
        builder.add(member);
    }
}

Kyro::ErrorStatus kydbiReadStatus(const KyRxObject* object) {
    const KyDbObject* dbObject = kyrxCast<KyDbObject>(object);
    return dbObject == nullptr || dbObject->isReadEnabled() ? Kyro::eOk : Kyro::eInvalidOpenState;
}

const wchar_t* kydbiText(const KyRxValue& value) {
    if (const KyString* text = valueCast<KyString>(&value)) {
        return text->kwszPtr();
    }
    if (const wchar_t* const* text = valueCast<const wchar_t*>(&value)) {
        return *text;
    }
    return nullptr;
}

KyRxMember* kydbiMakeIdCollection(const wchar_t* name, const KyRxObject* owner, KyDbListIds list) {
    return new KyDbIdCollectionProperty(name, owner, list);
}

KyRxMember* kydbiMakePointList(const wchar_t* name, const KyRxObject* owner,
                               KyDbPointListAccess access) {
    return new KyDbPointListProperty(name, owner, access);
}

KyRxClass* kydbiRegisterClass(const wchar_t* className, KyRxClass* parent,
                              KyRxPseudoConstructor constructor,
                              KyRxMemberCollectionConstructorPtr builder, const wchar_t* dxfName) {
    KyRxClass* cls = kyrxRegisterBuiltinClass(className, parent, constructor, builder, dxfName);
    if (const unsigned id = KyDbPropertyTexts::classNameId(className); id != 0) {
        cls->attributes().add(new KyRxLocalizedNameAttribute(id));
    }
    return cls;
}
