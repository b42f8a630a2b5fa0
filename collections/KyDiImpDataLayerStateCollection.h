// Not part of the interface: the "KYRO_LAYERSTATES" collection, the saved
// layer states of the drawing that are not hidden, in the order of their
// dictionary. The dictionary may not exist yet: until it does, a database
// reactor waits for it to be appended, and the list resets when it comes.
// Whether a state is current depends on the layers, so any change of a
// state, and the end of the commands that change layers wholesale, make the
// tracker look again; an erased state rebuilds the list.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiImpDataLayerStateDbReactor;

class KyDiImpDataLayerStateCollection : public KyDiImpDictionaryItemCollection {
public:
    KyDiImpDataLayerStateCollection(const wchar_t* name, KyDiCurrencyTracker* tracker);
    ~KyDiImpDataLayerStateCollection() override;

    void subDrawingContentChanged() override;
    void subCommandEnded(const wchar_t* command) override;
    void subDetach(KyDbObject* closing) override;
    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;
    void objectClosed(KyDbObjectId id) override;
    void objectErased(const KyDbObject* object, bool erasing) override;

    // Whether `command` (a global name, in any case) changes layers in a way
    // that may make a state current or no longer current.
    static bool isLayerStateCommand(const wchar_t* command);

private:
    KyDiImpDataLayerStateDbReactor* m_layerStateDbReactor;
};
