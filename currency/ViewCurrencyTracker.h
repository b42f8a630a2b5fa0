// Not part of the interface: the tracker of the named views ("NAMEDVIEWS",
// "NAMEDMODELVIEWS"). A view is current when the current viewport shows what
// its record holds; the host's viewport service compares them. The tracker
// remembers, for each viewport, the name of the view it last found or
// restored there. While that view is still shown it answers no item: nothing
// new is to be told. Otherwise it looks through its collection from the end
// and takes the last view that matches. A view is made current by showing it
// in the viewport, without a command.
#pragma once

#include <map>

#include "currency/DataItemCurrencyTracker.h"

class KyDbSymbolTable;

class ViewCurrencyTracker : public DataItemCurrencyTracker {
public:
    ViewCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                        const wchar_t* commandFormat, Getter getter, Setter setter);

    KyDiDynamicObject* getCurrentItem() override;
    void setCurrentItem(KyDiDynamicObject* item) override;

private:
    struct IdOrder {
        bool operator()(const KyDbObjectId& a, const KyDbObjectId& b) const { return a < b; }
    };

    // The record of the view `name` of `views` when the current viewport
    // shows it (any view that opens, without a viewport service); null
    // otherwise.
    static KyDbObjectId matchingView(const KyDbSymbolTable* views, const KyString& name);

    // The name of the view last seen in each viewport, by the viewport's
    // key. Kept across documents, never pruned.
    std::map<KyDbObjectId, KyString, IdOrder> m_viewNames;
};
