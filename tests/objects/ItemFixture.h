// The data item layer on the reference host with one new drawing, and the
// helpers the item tests share: drawing content made in a line, items of
// records, and members and values read as a palette reads them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "db/KyCmColor.h"
#include "db/KyDbLayerTableRecord.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDataItemReactor.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiValueTypes.h"
#include "manager/RefHostFixture.h"
#include "refhost/DrawingContent.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "support/ColorValues.h"

namespace kytest {

class ItemFixture : public RefHostFixture {
protected:
    using RefHostFixture::RefHostFixture;

    KyDbDatabase* db() { return host.documents().current()->database(); }
    refhost::DrawingContent content() { return refhost::DrawingContent(db()); }

    KyDbObjectId addLayer(const wchar_t* name, unsigned short colorIndex = 7) {
        return content().addRecord<KyDbLayerTableRecord>(db()->layerTableId(), name,
                                                         [colorIndex](KyDbLayerTableRecord& layer) {
                                                             KyCmColor color;
                                                             color.setColorIndex(colorIndex);
                                                             layer.setColor(color);
                                                         });
    }
    KyDbObjectId layerId(const wchar_t* name);

    // The item of a record, as every road makes it.
    static KyDiDynamicObject* itemOf(KyDbObjectId id) {
        return createDataItem(KyString(), KyRxValue(id));
    }

    // The names of the members an object shows, in order.
    static std::vector<std::wstring> memberNames(KyDiDynamicObject* object);
    // The member `name` the object shows, or null.
    static const KyRxProperty* property(KyDiDynamicObject* object, const wchar_t* name);
    // Reads `name` through the object's member; the status of the read.
    static Kyro::ErrorStatus read(KyDiDynamicObject* object, const wchar_t* name, KyRxValue& value);
    static Kyro::ErrorStatus write(KyDiDynamicObject* object, const wchar_t* name,
                                   const KyRxValue& value);
    // The text of a value as the tests compare it.
    static std::wstring text(const KyRxValue& value);
    // The item a value holds, or null.
    static KyDiDynamicObject* itemIn(const KyRxValue& value) {
        KyDiDynamicObject* const* item = valueCast<KyDiDynamicObject*>(&value);
        return item != nullptr ? *item : nullptr;
    }
    static KyCmColor indexColor(unsigned short index) { return kytest::indexColor(index); }
    static KyCmColor trueColor(unsigned char red, unsigned char green, unsigned char blue) {
        return kytest::trueColor(red, green, blue);
    }
};

// Counts the items it is told are going, and their addresses.
class DeletionSpy : public KyDiDataItemReactor {
public:
    DeletionSpy() { KyDiManager::addReactor(this); }
    ~DeletionSpy() override { KyDiManager::removeReactor(this); }
    DeletionSpy(const DeletionSpy&) = delete;
    DeletionSpy& operator=(const DeletionSpy&) = delete;

    void itemDeleted(KyDiItem* item) override { deleted.push_back(item); }
    int count(const void* item) const {
        int found = 0;
        for (const KyDiItem* each : deleted) {
            found += each == item ? 1 : 0;
        }
        return found;
    }

    std::vector<KyDiItem*> deleted;
};

}  // namespace kytest
