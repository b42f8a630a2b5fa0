// KyDiLayerFilterItem: a filter of the flat list of layer filters, with the
// ids of the layers it takes ("Layers").
#pragma once

#include "db/KyDbObjectId.h"
#include "kydi/KyDiLayerFilterItemBase.h"

class KYDI_API KyDiLayerFilterItem : public KyDiLayerFilterItemBase {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiLayerFilterItem(const KyString& name, const KyDiLayerFilterFlags& flags,
                        const KyArray<KyDbObjectId>& layers);
    ~KyDiLayerFilterItem() override;

    const KyArray<KyDbObjectId>& layers() const { return m_layers; }

    // "Layers" by index (no bounds test, as a collection property is read);
    // anything else as the base.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    // The ids of "Layers", copied; null for any other property.
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

protected:
    void subAddMembers(KyDiMemberArray& members) override;

private:
    KyArray<KyDbObjectId> m_layers;
};
