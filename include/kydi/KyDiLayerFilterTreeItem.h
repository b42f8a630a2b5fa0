// KyDiLayerFilterTreeItem: a node of the layer filter tree, with the
// collections of its layers and of its sub-filters, and the filter's
// expression.
#pragma once

#include <cstdint>

#include "kydi/KyDiLayerFilterItemBase.h"

class KyDiObservableCollection;

class KYDI_API KyDiLayerFilterTreeItem : public KyDiLayerFilterItemBase {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    // Takes over `layers` and `subFilters` (either may be null).
    KyDiLayerFilterTreeItem(const KyString& name, const KyDiLayerFilterFlags& flags,
                            const KyString& expression, std::uint64_t fingerprint,
                            KyDiObservableCollection* layers, KyDiObservableCollection* subFilters);
    ~KyDiLayerFilterTreeItem() override;

    const KyString& expression() const { return m_expression; }
    std::uint64_t fingerprint() const { return m_fingerprint; }
    KyDiObservableCollection* layers() const { return m_layers; }
    KyDiObservableCollection* subFilters() const { return m_subFilters; }

    // "Layers", "SubFilters" (the collections) and "Expression"; anything
    // else as the base.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;

protected:
    void subAddMembers(KyDiMemberArray& members) override;

private:
    KyString m_expression;
    KyDiObservableCollection* m_subFilters;
    KyDiObservableCollection* m_layers;
    std::uint64_t m_fingerprint;
};
