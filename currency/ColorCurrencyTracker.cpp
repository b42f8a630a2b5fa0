#include "currency/ColorCurrencyTracker.h"

#include "collections/KyDiImpColorCollection.h"
#include "currency/ColorSysVarReactor.h"
#include "db/KyCmColor.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiColorCollection.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiSysVar.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

ColorCurrencyTracker::ColorCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                                           const wchar_t* commandFormat)
    : DataItemCurrencyTrackerBase(collectionName, sysVarName, commandFormat),
      m_whiteColorReactor(new ColorSysVarReactor(this)),
      m_whiteColor(KyDiManager::getSysVar(L"DISPLAYEDWHITECOLOR")) {
    if (m_whiteColor != nullptr) {
        m_whiteColor->addReactor(m_whiteColorReactor);
    }
}

ColorCurrencyTracker::~ColorCurrencyTracker() {
    if (m_whiteColor != nullptr) {
        m_whiteColor->removeReactor(m_whiteColorReactor);
    }
    delete m_whiteColorReactor;
}

KyDiDynamicObject* ColorCurrencyTracker::getCurrentItem() {
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    return db != nullptr ? findColor(db->cecolor()) : nullptr;
}

void ColorCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    const KyCmColor* color = item != nullptr ? valueCast<KyCmColor>(item->value()) : nullptr;
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    if (color == nullptr || db == nullptr) {
        return;
    }
    // A colour from elsewhere (a client's own item) gets its place in the
    // list.
    if (KyDiColorCollection* list = colors()) {
        list->addItem(*color);
    }
    db->setCecolor(*color);
}

KyDiDynamicObject* ColorCurrencyTracker::findItem(const KyDiEffectiveValue& value) {
    return value.kind == KyDiEffectiveValue::kColor ? findColor(value.color) : nullptr;
}

void ColorCurrencyTracker::sysVarChanged(const wchar_t* name, bool /*succeeded*/) {
    if (sysVarName().compareNoCase(name) != 0) {
        return;
    }
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    KyDiColorCollection* list = colors();
    if (db != nullptr && list != nullptr) {
        list->addItem(db->cecolor());
    }
}

KyDiColorCollection* ColorCurrencyTracker::colors() const {
    return dynamic_cast<KyDiColorCollection*>(KyDiManager::getKnownCollection(collectionName()));
}

KyDiDynamicObject* ColorCurrencyTracker::findColor(const KyCmColor& color) const {
    if (KyDiDynamicObject* listed = firstItem([&color](KyDiDynamicObject* item) {
            const KyCmColor* itemColor = valueCast<KyCmColor>(item->value());
            return itemColor != nullptr && *itemColor == color;
        })) {
        return listed;
    }
    // A colour the list lacks gets its item now and its place in the list
    // at the next pass, told then: a read changes no list under a client.
    KyDiColorCollection* list = colors();
    return list != nullptr ? static_cast<KyDiImpColorCollection*>(list->imp())->addColor(color)
                           : nullptr;
}
