#include "kydi/KyDiItem.h"

#include "manager/KyDiManagerModule.h"
#include "manager/KyDiReflectedClasses.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiItem, kItem)

KyDiItem::~KyDiItem() {
    tellDeleted();
}

void KyDiItem::tellDeleted() {
    if (!m_deletionTold) {
        m_deletionTold = true;
        KyDiManagerModule::notifyItemDeleted(this);
    }
}

const KyRxValue* KyDiItem::value() const {
    return subValue();
}

KyRxValue* KyDiItem::value() {
    return subValue();
}

Kyro::ErrorStatus KyDiItem::value(KyRxValue& out) {
    return subGetValueInto(out);
}

KyRxMemberIterator* KyDiItem::subNewMemberIterator() {
    return subNewItemMemberIterator();
}

Kyro::ErrorStatus KyDiItem::subGetValueInto(KyRxValue& /*out*/) {
    return Kyro::eInvalidInput;
}

const KyRxValue* KyDiItem::subValue() const {
    return nullptr;
}

KyRxValue* KyDiItem::subValue() {
    return nullptr;
}

KyRxMemberIterator* KyDiItem::subNewItemMemberIterator() {
    return nullptr;
}

Kyro::ErrorStatus KyDiItem::getValue(const KyRxPropertyBase* /*property*/, KyRxValue& /*value*/,
                                     int /*index*/, const wchar_t* /*key*/) {
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDiItem::setValue(const KyRxPropertyBase* /*property*/,
                                     const KyRxValue& /*value*/, int /*index*/,
                                     const wchar_t* /*key*/) {
    return Kyro::eInvalidInput;
}

KyRxValueIterator* KyDiItem::newValueIterator(const KyRxPropertyBase* /*property*/) {
    return nullptr;
}
