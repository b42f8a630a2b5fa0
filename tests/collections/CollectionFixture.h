// The data item layer on the reference host with one new drawing, and the
// edits the collection tests make to it: each in a document lock and an undo
// group of its own, as a command makes it, so that U takes it back.
#pragma once

#include <string>
#include <vector>

#include "db/KyDbObjectId.h"
#include "ge/KyGePoint3d.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/RefHostFixture.h"
#include "support/CollectionContract.h"

class KyDbDatabase;

namespace kytest {

class CollectionFixture : public RefHostFixture {
protected:
    using RefHostFixture::RefHostFixture;

    KyDbDatabase* db();
    // A new linetype (text style) of this name; its id.
    KyDbObjectId addLinetype(const wchar_t* name);
    KyDbObjectId addTextStyle(const wchar_t* name);
    // A new named view looking at `center`, of paper space or of model space.
    KyDbObjectId addView(const wchar_t* name, const KyGePoint3d& center = KyGePoint3d(),
                         bool paperSpace = false);
    // A new viewport configuration ("*Active": the one model space shows).
    KyDbObjectId addViewport(const wchar_t* name);
    // A new named user coordinate system at the origin.
    KyDbObjectId addUcs(const wchar_t* name);
    // A new material under this key of the materials' dictionary.
    KyDbObjectId addMaterial(const wchar_t* name);
    // A new render preset of the drawing, under its name.
    KyDbObjectId addRenderPreset(const wchar_t* name);
    // Renames, erases or unerases a record; changes a linetype's description.
    void rename(KyDbObjectId id, const wchar_t* name);
    void erase(KyDbObjectId id, bool erasing = true);
    void describe(KyDbObjectId linetype, const wchar_t* description);
    // The id of a table's record by name.
    KyDbObjectId recordOf(KyDbObjectId tableId, const wchar_t* name);

    // The texts the layer sent since the last call, each followed by its
    // three flags: "'_clayer\nWalls\n (0 0 1)".
    std::vector<std::wstring> sentWithFlags();

    // A forced pass.
    static void pass() { KyDiManager::refresh(); }
    // The item of `collection` whose display name is `name`; null, and a
    // failure of the test, when there is none.
    static KyDiDynamicObject* item(KyDiObservableCollection* collection, const char* name);
    // The display names of the items, in order.
    static std::vector<std::string> names(KyDiObservableCollection* collection);
    static KyDiObservableCollection* known(const wchar_t* name) {
        return KyDiManager::getKnownCollection(name);
    }
};

}  // namespace kytest
