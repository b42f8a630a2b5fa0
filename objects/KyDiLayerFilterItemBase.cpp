#include "kydi/KyDiLayerFilterItemBase.h"

#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "reflection/KyDiMemberIterator.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiLayerFilterItemBase, kLayerFilterItemBase)

KyDiLayerFilterItemBase::KyDiLayerFilterItemBase(const KyString& name,
                                                 const KyDiLayerFilterFlags& flags)
    : m_nameValue(name), m_flags(flags) {}

KyDiLayerFilterItemBase::~KyDiLayerFilterItemBase() {
    tellDeleted();
}

KyString KyDiLayerFilterItemBase::name() const {
    const KyString* text = valueCast<KyString>(&m_nameValue);
    return text != nullptr ? *text : KyString();
}

void KyDiLayerFilterItemBase::setName(const KyString& name) {
    m_nameValue = KyRxValue(name);
}

Kyro::ErrorStatus KyDiLayerFilterItemBase::subGetValueInto(KyRxValue& out) {
    out = m_nameValue;
    return Kyro::eOk;
}

const KyRxValue* KyDiLayerFilterItemBase::subValue() const {
    return &m_nameValue;
}

KyRxValue* KyDiLayerFilterItemBase::subValue() {
    return &m_nameValue;
}

KyRxMemberIterator* KyDiLayerFilterItemBase::subNewItemMemberIterator() {
    KyDiMemberArray members(0, 8);
    members.append(ItemMembers::filterName());
    members.append(ItemMembers::filterIsDynamicFilter());
    members.append(ItemMembers::filterIsDynamicGenerated());
    members.append(ItemMembers::filterAllowRename());
    members.append(ItemMembers::filterAllowDelete());
    members.append(ItemMembers::filterAllowNested());
    subAddMembers(members);
    return new KyDiMemberIterator(members);
}

Kyro::ErrorStatus KyDiLayerFilterItemBase::getValue(const KyRxPropertyBase* property,
                                                    KyRxValue& value, int /*index*/,
                                                    const wchar_t* /*key*/) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (ItemMembers::isNamed(property, L"Name")) {
        value = m_nameValue;
        return Kyro::eOk;
    }
    const struct {
        const wchar_t* name;
        bool flag;
    } kFlags[] = {
        {L"IsDynamicFilter", m_flags.isDynamicFilter},
        {L"IsDynamicGenerated", m_flags.isDynamicGenerated},
        {L"AllowRename", m_flags.allowRename},
        {L"AllowDelete", m_flags.allowDelete},
        {L"AllowNested", m_flags.allowNested},
    };
    for (const auto& row : kFlags) {
        if (ItemMembers::isNamed(property, row.name)) {
            value = KyRxValue(row.flag);
            return Kyro::eOk;
        }
    }
    return Kyro::eInvalidInput;
}
