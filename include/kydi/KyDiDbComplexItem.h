// A sub-entity of a selected entity (a face, an edge, a vertex, an
// attribute). Its members are "Name", the kind of sub-entity, and
// "ParentType", the item of the entity. It is not cached: its owner deletes
// it.
#pragma once

#include "db/KyDbFullSubentPath.h"
#include "kydi/KyDiDbItem.h"

class KYDI_API KyDiDbComplexItem : public KyDiDbItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiDbComplexItem(KyDbObjectId objectId, const KyDbFullSubentPath& path);
    ~KyDiDbComplexItem() override;

    const KyDbFullSubentPath& subentPath() const { return m_path; }

    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;

protected:
    KyRxMemberIterator* subNewItemMemberIterator() override;

private:
    KyDbFullSubentPath m_path;
};
