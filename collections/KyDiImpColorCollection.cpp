#include "collections/KyDiImpColorCollection.h"

#include <algorithm>
#include <iterator>

#include "db/KyCmColor.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiColorCollection.h"
#include "kydi/KyDiColorService.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiNamedItem.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

namespace {

// The colour index of each fixed entry, by its position.
const unsigned short kFixedIndices[] = {
    KyCmColor::kACInone,    KyCmColor::kACIbyLayer, KyCmColor::kACIbyBlock, KyCmColor::kACIRed,
    KyCmColor::kACIYellow,  KyCmColor::kACIGreen,   KyCmColor::kACICyan,    KyCmColor::kACIBlue,
    KyCmColor::kACIMagenta, KyCmColor::kACIWhite,
};

KyString storedName(KyDiDynamicObject* item) {
    const auto* named = kyrxCast<KyDiNamedItem>(static_cast<KyRxObject*>(item));
    return named != nullptr ? named->name() : KyString();
}

// The item of an equal colour in `list`, or null.
KyDiDynamicObject* itemOfValue(const KyDiItemArray& list, const KyRxValue& value) {
    for (int i = 0; i < list.length(); ++i) {
        const KyRxValue* listed = list[i]->value();
        if (listed != nullptr && *listed == value) {
            return list[i];
        }
    }
    return nullptr;
}

bool isBound(KyDiDocument document) {
    return document != kKyDiNoDocument && document != kKyDiUnboundDocument;
}

}  // namespace

KyDiDynamicObject* KyDiImpColorCollection::addColor(const KyCmColor& color) {
    const KyRxValue value(color);
    if (KyDiDynamicObject* listed = itemOfValue(m_fixedColors, value)) {
        return listed;
    }
    if (KyDiDynamicObject* listed = itemOfValue(m_extraColors, value)) {
        return listed;
    }
    KyDiDynamicObject* item = createDataItem(color.colorNameForDisplay(), value);
    m_extraColors.append(item);
    std::sort(m_extraColors.begin(), m_extraColors.end(),
              [](KyDiDynamicObject* a, KyDiDynamicObject* b) {
                  return storedName(a).compare(storedName(b)) > 0;
              });
    requestRefill();
    return item;
}

KyDiDynamicObject* KyDiImpColorCollection::addItem(const KyCmColor& color) {
    KyDiDynamicObject* item = addColor(color);
    if (isBound(boundDocument()) && (pendingFlags() & kRefillPending) != 0) {
        clearPending(kRefillPending);
        const std::set<KyDiDynamicObject*> before(items.begin(), items.end());
        subFill(false, KyDiHostAccess::databaseOf(boundDocument()), items, &itemsContext);
        for (KyDiDynamicObject* entry : items) {
            if (!before.contains(entry) && !m_untold.contains(entry)) {
                m_untold.append(entry);
            }
        }
    }
    return item;
}

KyDiObservableCollection* KyDiImpColorCollection::newPublicObject() {
    return new KyDiColorCollection(this);
}

void KyDiImpColorCollection::subPrepareUpdate() {
    m_told.clear();
    for (KyDiDynamicObject* entry : items) {
        if (!m_untold.contains(entry)) {
            m_told.insert(entry);
        }
    }
    // The colours that entered the list untold are told by the merge.
    if (!m_untold.isEmpty()) {
        setPending(kRefillPending);
    }
}

bool KyDiImpColorCollection::subFill(bool /*initial*/, KyDbDatabase* db, KyDiItemArray& list,
                                     void** /*context*/) {
    KyDiColorService* names = KyDiHostAccess::colorService();
    if (names == nullptr) {
        return true;
    }
    list.setLogicalLength(0);
    if (m_fixedColors.isEmpty()) {
        for (int position = 0; position < static_cast<int>(std::size(kFixedIndices)); ++position) {
            KyString name;
            names->name(position, name);
            KyCmColor color;
            color.setColorIndex(kFixedIndices[position]);
            if (KyDiDynamicObject* item = createDataItem(name, KyRxValue(color))) {
                m_fixedColors.append(item);
            }
        }
    }
    list.append(m_fixedColors);
    // The drawing's current colour is always in the list.
    if (db != nullptr) {
        addColor(db->cecolor());
    }
    list.append(m_extraColors);
    return true;
}

int KyDiImpColorCollection::subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) {
    const KyRxValue* value = item != nullptr ? item->value() : nullptr;
    const KyCmColor* color = valueCast<KyCmColor>(value);
    if (color == nullptr) {
        return -1;
    }
    // Value items are shared: the same colour is the same stored value.
    for (int i = 0; i < list.length(); ++i) {
        if (valueCast<KyCmColor>(list[i]->value()) == color) {
            return i;
        }
    }
    return -1;
}

void KyDiImpColorCollection::subMergeItems(KyDiItemArray& added, KyDiItemArray& /*removed*/,
                                           KyDiItemArray& /*modified*/, KyDiItemArray& newItems) {
    for (KyDiDynamicObject* entry : m_untold) {
        if (items.contains(entry)) {
            added.append(entry);
        }
    }
    m_untold.setLogicalLength(0);
    for (KyDiDynamicObject* entry : newItems) {
        if (subFindItem(items, entry) < 0) {
            added.append(entry);
            items.append(entry);
        }
    }
    newItems.setLogicalLength(0);
}

unsigned KyDiImpColorCollection::subFilterChangeBits(unsigned bits) {
    if ((bits & kChangeReset) == 0) {
        return bits;
    }
    // A reset tells the whole list, what entered it untold included.
    m_untold.setLogicalLength(0);
    const std::set<KyDiDynamicObject*> now(items.begin(), items.end());
    return now == m_told ? bits & ~kChangeReset : bits;
}
