// CSelectedItemHelper: opens what an item of the selected items stands for,
// for as long as the helper lives: the object, or the part of it that the
// item names (a sub-entity of the selection, the selected cells of a table).
//
//   CSelectedItemHelper opened(item, KyDb::kForRead, selectedItems->subEntitySelection());
//   if (opened.getLastError() == Kyro::eOk) {
//       ... opened.object() ...
//   }
//
// With plain objects the object is opened (erased objects are not). With
// sub-entities, an item of one opens its part too; an item of another class,
// or a part the object lacks, has the object alone. With a table's cells, the
// part of the default sub-entity id is opened, and a failure to open it is
// the helper's status. Closed again, the part first, when the helper goes.
#pragma once

#include "collections/KyDiDataSelectedItemCollectionImp.h"
#include "db/KyDbEnums.h"
#include "kydi/KyDiExport.h"

class KyDbObject;
class KyDiDbItem;
class KyRxObject;

class KYDI_API CSelectedItemHelper {
public:
    CSelectedItemHelper(KyDiDbItem* item, KyDb::OpenMode mode,
                        KyDiDataSelectedItemCollectionImp::SubEntitySelection selection);
    ~CSelectedItemHelper();
    CSelectedItemHelper(const CSelectedItemHelper&) = delete;
    CSelectedItemHelper& operator=(const CSelectedItemHelper&) = delete;

    // The part when one is open, else the object; null when the open failed.
    KyRxObject* object() const;
    Kyro::ErrorStatus getLastError() const { return m_status; }

private:
    KyDbObject* m_object = nullptr;
    KyRxObject* m_subEntityObject = nullptr;
    Kyro::ErrorStatus m_status = Kyro::eOk;
};
