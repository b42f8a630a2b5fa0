// KyRefWriteContext: the state of one writing of a drawing: the database, the
// extras of the file it was read from (if any), the names of the records and
// keys of the entries that the file names references by, and what this save
// leaves out of the tables and the objects.
#pragma once

#include <string>
#include <unordered_map>

#include "KyRefDrawingExtras.h"
#include "KyRefJson.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyRefMemberList;

class KyRefWriteContext {
public:
    KyRefWriteContext(KyDbDatabase* database, const KyRefDrawingExtras* extras);

    KyDbDatabase* database() const { return m_database; }
    const KyRefDrawingExtras* extras() const { return m_extras; }

    // The name of a record; "" for the null id.
    const std::string& recordName(KyDbObjectId id);
    // The key of an entry in the dictionary that owns it; "" for the null id.
    const std::string& entryKey(KyDbObjectId id);

    // Shapes `out`, the JSON of the object `id` with every member, as the file
    // it came from had it (KyRefMemberList::shape).
    void shape(KyRefJson& out, KyDbObjectId id, const KyRefMemberList& members) const;
    const KyRefDrawingExtras::Form* form(KyDbObjectId id) const;

    // True while the objects the reader added are left out: all of them are
    // as the reader left them.
    bool omitsAdded() const { return m_omitsAdded; }
    void setOmitsAdded(bool omits) { m_omitsAdded = omits; }
    // True for an object that this save leaves out: an object the reader
    // added, and the layer states dictionary, whose states the file keeps in
    // "layerStates" rather than among the objects.
    bool isLeftOut(KyDbObjectId id) const;

private:
    KyDbDatabase* m_database;
    const KyRefDrawingExtras* m_extras;
    KyDbObjectId m_layerStates;
    bool m_omitsAdded = false;
    std::unordered_map<const void*, std::string> m_names;
};
