// The items of layer filters. They keep a copy of what a filter of the host
// says (its name and its flags, and the layers it takes) and show it as
// reflected members:
//   "Name", "IsDynamicFilter", "IsDynamicGenerated", "AllowRename",
//   "AllowDelete", "AllowNested", then the members of the concrete class.
// KyDiLayerFilterItem is a filter of the flat list, with the ids of its
// layers ("Layers"); KyDiLayerFilterTreeItem is a node of the filter tree,
// with the collections of its layers and of its sub-filters, and the
// filter's expression.
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiItem.h"
#include "rx/KyRxValue.h"

// The flags a layer filter of the host carries.
struct KyDiLayerFilterFlags {
    bool isDynamicFilter = false;  // a property filter (not a list of layers)
    bool allowRename = false;
    bool allowDelete = false;
    bool allowNested = false;         // may hold sub-filters
    bool isDynamicGenerated = false;  // made by the host, not by the user
};

class KYDI_API KyDiLayerFilterItemBase : public KyDiItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    ~KyDiLayerFilterItemBase() override;

    KyString name() const;
    const KyDiLayerFilterFlags& flags() const { return m_flags; }

    // "Name" and the five flags; any other property eInvalidInput.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;

protected:
    KyDiLayerFilterItemBase(const KyString& name, const KyDiLayerFilterFlags& flags);

    Kyro::ErrorStatus subGetValueInto(KyRxValue& out) override;
    const KyRxValue* subValue() const override;
    KyRxValue* subValue() override;
    KyRxMemberIterator* subNewItemMemberIterator() override;
    // Adds the members of the concrete class, after the six shared ones.
    virtual void subAddMembers(KyDiMemberArray& members) = 0;

    void setName(const KyString& name);
    void setFlags(const KyDiLayerFilterFlags& flags) { m_flags = flags; }

private:
    KyRxValue m_nameValue;
    KyDiLayerFilterFlags m_flags;
};
