// Not part of the interface: the colour list ("COLOR") behind a colour
// drop-down. It is no image of the drawing but a palette that only grows while
// the process lives: ten fixed entries named by the host's colour service
// (the entry of index 257, ByLayer, ByBlock, the indices 1 to 7), then every
// other colour that was current in a drawing or that a client added, in
// descending order of their names. Its items are the shared value items of
// the colours, so an equal colour is one item. The list outlives the
// documents: unbinding keeps it (the factory sets kKeepItemsWhenUnbound).
//
// Clients hear of every colour that enters the list: a colour added between
// two updates is told as added at the next one, and a reset that brought
// colours they don't know is told as a reset. A reset that left the list as
// they know it goes by silently.
#pragma once

#include <set>

#include "collections/KyDiImpCollectionBase.h"

class KyCmColor;

class KyDiImpColorCollection : public KyDiImpCollectionBase {
public:
    using KyDiImpCollectionBase::KyDiImpCollectionBase;

    // The item of `color`: a listed one, by equal value, or a new extra
    // colour, which asks for a refill.
    KyDiDynamicObject* addColor(const KyCmColor& color);
    // addColor, and, when that asked a bound list for a refill, the list
    // filled at once, so that the new colour is in it when the call returns.
    KyDiDynamicObject* addItem(const KyCmColor& color);

    KyDiObservableCollection* newPublicObject() override;
    void subPrepareUpdate() override;
    // The fixed entries, the drawing's current colour, the extra colours.
    // Without a colour service the list stays as it is.
    bool subFill(bool initial, KyDbDatabase* db, KyDiItemArray& list, void** context) override;
    // By the value item: -1 for an item without a colour.
    int subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) override;
    // Nothing leaves: what the fill has and the list hasn't is appended.
    void subMergeItems(KyDiItemArray& added, KyDiItemArray& removed, KyDiItemArray& modified,
                       KyDiItemArray& newItems) override;
    unsigned subFilterChangeBits(unsigned bits) override;

private:
    // Made once, in the order of the list.
    KyDiItemArray m_fixedColors;
    // Kept in descending order of their names.
    KyDiItemArray m_extraColors;
    // What addItem's fill put in the list that no client was told of yet.
    KyDiItemArray m_untold;
    // The items the clients knew when the running update began.
    std::set<KyDiDynamicObject*> m_told;
};
