// Not part of the interface: the named views of the drawing. "NAMEDVIEWS"
// shows the views of the space the user works in: model views in model space
// and in an entered viewport of a layout, paper space views on the paper
// itself; when the user crosses over, the list is read again with a reset.
// "NAMEDMODELVIEWS" always shows the model views.
//
// Which view is current is a matter of what the viewport shows, which no
// system variable reports: the list asks its tracker again when a view is
// added or removed and when the host says that everything shown may be stale.
#pragma once

#include "collections/KyDiImpSymbolTableItemCollection.h"

class KyDiImpViewCollection : public KyDiImpSymbolTableItemCollection {
public:
    KyDiImpViewCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                          TableIdGetter getTableId, bool modelViewsOnly);

    bool subIncludeRecord(const KyDbSymbolTableRecord* record) const override;
    // Sees whether the user crossed between paper and model space since the
    // last update, and asks for a reset when so.
    void subPrepareUpdate() override;
    void subInvalidate() override;
    void objectClosed(KyDbObjectId id) override;

private:
    bool m_modelViewsOnly;
    // The views listed now are those of paper space.
    bool m_paperSpaceViews = false;
};
