// KyAppEnumCollectionWatch: `watch collection NAME` for a collection of an
// enumeration's values with a current item ("LINEWEIGHT"). Its items never
// change; each change of the current item prints one line:
//   currentItemChanged LINEWEIGHT "0.25 mm"
#pragma once

#include <ostream>
#include <string>

#include "kydi/KyDiCurrencyReactor.h"

class KyDiObservableEnumCollection;

class KyAppEnumCollectionWatch final : public KyDiCurrencyReactor {
public:
    // Joins the collection's reactors.
    KyAppEnumCollectionWatch(std::string name, KyDiObservableEnumCollection* collection,
                             std::ostream& out);
    // Leaves them.
    ~KyAppEnumCollectionWatch();
    KyAppEnumCollectionWatch(const KyAppEnumCollectionWatch&) = delete;
    KyAppEnumCollectionWatch& operator=(const KyAppEnumCollectionWatch&) = delete;

    const std::string& name() const { return m_name; }

    void currencyChanged() override;

private:
    std::string m_name;
    KyDiObservableEnumCollection* m_collection;
    std::ostream& m_out;
};
