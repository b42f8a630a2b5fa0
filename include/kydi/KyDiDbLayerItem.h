// A layer. Writing "IsOff", "IsFrozen", "IsLocked" or "Color" does not touch
// the record: the item queues the layer command a user would type, so that
// the change reaches the host's undo and its rules about the current layer.
// The record changes when the host runs the command, and the change comes
// back through the refresh pass. Other properties are written as for any
// database item.
#pragma once

#include "kydi/KyDiDbItem.h"

class KYDI_API KyDiDbLayerItem : public KyDiDbItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    explicit KyDiDbLayerItem(KyDbObjectId objectId);
    ~KyDiDbLayerItem() override;

    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
};
